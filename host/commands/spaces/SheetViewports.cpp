#include "host/commands/spaces/SheetViewports.h"

#include "host/commands/common/EntityEdits.h"
#include "host/drawing/geometry/EntityGeometry.h"
#include "host/drawing/records/Layouts.h"
#include "host/drawing/records/PageSetup.h"
#include "host/drawing/records/Tables.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/documents/CurrentView.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

using drawing::Box;
using drawing::LayoutTab;
using drawing::RecordId;
using drawing::Vec3;

namespace {

/// All of model space in a frame of these proportions; what the window showed last where nothing is drawn.
drawing::ViewportAim aimAtModel(CommandContext &context, const Box &frame)
{
    const drawing::Drawing &drawing = context.drawing();
    Box model = drawing::spaceBox(drawing, drawing.entities().inSpace(drawing::Space::Model));
    if (model.isEmpty()) {
        const RecordId entry = drawing.tables().find(drawing::TableKind::Viewport, u"*Active");
        const drawing::Vec3 centre = isValid(entry) ? drawing.tags(entry).point(12) : Vec3{};
        const double half = (isValid(entry) ? drawing.tags(entry).real(40, 10.0) : 10.0) / 2.0;
        model.add(centre - Vec3{half, half, 0.0});
        model.add(centre + Vec3{half, half, 0.0});
    }
    ViewState view;
    const Vec3 size = frame.high - frame.low;
    constexpr double pixelsHigh = 1000.0;
    view.pixels = {int(std::clamp(pixelsHigh * size.x / size.y, 1.0, 1e6)), int(pixelsHigh)};
    view = fittedTo(view, model);
    return {.middle = view.centre, .height = view.height};
}

void ensureSheetViewport(CommandContext &context, const LayoutTab &sheet)
{
    if (isValid(drawing::sheetViewport(context.drawing(), sheet)))
        return;
    Box page;
    const std::optional<Box> limits = drawing::layoutLimits(context.drawing(), sheet);
    if (limits && limits->high.x > limits->low.x && limits->high.y > limits->low.y) {
        page = *limits;
    } else {
        page.add(Vec3{});
        page.add(Vec3{420.0, 297.0, 0.0});
    }
    const Vec3 centre = (page.low + page.high) * 0.5;
    drawing::FieldList fields = drawing::viewportFields(context.drawing(), page,
                                                        {.middle = centre.xy(), .height = page.high.y - page.low.y}, 1);
    fields.push_back({8, u"0"_s});
    createOnCurrent(context.drawing(), fields);
}

Box part(const Box &frame, double left, double bottom, double right, double top)
{
    const Vec3 size = frame.high - frame.low;
    Box box;
    box.add(frame.low + Vec3{size.x * left, size.y * bottom, 0.0});
    box.add(frame.low + Vec3{size.x * right, size.y * top, 0.0});
    return box;
}

} // namespace

std::optional<LayoutTab> neededSheet(CommandContext &context)
{
    const drawing::Drawing &drawing = context.drawing();
    std::optional<LayoutTab> sheet;
    if (!isModelTab(drawing))
        sheet = drawing::findLayout(drawing, drawing.layouts().currentName());
    if (!sheet)
        context.fail(Commands::tr("** Command not allowed in Model Tab **"));
    return sheet;
}

bool enterSheet(CommandContext &context)
{
    context.drawing().layouts().setCurrentViewport(drawing::noRecord);
    return true;
}

bool enterModel(CommandContext &context)
{
    const std::optional<LayoutTab> sheet = neededSheet(context);
    if (!sheet)
        return false;
    for (const RecordId viewport : drawing::viewportsOf(context.drawing(), *sheet)) {
        if (drawing::hasViewportFlag(context.drawing(), viewport, drawing::SwitchedOffViewport))
            continue;
        context.drawing().layouts().setCurrentViewport(viewport);
        return true;
    }
    context.fail(Commands::tr("There are no active model space viewports."));
    return false;
}

RecordId makeViewport(CommandContext &context, const Box &frame)
{
    const std::optional<LayoutTab> sheet = neededSheet(context);
    if (!sheet)
        return drawing::noRecord;
    const Vec3 size = frame.high - frame.low;
    if (!(size.x > 0.0 && size.y > 0.0)) {
        context.fail(Commands::tr("The viewport has no area."));
        return drawing::noRecord;
    }
    ensureSheetViewport(context, *sheet);
    return context.create(drawing::viewportFields(context.drawing(), frame, aimAtModel(context, frame),
                                                  drawing::freeViewportNumber(context.drawing(), *sheet)));
}

std::vector<Box> divided(const Box &frame, const ViewportArrangement &arrangement)
{
    constexpr double third = 1.0 / 3.0;
    const QString &how = arrangement.how;
    if (arrangement.count == 2 && how == u"Horizontal")
        return {part(frame, 0, 0.5, 1, 1), part(frame, 0, 0, 1, 0.5)};
    if (arrangement.count == 2)
        return {part(frame, 0, 0, 0.5, 1), part(frame, 0.5, 0, 1, 1)};
    if (arrangement.count == 4)
        return {part(frame, 0, 0.5, 0.5, 1), part(frame, 0.5, 0.5, 1, 1), part(frame, 0, 0, 0.5, 0.5),
                part(frame, 0.5, 0, 1, 0.5)};
    if (arrangement.count != 3)
        return {frame};
    if (how == u"Horizontal")
        return {part(frame, 0, 2 * third, 1, 1), part(frame, 0, third, 1, 2 * third), part(frame, 0, 0, 1, third)};
    if (how == u"Vertical")
        return {part(frame, 0, 0, third, 1), part(frame, third, 0, 2 * third, 1), part(frame, 2 * third, 0, 1, 1)};
    if (how == u"Above")
        return {part(frame, 0, 0.5, 1, 1), part(frame, 0, 0, 0.5, 0.5), part(frame, 0.5, 0, 1, 0.5)};
    if (how == u"Below")
        return {part(frame, 0, 0, 1, 0.5), part(frame, 0, 0.5, 0.5, 1), part(frame, 0.5, 0.5, 1, 1)};
    if (how == u"Left")
        return {part(frame, 0, 0, 0.5, 1), part(frame, 0.5, 0.5, 1, 1), part(frame, 0.5, 0, 1, 0.5)};
    return {part(frame, 0.5, 0, 1, 1), part(frame, 0, 0.5, 0.5, 1), part(frame, 0, 0, 0.5, 0.5)};
}

Dialogue<ViewportArrangement> askArrangement(CommandContext &context, int count)
{
    ViewportArrangement arrangement{count, {}};
    if (count == 2) {
        const PromptReply reply = co_await context.keyword(
            Commands::tr("Enter viewport arrangement [Horizontal/Vertical] <Vertical>: "), {}, u"Vertical"_s);
        arrangement.how = reply.text;
    } else if (count == 3) {
        const PromptReply reply = co_await context.keyword(
            Commands::tr("Enter viewport arrangement [Horizontal/Vertical/Above/Below/Left/Right] <Right>: "), {},
            u"Right"_s);
        arrangement.how = reply.text;
    }
    co_return arrangement;
}

std::vector<RecordId> viewportsAmong(CommandContext &context, const std::vector<RecordId> &chosen)
{
    const drawing::Drawing &drawing = context.drawing();
    std::vector<RecordId> found = chosen;
    std::erase_if(found,
                  [&](RecordId id) { return !drawing.isType(id, "VIEWPORT") || drawing.tags(id).integer(69) == 1; });
    if (found.empty())
        context.print(Commands::tr("\nNo viewport was chosen."));
    return editable(context, std::move(found));
}

} // namespace host::kernel
