#include "host/commands/annotate/HatchDraft.h"

#include "host/commands/common/FlatPolyline.h"
#include "host/commands/common/RegionDraft.h"
#include "host/drawing/hatching/HatchLoops.h"
#include "host/drawing/math/Angles.h"
#include "host/drawing/records/HeaderVariables.h"
#include "host/drawing/records/Reactors.h"
#include "host/drawing/records/SortTable.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/variables/SystemVariables.h"
#include "host/view/display/DrawOrder.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

using drawing::FieldList;
using drawing::PatternFamily;
using drawing::RecordId;
using drawing::Vec2;
using drawing::Vec3;

namespace {

constexpr double millimetresOfInch = 25.4;

/// The families of lines at their size in the drawing; nothing for a pattern that is not known.
std::optional<std::vector<PatternFamily>> familiesOf(CommandContext &context, const HatchLook &look, double &scale)
{
    if (look.isOwnLines()) {
        scale = 1.0;
        std::vector<PatternFamily> lines = {{.angle = 0.0, .step = {0.0, look.spacing}}};
        if (look.isDouble)
            lines.push_back({.angle = 90.0, .step = {0.0, look.spacing}});
        return lines;
    }
    const auto pattern = drawing::hatchPattern(look.pattern);
    if (!pattern) {
        context.fail(Commands::tr("Unknown hatch pattern \"%1\".").arg(look.pattern));
        return std::nullopt;
    }
    const bool isMetric = context.drawing().header().integer(u"$MEASUREMENT") == 1;
    scale = look.scale;
    if (isMetric != pattern->isMillimetres)
        scale *= isMetric ? millimetresOfInch : 1.0 / millimetresOfInch;
    return pattern->families;
}

bool isTooDense(const std::vector<PatternFamily> &families, double scale, double size, double most)
{
    return std::ranges::any_of(families, [&](const PatternFamily &family) {
        const double across = std::abs(family.step.y) * scale;
        return !(across > 0.0) || size / across > most;
    });
}

drawing::Box boundaryBox(const std::vector<HatchArea> &areas)
{
    drawing::Box box;
    for (const HatchArea &area : areas)
        for (const BoundaryLoop &loop : area.boundary)
            box.add(loop.loop.box);
    return box;
}

std::vector<RecordId> sourcesOf(const std::vector<HatchArea> &areas)
{
    std::vector<RecordId> sources;
    for (const HatchArea &area : areas)
        for (const BoundaryLoop &loop : area.boundary)
            for (const RecordId source : loop.sources)
                if (std::ranges::find(sources, source) == sources.end())
                    sources.push_back(source);
    return sources;
}

qint64 pathFlags(const BoundaryLoop &loop, bool isPicked)
{
    if (loop.isText)
        return drawing::TextPath;
    const qint64 outer = drawing::OuterPath;
    const qint64 derived = drawing::DerivedPath;
    return (loop.depth == 0 ? outer : 0) | (isPicked ? derived : 0);
}

void addPaths(CommandContext &context, FieldList &fields, const HatchArea &area, bool isAssociative)
{
    for (const BoundaryLoop &loop : area.boundary) {
        std::vector<drawing::Handle> handles;
        if (isAssociative)
            for (const RecordId source : loop.sources)
                handles.push_back(context.drawing().handle(source));
        const FieldList path =
            drawing::hatchPath(loop.loop, pathFlags(loop, area.seed.has_value()), handles, context.drawing().version());
        fields.insert(fields.end(), path.begin(), path.end());
    }
}

RecordId createHatch(CommandContext &context, const HatchSettings &settings, const std::vector<HatchArea> &areas)
{
    const UserPlane plane(context.document());
    const drawing::Box box = boundaryBox(areas);
    const auto look = hatchLookFields(context, settings.look, (box.high - box.low).xy().length());
    if (!look)
        return drawing::noRecord;
    const std::vector<RecordId> sources = sourcesOf(areas);
    const bool isAssociative = settings.isAssociative && !sources.empty();
    qint64 loops = 0;
    qint64 seeds = 0;
    for (const HatchArea &area : areas) {
        loops += static_cast<qint64>(area.boundary.size());
        seeds += area.seed ? 1 : 0;
    }
    // Handles of boundaries count as the type's own behind the markers alone.
    FieldList fields = {{0, u"HATCH"_s}, {100, u"AcDbEntity"_s}, {100, u"AcDbHatch"_s}};
    fields.insert(fields.end(), settings.entity.begin(), settings.entity.end());
    fields.push_back({10, Vec3{0.0, 0.0, plane.objectFromUser({}).z}});
    const FieldList placed = plane.placed({});
    fields.push_back(placed.empty() ? drawing::Field{210, Vec3{0.0, 0.0, 1.0}} : placed.front());
    const FieldList name = hatchNameFields(settings.look);
    fields.insert(fields.end(), name.begin(), name.end());
    fields.push_back({71, qint64(isAssociative ? 1 : 0)});
    fields.push_back({91, loops});
    for (const HatchArea &area : areas)
        addPaths(context, fields, area, isAssociative);
    fields.insert(fields.end(), look->begin(), look->end());
    fields.push_back({98, seeds});
    for (const HatchArea &area : areas)
        if (area.seed)
            fields.push_back({10, plane.objectFromWorld(*area.seed).xy()});
    const RecordId made = context.create(fields);
    if (isValid(made) && isAssociative)
        for (const RecordId source : sources)
            drawing::addReactor(context.drawing(), source, context.drawing().handle(made));
    return made;
}

/// In front of all, behind all, or directly over or under the boundary.
void orderHatch(CommandContext &context, RecordId hatch, const QString &where, const std::vector<RecordId> &sources)
{
    drawing::Drawing &drawing = context.drawing();
    std::vector<RecordId> order = view::drawOrder(drawing, view::readSortHandles(drawing), currentEntities(drawing));
    std::erase(order, hatch);
    auto place = where == u"Back" ? order.begin() : order.end();
    if (where == u"Under")
        place = std::ranges::find_first_of(order, sources);
    else if (where == u"Above")
        for (auto at = order.begin(); at != order.end(); ++at)
            if (std::ranges::find(sources, *at) != sources.end())
                place = at + 1;
    order.insert(place, hatch);
    if (!drawing::setDrawOrder(drawing, order))
        context.print(Commands::tr("\nA drawing of this version keeps no draw order."));
}

} // namespace

HatchSettings currentHatchSettings(Document &document)
{
    const SystemVariables &variables = document.variables();
    HatchSettings settings;
    if (const QString name = variables.text(u"HPNAME"); !name.isEmpty())
        settings.look.pattern = name;
    settings.look.scale = variables.real(u"HPSCALE", 1.0);
    settings.look.angle = variables.real(u"HPANG", 0.0);
    settings.look.spacing = variables.real(u"HPSPACE", 1.0);
    settings.look.isDouble = variables.integer(u"HPDOUBLE") != 0;
    settings.look.style = static_cast<IslandStyle>(std::clamp(variables.integer(u"HPISLANDDETECTION"), 0, 2));
    settings.boundary.gap = std::max(0.0, variables.real(u"HPGAPTOL", 0.0));
    settings.boundary.islands = settings.look.style;
    settings.isAssociative = variables.integer(u"HPASSOC", 1) != 0;
    settings.isSeparate = variables.integer(u"HPSEPARATE") != 0;
    settings.look.origin = variables.point(u"HPORIGIN").xy();
    if (const QString layer = variables.text(u"HPLAYER"); !layer.isEmpty() && layer != u".")
        settings.entity.push_back({8, layer});
    return settings;
}

void keepHatchLook(Document &document, const HatchLook &look)
{
    SystemVariables &variables = document.variables();
    const auto keep = [&](QStringView name, const VariableValue &value) {
        if (variables.get(name) && variables.get(name) != value)
            variables.setInternally(name, value);
    };
    keep(u"HPNAME", look.pattern);
    keep(u"HPANG", look.angle);
    if (look.isOwnLines()) {
        keep(u"HPSPACE", look.spacing);
        keep(u"HPDOUBLE", qint32(look.isDouble ? 1 : 0));
    } else if (!look.isSolid()) {
        keep(u"HPSCALE", look.scale);
    }
}

FieldList hatchNameFields(const HatchLook &look)
{
    return {{2, look.isOwnLines() ? u"_USER"_s : look.pattern.toUpper()}, {70, qint64(look.isSolid() ? 1 : 0)}};
}

std::optional<FieldList> hatchLookFields(CommandContext &context, const HatchLook &look, double size)
{
    FieldList fields = {{75, qint64(look.style)}, {76, qint64(look.isOwnLines() ? 0 : 1)}};
    if (look.isSolid())
        return fields;
    double scale = 1.0;
    const auto families = familiesOf(context, look, scale);
    if (!families)
        return std::nullopt;
    const double most = context.document().variables().integer(u"HPMAXLINES", 1'000'000);
    if (!(scale > 0.0) || isTooDense(*families, scale, size, std::max(100.0, most))) {
        context.fail(Commands::tr("The hatch spacing is too dense, or the dash size too small."));
        return std::nullopt;
    }
    const UserPlane plane(context.document());
    const double degrees = plane.objectDegrees(look.angle);
    fields.insert(fields.end(), {{52, degrees},
                                 {41, look.isOwnLines() ? look.spacing : look.scale},
                                 {77, qint64(look.isOwnLines() && look.isDouble ? 1 : 0)}});
    const Vec2 origin = plane.objectFromUser({look.origin.x, look.origin.y, 0.0}).xy();
    const FieldList lines = drawing::patternLines(*families, {scale, degrees, origin});
    fields.insert(fields.end(), lines.begin(), lines.end());
    return fields;
}

std::vector<RecordId> createHatches(CommandContext &context, const HatchSettings &settings,
                                    const std::vector<HatchArea> &areas)
{
    std::vector<RecordId> made;
    if (settings.isSeparate)
        for (const HatchArea &area : areas)
            made.push_back(createHatch(context, settings, {area}));
    else if (!areas.empty())
        made.push_back(createHatch(context, settings, areas));
    std::erase(made, drawing::noRecord);
    if (!settings.order.isEmpty())
        for (const RecordId hatch : made)
            orderHatch(context, hatch, settings.order, sourcesOf(areas));
    if (settings.keepsBoundary)
        for (const HatchArea &area : areas)
            createBoundaryPolylines(context, area.boundary);
    if (!made.empty())
        keepHatchLook(context.document(), settings.look);
    return made;
}

int createBoundaryPolylines(CommandContext &context, const Boundary &boundary)
{
    const UserPlane plane(context.document());
    int made = 0;
    for (const BoundaryLoop &loop : boundary) {
        const auto polyline = loop.isText ? std::nullopt : drawing::loopPolyline(loop.loop);
        if (!polyline) {
            if (!loop.isText)
                context.print(
                    Commands::tr("\nNo polyline can follow the boundary: it has pieces of ellipses or splines."));
            continue;
        }
        FieldList fields = {{0, u"LWPOLYLINE"_s}, {70, qint64(1)}};
        if (const double height = plane.objectFromUser({}).z; height != 0.0)
            fields.push_back({38, height});
        for (const auto &corner : polyline->corners) {
            fields.push_back({10, corner.point});
            if (corner.bulge != 0.0)
                fields.push_back({42, corner.bulge});
        }
        made += isValid(createFlatPolyline(context, plane.placed(std::move(fields)))) ? 1 : 0;
    }
    return made;
}

int createBoundaryRegion(CommandContext &context, const Boundary &boundary)
{
    const UserPlane plane(context.document());
    const drawing::Vec3 normal = plane.worldFromUser({0.0, 0.0, 1.0}) - plane.worldFromUser({});
    const double height = plane.objectFromUser({}).z;
    const drawing::Matrix map =
        drawing::Matrix::fromExtrusion(normal) * drawing::Matrix::translation({0.0, 0.0, height});
    drawing::RegionFace face;
    for (const BoundaryLoop &loop : boundary)
        if (!loop.isText && loop.depth <= 1)
            face.push_back(regionLoop(loop.loop, map));
    return isValid(createRegion(context, {face}, normalized(normal))) ? 1 : 0;
}

} // namespace host::kernel
