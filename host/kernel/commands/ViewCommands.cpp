#include "host/drawing/EntityGeometry.h"
#include "host/kernel/CurrentSpace.h"
#include "host/kernel/Document.h"
#include "host/kernel/commands/CommandContext.h"
#include "host/kernel/commands/Commands.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

void zoomExtents(CommandContext &context)
{
    const drawing::Drawing &drawing = context.drawing();
    context.document().zoomTo(drawing::spaceBox(drawing, drawing.entities().inSpace(currentSpace(drawing))));
}

/// "2x" and "2xp" are factors to what is shown; a plain number is a factor to the whole.
void zoomByFactor(CommandContext &context, QString text)
{
    const bool isRelative = text.endsWith(u"x"_s, Qt::CaseInsensitive) || text.endsWith(u"xp"_s, Qt::CaseInsensitive);
    while (!text.isEmpty() && text.back().isLetter())
        text.chop(1);
    bool isNumber = false;
    const double factor = text.toDouble(&isNumber);
    if (!isNumber || !(factor > 0.0)) {
        context.print(u"\nRequires a scale factor, two corners or an option keyword."_s);
        return;
    }
    if (!isRelative)
        zoomExtents(context);
    ViewState view = context.document().view();
    view.height /= factor;
    context.document().setView(view);
}

// A corner and its opposite, a factor (2x), or All, Center, Extents.
CommandTask zoom(CommandContext &context)
{
    PromptRequest request;
    request.kind = PromptKind::Point;
    request.prompt = u"\nSpecify corner of window, enter a scale factor (nX), or [All/Center/Extents/Window]: "_s;
    request.keywords = u"All Center Extents Window"_s.split(u' ');
    request.bits = AnyText;
    PromptReply reply = co_await context.ask(request);
    if (reply.isKeyword(u"Window"))
        reply = co_await context.point(u"Specify first corner: "_s);
    if (reply.isKeyword(u"All") || reply.isKeyword(u"Extents")) {
        zoomExtents(context);
    } else if (reply.isKeyword(u"Center")) {
        const PromptReply centre = co_await context.point(u"Specify center point: "_s);
        const PromptReply height = co_await context.distance(u"Enter height: "_s, {}, {}, u"same"_s);
        ViewState view = context.document().view();
        if (centre.hasValue())
            view.centre = centre.point.xy();
        if (height.hasValue() && height.real > 0.0)
            view.height = height.real;
        context.document().setView(view);
    } else if (reply.kind == ReplyKind::Keyword) {
        zoomByFactor(context, reply.text);
    } else if (reply.hasValue()) {
        const PromptReply corner = co_await context.point(u"Specify opposite corner: "_s, {}, reply.point);
        drawing::Box box;
        box.add(reply.point);
        box.add(corner.point);
        if (corner.hasValue())
            context.document().zoomTo(box);
    }
}

CommandTask regenerate(CommandContext &context)
{
    context.document().boxes().forget();
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
