#include "host/commands/Commands.h"
#include "host/commands/annotate/HatchDialogue.h"
#include "host/commands/annotate/HatchDraft.h"
#include "host/commands/common/KeptValues.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

using drawing::RecordId;
using drawing::Vec3;

namespace {

constexpr const char *hatchPrompt = QT_TRANSLATE_NOOP(
    "Commands",
    "Specify internal point or [Properties/Select objects/draW boundary/remove Boundaries/Advanced/DRaw order/Origin/"
    "ANnotative/hatch COlor/LAyer/Transparency]: ");

QString hatchOptions()
{
    return u"Properties Select draW Boundaries Advanced DRaw Origin ANnotative COlor LAyer Transparency"_s;
}

void tellNoBoundary(CommandContext &context, const BoundarySearch &search, const QString &otherwise)
{
    context.print(search.wasTooMuch() ? Commands::tr("\nToo many curves cross here: choose a boundary set.")
                                      : otherwise);
}

/// Adds the boundary round a point; false when there is none, which was told.
bool addAreaAt(CommandContext &context, const HatchSettings &settings, std::vector<HatchArea> &areas, const Vec3 &point)
{
    BoundarySearch search(context.document(), settings.boundary);
    Boundary boundary = search.at(point);
    if (boundary.empty()) {
        tellNoBoundary(context, search, Commands::tr("\nValid hatch boundary not found."));
        return false;
    }
    areas.push_back({std::move(boundary), point});
    return true;
}

void addAreaOf(CommandContext &context, const HatchSettings &settings, std::vector<HatchArea> &areas,
               const std::vector<RecordId> &entities)
{
    BoundarySearch search(context.document(), settings.boundary);
    Boundary boundary = search.of(entities);
    if (boundary.empty())
        return tellNoBoundary(context, search, Commands::tr("\nThe objects make no closed boundary."));
    areas.push_back({std::move(boundary), std::nullopt});
}

/// A boundary of points, one after another, closed by an empty answer or by Close.
Dialogue<bool> askDrawnBoundary(CommandContext &context, HatchSettings &settings, std::vector<HatchArea> &areas)
{
    const UserPlane plane(context.document());
    const PromptReply retain =
        co_await context.keyword(Commands::tr("Retain polyline boundary? [Yes/No] <N>: "), {}, u"No"_s);
    const bool isKept = retain.text == u"Yes";
    PromptReply start = co_await context.neededPoint(Commands::tr("Specify start point: "));
    while (start.hasValue()) {
        std::vector<Vec3> points = {start.point};
        for (;;) {
            const PromptReply next = co_await context.point(
                Commands::tr("Specify next point or [Close/Undo] <Close>: "), {}, points.back(), u"Close"_s);
            if (next.isKeyword(u"Undo")) {
                if (points.size() > 1)
                    points.pop_back();
            } else if (next.hasValue()) {
                points.push_back(next.point);
            } else {
                break;
            }
        }
        addDrawnArea(context, plane, points, isKept, areas);
        start = co_await context.point(Commands::tr("Specify start point for new boundary or <Accept>: "), {}, {},
                                       u"Accept"_s);
    }
    settings.isAssociative = settings.isAssociative && isKept;
    co_return true;
}

/// The form of earlier days: name, scale and angle, then the entities.
Dialogue<bool> askNamedHatch(CommandContext &context, HatchSettings &settings, std::vector<HatchArea> &areas,
                             QString name)
{
    if (!co_await askPatternOf(context, settings.look, name))
        co_return false;
    const PromptReply chosen = co_await context.selection();
    if (!chosen.entities.empty())
        addAreaOf(context, settings, areas, chosen.entities);
    co_return true;
}

/// Takes out the boundaries that are picked inside of, or follow an entity that is picked.
Dialogue<bool> removeBoundaries(CommandContext &context, std::vector<HatchArea> &areas)
{
    for (;;) {
        const PromptReply picked = co_await context.entity(Commands::tr("Select boundary to remove: "));
        if (picked.entities.empty())
            co_return true;
        for (HatchArea &area : areas)
            std::erase_if(area.boundary, [&](const BoundaryLoop &loop) {
                return std::ranges::find(loop.sources, picked.entities.front()) != loop.sources.end();
            });
        std::erase_if(areas, [](const HatchArea &area) { return area.boundary.empty(); });
    }
}

/// One option of the hatch's main prompt; false when the command ends with it.
Dialogue<bool> takeHatchOption(CommandContext &context, HatchSettings &settings, std::vector<HatchArea> &areas,
                               QString option)
{
    if (option == u"Properties")
        co_return co_await askHatchPattern(context, settings.look);
    if (option == u"Select") {
        const PromptReply chosen = co_await context.selection();
        if (!chosen.entities.empty())
            addAreaOf(context, settings, areas, chosen.entities);
    } else if (option == u"draW") {
        co_await askDrawnBoundary(context, settings, areas);
    } else if (option == u"Boundaries") {
        co_await removeBoundaries(context, areas);
    } else if (option == u"Advanced") {
        co_await askAdvancedHatch(context, settings);
    } else {
        co_return co_await askHatchProperty(context, settings, option);
    }
    co_return true;
}

// Points inside or entities, with options between, until an empty answer; or a pattern's name, scale, angle and the
// entities.
CommandTask hatch(CommandContext &context)
{
    HatchSettings settings = currentHatchSettings(context.document());
    std::vector<HatchArea> areas;
    context.print(Commands::tr("\nCurrent hatch pattern:  ") + settings.look.pattern);
    for (;;) {
        const bool isFirst = areas.empty();
        const PromptReply reply =
            co_await context.point(Commands::tr(hatchPrompt), hatchOptions(), {}, {}, isFirst ? AnyText : 0);
        if (reply.isEmpty())
            break;
        if (reply.hasValue()) {
            addAreaAt(context, settings, areas, reply.point);
            continue;
        }
        const bool isOption = hatchOptions().split(u' ').contains(reply.text);
        if (!isOption) {
            const QString name = reply.text.trimmed();
            co_await askNamedHatch(context, settings, areas, name);
            break;
        }
        if (!co_await takeHatchOption(context, settings, areas, reply.text))
            co_return;
    }
    if (!areas.empty() && !context.hasFailed())
        createHatches(context, settings, areas);
}

/// What of a boundary is looked for, and what is made of it.
Dialogue<bool> askBoundaryOptions(CommandContext &context, HatchSettings &settings)
{
    for (;;) {
        const PromptReply option = co_await context.keyword(
            Commands::tr("Enter an option [Boundary set/Island detection/Object type] <eXit>: "),
            u"Boundary Island Object eXit"_s, u"eXit"_s);
        if (option.text == u"Boundary") {
            co_await askBoundarySet(context, settings.boundary);
        } else if (option.text == u"Island") {
            co_await askIslandDetection(context, settings.boundary);
        } else if (option.text == u"Object") {
            const QString usual = settings.makesRegions ? u"Region"_s : u"Polyline"_s;
            const PromptReply type = co_await context.keyword(
                Commands::tr("Enter type of boundary object [Region/Polyline] <%1>: ").arg(usual), {}, usual);
            settings.makesRegions = type.text == u"Region";
            keepValue(context, u"HPBOUND", settings.makesRegions ? 0 : 1);
        } else {
            co_return true;
        }
    }
}

// Points inside areas: a polyline round each, and round the islands in it, or a region.
CommandTask boundary(CommandContext &context)
{
    HatchSettings settings = currentHatchSettings(context.document());
    settings.makesRegions = context.document().variables().integer(u"HPBOUND", 1) == 0;
    int polylines = 0;
    int regions = 0;
    for (;;) {
        const PromptReply reply =
            co_await context.point(Commands::tr("Specify internal point or [Advanced options]: "));
        if (reply.isKeyword(u"Advanced")) {
            co_await askBoundaryOptions(context, settings);
            continue;
        }
        if (!reply.hasValue())
            break;
        std::vector<HatchArea> areas;
        if (!addAreaAt(context, settings, areas, reply.point))
            continue;
        if (settings.makesRegions)
            regions += createBoundaryRegion(context, areas.front().boundary);
        else
            polylines += createBoundaryPolylines(context, areas.front().boundary);
    }
    const int made = regions > 0 ? regions : polylines;
    const QString one =
        regions > 0 ? Commands::tr("\nBOUNDARY created 1 region") : Commands::tr("\nBOUNDARY created 1 polyline");
    const QString several =
        regions > 0 ? Commands::tr("\nBOUNDARY created %1 regions") : Commands::tr("\nBOUNDARY created %1 polylines");
    context.print(made == 1 ? one : several.arg(made));
}

} // namespace

std::vector<CommandRow> hatchCommands()
{
    return {{"-BHATCH", hatch, "Hatches areas"},
            {"-BOUNDARY", boundary, "Makes polylines or regions round areas"},
            {"-HATCH", hatch, "Hatches areas"},
            {"BHATCH", hatch, "Hatches areas"},
            {"BOUNDARY", boundary, "Makes polylines or regions round areas"},
            {"HATCH", hatch, "Hatches areas"}};
}

} // namespace host::kernel
