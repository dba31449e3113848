#pragma once

#include <QString>

#include <vector>

namespace host::view {

/// A stretch of a text line drawn in one way.
struct TextPiece
{
    QString text{}; ///< without codes
    bool isUnderlined = false;
    bool isOverlined = false;
    bool isStruck = false;

    bool operator==(const TextPiece &) const = default;
};

/// Takes the %% codes of single-line text apart: %%u %%o %%k switch lines on and off, %%d %%p %%c are the degree,
/// plus-minus and diameter signs, %%% a per cent sign, %%nnn the character of that number, 127 to 129 the
/// three signs. Anything else behind %% is
/// left out with it, as drawings have come to rely on. Pieces are in order and not empty; there are none for a text of
/// no letters.
std::vector<TextPiece> parseTextCodes(QStringView text);

/// The %% codes for characters alone, without the switches: what both kinds of text know. `at` stands on the first %
/// and is moved behind the code; nothing is taken and the result is empty when there is no such code. Letters count in
/// either case.
QString takeCharacterCode(QStringView text, qsizetype &at);

} // namespace host::view
