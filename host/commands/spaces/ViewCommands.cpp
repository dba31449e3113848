#include "host/commands/Commands.h"
#include "host/commands/spaces/ViewDirection.h"
#include "host/drawing/geometry/EntityGeometry.h"
#include "host/kernel/documents/CurrentView.h"
#include "host/kernel/input/Keywords.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/running/Dialogue.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::Vec3;

void showAt(CommandContext &context, const Vec3 &centre, double height)
{
    ViewState view = currentView(context.document());
    view.centre = centre.xy();
    view.height = height;
    showCurrentView(context.document(), view);
}

/// A typed factor.
struct Magnification
{
    enum class To
    {
        Whole, ///< "2": all of the drawing
        Shown, ///< "2x"
        Sheet  ///< "2xp": units of the sheet for one of the model
    };
    double factor = 0.0;
    To to = To::Whole;
};

std::optional<Magnification> magnification(QString text)
{
    Magnification result;
    for (const auto &[ending, to] :
         {std::pair{u"xp"_s, Magnification::To::Sheet}, {u"x"_s, Magnification::To::Shown}}) {
        if (result.to == Magnification::To::Whole && text.endsWith(ending, Qt::CaseInsensitive)) {
            text.chop(ending.size());
            result.to = to;
        }
    }
    // A ratio is customary for the scale of a sheet.
    bool isNumber = false;
    result.factor = text.section(u'/', 0, 0).toDouble(&isNumber);
    if (isNumber && text.contains(u'/'))
        result.factor /= text.section(u'/', 1).toDouble(&isNumber);
    const bool isFactor = isNumber && result.factor > 0.0 && std::isfinite(result.factor);
    return isFactor ? std::optional(result) : std::nullopt;
}

void zoomByFactor(CommandContext &context, const QString &text)
{
    Document &document = context.document();
    const std::optional<Magnification> wanted = magnification(text.trimmed());
    if (!wanted)
        return context.fail(Commands::tr("Requires a scale factor, two corners or an option keyword."));
    if (wanted->to == Magnification::To::Sheet) {
        if (!showAtSheetScale(document, wanted->factor))
            context.fail(Commands::tr("A scale of the sheet is for viewports: MSPACE goes into one."));
        return;
    }
    if (wanted->to == Magnification::To::Whole)
        showBox(document, wholeDrawing(context));
    ViewState view = currentView(document);
    view.height /= wanted->factor;
    showCurrentView(document, view);
}

Dialogue<bool> zoomToWindow(CommandContext &context, const Vec3 first)
{
    const PromptReply corner = co_await context.neededPoint(Commands::tr("Specify opposite corner: "), first);
    drawing::Box box;
    box.add(first);
    box.add(corner.point);
    showBox(context.document(), box);
    co_return true;
}

/// Asks how much is to be seen: a height or a magnification. Nothing, with the command failed, for another answer.
Dialogue<std::optional<double>> askViewHeight(CommandContext &context)
{
    const double height = currentView(context.document()).height;
    const QString usual = context.shownLength(height);
    PromptRequest request;
    request.kind = PromptKind::Distance;
    request.prompt = Commands::tr("\nEnter magnification or height <%1>: ").arg(usual);
    request.defaultText = usual;
    request.bits = AnyText | NoZero | NoNegative;
    const PromptReply size = co_await context.ask(request);
    if (size.hasValue() || size.kind != ReplyKind::Keyword)
        co_return size.hasValue() ? size.real : height;
    const std::optional<Magnification> factor = magnification(size.text);
    if (factor && factor->to == Magnification::To::Sheet && showAtSheetScale(context.document(), factor->factor))
        co_return currentView(context.document()).height;
    if (factor && factor->to == Magnification::To::Shown)
        co_return height / factor->factor;
    context.fail(Commands::tr("Requires a height, or a magnification (nX)."));
    co_return std::nullopt;
}

/// A centre, or with an empty answer the one that is shown, then how much is to be seen around it.
Dialogue<bool> zoomToCentre(CommandContext &context)
{
    const drawing::Vec2 shown = currentView(context.document()).centre;
    const PromptReply centre = co_await context.point(Commands::tr("Specify center point: "));
    const std::optional<double> height = co_await askViewHeight(context);
    if (height)
        showAt(context, centre.hasValue() ? centre.point : Vec3{shown.x, shown.y, 0.0}, *height);
    co_return true;
}

/// The lower left corner in place of the centre.
Dialogue<bool> zoomToLeft(CommandContext &context)
{
    const PromptReply corner = co_await context.neededPoint(Commands::tr("Specify lower left corner point: "));
    const std::optional<double> height = co_await askViewHeight(context);
    const QSize pixels = currentView(context.document()).pixels;
    const double aspect = pixels.isEmpty() ? 1.0 : double(pixels.width()) / pixels.height();
    if (height)
        showAt(context, corner.point + Vec3{*height * aspect / 2.0, *height / 2.0, 0.0}, *height);
    co_return true;
}

Dialogue<bool> zoomToObjects(CommandContext &context)
{
    const PromptReply chosen = co_await context.selection();
    drawing::Box box;
    for (const drawing::RecordId entity : chosen.entities)
        box.add(context.document().boxes().box(entity));
    showBox(context.document(), box);
    co_return true;
}

Dialogue<bool> takeZoomOption(CommandContext &context, const QString &option)
{
    if (option == u"Window") {
        const PromptReply first = co_await context.neededPoint(Commands::tr("Specify first corner: "));
        co_return co_await zoomToWindow(context, first.point);
    }
    if (option == u"Center")
        co_return co_await zoomToCentre(context);
    if (option == u"Left")
        co_return co_await zoomToLeft(context);
    if (option == u"Object")
        co_return co_await zoomToObjects(context);
    if (option == u"Scale") {
        const PromptReply factor = co_await context.name(Commands::tr("Enter a scale factor (nX or nXP): "));
        zoomByFactor(context, factor.text);
    } else if (option == u"All" || option == u"Extents" || option == u"Vmax") {
        showBox(context.document(), option == u"All" ? wholeDrawing(context) : drawnExtents(context));
    } else if (option == u"Dynamic") {
        context.fail(Commands::tr("There is no dynamic zoom: use the window's wheel."));
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
    request.prompt = Commands::tr("\nSpecify corner of window, enter a scale factor (nX or nXP), or "
                                  "[All/Center/Dynamic/Extents/Previous/Scale/Window/Object] <real time>: ");
    request.keywords = optionsIn(request.prompt) + QStringList{u"Left"_s, u"Vmax"_s};
    request.bits = AnyText;
    const PromptReply reply = co_await context.ask(request);
    const ViewState before = currentView(context.document());
    if (reply.isKeyword(u"Previous")) {
        if (!context.document().showEarlierView())
            context.print(Commands::tr("\nNo previous view saved."));
        co_return;
    }
    if (reply.hasValue())
        co_await zoomToWindow(context, reply.point);
    else if (reply.kind == ReplyKind::Keyword)
        co_await takeZoomOption(context, reply.text);
    if (!context.hasFailed())
        rememberCurrentView(context.document(), before);
}

// Two points, or one that is the displacement itself.
CommandTask pan(CommandContext &context)
{
    const PromptReply from = co_await context.neededPoint(Commands::tr("Specify base point or displacement: "));
    const PromptReply to = co_await context.point(Commands::tr("Specify second point: "), {}, from.point);
    const Vec3 by = to.hasValue() ? to.point - from.point : from.point - context.document().userAxes().origin;
    const ViewState before = currentView(context.document());
    ViewState view = before;
    view.centre = view.centre - by.xy();
    rememberCurrentView(context.document(), before);
    showCurrentView(context.document(), view);
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
    return {{"-PAN", pan, "Moves what is shown"},
            {"PAN", pan, "As -PAN; the middle button of the mouse moves the view too", WhenCancelled::TakeBack,
             Interrupts::Prompts},
            {"REDRAW", regenerate, "Draws the window anew", WhenCancelled::TakeBack, Interrupts::Prompts},
            {"REDRAWALL", regenerate, "Draws the window anew", WhenCancelled::TakeBack, Interrupts::Prompts},
            {"REGEN", regenerate, "Draws the window anew"},
            {"REGENALL", regenerate, "Draws the window anew"},
            {"ZOOM", zoom, "Shows more or less of the drawing", WhenCancelled::TakeBack, Interrupts::Prompts}};
}

} // namespace host::kernel
