#pragma once

#include <QString>

#include <optional>

namespace host::view {

/// What a stroke font looks like that drawings ask for by name and that the machine may lack, beside the plain one.
struct StrokeFontLook
{
    double widthFactor = 1.0;
    double slant = 0.0;             ///< to the right for each unit upwards
    double pitch = 0.0;             ///< advance of each letter in capital heights; 0: each its own
    bool hasToleranceSigns = false; ///< small letters are signs of geometric tolerances
};

/// By the name of a font file in any case, without folder and ending; nothing for names that drawings do not commonly
/// have.
std::optional<StrokeFontLook> strokeFontLook(const QString &name);

/// The sign that a letter stands for in a font of such signs; the letter itself where it stands for none.
char32_t toleranceSign(char32_t letter);

/// The code page (as in $DWGCODEPAGE) that a big font of this name numbers its letters by; empty for others.
QByteArray bigFontCodePage(const QString &name);

} // namespace host::view
