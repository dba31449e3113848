#include "host/commands/Commands.h"
#include "host/commands/common/EntityEdits.h"
#include "host/commands/common/FlatPolyline.h"
#include "host/commands/common/UserPlane.h"
#include "host/drawing/editing/BlockClip.h"
#include "host/drawing/geometry/EntityGeometry.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/running/Dialogue.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::ClipSide;
using drawing::Matrix;
using drawing::Path;
using drawing::RecordId;
using drawing::Vec3;

/// Corners in world coordinates; fewer than two for none.
Dialogue<Path> askPolygon(CommandContext &context)
{
    const PromptReply first = co_await context.neededPoint(Commands::tr("Specify first point: "));
    Path corners = {first.point};
    for (;;) {
        const PromptReply next =
            co_await context.point(Commands::tr("Specify next point or [Undo]: "), {}, corners.back(), {});
        if (next.hasValue())
            corners.push_back(next.point);
        else if (next.isKeyword(u"Undo") && corners.size() > 1)
            corners.pop_back();
        else if (!next.isKeyword(u"Undo"))
            break;
    }
    if (corners.size() < 3)
        corners.clear();
    co_return corners;
}

/// The line of a polyline that is picked, its arcs in straight pieces.
Dialogue<Path> askClipPolyline(CommandContext &context)
{
    const PromptReply picked = co_await context.entity(Commands::tr("Select polyline: "));
    const RecordId entity = picked.entities.empty() ? drawing::noRecord : picked.entities.front();
    const bool isPolyline = isValid(entity) && context.drawing().typeName(entity).endsWith("POLYLINE");
    Path corners;
    if (isPolyline)
        if (const auto outline = drawing::entityOutline(context.drawing(), entity); !outline.pieces.empty())
            corners = outline.pieces.front().points;
    if (corners.size() > 1 && corners.front() == corners.back())
        corners.pop_back();
    if (corners.size() < 3)
        corners.clear();
    co_return corners;
}

/// A boundary in user coordinates, and on which side of it the references are seen.
struct NewClip
{
    Path corners;
    ClipSide side = ClipSide::Inside;
};

Dialogue<NewClip> askNewClip(CommandContext &context)
{
    NewClip clip;
    PromptReply way;
    const QString prompt = Commands::tr("Specify clipping boundary or select invert option: "
                                        "[Select polyline/Polygonal/Rectangular/Invert clip] <Rectangular>: ");
    for (;;) {
        way = co_await context.keyword(prompt, {}, u"Rectangular"_s);
        if (way.text != u"Invert")
            break;
        clip.side = clip.side == ClipSide::Inside ? ClipSide::Outside : ClipSide::Inside;
        context.print(clip.side == ClipSide::Outside ? Commands::tr("\nObjects inside boundary will be hidden.")
                                                     : Commands::tr("\nObjects outside boundary will be hidden."));
    }
    Path world;
    const bool isRectangle = !way.hasValue() || way.text == u"Rectangular";
    if (isRectangle) {
        const PromptReply first = co_await context.neededPoint(Commands::tr("Specify first corner: "));
        const PromptReply other = co_await context.neededPoint(Commands::tr("Specify opposite corner: "), first.point);
        world = {first.point, other.point};
    } else if (way.text == u"Polygonal") {
        world = co_await askPolygon(context);
    } else {
        world = co_await askClipPolyline(context);
    }
    const UserPlane plane(context.document());
    for (const Vec3 &corner : world)
        clip.corners.push_back(plane.userFromWorld(corner));
    const bool isFlat =
        isRectangle && (clip.corners[0].x == clip.corners[1].x || clip.corners[0].y == clip.corners[1].y);
    if (clip.corners.empty() || isFlat)
        context.fail(Commands::tr("That encloses nothing."));
    co_return clip;
}

void clipAll(CommandContext &context, const std::vector<RecordId> &references, const NewClip &clip)
{
    int refused = 0;
    for (const RecordId id : references)
        refused += drawing::setBlockClip(context.drawing(), id, clip.corners, context.document().userAxes(), clip.side)
                       ? 0
                       : 1;
    if (refused > 0)
        context.print(Commands::tr("\n%1 could not be clipped.").arg(refused));
}

Dialogue<bool> newBoundary(CommandContext &context, std::vector<RecordId> references)
{
    const bool hasOld =
        std::ranges::any_of(references, [&](RecordId id) { return drawing::hasBlockClip(context.drawing(), id); });
    if (hasOld) {
        const PromptReply erase =
            co_await context.keyword(Commands::tr("Delete old boundary(s)? [Yes/No] <Yes>: "), {}, u"Yes"_s);
        if (erase.text == u"No")
            co_return false;
    }
    const NewClip clip = co_await askNewClip(context);
    if (!context.hasFailed())
        clipAll(context, references, clip);
    co_return !context.hasFailed();
}

/// A polyline along each boundary, in the user's plane at its own height.
void drawBoundaries(CommandContext &context, const std::vector<RecordId> &references)
{
    const UserPlane plane(context.document());
    for (const RecordId id : references) {
        const Path boundary = drawing::blockClipBoundary(context.drawing(), id);
        if (boundary.empty())
            continue;
        drawing::FieldList fields = {{0, u"LWPOLYLINE"_s}, {90, qint64(boundary.size())}, {70, qint64(1)}};
        fields.push_back({38, plane.objectFromWorld(boundary.front()).z});
        for (const Vec3 &corner : boundary)
            fields.push_back({10, plane.objectFromWorld(corner).xy()});
        createFlatPolyline(context, plane.placed(std::move(fields)));
    }
}

// What of block references is seen: their boundaries are made, switched and taken away.
CommandTask clip(CommandContext &context)
{
    const PromptReply chosen = co_await context.selection();
    std::vector<RecordId> references = editable(context, chosen.entities);
    std::erase_if(references, [&](RecordId id) { return !context.drawing().isType(id, "INSERT"); });
    if (references.empty()) {
        context.fail(Commands::tr("No block references were chosen."));
        co_return;
    }
    const PromptReply option = co_await context.keyword(
        Commands::tr("Enter clipping option [ON/OFF/Delete/generate Polyline/New boundary] <New>: "),
        u"ON OFF Delete Polyline New"_s, u"New"_s);
    if (option.text == u"ON" || option.text == u"OFF") {
        for (const RecordId id : references)
            drawing::switchBlockClip(context.drawing(), id, option.text == u"ON");
    } else if (option.text == u"Delete") {
        for (const RecordId id : references)
            drawing::eraseBlockClip(context.drawing(), id);
    } else if (option.text == u"Polyline") {
        drawBoundaries(context, references);
    } else {
        co_await newBoundary(context, references);
    }
}

} // namespace

std::vector<CommandRow> clipCommands()
{
    return {{"XCLIP", clip, "Cuts block references off at a boundary"}};
}

} // namespace host::kernel
