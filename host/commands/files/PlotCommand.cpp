#include "host/commands/Commands.h"
#include "host/commands/files/PlotRequest.h"
#include "host/drawing/geometry/EntityGeometry.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/running/Dialogue.h"
#include "host/view/paint/PaperSizes.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::Box;
using drawing::PageSetup;
using drawing::Vec3;

/// Yes or no; the default for an empty answer.
Dialogue<bool> isYes(CommandContext &context, QString question, bool usual)
{
    const QString shown = usual ? u"Yes"_s : u"No"_s;
    const PromptReply reply =
        co_await context.keyword(Commands::tr("%1 [Yes/No] <%2>: ").arg(question, shown), {}, shown);
    co_return reply.text.isEmpty() ? usual : reply.text == u"Yes"_s;
}

/// Text; "?" prints what there is and asks again. `usual` for an empty answer.
Dialogue<QString> askListed(CommandContext &context, QString question, QString usual, QStringList choices)
{
    for (;;) {
        const PromptReply reply =
            co_await context.text(Commands::tr("%1 or [?] <%2>: ").arg(question, usual), usual, u"?"_s);
        if (reply.kind != ReplyKind::Keyword)
            co_return reply.hasValue() ? reply.text.trimmed() : usual;
        for (const QString &choice : choices)
            context.print(u'\n' + choice);
    }
}

QStringList plotDevices()
{
    return {u"PDF"_s, u"PNG"_s, u"SVG"_s};
}

QStringList knownPapers()
{
    return {u"A0 to A6, B0 to B6"_s, u"ANSI-A to ANSI-E, ARCH-A to ARCH-E1"_s, u"CUSTOM (WIDTH x HEIGHT MM)"_s};
}

QStringList knownPlotTables()
{
    return {u"monochrome.ctb"_s,    u"grayscale.ctb"_s,     u"screening 25%.ctb"_s,
            u"screening 50%.ctb"_s, u"screening 75%.ctb"_s, u"screening 100%.ctb"_s};
}

Dialogue<std::optional<PlotRequest>> askLayout(CommandContext &context)
{
    QStringList names;
    for (const drawing::LayoutTab &tab : drawing::layoutTabs(context.drawing()))
        names.append(tab.name);
    const QString current = currentLayout(context.drawing());
    const QString name = co_await askListed(context, Commands::tr("Enter a layout name"), current, names);
    const auto layout = drawing::findLayout(context.drawing(), name);
    if (!layout) {
        context.fail(Commands::tr("Layout \"%1\" not found.").arg(name));
        co_return std::nullopt;
    }
    PlotRequest request;
    request.layout = *layout;
    co_return request;
}

/// False, with the command failed, for a device that there is not.
Dialogue<bool> askDevice(CommandContext &context, PlotRequest *request)
{
    const QString device =
        co_await askListed(context, Commands::tr("Enter an output device name"), u"PDF"_s, plotDevices());
    request->extension = plotExtension(device);
    if (request->extension.isEmpty())
        context.fail(Commands::tr("There is no device \"%1\": plots are files of PDF, PNG or SVG.").arg(device));
    co_return !request->extension.isEmpty();
}

/// What is held as the drawing lies on it.
void turn(QSizeF &paper, bool isAcross)
{
    if (isAcross != (paper.width() > paper.height()))
        paper.transpose();
}

Dialogue<bool> askPaper(CommandContext &context, PlotRequest *request)
{
    const PageSetup page = drawing::readPageSetup(context.drawing(), request->layout);
    const QString usual = page.hasPaper() ? u"%1 x %2 MM"_s.arg(page.paper.x).arg(page.paper.y) : u"A4"_s;
    const QString name = co_await askListed(context, Commands::tr("Enter paper size"), usual, knownPapers());
    if (name != usual)
        request->paper = view::plotterPaper(name);
    if (name != usual && !request->paper) {
        context.fail(Commands::tr("There is no paper size \"%1\".").arg(name));
        co_return false;
    }
    const PromptReply units = co_await context.keyword(
        Commands::tr("Enter paper units [Inches/Millimeters] <Millimeters>: "), {}, u"Millimeters"_s);
    const bool isAcross = !page.hasPaper() || page.paper.x > page.paper.y;
    const QString across = isAcross ? u"Landscape"_s : u"Portrait"_s;
    const PromptReply held = co_await context.keyword(
        Commands::tr("Enter drawing orientation [Portrait/Landscape] <%1>: ").arg(across), {}, across);
    const bool isWantedAcross = held.text.isEmpty() ? isAcross : held.text == u"Landscape"_s;
    if (!request->paper && isWantedAcross != isAcross && page.hasPaper())
        request->paper = QSizeF(page.paper.x, page.paper.y);
    if (request->paper)
        turn(*request->paper, isWantedAcross);
    // Until the scale is known: how long a plotted unit is.
    request->scale = units.text == u"Inches"_s ? drawing::millimetresPerInch : 1.0;
    const bool isUpsideDown = co_await isYes(context, Commands::tr("Plot upside down?"), false);
    if (isUpsideDown)
        context.print(Commands::tr("\nPlots stand upright here."));
    co_return true;
}

Box shownArea(CommandContext &context)
{
    const ViewState &view = context.document().view();
    const double aspect = view.pixels.isEmpty() ? 1.0 : double(view.pixels.width()) / view.pixels.height();
    const Vec3 half{view.height * aspect / 2.0, view.height / 2.0, 0.0};
    const Vec3 centre{view.centre.x, view.centre.y, 0.0};
    Box box;
    box.add(centre - half);
    box.add(centre + half);
    return box;
}

Dialogue<std::optional<Box>> askPlotWindow(CommandContext &context)
{
    const PromptReply low =
        co_await context.neededPoint(Commands::tr("Enter lower left corner of window <0.000000,0.000000>: "));
    const PromptReply high =
        co_await context.neededPoint(Commands::tr("Enter upper right corner of window: "), low.point);
    Box box;
    box.add(low.point);
    box.add(high.point);
    co_return box;
}

drawing::PlotArea areaNamed(const QString &option)
{
    constexpr const char *options[] = {"Display", "Extents", "Limits", "View", "Window", "Layout"};
    const auto found = std::ranges::find(options, option, [](const char *name) { return QString::fromLatin1(name); });
    return drawing::PlotArea(found - std::begin(options));
}

/// The area by its option. Of a layout that is plotted whole it is nothing: its page says it.
Dialogue<bool> askArea(CommandContext &context, PlotRequest *request)
{
    const bool isModel = request->layout.isModel();
    const QString usual = isModel ? u"Display"_s : u"Layout"_s;
    const QString options = isModel ? u"Display/Extents/Limits/View/Window"_s : u"Display/Extents/Layout/View/Window"_s;
    const PromptReply reply =
        co_await context.keyword(Commands::tr("Enter plot area [%1] <%2>: ").arg(options, usual), {}, usual);
    const QString area = reply.text.isEmpty() ? usual : reply.text;
    const drawing::Drawing &drawing = context.drawing();
    request->area = areaNamed(area);
    if (area == u"Window") {
        request->window = co_await askPlotWindow(context);
    } else if (area == u"View") {
        const PromptReply name = co_await context.text(Commands::tr("Enter view name: "));
        request->view = name.text.trimmed();
        request->window = drawing::namedView(drawing, request->view);
        if (!request->window)
            context.fail(Commands::tr("Cannot find view \"%1\".").arg(name.text.trimmed()));
    } else if (area == u"Extents") {
        request->window = drawing::spaceBox(drawing, drawing::layoutEntities(drawing, request->layout));
    } else if (area == u"Limits") {
        request->window = drawing::layoutLimits(drawing, request->layout);
    } else if (area == u"Display" && request->layout.name == currentLayout(drawing)) {
        request->window = shownArea(context);
    } else if (area == u"Layout") {
        request->isSheet = true;
    }
    // A line without height has no proportions, but may be plotted.
    const Box box = request->window.value_or(Box());
    if (!(box.high.x > box.low.x && box.high.y > box.low.y))
        request->window.reset();
    co_return !context.hasFailed();
}

Dialogue<bool> askScale(CommandContext &context, PlotRequest *request)
{
    const double unitSize = request->scale.value_or(1.0);
    const PageSetup page = drawing::readPageSetup(context.drawing(), request->layout);
    const bool isFitting = page.scale <= 0.0;
    const QString usual = isFitting ? u"Fit"_s : u"%1=1"_s.arg(page.scale);
    const PromptReply reply = co_await context.text(
        Commands::tr("Enter plot scale (Plotted Millimeters=Drawing Units) or [Fit] <%1>: ").arg(usual), usual,
        u"Fit"_s);
    request->scale.reset();
    const bool isFit = reply.kind == ReplyKind::Keyword || (!reply.hasValue() && isFitting);
    const QString typed = reply.hasValue() ? reply.text : usual;
    if (!isFit) {
        request->scale = plotScale(typed, reply.hasValue() ? unitSize : page.unitSize);
        if (!request->scale)
            context.fail(Commands::tr("\"%1\" is no plot scale.").arg(typed));
    }
    const PromptReply offset =
        co_await context.point(Commands::tr("Enter plot offset (x,y) or [Center] <Center>: "), {}, {}, u"Center"_s);
    if (isFit && std::exchange(request->isSheet, false) && page.area != drawing::PlotArea::Layout)
        request->window = drawing::layoutLimits(context.drawing(), request->layout);
    if (offset.hasValue())
        request->offset = (offset.point * unitSize).xy();
    co_return !context.hasFailed();
}

Dialogue<bool> askLook(CommandContext &context, PlotRequest *request)
{
    request->withStyles = co_await isYes(context, Commands::tr("Plot with plot styles?"), true);
    if (request->withStyles) {
        const QString page = drawing::readPageSetup(context.drawing(), request->layout).styleSheet;
        const QString name =
            co_await askListed(context, Commands::tr("Enter plot style table name"), page, knownPlotTables());
        request->withStyles = name != u".";
        request->styles = name == u"." || name == page ? QString() : name;
    }
    request->withLineweights = co_await isYes(context, Commands::tr("Plot with lineweights?"), true);
    if (request->layout.isModel()) {
        // Model space is plotted as lines, whatever the answer.
        co_await context.text(
            Commands::tr(
                "Enter shade plot setting [As displayed/Wireframe/Hidden/Visual styles/Rendered] <As displayed>: "),
            u"As displayed"_s);
        co_return true;
    }
    // What sheets are plotted with is in their page setup; the answers are taken so that programs go on in step.
    co_await isYes(context, Commands::tr("Scale lineweights with plot scale?"), false);
    co_await isYes(context, Commands::tr("Plot paper space first?"), false);
    co_await isYes(context, Commands::tr("Hide paperspace objects?"), false);
    co_return true;
}

QString usualPath(CommandContext &context, const PlotRequest &request)
{
    const Document &document = context.document();
    const QString folder = document.path().isEmpty() ? QDir::currentPath() : QFileInfo(document.path()).absolutePath();
    static const QRegularExpression unsafe(u"[\\x00-\\x1f<>:\"/\\\\|?*]"_s);
    return u"%1/%2-%3.%4"_s.arg(folder, QFileInfo(document.title()).completeBaseName(),
                                QString(request.layout.name).replace(unsafe, u"_"_s), request.extension);
}

Dialogue<bool> askFile(CommandContext &context, PlotRequest *request, bool isDetailed)
{
    const QString usual = usualPath(context, *request);
    const PromptReply reply = co_await context.text(Commands::tr("Enter file name <%1>: ").arg(usual), usual);
    QString typed = reply.hasValue() ? reply.text.trimmed() : usual;
    typed.replace(u'\\', u'/');
    if (!typed.endsWith(u'.' + request->extension, Qt::CaseInsensitive))
        typed += u'.' + request->extension;
    request->path = QFileInfo(QDir::current(), typed).absoluteFilePath();
    const bool isKept = co_await isYes(context, Commands::tr("Save changes to page setup?"), false);
    const QString problem = isKept && isDetailed ? keepPageSetup(context, *request) : QString();
    if (!problem.isEmpty())
        context.print(u'\n' + problem);
    co_return co_await isYes(context, Commands::tr("Proceed with plot"), true);
}

Dialogue<bool> askDetails(CommandContext &context, PlotRequest *request)
{
    const bool hasDevice = co_await askDevice(context, request);
    if (!hasDevice)
        co_return false;
    const bool hasPaper = co_await askPaper(context, request);
    if (!hasPaper)
        co_return false;
    const bool hasArea = co_await askArea(context, request);
    if (!hasArea)
        co_return false;
    const bool hasScale = co_await askScale(context, request);
    if (!hasScale)
        co_return false;
    co_return co_await askLook(context, request);
}

/// As the page setup has it.
Dialogue<bool> askBriefly(CommandContext &context, PlotRequest *request)
{
    co_await context.text(Commands::tr("Enter a page setup name <>: "));
    co_return co_await askDevice(context, request);
}

CommandTask plot(CommandContext &context)
{
    const bool isDetailed = co_await isYes(context, Commands::tr("Detailed plot configuration?"), false);
    std::optional<PlotRequest> request = co_await askLayout(context);
    if (!request)
        co_return;
    bool isSaid = false;
    if (isDetailed)
        isSaid = co_await askDetails(context, &*request);
    else
        isSaid = co_await askBriefly(context, &*request);
    if (!isSaid)
        co_return;
    const bool isWanted = co_await askFile(context, &*request, isDetailed);
    if (!isWanted)
        co_return;
    if (const QString problem = writePlot(context, *request); !problem.isEmpty())
        context.fail(problem);
    else
        context.print(Commands::tr("\nPlotted to %1.").arg(request->path));
}

} // namespace

std::vector<CommandRow> plotCommands()
{
    return {{"-PLOT", plot, "Plots a layout to a file of PDF, PNG or SVG"},
            {"PLOT", plot, "Plots a layout to a file; in the window as a dialog with a preview"}};
}

} // namespace host::kernel
