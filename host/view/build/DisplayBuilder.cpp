#include "host/view/build/DisplayBuilder.h"

#include "host/drawing/annotation/AnnotativeEntity.h"
#include "host/view/build/ProxyGraphics.h"
#include "host/view/build/Scene.h"

#include <array>
#include <unordered_map>

namespace host::view {

using drawing::Tag;
using drawing::TagList;

namespace {

using Builder = bool (*)(BuildContext &, const TagList &);

struct TypeRow
{
    std::string_view type;
    Builder build;
    bool isSimplified = false; ///< the builder shows less than the entity holds
    Making making = Making::Once;
    bool isAnnotative = false; ///< may have representations for annotation scales
};

constexpr std::array typeRows = {
    TypeRow{"LINE", buildLine, false, Making::Anywhere},
    TypeRow{"3DLINE", buildLine, false, Making::Anywhere},
    TypeRow{"CIRCLE", buildCircle, false, Making::Anywhere},
    TypeRow{"ARC", buildArc, false, Making::Anywhere},
    TypeRow{"ELLIPSE", buildEllipse, false, Making::Anywhere},
    TypeRow{"SPLINE", buildSpline},
    TypeRow{"HELIX", buildHelix},
    TypeRow{"RAY", buildRay, false, Making::Anywhere},
    TypeRow{"XLINE", buildXline, false, Making::Anywhere},
    TypeRow{"POINT", buildPoint, false, Making::Anywhere},
    TypeRow{"LWPOLYLINE", buildLwPolyline, false, Making::Anywhere},
    TypeRow{"POLYLINE", buildPolyline, false, Making::Anywhere},
    TypeRow{"MLINE", buildMline},
    TypeRow{"LEADER", buildLeader, false, Making::Once, true},
    TypeRow{"MULTILEADER", buildMultiLeader, false, Making::Once, true},
    TypeRow{"MLEADER", buildMultiLeader, false, Making::Once, true},
    TypeRow{"TOLERANCE", buildTolerance, false, Making::Once, true},
    TypeRow{"SOLID", buildSolid, false, Making::Anywhere},
    TypeRow{"TRACE", buildSolid, false, Making::Anywhere},
    TypeRow{"3DFACE", build3dFace, false, Making::Anywhere},
    TypeRow{"MESH", buildMesh},
    TypeRow{"3DSOLID", buildSolidModel},
    TypeRow{"REGION", buildSolidModel},
    TypeRow{"BODY", buildSolidModel},
    TypeRow{"SURFACE", buildSolidModel},
    TypeRow{"EXTRUDEDSURFACE", buildSolidModel},
    TypeRow{"LOFTEDSURFACE", buildSolidModel},
    TypeRow{"REVOLVEDSURFACE", buildSolidModel},
    TypeRow{"SWEPTSURFACE", buildSolidModel},
    TypeRow{"PLANESURFACE", buildSolidModel},
    TypeRow{"NURBSURFACE", buildSolidModel},
    TypeRow{"PDFUNDERLAY", buildUnderlay},
    TypeRow{"DWFUNDERLAY", buildUnderlay},
    TypeRow{"DGNUNDERLAY", buildUnderlay},
    TypeRow{"WIPEOUT", buildWipeout},
    TypeRow{"IMAGE", buildImage},
    TypeRow{"VIEWPORT", buildViewport},
    TypeRow{"TEXT", buildText, false, Making::Again, true},
    TypeRow{"ATTRIB", buildText},
    TypeRow{"ATTDEF", buildAttdef, false, Making::Again},
    TypeRow{"MTEXT", buildMText, false, Making::Again, true},
    TypeRow{"RTEXT", buildRemoteText},
    TypeRow{"SHAPE", buildShape},
    TypeRow{"HATCH", buildHatch},
    TypeRow{"INSERT", buildInsert, false, Making::Once, true},
    TypeRow{"DIMENSION", buildDimension, false, Making::Once, true},
    TypeRow{"ARC_DIMENSION", buildDimension, false, Making::Once, true},
    TypeRow{"LARGE_RADIAL_DIMENSION", buildDimension, false, Making::Once, true},
    TypeRow{"ACAD_TABLE", buildTable},
};

constexpr TypeRow unknownType{"", [](BuildContext &, const TagList &) { return false; }};

const TypeRow *findType(QByteArrayView name)
{
    static const std::unordered_map<std::string_view, const TypeRow *> byType = [] {
        std::unordered_map<std::string_view, const TypeRow *> rows;
        for (const TypeRow &row : typeRows)
            rows.emplace(row.type, &row);
        return rows;
    }();
    const auto found = byType.find({name.data(), static_cast<std::size_t>(name.size())});
    return found == byType.end() ? nullptr : found->second;
}

void readStyleTag(const TagList &tags, const Tag &tag, StyleNames &names, Style &style, bool &isInvisible)
{
    switch (tag.code) {
    case 6:
        style.linetype = names.linetype(tags, tag);
        break;
    case 8:
        style.layer = names.layer(tags, tag);
        break;
    case 48:
        style.linetypeScale = tag.real().value_or(1.0);
        break;
    case 60:
        isInvisible = tag.integer().value_or(0) == 1;
        break;
    case 62:
        if (style.colour.kind != Colour::Kind::True)
            style.colour = colourFromIndex(tag.integer().value_or(256));
        break;
    case 370:
        style.lineweight = static_cast<int>(std::clamp<qint64>(tag.integer().value_or(-1), -3, 211));
        break;
    case 380:
        // In place of the name that a handle tells.
        if (const qint64 kind = tag.integer().value_or(0); kind != 3)
            style.plotStyle = kind == 1 ? Style::byBlock : kind == 2 ? 0 : Style::byLayer;
        break;
    case 390:
        style.plotStyle = names.plotStyle(tag.handle().value_or(drawing::Handle{}));
        break;
    case 420:
        if (const auto value = tag.integer())
            style.colour = {.kind = Colour::Kind::True, .value = static_cast<std::uint32_t>(*value & 0xffffff)};
        break;
    default:
        break;
    }
}

} // namespace

Colour colourFromIndex(qint64 index)
{
    if (index == 0)
        return {.kind = Colour::Kind::ByBlock};
    const qint64 shown = std::abs(index);
    return shown >= 1 && shown <= 255 ? Colour{.kind = Colour::Kind::Index, .value = static_cast<std::uint32_t>(shown)}
                                      : Colour{};
}

bool isUsable(double value)
{
    return std::abs(value) <= farthestCoordinate;
}

bool isUsable(const Vec3 &point)
{
    return isUsable(point.x) && isUsable(point.y) && isUsable(point.z);
}

bool areUsable(const Path &points)
{
    return !points.empty() && std::ranges::all_of(points, [](const Vec3 &point) { return isUsable(point); });
}

Appearance &BuildContext::appearance() const
{
    return scene.appearance();
}

Fonts &BuildContext::fonts() const
{
    return scene.fonts();
}

drawing::Flatness BuildContext::flatness(const drawing::Flatness &finest, std::size_t ownPoints)
{
    const auto own = static_cast<std::int64_t>(ownPoints);
    drawing::Flatness flatness = finest;
    flatness.maximumPieces = static_cast<int>(std::clamp<std::int64_t>(work.left() + own, 1, finest.maximumPieces));
    display.isCutShort |= flatness.maximumPieces < finest.maximumPieces;
    return flatness;
}

void BuildContext::charge(std::size_t points, std::size_t ownPoints)
{
    work.charge(static_cast<std::int64_t>(points) - static_cast<std::int64_t>(ownPoints));
}

Making makingOf(QByteArrayView type)
{
    const TypeRow *row = findType(type);
    return row ? row->making : Making::Once;
}

template <class Find>
int StyleNames::find(Numbers &numbers, QByteArrayView name, const Find &find)
{
    const std::string_view key(name.data(), static_cast<std::size_t>(name.size()));
    if (const auto known = numbers.find(key); known != numbers.end())
        return known->second;
    const std::optional<int> number = find();
    m_hasUnknown |= !number;
    return number ? numbers.emplace(key, *number).first->second : 0;
}

int StyleNames::layer(const TagList &tags, const Tag &tag)
{
    return find(m_layers, tag.value, [&]() -> std::optional<int> {
        const QString name = tags.decoded(tag);
        return m_appearance ? m_appearance->layer(name) : m_known->knownLayer(name);
    });
}

int StyleNames::linetype(const TagList &tags, const Tag &tag)
{
    return find(m_linetypes, tag.value, [&]() -> std::optional<int> {
        const QString name = tags.decoded(tag).trimmed();
        return m_appearance ? m_appearance->linetype(name) : m_known->knownLinetype(name);
    });
}

int StyleNames::plotStyle(drawing::Handle handle) const
{
    return (m_appearance ? m_appearance : m_known)->plotStyle(handle);
}

namespace {

/// The common groups stand in front of the type's own marker; R12 has no markers and mixes them.
Style readStyleWith(const TagList &tags, StyleNames &names, bool &isInvisible)
{
    Style style;
    bool isInGroup = false;
    for (const Tag &tag : tags) {
        if (tag.code >= 1000 || (tag.code == 100 && tag.trimmed() != "AcDbEntity"))
            break;
        if (tag.code == 102)
            isInGroup = tag.trimmed().startsWith('{');
        else if (!isInGroup)
            readStyleTag(tags, tag, names, style, isInvisible);
    }
    return style;
}

/// What follows from the items.
void finish(RecordDisplay &display)
{
    display.isSkipped = false;
    display.isSimplified |= display.isCutShort;
    for (const DisplayItem &item : display.items) {
        display.isEndless |= std::holds_alternative<Endless>(item.shape);
        display.hasReferences |= std::holds_alternative<std::unique_ptr<Reference>>(item.shape);
    }
}

void buildFrom(const TagList &tags, const TypeRow &type, BuildContext &context)
{
    RecordDisplay &display = context.display;
    const std::int64_t before = context.work.left();
    const std::int64_t refusals = context.work.refusals();
    const RecordId parent = context.drawing.parent(display.record);
    context.isInBlock = isValid(parent) && context.drawing.kind(parent) == drawing::RecordKind::Block;
    bool isBuilt = false;
    if (type.isAnnotative && !context.isInBlock && tags.integer(67) == 0) {
        const drawing::AnnotativeEntity shown(context.drawing, context.scene.annotationView(), display.record, tags,
                                              context.work);
        display.isHidden = shown.isHidden();
        isBuilt = shown.isHidden() || type.build(context, shown.tags());
    } else {
        isBuilt = type.build(context, tags);
    }
    display.work = before - context.work.left();
    display.isCutShort |= context.work.refusals() > refusals;
    display.isSimplified = isBuilt && (type.isSimplified || display.isSimplified);
    finish(display);
    display.isSkipped = !isBuilt;
    display.isSimplified &= isBuilt;
}

} // namespace

Style readStyle(const TagList &tags, Appearance &appearance, bool *isInvisible)
{
    bool invisible = false;
    StyleNames names(appearance);
    const Style style = readStyleWith(tags, names, invisible);
    if (isInvisible)
        *isInvisible = invisible;
    return style;
}

RecordDisplay buildDisplay(const drawing::Drawing &drawing, Scene &scene, drawing::WorkBudget &work, RecordId record)
{
    RecordDisplay display{.record = record};
    const TypeRow *type = findType(drawing.typeName(record));
    const TagList tags = drawing.tags(record);
    BuildContext context{drawing, scene, work, display};
    context.style = readStyle(tags, scene.appearance(), &display.isHidden);
    if (!display.isHidden)
        buildFrom(tags, type ? *type : unknownType, context);
    // The picture that it keeps of itself stands in for what is not known.
    if (display.isSkipped && drawProxyGraphics(context, proxyGraphics(tags)))
        finish(display);
    return display;
}

std::optional<RecordDisplay> buildFreely(const drawing::Drawing &drawing, Scene &scene, StyleNames &names,
                                         RecordId record, const TagList &tags)
{
    const TypeRow *type = findType(drawing.typeName(record));
    if (!type || type->making == Making::Once)
        return std::nullopt;
    std::optional<RecordDisplay> display(std::in_place);
    display->record = record;
    // As much as a scene may have: what is made with it is the same as with none, or takes from it.
    drawing::WorkBudget work(drawing::displayWork);
    BuildContext context{drawing, scene, work, *display};
    names.forgetUnknown();
    context.style = readStyleWith(tags, names, display->isHidden);
    if (!display->isHidden)
        buildFrom(tags, *type, context);
    const bool isDrawnOtherwise = display->isSkipped && !proxyGraphics(tags).isEmpty();
    if (isDrawnOtherwise || names.hasUnknown() || work.left() != drawing::displayWork || work.refusals() > 0)
        display.reset();
    return display;
}

} // namespace host::view
