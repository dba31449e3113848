#include "host/app/window/files/PrintSettings.h"

#include "host/app/window/canvas/TextEditing.h"
#include "host/drawing/geometry/EntityGeometry.h"
#include "host/drawing/records/PageSetup.h"
#include "host/drawing/references/PlotStyleFile.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/documents/ExpressionSurroundings.h"
#include "host/view/paint/PagePainter.h"
#include "host/view/paint/PaperSizes.h"

#include <QCoreApplication>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPrinter>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

using drawing::Box;
using drawing::Vec2;

QString problemText(const char *text)
{
    return QCoreApplication::translate("host::app::PrintSettings", text);
}

QString numberText(double number)
{
    return QString::number(number, 'g', 12);
}

QString pointText(const Vec2 &point)
{
    return u"(list %1 %2)"_s.arg(numberText(point.x), numberText(point.y));
}

Box shownBox(const kernel::ViewState &view)
{
    const double aspect = view.pixels.isEmpty() ? 1.0 : double(view.pixels.width()) / view.pixels.height();
    const Vec2 half{view.height * aspect / 2.0, view.height / 2.0};
    const Vec2 low = view.centre - half;
    const Vec2 high = view.centre + half;
    return {{low.x, low.y, 0.0}, {high.x, high.y, 0.0}};
}

std::optional<Box> plottedBox(kernel::Document &document, const drawing::LayoutTab &layout,
                              const PrintSettings &settings)
{
    const drawing::Drawing &drawing = document.drawing();
    if (settings.area == u"Window")
        return settings.window;
    if (settings.area == u"Display")
        return shownBox(document.view());
    if (settings.area == u"Limits")
        return drawing::layoutLimits(drawing, layout);
    if (settings.area == u"Extents")
        return drawing::spaceBox(drawing, drawing::layoutEntities(drawing, layout));
    return {};
}

QSizeF paperOf(const PrintSettings &settings)
{
    QSizeF paper = view::plotterPaper(settings.paper).value_or(QSizeF(297.0, 210.0));
    if (settings.isAcross != (paper.width() > paper.height()))
        paper.transpose();
    return paper;
}

/// "1:50" in millimetres a unit; nothing for what fits.
std::optional<double> scaleOf(const QString &scale)
{
    const double paper = scale.section(u':', 0, 0).toDouble();
    const double units = scale.contains(u':') ? scale.section(u':', 1).toDouble() : 1.0;
    return paper > 0.0 && units > 0.0 ? std::optional(paper / units) : std::nullopt;
}

view::ExportOptions pageOptions(kernel::Document &document, const PrintSettings &settings)
{
    view::ExportOptions options;
    options.layouts = {settings.layout};
    options.withLineweights = settings.hasLineweights;
    options.surroundings = kernel::expressionSurroundings(document);
    options.withPlotStyles = settings.styles.isEmpty();
    if (auto table = drawing::builtInPlotStyles(settings.styles))
        options.plotStyles = std::make_shared<drawing::PlotStyleTable>(*std::move(table));
    const auto layout = drawing::findLayout(document.drawing(), settings.layout);
    options.sheet.paper = paperOf(settings);
    options.sheet.scale = scaleOf(settings.scale);
    options.sheet.offset = settings.offset;
    options.sheet.isSheet = settings.area == u"Layout";
    const std::optional<Box> box = layout ? plottedBox(document, *layout, settings) : std::nullopt;
    if (box && box->high.x > box->low.x && box->high.y > box->low.y)
        options.sheet.window = box;
    return options;
}

} // namespace

PrintSettings settingsOfPage(kernel::Document &document, const QString &layout)
{
    PrintSettings settings;
    const auto tab = drawing::findLayout(document.drawing(), layout);
    settings.layout = tab ? tab->name : layout;
    const drawing::PageSetup page = tab ? drawing::readPageSetup(document.drawing(), *tab) : drawing::PageSetup();
    constexpr const char *areas[] = {"Display", "Extents", "Limits", "Extents", "Window", "Layout"};
    settings.area = tab && tab->isModel() && page.area == drawing::PlotArea::Layout
                        ? u"Extents"_s
                        : QString::fromLatin1(areas[int(page.area)]);
    settings.window = page.window.isEmpty() ? shownBox(document.view()) : page.window;
    if (page.hasPaper()) {
        settings.paper = u"CUSTOM (%1 x %2 MM)"_s.arg(numberText(page.paper.x), numberText(page.paper.y));
        settings.isAcross = page.paper.x > page.paper.y;
    }
    if (page.scale > 0.0) {
        const double units = 1.0 / (page.scale * page.unitSize);
        settings.scale = units >= 1.0 ? u"1:"_s + numberText(units) : numberText(1.0 / units) + u":1"_s;
    }
    if (!page.isCentred && page.hasPaper())
        settings.offset = page.offset;
    settings.hasLineweights = page.hasLineweights;
    return settings;
}

QString plotLine(const drawing::Drawing &drawing, const PrintSettings &settings, PlotUse use)
{
    const auto layout = drawing::findLayout(drawing, settings.layout);
    QStringList answers = {u"_Y"_s,
                           settings.layout,
                           settings.isFile() ? settings.device : u"PDF"_s,
                           settings.paper,
                           u"_M"_s,
                           settings.isAcross ? u"_L"_s : u"_P"_s,
                           u"_N"_s,
                           u'_' + settings.area};
    QStringList words;
    for (const QString &answer : std::as_const(answers))
        words += lispString(answer);
    if (settings.area == u"Window")
        words << pointText(settings.window.low.xy()) << pointText(settings.window.high.xy());
    words << lispString(settings.scale) << (settings.offset ? pointText(*settings.offset) : lispString(u"_C"_s))
          << lispString(u"_Y"_s) << lispString(settings.styles)
          << lispString(settings.hasLineweights ? u"_Y"_s : u"_N"_s);
    if (layout && layout->isModel())
        words << lispString(u"_A"_s);
    else
        words << lispString(u"_N"_s) << lispString(u"_N"_s) << lispString(u"_N"_s);
    words << lispString(settings.path) << lispString(use == PlotUse::Plot ? u"_N"_s : u"_Y"_s)
          << lispString(use == PlotUse::Keep ? u"_N"_s : u"_Y"_s);
    return u"(progn (command \"_.-PLOT\" %1) (princ))"_s.arg(words.join(u' '));
}

QImage previewPage(kernel::Document &document, const PrintSettings &settings, const QSize &room, QString &problem)
{
    const QSizeF paper = paperOf(settings);
    view::ExportOptions options = pageOptions(document, settings);
    options.dotsPerInch =
        std::min(room.width() / paper.width(), room.height() / paper.height()) * drawing::millimetresPerInch;
    view::PagePainter pages(document.drawing(), options);
    const auto page = pages.page(settings.layout, true, problem);
    const auto frame = page ? pages.frame(*page, *options.dotsPerInch, problem) : std::nullopt;
    QImage image(frame ? frame->size : QSize(), QImage::Format_RGB32);
    if (image.isNull())
        return image;
    QPainter painter(&image);
    view::ExportResult result;
    pages.paint(painter, *page, *frame, {}, result);
    return image;
}

QString printPage(kernel::Document &document, const PrintSettings &settings, QPrinter &printer)
{
    const QSizeF paper = paperOf(settings);
    const QSizeF upright(std::min(paper.width(), paper.height()), std::max(paper.width(), paper.height()));
    const bool isAcross = paper.width() > paper.height();
    printer.setPrinterName(settings.device);
    printer.setCopyCount(settings.copies);
    printer.setFullPage(true);
    printer.setPageLayout(QPageLayout(QPageSize(upright, QPageSize::Millimeter),
                                      isAcross ? QPageLayout::Landscape : QPageLayout::Portrait, QMarginsF()));
    view::PagePainter pages(document.drawing(), pageOptions(document, settings));
    QString problem;
    const auto page = pages.page(settings.layout, true, problem);
    QPainter painter;
    if (!page || !painter.begin(&printer))
        return page ? problemText("The printer cannot be reached.") : problem;
    const view::Frame frame{.size = {printer.width(), printer.height()},
                            .unitsPerMillimetre = printer.resolution() / drawing::millimetresPerInch};
    view::ExportResult result;
    pages.paint(painter, *page, frame, {.fillGround = false}, result);
    return painter.end() ? QString() : problemText("Printing failed.");
}

} // namespace host::app
