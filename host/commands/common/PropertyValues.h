#pragma once

#include <QString>

#include <optional>
#include <span>

namespace host::kernel {

// What people type for properties of layers and entities.

/// A word without the "_" in front that marks it as English.
QString withoutMark(const QString &word);
/// The number of a colour given by number or name ("red"); 0 when it is neither.
int colourNumber(const QString &text);
/// "255,128,0" as 0xRRGGBB; nothing for other text.
std::optional<qint64> exactColour(const QString &text);
/// The weights that drawings have, in hundredths of a millimetre, the thinnest first.
std::span<const int> lineweights();
/// The nearest of these weights.
int nearestWeight(double millimetres);

} // namespace host::kernel
