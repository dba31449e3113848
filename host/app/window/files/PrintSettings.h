#pragma once

#include "host/kernel/documents/Document.h"
#include "host/view/paint/Export.h"

class QPrinter;

namespace host::app {

/// How a layout is printed, as a person says it in the window; words are those of -PLOT.
struct PrintSettings
{
    QString layout{};
    QString device = QStringLiteral("PDF"); ///< "PDF", "PNG", "SVG", or the name of a printer
    QString paper = QStringLiteral("A4");
    bool isAcross = true;
    QString area = QStringLiteral("Extents"); ///< Display, Extents, Limits, Layout or Window
    drawing::Box window{};                    ///< of Window; drawing units
    QString scale = QStringLiteral("Fit");    ///< "Fit", "1:50"
    std::optional<drawing::Vec2> offset{};    ///< millimetres from the corner of the paper; centred without it
    QString styles{};                         ///< a table of plot styles; empty: the page's own, ".": none
    bool hasLineweights = true;
    QString path{}; ///< of the file
    int copies = 1;

    bool isFile() const { return device == u"PDF" || device == u"PNG" || device == u"SVG"; }
};

/// What the layout's page setup says, else what suits a page that was never set up.
PrintSettings settingsOfPage(kernel::Document &document, const QString &layout);

/// The line that runs -PLOT with these settings. Either may be left out: the plot, or keeping them as the layout's page
/// setup.
enum class PlotUse
{
    Plot,
    PlotAndKeep,
    Keep
};
QString plotLine(const drawing::Drawing &drawing, const PrintSettings &settings, PlotUse use);

/// The page as a picture within so many pixels, on white, with a frame where the paper ends; the sentence in `problem`
/// says why there is none.
QImage previewPage(kernel::Document &document, const PrintSettings &settings, const QSize &room, QString &problem);

/// Prints the page on a printer that is set up for it here. The sentence says why not.
QString printPage(kernel::Document &document, const PrintSettings &settings, QPrinter &printer);

} // namespace host::app
