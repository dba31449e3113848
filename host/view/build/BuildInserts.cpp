#include "host/drawing/annotation/AnnotativeEntity.h"
#include "host/drawing/geometry/EntityGeometry.h"
#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/Dictionaries.h"
#include "host/drawing/tags/GroupCodes.h"
#include "host/view/build/DisplayBuilder.h"
#include "host/view/build/FileMark.h"
#include "host/view/build/Scene.h"
#include "host/view/display/DisplayBoxes.h"

namespace host::view {

using namespace Qt::StringLiterals;
using drawing::TagList;

namespace {

constexpr std::int64_t mostRows = 1'000'000'000'000;

bool isUsableMatrix(const Matrix &m)
{
    return isUsable(m.xAxis) && isUsable(m.yAxis) && isUsable(m.zAxis) && isUsable(m.origin);
}

/// A map of three rows of four numbers, as clip filters have it.
Matrix readRows(const std::vector<double> &numbers, std::size_t from)
{
    const auto column = [&](std::size_t i) {
        return Vec3{numbers[from + i], numbers[from + 4 + i], numbers[from + 8 + i]};
    };
    return {column(0), column(1), column(2), column(3)};
}

/// Two corners stand for the rectangle between them.
Path polygonOf(Path corners)
{
    if (corners.size() != 2)
        return corners;
    return {corners[0], {corners[1].x, corners[0].y, 0.0}, corners[1], {corners[0].x, corners[1].y, 0.0}};
}

/// The points of an extension record behind the mark `name` (102), up to the next mark.
Path markedPoints(const drawing::FieldList &fields, QStringView name)
{
    Path points;
    bool isWanted = false;
    for (const drawing::Field &field : fields) {
        if (field.code == drawing::groupCode)
            isWanted = field.text() == name;
        else if (isWanted && field.code == 10)
            points.push_back(field.point());
    }
    return points;
}

/// What an inverted clip leaves out; empty for a usual one. The filter itself has, for programs that do not know of
/// inverted clips, some polygon of what is left. The boundary counts as long as that is the one it was noted with.
Path invertedBoundary(const drawing::Drawing &drawing, RecordId filter, const Path &corners)
{
    const drawing::Dictionaries &dictionaries = drawing.dictionaries();
    const auto sameFlat = [](const Vec3 &a, const Vec3 &b) { return a.xy() == b.xy(); };
    for (const auto &entry : dictionaries.entries(dictionaries.extensionDictionary(filter))) {
        if (!isValid(entry.record) || !drawing.isType(entry.record, "XRECORD"))
            continue;
        const drawing::FieldList data = dictionaries.xrecordData(entry.record);
        Path left = markedPoints(data, u"ACAD_INVERTEDCLIP_ROUNDTRIP");
        if (left.size() > 1 &&
            std::ranges::equal(markedPoints(data, u"ACAD_INVERTEDCLIP_ROUNDTRIP_COMPARE"), corners, sameFlat))
            return polygonOf(std::move(left));
    }
    return {};
}

/// A polygon of what lies around `inner`: a far larger rectangle that goes to its first corner and back.
Path polygonAround(const Path &inner, const Path &filter)
{
    constexpr double reach = 10.0; ///< times the size of the filter's own polygon, which held all of the block
    Box box;
    for (const Path *points : {&inner, &filter})
        std::ranges::for_each(*points, [&box](const Vec3 &p) { box.add(p); });
    const Vec3 margin = (box.high - box.low) * reach;
    const Vec3 low = box.low - margin;
    const Vec3 high = box.high + margin;
    Path around = inner;
    around.insert(around.end(),
                  {inner.front(), low, {high.x, low.y, 0.0}, {high.x, high.y, 0.0}, {low.x, high.y, 0.0}, low});
    return around;
}

/// The clip boundary of an insert, in coordinates of the block; empty when it has none that is switched on.
Path readClip(BuildContext &context, RecordId insert)
{
    const drawing::Dictionaries &dictionaries = context.drawing.dictionaries();
    const RecordId own = dictionaries.extensionDictionary(insert);
    const RecordId filters = isValid(own) ? dictionaries.find(own, u"ACAD_FILTER"_s) : noRecord;
    const RecordId filter = isValid(filters) ? dictionaries.find(filters, u"SPATIAL"_s) : noRecord;
    if (!isValid(filter) || !context.drawing.isType(filter, "SPATIAL_FILTER"))
        return {};
    const TagList tags = context.drawing.tags(filter);
    if (tags.integer(71, 1) == 0)
        return {};
    Path corners = tags.points(10);
    std::vector<double> numbers = tags.reals(40);
    if (tags.integer(72) != 0 && !numbers.empty())
        numbers.erase(numbers.begin()); // distance of the front clip plane
    if (corners.size() < 2 || numbers.size() < 24)
        return {};
    const Path inverted = invertedBoundary(context.drawing, filter, corners);
    corners = inverted.empty() ? polygonOf(std::move(corners)) : polygonAround(inverted, corners);
    // Many inserts may name one filter.
    if (!context.work.take(static_cast<std::int64_t>(corners.size())))
        return {};
    const Matrix toBlock = readRows(numbers, 0) * readRows(numbers, 12).inverted();
    if (!isUsableMatrix(toBlock))
        return {};
    for (Vec3 &corner : corners)
        corner = toBlock.point(corner);
    return std::ranges::all_of(corners, [](const Vec3 &p) { return isUsable(p); }) ? corners : Path{};
}

/// In an array every cell has the attributes.
void addAttributes(BuildContext &context, Reference &reference)
{
    const bool isArray = reference.columns > 1 || reference.rows > 1;
    const std::size_t first = context.display.items.size();
    for (const RecordId child : context.drawing.children(context.display.record)) {
        if (!context.drawing.isType(child, "ATTRIB"))
            continue;
        const TagList record = context.drawing.tags(child);
        const drawing::AnnotativeEntity shown(
            context.drawing, context.isInBlock ? drawing::AnnotationView{} : context.scene.annotationView(), child,
            record, context.work);
        const TagList &tags = shown.tags();
        bool isInvisible = false;
        BuildContext own{context.drawing,
                         context.scene,
                         context.work,
                         context.display,
                         readStyle(tags, context.appearance(), &isInvisible),
                         true};
        constexpr qint64 invisibleFlag = 1;
        if (!isInvisible && !shown.isHidden() && (tags.integer(70) & invisibleFlag) == 0)
            buildText(own, tags);
    }
    if (!isArray)
        return;
    for (std::size_t i = first; i < context.display.items.size(); ++i) {
        addItemBox(context.display.items[i], reference.besideBox);
        reference.beside.push_back(std::move(context.display.items[i]));
    }
    context.display.items.resize(first);
}

/// Whether the insert of another drawing can be left at what its reference shows. One that is not to be had is a mark
/// with its name; one whose file could not be read whole is shown in part.
bool finishExternal(BuildContext &context, const TagList &tags, const ExternalView &external)
{
    context.display.isExternal = true;
    context.display.isHidden = external.state == ExternalView::State::LeftOut;
    context.display.isSimplified =
        external.state == ExternalView::State::Shown && external.drawing->readingNotes().hasLost();
    if (external.state != ExternalView::State::Missing)
        return true;
    const Matrix ocs = Matrix::fromExtrusion(tags.point(210, {0.0, 0.0, 1.0}));
    addFileMark(context, Matrix::translation(ocs.point(tags.point(10))), external.path);
    return false;
}

} // namespace

bool buildInsert(BuildContext &context, const TagList &tags)
{
    const QString name = tags.text(2);
    // A reference is made even to a block that is not there: it may be defined later.
    auto reference = std::make_unique<Reference>();
    reference->block = context.scene.block(name);
    const bool exists = context.scene.exists(reference->block);
    reference->placement = drawing::insertTransform(context.drawing, tags);
    reference->columns = std::clamp<std::int64_t>(tags.integer(70, 1), 1, mostRows);
    reference->rows = std::clamp<std::int64_t>(tags.integer(71, 1), 1, mostRows);
    const Vec3 origin = reference->placement.origin;
    if (reference->columns > 1)
        reference->columnStep = drawing::insertTransform(context.drawing, tags, 1, 0).origin - origin;
    if (reference->rows > 1)
        reference->rowStep = drawing::insertTransform(context.drawing, tags, 0, 1).origin - origin;
    if (!isUsableMatrix(reference->placement) || !isUsable(reference->columnStep) || !isUsable(reference->rowStep))
        return false;
    reference->clip = readClip(context, context.display.record);
    addAttributes(context, *reference);
    const bool hasAttributes = !context.display.items.empty() || !reference->beside.empty();
    const ExternalView *external = context.scene.external(reference->block);
    context.add(std::move(reference));
    return external ? finishExternal(context, tags, *external) : exists || hasAttributes;
}

} // namespace host::view
