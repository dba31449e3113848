#pragma once

#include "host/view/build/Scene.h"

#include <QImage>
#include <QSizeF>

#include <optional>

namespace host::view {

struct ExportOptions
{
    QString space{}; ///< block or layout block to show by name; empty: model space
    Ground ground = Ground::White;
    std::optional<Box> window{};     ///< what to show; nothing: everything
    QSize pixels{1600, 1200};        ///< of PNG and SVG
    QSizeF sheet{297.0, 210.0};      ///< of PDF, millimetres
    double millimetresPerUnit = 0.0; ///< PDF's scale; 0: as large as the sheet allows
    bool withLineweights = true;     ///< in PDF and SVG; PNG has thin lines
    /// What expressions in the drawing may ask for; nothing: the drawing's own variables.
    drawing::MacroSurroundings surroundings{};
};

/// What came of writing a file.
struct ExportResult
{
    QString error{}; ///< names the file and the reason; empty when it was written
    RenderReport report;

    explicit operator bool() const { return error.isEmpty(); }
};

// Each writes beside `path` and then takes its place, so that a file there stays as it was on failure. Layers that are
// not for plotting are left out.
ExportResult exportPng(const drawing::Drawing &drawing, const QString &path, const ExportOptions &options = {});
ExportResult exportSvg(const drawing::Drawing &drawing, const QString &path, const ExportOptions &options = {});
ExportResult exportPdf(const drawing::Drawing &drawing, const QString &path, const ExportOptions &options = {});

/// A picture of model space, fitted into the size. A ground alone for an empty drawing.
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
