#include "host/commands/Commands.h"
#include "host/drawing/geometry/EntityGeometry.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/input/Keywords.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/running/Dialogue.h"
#include "host/kernel/variables/SystemVariables.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::Vec3;

drawing::Box extents(CommandContext &context)
{
    const drawing::Drawing &drawing = context.drawing();
    return drawing::spaceBox(drawing, currentEntities(drawing));
}

/// What is drawn and the limits.
drawing::Box wholeDrawing(CommandContext &context)
{
    drawing::Box box = extents(context);
    const Vec3 low = context.document().variables().point(u"LIMMIN");
    const Vec3 high = context.document().variables().point(u"LIMMAX");
    if (low.x < high.x && low.y < high.y) {
        box.add(low);
        box.add(high);
    }
    return box;
}

void showAt(CommandContext &context, const Vec3 &centre, double height)
{
    ViewState view = context.document().view();
    view.centre = centre.xy();
    view.height = height;
    context.document().setView(view);
}

/// A typed factor: "2x" and "2xp" count from what is shown, a plain number from the whole.
struct Magnification
{
    double factor = 0.0;
    bool isRelative = false;
};

std::optional<Magnification> magnification(QString text)
{
    Magnification result;
    for (const QString &ending : {u"xp"_s, u"x"_s}) {
        if (!result.isRelative && text.endsWith(ending, Qt::CaseInsensitive)) {
            text.chop(ending.size());
            result.isRelative = true;
        }
    }
    bool isNumber = false;
    result.factor = text.toDouble(&isNumber);
    const bool isFactor = isNumber && result.factor > 0.0 && std::isfinite(result.factor);
    return isFactor ? std::optional(result) : std::nullopt;
}

void zoomByFactor(CommandContext &context, const QString &text)
{
    const std::optional<Magnification> wanted = magnification(text.trimmed());
    if (!wanted) {
        context.fail(u"Requires a scale factor, two corners or an option keyword."_s);
        return;
    }
    if (!wanted->isRelative)
        context.document().zoomTo(wholeDrawing(context));
    ViewState view = context.document().view();
    view.height /= wanted->factor;
    context.document().setView(view);
}

Dialogue<bool> zoomToWindow(CommandContext &context, const Vec3 first)
{
    const PromptReply corner = co_await context.neededPoint(u"Specify opposite corner: "_s, first);
    drawing::Box box;
    box.add(first);
    box.add(corner.point);
    context.document().zoomTo(box);
    co_return true;
}

/// A centre, then how much is to be seen around it: a height or a magnification.
Dialogue<bool> zoomToCentre(CommandContext &context)
{
    const PromptReply centre = co_await context.neededPoint(u"Specify center point: "_s);
    const double height = context.document().view().height;
    const QString usual = context.shownLength(height);
    PromptRequest request;
    request.kind = PromptKind::Distance;
    request.prompt = u"\nEnter magnification or height <%1>: "_s.arg(usual);
    request.defaultText = usual;
    request.bits = AnyText | NoZero | NoNegative;
    const PromptReply size = co_await context.ask(request);
    const auto factor = size.kind == ReplyKind::Keyword ? magnification(size.text) : std::optional<Magnification>();
    if (size.kind == ReplyKind::Keyword && !(factor && factor->isRelative))
        context.fail(u"Requires a height, or a magnification (nX)."_s);
    else
        showAt(context, centre.point, size.hasValue() ? size.real : factor ? height / factor->factor : height);
    co_return true;
}

Dialogue<bool> zoomToObjects(CommandContext &context)
{
    const PromptReply chosen = co_await context.selection();
    drawing::Box box;
    for (const drawing::RecordId entity : chosen.entities)
        box.add(context.document().boxes().box(entity));
    context.document().zoomTo(box);
    co_return true;
}

Dialogue<bool> takeZoomOption(CommandContext &context, const QString &option)
{
    if (option == u"Window") {
        const PromptReply first = co_await context.neededPoint(u"Specify first corner: "_s);
        co_return co_await zoomToWindow(context, first.point);
    }
    if (option == u"Center")
        co_return co_await zoomToCentre(context);
    if (option == u"Object")
        co_return co_await zoomToObjects(context);
    if (option == u"Scale") {
        const PromptReply factor = co_await context.name(u"Enter a scale factor (nX or nXP): "_s);
        zoomByFactor(context, factor.text);
    } else if (option == u"All" || option == u"Extents") {
        context.document().zoomTo(option == u"All" ? wholeDrawing(context) : extents(context));
    } else {
        zoomByFactor(context, option);
    }
    co_return true;
}

// A corner and its opposite, a factor, or an option.
CommandTask zoom(CommandContext &context)
{
    PromptRequest request;
    request.kind = PromptKind::Point;
    request.prompt = u"\nSpecify corner of window, enter a scale factor (nX or nXP), or "
                     "[All/Center/Extents/Previous/Scale/Window/Object]: "_s;
    request.keywords = optionsIn(request.prompt);
    request.bits = AnyText;
    const PromptReply reply = co_await context.ask(request);
    const ViewState before = context.document().view();
    if (reply.isKeyword(u"Previous")) {
        if (!context.document().showEarlierView())
            context.print(u"\nNo previous view saved."_s);
        co_return;
    }
    if (reply.hasValue())
        co_await zoomToWindow(context, reply.point);
    else if (reply.kind == ReplyKind::Keyword)
        co_await takeZoomOption(context, reply.text);
    if (!context.hasFailed())
        context.document().rememberView(before);
}

CommandTask regenerate(CommandContext &context)
{
    context.document().boxes().forget();
    context.document().clearSketch();
    emit context.document().regenerated();
    co_return;
}

} // namespace

std::vector<CommandRow> viewCommands()
{
    return {{"REDRAW", regenerate, "Draws the window anew"},
            {"REGEN", regenerate, "Draws the window anew"},
            {"ZOOM", zoom, "Shows more or less of the drawing"}};
}

} // namespace host::kernel
