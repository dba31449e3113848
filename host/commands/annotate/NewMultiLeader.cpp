#include "host/commands/annotate/NewMultiLeader.h"

#include "host/commands/common/UserPlane.h"
#include "host/drawing/annotation/AnnotationScale.h"
#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/Dictionaries.h"
#include "host/drawing/records/HeaderVariables.h"
#include "host/drawing/records/Structure.h"
#include "host/drawing/records/Tables.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/running/CommandContext.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

using drawing::FieldList;
using drawing::Handle;
using drawing::RecordId;
using drawing::TableKind;
using drawing::Vec3;

namespace {

constexpr qint64 colourByBlock = -1056964608; ///< as such records pack it
constexpr qint64 noFillColour = -939524096;

/// Sizes on paper, and what they become in the drawing.
struct NoteSizes
{
    double text = 4.0;
    double arrow = 4.0;
    double gap = 2.0;
    double scale = 1.0;
    Handle textStyle{};
    Handle linetype{};
};

Handle handleOf(drawing::Drawing &drawing, TableKind kind, const QString &name)
{
    const RecordId entry = drawing.tables().find(kind, name);
    return isValid(entry) ? drawing.handle(entry) : Handle{};
}

FieldList styleBody(const NoteSizes &sizes, double landing)
{
    const auto whole = [](qint64 value) { return value; };
    return {{100, u"AcDbMLeaderStyle"_s},
            {179, whole(2)},
            {170, whole(2)},
            {171, whole(1)},
            {172, whole(0)},
            {90, whole(2)},
            {40, 0.0},
            {41, 0.0},
            {173, whole(1)},
            {91, colourByBlock},
            {340, sizes.linetype},
            {92, whole(-2)},
            {290, whole(1)},
            {42, sizes.gap},
            {291, whole(1)},
            {43, landing},
            {3, u"Standard"_s},
            {44, sizes.arrow},
            {300, QString()},
            {342, sizes.textStyle},
            {174, whole(1)},
            {178, whole(1)},
            {175, whole(1)},
            {176, whole(0)},
            {93, colourByBlock},
            {45, sizes.text},
            {292, whole(0)},
            {297, whole(0)},
            {46, sizes.text},
            {94, colourByBlock},
            {47, 1.0},
            {49, 1.0},
            {140, 1.0},
            {293, whole(1)},
            {141, 0.0},
            {294, whole(1)},
            {177, whole(0)},
            {142, 1.0},
            {295, whole(0)},
            {296, whole(1)},
            {143, 3.75}};
}

/// What new styles have in inches or millimetres.
NoteSizes usualNoteSizes(drawing::Drawing &drawing)
{
    NoteSizes sizes;
    if (drawing.header().integer(u"$MEASUREMENT") == 0)
        sizes = {.text = 0.18, .arrow = 0.18, .gap = 0.09};
    sizes.textStyle = handleOf(drawing, TableKind::Style, u"Standard"_s);
    sizes.linetype = handleOf(drawing, TableKind::Linetype, u"ByBlock"_s);
    const double scale = drawing.header().real(u"$DIMSCALE", 1.0);
    sizes.scale = scale > 0.0 ? scale : drawing::annotationFactor(drawing);
    return sizes;
}

double usualLanding(const drawing::Drawing &drawing)
{
    return drawing.header().integer(u"$MEASUREMENT") == 0 ? 0.36 : 8.0;
}

/// The current style, or Standard, which is made where there is none.
RecordId currentNoteStyle(CommandContext &context)
{
    drawing::Drawing &drawing = context.drawing();
    drawing::Dictionaries &dictionaries = drawing.dictionaries();
    const RecordId styles = dictionaries.ensureDictionary(dictionaries.ensureRoot(), u"ACAD_MLEADERSTYLE"_s);
    const QString wanted = context.document().variables().text(u"CMLEADERSTYLE");
    RecordId style = dictionaries.find(styles, wanted);
    if (!isValid(style))
        style = dictionaries.find(styles, u"Standard"_s);
    if (isValid(style))
        return style;
    drawing::ensureClass(drawing, u"MLEADERSTYLE"_s);
    style = drawing::insertObject(drawing, u"MLEADERSTYLE"_s, drawing.handle(styles),
                                  styleBody(usualNoteSizes(drawing), usualLanding(drawing)));
    dictionaries.set(styles, u"Standard"_s, style);
    return style;
}

NoteSizes sizesOf(drawing::Drawing &drawing, RecordId style)
{
    NoteSizes sizes = usualNoteSizes(drawing);
    const drawing::TagList tags = drawing.tags(style);
    sizes.text = tags.real(45, sizes.text);
    sizes.arrow = tags.real(44, sizes.arrow);
    sizes.gap = tags.real(42, sizes.gap);
    if (const Handle textStyle = tags.handle(342); !textStyle.isNull())
        sizes.textStyle = textStyle;
    return sizes;
}

/// Where everything is, in world coordinates.
struct NotePlace
{
    std::vector<Vec3> line; ///< from the arrow on, without the landing
    Vec3 landing;
    Vec3 base; ///< the dogleg's end
    Vec3 text;
    Vec3 along; ///< the user's axes
    Vec3 up;
    Vec3 normal;
    Vec3 origin;
    double side = 1.0;
    double dogleg = 0.0; ///< its length in the drawing
};

NotePlace notePlace(const UserPlane &plane, const NoteSizes &sizes, const MultiLeaderForm &form,
                    const std::vector<Vec3> &points)
{
    NotePlace place;
    place.line.assign(points.begin(), points.end() - 1);
    place.landing = points.back();
    place.origin = plane.worldFromUser({});
    place.along = plane.worldFromUser({1.0, 0.0, 0.0}) - place.origin;
    place.up = plane.worldFromUser({0.0, 1.0, 0.0}) - place.origin;
    place.normal = plane.worldFromUser({0.0, 0.0, 1.0}) - place.origin;
    place.side = dot(place.landing - place.line.back(), place.along) < 0.0 ? -1.0 : 1.0;
    // A spline runs into its content without a piece of its own.
    const bool hasDogleg = form.hasLanding && form.lineType == MultiLeaderForm::Straight;
    place.dogleg = hasDogleg ? form.landing * sizes.scale : 0.0;
    place.base = place.landing + place.along * (place.side * place.dogleg);
    place.text =
        place.base + place.along * (place.side * sizes.gap * sizes.scale) + place.up * (sizes.text * sizes.scale / 2.0);
    return place;
}

FieldList leaderData(const NotePlace &place)
{
    FieldList fields = {{302, u"LEADER{"_s},
                        {290, qint64(1)},
                        {291, qint64(place.dogleg > 0.0)},
                        {10, place.landing},
                        {11, place.along * place.side},
                        {90, qint64(0)},
                        {40, place.dogleg},
                        {304, u"LEADER_LINE{"_s}};
    for (const Vec3 &point : place.line)
        fields.push_back({10, point});
    const FieldList end = {{91, qint64(0)}, {305, u"}"_s}, {303, u"}"_s}};
    fields.insert(fields.end(), end.begin(), end.end());
    return fields;
}

/// A text with where it stands and how.
FieldList textData(const NotePlace &place, const NoteSizes &sizes, const QString &content)
{
    const auto whole = [](qint64 value) { return value; };
    return {{290, whole(1)},
            {304, content},
            {11, place.normal},
            {340, sizes.textStyle},
            {12, place.text},
            {13, place.along},
            {42, 0.0},
            {43, 0.0},
            {44, 0.0},
            {45, 1.0},
            {170, whole(1)},
            {90, colourByBlock},
            {171, whole(place.side < 0.0 ? 3 : 1)},
            {172, whole(1)},
            {91, noFillColour},
            {141, 1.5},
            {92, whole(0)},
            {291, whole(0)},
            {292, whole(0)},
            {173, whole(0)},
            {293, whole(0)},
            {142, 0.0},
            {143, 0.0},
            {294, whole(0)},
            {295, whole(0)}};
}

/// A block at the end of the dogleg, upright in the user's plane.
FieldList blockData(const NotePlace &place, const NoteSizes &sizes, Handle block)
{
    FieldList fields = {{341, block},     {14, place.normal},
                        {15, place.base}, {16, Vec3{sizes.scale, sizes.scale, sizes.scale}},
                        {46, 0.0},        {93, colourByBlock}};
    const Vec3 axes[] = {place.along * sizes.scale, place.up * sizes.scale, place.normal * sizes.scale, place.base};
    const auto addRow = [&](double Vec3::*row) {
        for (const Vec3 &axis : axes)
            fields.push_back({47, axis.*row});
    };
    addRow(&Vec3::x);
    addRow(&Vec3::y);
    addRow(&Vec3::z);
    for (const double last : {0.0, 0.0, 0.0, 1.0})
        fields.push_back({47, last});
    return fields;
}

FieldList contextData(const NotePlace &place, const NoteSizes &sizes, const FieldList &text, const FieldList &block)
{
    const auto whole = [](qint64 value) { return value; };
    FieldList fields = {{300, u"CONTEXT_DATA{"_s},
                        {40, sizes.scale},
                        {10, place.base},
                        {41, sizes.text * sizes.scale},
                        {140, sizes.arrow * sizes.scale},
                        {145, sizes.gap * sizes.scale},
                        {174, whole(1)},
                        {175, whole(1)},
                        {176, whole(0)},
                        {177, whole(0)}};
    const auto append = [&fields](const FieldList &more) { fields.insert(fields.end(), more.begin(), more.end()); };
    append(text.empty() ? FieldList{{290, whole(0)}} : text);
    fields.push_back({296, whole(block.empty() ? 0 : 1)});
    append(block);
    append({{110, place.origin}, {111, place.along}, {112, place.up}, {297, whole(0)}});
    append(leaderData(place));
    fields.push_back({301, u"}"_s});
    return fields;
}

/// The texts that a block's attributes show: what their definitions say.
FieldList attributeData(const drawing::Drawing &drawing, RecordId block)
{
    FieldList fields;
    qint64 index = 0;
    for (const RecordId part : drawing.children(block)) {
        if (!drawing.isType(part, "ATTDEF"))
            continue;
        const FieldList one = {
            {330, drawing.handle(part)}, {177, ++index}, {44, 0.0}, {302, drawing.tags(part).text(1)}};
        fields.insert(fields.end(), one.begin(), one.end());
    }
    return fields;
}

/// What the entity has in place of its style, as far as `form.overrides` puts it in force.
FieldList ownData(const NoteSizes &sizes, const MultiLeaderForm &form, Handle style, Handle block,
                  const FieldList &attributes)
{
    const auto whole = [](qint64 value) { return value; };
    FieldList fields = {{340, style},
                        {90, form.overrides},
                        {170, form.lineType},
                        {91, colourByBlock},
                        {341, sizes.linetype},
                        {171, whole(-2)},
                        {290, whole(form.hasLanding)},
                        {291, whole(form.hasLanding)},
                        {41, form.landing},
                        {42, sizes.arrow},
                        {172, form.content},
                        {343, sizes.textStyle},
                        {173, whole(1)},
                        {95, whole(1)},
                        {174, whole(1)},
                        {175, whole(0)},
                        {92, colourByBlock},
                        {292, whole(0)}};
    const auto append = [&fields](const FieldList &more) { fields.insert(fields.end(), more.begin(), more.end()); };
    if (!block.isNull())
        fields.push_back({344, block});
    append({{93, colourByBlock},
            {10, Vec3{1.0, 1.0, 1.0}},
            {43, 0.0},
            {176, whole(block.isNull() ? 0 : 1)},
            {293, whole(0)}});
    append(attributes);
    append({{294, whole(0)}, {178, whole(0)}, {179, whole(1)}, {45, sizes.scale}});
    return fields;
}

} // namespace

MultiLeaderForm multiLeaderForm(CommandContext &context)
{
    const drawing::TagList style = context.drawing().tags(currentNoteStyle(context));
    MultiLeaderForm form;
    form.lineType = style.integer(173, form.lineType);
    form.content = style.integer(170, form.content);
    form.hasLanding = style.integer(290, 1) != 0 && style.integer(291, 1) != 0;
    form.landing = style.real(43, form.landing);
    form.mostPoints = std::max<qint64>(style.integer(90, form.mostPoints), 0);
    form.firstAngle = style.real(40);
    form.secondAngle = style.real(41);
    const RecordId entry = context.drawing().find(style.handle(343));
    if (form.content == MultiLeaderForm::Block && context.drawing().isAlive(entry))
        form.block = context.drawing().tables().name(entry);
    return form;
}

RecordId createMultiLeader(CommandContext &context, const MultiLeaderForm &form, const std::vector<Vec3> &points,
                           const QString &text)
{
    drawing::Drawing &drawing = context.drawing();
    const RecordId style = currentNoteStyle(context);
    const NoteSizes sizes = sizesOf(drawing, style);
    const NotePlace place = notePlace(UserPlane(context.document()), sizes, form, points);
    const RecordId block =
        form.content == MultiLeaderForm::Block ? drawing.blocks().find(form.block) : drawing::noRecord;
    const bool hasText = form.content == MultiLeaderForm::Text;
    const Handle entry = isValid(block) ? drawing.handle(drawing.blocks().read(block).tableEntry) : Handle{};
    FieldList fields = {{0, u"MULTILEADER"_s}, {100, u"AcDbEntity"_s}, {100, u"AcDbMLeader"_s}};
    if (drawing.version() >= drawing::Version::R2010)
        fields.push_back({270, qint64(2)});
    const FieldList noteText = hasText ? textData(place, sizes, text) : FieldList{};
    const FieldList noteBlock = isValid(block) ? blockData(place, sizes, entry) : FieldList{};
    const FieldList attributes = isValid(block) ? attributeData(drawing, block) : FieldList{};
    for (const FieldList &part : {contextData(place, sizes, noteText, noteBlock),
                                  ownData(sizes, form, drawing.handle(style), entry, attributes)})
        fields.insert(fields.end(), part.begin(), part.end());
    return context.create(fields);
}

} // namespace host::kernel
