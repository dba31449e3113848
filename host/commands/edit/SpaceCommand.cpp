#include "host/commands/Commands.h"
#include "host/commands/common/EntityEdits.h"
#include "host/drawing/geometry/EntityGeometry.h"
#include "host/drawing/geometry/TransformEntity.h"
#include "host/drawing/geometry/ViewportView.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/variables/SystemVariables.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::RecordId;
using Entities = std::vector<RecordId>;

/// The viewports of the sheet that is current, but for the one that stands for the sheet itself.
std::vector<drawing::ViewportView> sheetViewports(const drawing::Drawing &drawing)
{
    std::vector<drawing::ViewportView> views;
    for (const RecordId id : currentEntities(drawing)) {
        if (!drawing.isType(id, "VIEWPORT") || drawing.tags(id).integer(69) == 1)
            continue;
        const drawing::ViewportView seen = drawing::readViewport(drawing.tags(id));
        if (seen.viewHeight > 0.0 && seen.height > 0.0)
            views.push_back(seen);
    }
    return views;
}

/// The viewport that the entities of a sheet lie in; of several the first, and the first of all where there is none.
const drawing::ViewportView &viewportOf(const std::vector<drawing::ViewportView> &views, const drawing::Box &box)
{
    const drawing::Vec3 middle = (box.low + box.high) * 0.5;
    const auto found = std::ranges::find_if(views, [&](const drawing::ViewportView &seen) {
        return std::abs(middle.x - seen.center.x) <= seen.width / 2.0 &&
               std::abs(middle.y - seen.center.y) <= seen.height / 2.0;
    });
    return found == views.end() ? views.front() : *found;
}

RecordId copyToOtherSpace(drawing::Drawing &drawing, RecordId id, bool isToSheet)
{
    const RecordId sheet = restingSheet(drawing);
    if (!isToSheet)
        return drawing::copyEntityTo(drawing, id, drawing::Space::Model);
    return isValid(sheet) ? drawing::copyEntityInto(drawing, id, sheet)
                          : drawing::copyEntityTo(drawing, id, drawing::Space::Paper);
}

/// Moves them into the other space so that they are seen where and as large as they were.
void moveToOtherSpace(CommandContext &context, const Entities &entities, bool isToSheet)
{
    drawing::Drawing &drawing = context.drawing();
    const std::vector<drawing::ViewportView> views = sheetViewports(drawing);
    if (views.empty())
        return context.fail(Commands::tr("The sheet has no viewport."));
    const drawing::ViewportView &seen =
        isToSheet ? views.front() : viewportOf(views, drawing::spaceBox(drawing, entities));
    const drawing::Matrix toSheet = seen.modelToSheet();
    Entities moved;
    Entities gone;
    for (const RecordId id : entities)
        if (const RecordId copy = copyToOtherSpace(drawing, id, isToSheet); isValid(copy)) {
            moved.push_back(copy);
            gone.push_back(id);
        }
    eraseAll(context, gone);
    transformAll(context, moved, isToSheet ? toSheet : toSheet.inverted());
    context.document().setPreviousSelection(moved);
    const QString told = isToSheet ? Commands::tr("\n%1 object(s) changed from MODEL space to PAPER space.")
                                   : Commands::tr("\n%1 object(s) changed from PAPER space to MODEL space.");
    context.print(told.arg(moved.size()));
    context.print(Commands::tr("\nObjects were scaled by a factor of %1 to maintain visual appearance.")
                      .arg(isToSheet ? seen.scale() : 1.0 / seen.scale()));
}

// From the sheet into the model that a viewport shows, or from there onto the sheet.
CommandTask changeSpace(CommandContext &context)
{
    if (context.document().variables().integer(u"TILEMODE") != 0) {
        context.fail(Commands::tr("Only a layout has both spaces."));
        co_return;
    }
    const PromptReply chosen = co_await context.selection();
    Entities entities = editable(context, chosen.entities);
    std::erase_if(entities, [&](RecordId id) { return context.drawing().isType(id, "VIEWPORT"); });
    if (entities.empty())
        co_return;
    const bool isToSheet = currentSpace(context.drawing()) == drawing::Space::Model;
    moveToOtherSpace(context, entities, isToSheet);
}

} // namespace

std::vector<CommandRow> spaceChangeCommands()
{
    return {{"CHSPACE", changeSpace, "Moves entities between the sheet and the model that it shows"}};
}

} // namespace host::kernel
