#pragma once

#include <QSizeF>
#include <QString>

#include <optional>

namespace host::view {

/// The size of a sheet by its name in any letter case: "A3", "B2", "ANSI-D", "ARCHE1". Millimetres, held across;
/// nothing for other names.
std::optional<QSizeF> namedPaper(const QString &name);

/// The same for the longer names of plotters, "ISO_A4_(210.00_x_297.00_MM)": what stands in parentheses counts, held as
/// it says, in millimetres or inches; otherwise the first word that names a sheet.
std::optional<QSizeF> plotterPaper(const QString &name);

} // namespace host::view
