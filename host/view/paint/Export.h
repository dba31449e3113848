#pragma once

#include "host/view/build/Scene.h"
#include "host/view/paint/SheetPlan.h"

#include <QImage>
#include <QSizeF>
#include <QStringList>

#include <optional>
#include <vector>

namespace host::view {

/// What the letters of texts are in PDF and SVG.
enum class TextForm
{
    Outlines, ///< areas, the same everywhere
    Letters   ///< text that can be searched and copied; it takes its font from the reader's machine in SVG
};

/// How pictures are made. Without layouts, paper, scale and resolution a PNG or SVG is a picture of so many pixels that
/// shows everything; otherwise, and as PDF always, it is a sheet.
struct ExportOptions
{
    QStringList layouts{}; ///< names of layouts, a page each, in any letter case; none: `space`
    QString space{};       ///< block by name to show whole; empty: model space
    Ground ground = Ground::White;
    SheetWish sheet{};             ///< of each page
    std::optional<QSize> pixels{}; ///< of PNG and SVG: a sheet goes into its middle; nothing: 1600 by 1200, no sheet's
    std::optional<double> dotsPerInch{}; ///< of sheets as PNG and SVG; nothing: 150 and 254
    bool withLineweights = true;         ///< where the page has them too; otherwise lines are as thin as can be
    TextForm text = TextForm::Outlines;
    QString layers{}; ///< pattern of the names that are shown, as drawing::matchesWildcard() has it; empty: all
    /// Plot styles of all that is written; without them those that a layout's page names.
    std::shared_ptr<const drawing::PlotStyleTable> plotStyles{};
    bool withPlotStyles = true; ///< otherwise what a page names does not count
    /// What expressions in the drawing may ask for; nothing: the drawing's own variables.
    drawing::MacroSurroundings surroundings{};
};

/// What a page shows, and what it cannot.
struct PageReport
{
    QString layout{}; ///< its name as the drawing spells it; empty for what is no layout
    RenderReport report;
    QString lack{}; ///< a sentence on plot styles that were not found or not read; empty when all is well
};

/// What came of writing a file.
struct ExportResult
{
    QString error{};                 ///< names the file and the reason; empty when it was written
    RenderReport report{};           ///< of all pages together
    std::vector<PageReport> pages{}; ///< one each, in order

    explicit operator bool() const { return error.isEmpty(); }
};

/// Writes pictures of a drawing that does not change meanwhile; what they share is worked out once.
///
/// Each file is written beside `path` and then takes its place, so that a file there stays as it was on failure.
/// Layers that are not for plotting are left out.
class Exporter
{
public:
    /// The drawing must outlive it.
    Exporter(const drawing::Drawing &drawing, const ExportOptions &options);
    ~Exporter();
    Exporter(const Exporter &) = delete;
    Exporter &operator=(const Exporter &) = delete;

    // Of PNG and SVG `layouts` is one name or none.
    ExportResult png(const QString &path, const QStringList &layouts);
    ExportResult svg(const QString &path, const QStringList &layouts);
    ExportResult pdf(const QString &path, const QStringList &layouts);

private:
    class Private;
    std::unique_ptr<Private> d;
};

// The same for one file, with the layouts of the options.
ExportResult exportPng(const drawing::Drawing &drawing, const QString &path, const ExportOptions &options = {});
ExportResult exportSvg(const drawing::Drawing &drawing, const QString &path, const ExportOptions &options = {});
ExportResult exportPdf(const drawing::Drawing &drawing, const QString &path, const ExportOptions &options = {});

/// A picture of model space, fitted into the size, with thin lines. A ground alone for an empty drawing.
QImage picture(const drawing::Drawing &drawing, const QSize &size, Ground ground = Ground::Black);
/// As above for a file; a null image when it cannot be read as a drawing.
QImage picture(const QString &path, const QSize &size, Ground ground = Ground::Black);
/// Width and height of what picture() shows of a file, in drawing units; invalid when it cannot be read as a drawing
/// and when it shows nothing.
QSizeF drawnSize(const QString &path);
/// A picture of one block by name; a null image when there is none of that name.
QImage blockPicture(const drawing::Drawing &drawing, const QString &block, const QSize &size,
                    Ground ground = Ground::Black);

} // namespace host::view
