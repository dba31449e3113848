#include "host/commands/Commands.h"
#include "host/commands/common/NamedEntries.h"
#include "host/commands/spaces/ScreenViewports.h"
#include "host/commands/spaces/SheetViewports.h"
#include "host/drawing/geometry/EntityGeometry.h"
#include "host/drawing/records/PageSetup.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::Box;
using drawing::RecordId;
using drawing::Vec3;

/// What of the sheet can be printed on: from the sheet's origin, in its units.
std::optional<Box> printableArea(CommandContext &context)
{
    const std::optional<drawing::LayoutTab> sheet = neededSheet(context);
    if (!sheet)
        return {};
    const drawing::PageSetup page = drawing::readPageSetup(context.drawing(), *sheet);
    const double width = (page.paper.x - page.margins.left - page.margins.right) / page.unitSize;
    const double height = (page.paper.y - page.margins.bottom - page.margins.top) / page.unitSize;
    if (!(width > 0.0 && height > 0.0))
        return drawing::layoutLimits(context.drawing(), *sheet);
    Box area;
    area.add(Vec3{});
    area.add(Vec3{width, height, 0.0});
    return area;
}

Dialogue<std::optional<Box>> askOppositeCorner(CommandContext &context, Vec3 first)
{
    PromptRequest request;
    request.kind = PromptKind::Corner;
    request.prompt = Commands::tr("\nSpecify opposite corner: ");
    request.base = first;
    request.bits = NoEmptyAnswer;
    const PromptReply second = co_await context.ask(request);
    Box frame;
    frame.add(first);
    frame.add(second.point);
    co_return frame;
}

Dialogue<std::optional<Box>> askFrame(CommandContext &context)
{
    const PromptReply first =
        co_await context.point(Commands::tr("Specify first corner or [Fit] <Fit>: "), {}, {}, u"Fit"_s);
    if (!first.hasValue())
        co_return printableArea(context);
    co_return co_await askOppositeCorner(context, first.point);
}

Dialogue<bool> makeSeveral(CommandContext &context, int count)
{
    const ViewportArrangement arrangement = co_await askArrangement(context, count);
    const std::optional<Box> frame = co_await askFrame(context);
    if (!frame)
        co_return false;
    for (const Box &part : divided(*frame, arrangement))
        makeViewport(context, part);
    co_return true;
}

/// The viewports of a configuration of the screen, each in its place of the frame.
Dialogue<bool> restoreConfiguration(CommandContext &context)
{
    const auto name =
        co_await askEntryName(context, drawing::TableKind::Viewport,
                              Commands::tr("Enter viewport configuration name or [?] <*Active>: "), u"*Active"_s);
    const std::vector<RecordId> entries = screenViewports(context.drawing(), name.value_or(u"*Active"_s));
    if (entries.empty()) {
        context.fail(Commands::tr("Cannot find viewport configuration \"%1\".").arg(name.value_or(QString())));
        co_return false;
    }
    const std::optional<Box> frame = co_await askFrame(context);
    if (!frame)
        co_return false;
    const Vec3 size = frame->high - frame->low;
    for (const RecordId entry : entries) {
        const ScreenViewport screen = readScreenViewport(context.drawing(), entry);
        Box place;
        place.add(frame->low + Vec3{size.x * screen.place.low.x, size.y * screen.place.low.y, 0.0});
        place.add(frame->low + Vec3{size.x * screen.place.high.x, size.y * screen.place.high.y, 0.0});
        if (const RecordId made = makeViewport(context, place); isValid(made))
            drawing::aimViewport(context.drawing(), made, screen.aim);
    }
    co_return true;
}

bool canBound(const drawing::Drawing &drawing, RecordId entity)
{
    const bool isRing = drawing.isType(entity, "CIRCLE") || drawing.isType(entity, "ELLIPSE") ||
                        drawing.isType(entity, "REGION") || drawing.isType(entity, "SPLINE");
    const bool isPolyline = drawing.isType(entity, "LWPOLYLINE") || drawing.isType(entity, "POLYLINE");
    return isRing || (isPolyline && (drawing.tags(entity).integer(70) & 1) != 0);
}

/// A viewport of which only what lies within an entity of the sheet is seen.
void clipByEntity(CommandContext &context, RecordId entity)
{
    if (context.drawing().version() < drawing::Version::R2000)
        return context.fail(
            Commands::tr("A drawing of this version has no viewports with other outlines than rectangles."));
    if (!canBound(context.drawing(), entity))
        return context.fail(
            Commands::tr("A viewport is bounded by a closed polyline, circle, ellipse, spline or region."));
    const RecordId made = makeViewport(context, context.document().boxes().box(entity));
    if (!isValid(made))
        return;
    drawing::setViewportFlag(context.drawing(), made, drawing::ClippedViewport, true);
    drawing::FieldList fields = context.drawing().fields(made);
    constexpr int clipCode = 340;
    drawing::setField(fields, clipCode, context.drawing().handle(entity));
    context.drawing().setFields(made, fields);
}

Dialogue<bool> makeOfObject(CommandContext &context)
{
    const PromptReply picked = co_await context.entity(Commands::tr("Select object to clip viewport: "));
    if (!picked.entities.empty())
        clipByEntity(context, picked.entities.front());
    co_return true;
}

Dialogue<bool> makePolygonal(CommandContext &context)
{
    const PromptReply start = co_await context.neededPoint(Commands::tr("Specify start point: "));
    std::vector<Vec3> corners = {start.point};
    for (;;) {
        const PromptReply next =
            co_await context.point(Commands::tr("Specify next point or [Close/Undo]: "), {}, corners.back());
        if (next.hasValue())
            corners.push_back(next.point);
        else if (next.isKeyword(u"Undo") && corners.size() > 1)
            corners.pop_back();
        else if (!next.isKeyword(u"Undo"))
            break;
    }
    if (corners.size() < 3) {
        context.fail(Commands::tr("A viewport has three corners at least."));
        co_return false;
    }
    drawing::FieldList outline = {{0, u"LWPOLYLINE"_s}, {90, qint64(corners.size())}, {70, qint64(1)}};
    for (const Vec3 &corner : corners)
        outline.push_back({10, corner.xy()});
    if (const RecordId made = context.create(outline); isValid(made))
        clipByEntity(context, made);
    co_return true;
}

Dialogue<bool> switchChosen(CommandContext &context, drawing::ViewportFlag flag, bool isOn)
{
    const PromptReply chosen = co_await context.selection();
    for (const RecordId viewport : viewportsAmong(context, chosen.entities))
        drawing::setViewportFlag(context.drawing(), viewport, flag, isOn);
    co_return true;
}

Dialogue<bool> lockChosen(CommandContext &context)
{
    const PromptReply state = co_await context.keyword(Commands::tr("Viewport View Locking [ON/OFF]: "));
    co_return co_await switchChosen(context, drawing::LockedViewport, state.text == u"ON"_s);
}

/// How viewports are shaded on paper is kept; they are drawn as lines all the same.
Dialogue<bool> shadeChosen(CommandContext &context)
{
    // By their first letters, as one of them has a blank.
    const QString letters = u"AWHR"_s;
    const PromptReply way = co_await context.text(
        Commands::tr("Shade plot? [As displayed/Wireframe/Hidden/Rendered] <As displayed>: "), u"As displayed"_s);
    const PromptReply chosen = co_await context.selection();
    const QString word = way.text.trimmed().toUpper().remove(u'_');
    const qint64 number = word.isEmpty() ? 0 : std::max<qint64>(0, letters.indexOf(word.front()));
    for (const RecordId viewport : viewportsAmong(context, chosen.entities)) {
        if (context.drawing().version() < drawing::Version::R2004)
            continue;
        drawing::FieldList fields = context.drawing().fields(viewport);
        constexpr int shadePlotCode = 170;
        drawing::setField(fields, shadePlotCode, number);
        context.drawing().setFields(viewport, fields);
    }
    co_return true;
}

Dialogue<bool> takeViewportOption(CommandContext &context, QString option)
{
    if (option == u"ON" || option == u"OFF")
        co_return co_await switchChosen(context, drawing::SwitchedOffViewport, option == u"OFF");
    if (option == u"Lock")
        co_return co_await lockChosen(context);
    if (option == u"Shadeplot" || option == u"Hideplot")
        co_return co_await shadeChosen(context);
    if (option == u"Object")
        co_return co_await makeOfObject(context);
    if (option == u"Polygonal")
        co_return co_await makePolygonal(context);
    if (option == u"Restore")
        co_return co_await restoreConfiguration(context);
    if (option == u"2" || option == u"3" || option == u"4")
        co_return co_await makeSeveral(context, option.toInt());
    if (const std::optional<Box> area = printableArea(context))
        makeViewport(context, *area);
    co_return true;
}

Dialogue<bool> askViewports(CommandContext &context)
{
    if (!neededSheet(context))
        co_return false;
    // Viewports stand on the sheet, whatever is worked on.
    enterSheet(context);
    const PromptReply reply = co_await context.point(
        Commands::tr(
            "Specify corner of viewport or [ON/OFF/Fit/Shadeplot/Lock/Object/Polygonal/Restore/2/3/4] <Fit>: "),
        u"ON OFF Fit Shadeplot Hideplot Lock Object Polygonal Restore 2 3 4"_s, {}, u"Fit"_s);
    const QString option = reply.kind == ReplyKind::Keyword ? reply.text : u"Fit"_s;
    if (!reply.hasValue())
        co_return co_await takeViewportOption(context, option);
    const std::optional<Box> frame = co_await askOppositeCorner(context, reply.point);
    if (frame)
        makeViewport(context, *frame);
    co_return true;
}

CommandTask viewports(CommandContext &context)
{
    co_await askViewports(context);
}

/// On a sheet as MVIEW; otherwise the parts of the screen.
CommandTask screenOrSheet(CommandContext &context)
{
    if (isModelTab(context.drawing()))
        co_await askScreenViewports(context);
    else
        co_await askViewports(context);
}

CommandTask toModel(CommandContext &context)
{
    if (isValid(currentViewport(context.drawing())))
        context.print(Commands::tr("\nAlready in model space."));
    else
        enterModel(context);
    co_return;
}

CommandTask toSheet(CommandContext &context)
{
    if (!neededSheet(context))
        co_return;
    if (!isValid(currentViewport(context.drawing())))
        context.print(Commands::tr("\nAlready in paper space."));
    enterSheet(context);
}

} // namespace

std::vector<CommandRow> viewportCommands()
{
    return {{"-VPORTS", screenOrSheet, "Divides the screen or makes viewports on a sheet"},
            {"MSPACE", toModel, "Works on model space through a viewport of the sheet"},
            {"MVIEW", viewports, "Makes viewports on a sheet and switches them"},
            {"PSPACE", toSheet, "Works on the sheet itself"},
            {"VPORTS", screenOrSheet, "As -VPORTS; there is no window for it"}};
}

} // namespace host::kernel
