#include "host/commands/files/PlotRequest.h"

#include "files/qt/VisibleText.h"
#include "host/drawing/editing/PageSetupEdit.h"
#include "host/drawing/references/PlotStyleFile.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/documents/ExpressionSurroundings.h"
#include "host/kernel/documents/Session.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"
#include "host/view/paint/Export.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

/// The table that was named; the sentence says why there is none.
QString choosePlotTable(CommandContext &context, const QString &name, view::ExportOptions &how)
{
    drawing::PlotStyleReading reading;
    const QString path = context.document().findNamedFile(name);
    if (!path.isEmpty())
        reading = drawing::readPlotStyleFile(path);
    else
        reading.table = drawing::builtInPlotStyles(name);
    if (!reading.table)
        return path.isEmpty() ? Commands::tr("Cannot find plot style table \"%1\".").arg(name)
                              : u"%1: %2"_s.arg(path, reading.error);
    how.plotStyles = std::make_shared<drawing::PlotStyleTable>(*std::move(reading.table));
    how.withPlotStyles = false;
    return {};
}

void tellIncomplete(CommandContext &context, const view::ExportResult &written)
{
    for (const view::PageReport &page : written.pages)
        if (!page.lack.isEmpty())
            context.print(u'\n' + files::visibleText(page.lack));
    if (!written.report.isWhole())
        context.print(Commands::tr("\nSome of what the drawing holds is not drawn, or in part."));
}

} // namespace

QString plotExtension(const QString &device)
{
    for (const QString &extension : {u"pdf"_s, u"png"_s, u"svg"_s})
        if (device.contains(extension, Qt::CaseInsensitive))
            return extension;
    return {};
}

std::optional<double> plotScale(const QString &typed, double unitSize)
{
    QString text = typed.trimmed();
    text.replace(u'=', u':');
    bool isPaper = false;
    bool isDrawing = true;
    const double paper = text.section(u':', 0, 0).toDouble(&isPaper);
    const double units = text.contains(u':') ? text.section(u':', 1).toDouble(&isDrawing) : 1.0;
    const double scale = paper * unitSize / units;
    constexpr double least = 1e-9;
    constexpr double largest = 1e9;
    const bool isScale = isPaper && isDrawing && scale >= least && scale <= largest;
    return isScale ? std::optional(scale) : std::nullopt;
}

QString keepPageSetup(CommandContext &context, const PlotRequest &request)
{
    drawing::PageSetup setup = drawing::readPageSetup(context.drawing(), request.layout);
    if (request.paper) {
        setup.paper = {request.paper->width(), request.paper->height()};
        setup.margins = {};
    }
    setup.area = request.area.value_or(setup.area);
    if (setup.area == drawing::PlotArea::Window && request.window)
        setup.window = *request.window;
    setup.view = request.view;
    setup.scale = request.scale ? *request.scale / setup.unitSize : 0.0;
    setup.isCentred = !request.offset;
    setup.offset = request.offset.value_or(drawing::Vec2{});
    setup.hasPlotStyles = request.withStyles;
    if (!request.styles.isEmpty())
        setup.styleSheet = request.styles;
    setup.hasLineweights = request.withLineweights;
    return drawing::writePageSetup(context.drawing(), request.layout, setup);
}

QString writePlot(CommandContext &context, const PlotRequest &request)
{
    Document &document = context.document();
    if (const auto obstacle = obstacleToWriting(request.path, &document.session())) {
        document.session().tellNotWritten(obstacle->text);
        return obstacle->text;
    }
    view::ExportOptions how;
    how.layouts = {request.layout.name};
    how.sheet = {.paper = request.paper,
                 .scale = request.scale,
                 .window = request.window,
                 .offset = request.offset,
                 .isSheet = request.isSheet};
    how.withLineweights = request.withLineweights;
    how.withPlotStyles = request.withStyles;
    how.surroundings = expressionSurroundings(document);
    if (request.withStyles && !request.styles.isEmpty())
        if (const QString problem = choosePlotTable(context, request.styles, how); !problem.isEmpty())
            return problem;
    view::Exporter exporter(context.drawing(), how);
    const view::ExportResult written = request.extension == u"pdf"   ? exporter.pdf(request.path, how.layouts)
                                       : request.extension == u"svg" ? exporter.svg(request.path, how.layouts)
                                                                     : exporter.png(request.path, how.layouts);
    if (written)
        tellIncomplete(context, written);
    else
        document.session().tellNotWritten(written.error);
    return written.error;
}

} // namespace host::kernel
