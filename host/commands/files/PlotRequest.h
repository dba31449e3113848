#pragma once

#include "host/drawing/records/PageSetup.h"

#include <QSizeF>
#include <QString>

#include <optional>

namespace host::kernel {

class CommandContext;

/// What -PLOT was told; what is nothing or empty is as the layout's page setup has it.
struct PlotRequest
{
    drawing::LayoutTab layout{};
    QString extension{};                     ///< of the file: "pdf", "png" or "svg"
    std::optional<QSizeF> paper{};           ///< millimetres, as it is held
    std::optional<drawing::Box> window{};    ///< drawing units
    std::optional<drawing::PlotArea> area{}; ///< which option `window` came of
    QString view{};                          ///< its name, of a view
    bool isSheet = false;                    ///< the layout as it stands on its paper
    std::optional<double> scale{};           ///< millimetres a drawing unit
    std::optional<drawing::Vec2> offset{};   ///< millimetres from the paper's corner; in the middle without it
    QString styles{};                        ///< file name of a table
    bool withStyles = true;
    bool withLineweights = true;
    QString path{};
};

/// The format that a device's name stands for ("DWG To PDF.pc3"); empty for a device that is none here.
QString plotExtension(const QString &device);
/// "1:50", "1=50", "0.02": plotted units for one of the drawing, which are `unitSize` millimetres. Nothing for "Fit"
/// and what is no scale.
std::optional<double> plotScale(const QString &typed, double unitSize);
/// Keeps what was told as the page setup of the layout. The sentence says why not; empty when it is kept.
QString keepPageSetup(CommandContext &context, const PlotRequest &request);
/// Writes the file. The sentence says why not; empty when it was written. What could not be drawn is printed.
QString writePlot(CommandContext &context, const PlotRequest &request);

} // namespace host::kernel
