#include "host/view/build/DisplayBuilder.h"

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
};

constexpr std::array typeRows = {
    TypeRow{"LINE", buildLine},
    TypeRow{"CIRCLE", buildCircle},
    TypeRow{"ARC", buildArc},
    TypeRow{"ELLIPSE", buildEllipse},
    TypeRow{"SPLINE", buildSpline},
    TypeRow{"HELIX", buildSpline},
    TypeRow{"RAY", buildRay},
    TypeRow{"XLINE", buildXline},
    TypeRow{"POINT", buildPoint},
    TypeRow{"LWPOLYLINE", buildLwPolyline},
    TypeRow{"POLYLINE", buildPolyline},
    TypeRow{"MLINE", buildMline, true},
    TypeRow{"LEADER", buildLeader},
    TypeRow{"MULTILEADER", buildMultiLeader},
    TypeRow{"MLEADER", buildMultiLeader},
    TypeRow{"SOLID", buildSolid},
    TypeRow{"TRACE", buildSolid},
    TypeRow{"3DFACE", build3dFace},
    TypeRow{"MESH", buildMesh, true},
    TypeRow{"WIPEOUT", buildWipeout},
    TypeRow{"IMAGE", buildImage},
    TypeRow{"VIEWPORT", buildViewport},
    TypeRow{"TEXT", buildText},
    TypeRow{"ATTRIB", buildText},
    TypeRow{"ATTDEF", buildAttdef},
    TypeRow{"MTEXT", buildMText},
    TypeRow{"RTEXT", buildRemoteText},
    TypeRow{"SHAPE", buildShape},
    TypeRow{"HATCH", buildHatch},
    TypeRow{"INSERT", buildInsert},
    TypeRow{"DIMENSION", buildDimension},
    TypeRow{"ARC_DIMENSION", buildDimension},
    TypeRow{"LARGE_RADIAL_DIMENSION", buildDimension},
    TypeRow{"ACAD_TABLE", buildTable},
};

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

void readStyleTag(const TagList &tags, const Tag &tag, Appearance &appearance, Style &style, bool &isInvisible)
{
    switch (tag.code) {
    case 6:
        style.linetype = appearance.linetype(tags.decoded(tag).trimmed());
        break;
    case 8:
        style.layer = appearance.layer(tags.decoded(tag));
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

/// The common groups stand in front of the type's own marker; R12 has no markers and mixes them.
Style readStyle(const TagList &tags, Appearance &appearance, bool *isInvisible)
{
    Style style;
    bool invisible = false;
    bool isInGroup = false;
    for (const Tag &tag : tags) {
        if (tag.code >= 1000 || (tag.code == 100 && tag.trimmed() != "AcDbEntity"))
            break;
        if (tag.code == 102)
            isInGroup = tag.trimmed().startsWith('{');
        else if (!isInGroup)
            readStyleTag(tags, tag, appearance, style, invisible);
    }
    if (isInvisible)
        *isInvisible = invisible;
    return style;
}

RecordDisplay buildDisplay(const drawing::Drawing &drawing, Scene &scene, drawing::WorkBudget &work, RecordId record)
{
    RecordDisplay display{.record = record};
    const TypeRow *type = findType(drawing.typeName(record));
    if (!type) {
        display.isSkipped = true;
        return display;
    }
    const TagList tags = drawing.tags(record);
    const std::int64_t before = work.left();
    const std::int64_t refusals = work.refusals();
    BuildContext context{drawing, scene, work, display};
    context.style = readStyle(tags, scene.appearance(), &display.isHidden);
    if (display.isHidden)
        return display;
    const RecordId parent = drawing.parent(record);
    context.isInBlock = isValid(parent) && drawing.kind(parent) == drawing::RecordKind::Block;
    display.isSkipped = !type->build(context, tags);
    display.work = before - work.left();
    display.isCutShort |= work.refusals() > refusals;
    display.isSimplified = !display.isSkipped && (type->isSimplified || display.isSimplified || display.isCutShort);
    for (const DisplayItem &item : display.items) {
        display.isEndless |= std::holds_alternative<Endless>(item.shape);
        display.hasReferences |= std::holds_alternative<std::unique_ptr<Reference>>(item.shape);
    }
    return display;
}

} // namespace host::view
