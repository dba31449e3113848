#pragma once

#include <QStringView>

#include <optional>

namespace host::view {

// What belongs to an inline code of multi-line text. Its argument ends with a semicolon, which drawings leave out here
// and there: then only what can be meant is the argument, and the text goes on behind it.
//
// Each begins at `at`, right behind the code's letter, and moves it behind the argument and its semicolon. Nothing is
// taken, and nothing comes back, where there is neither an argument nor a semicolon: that is no code but a text. Costs
// grow with what is taken, but for stacks, which are looked through up to the next code.

enum class NumberForm
{
    Plain,
    Whole,       ///< without a fraction
    MayBeFactor, ///< with an "x" behind it; in front of a semicolon the other forms have it as well
};
std::optional<QStringView> takeNumberArgument(QStringView text, qsizetype &at, NumberForm form = NumberForm::Plain);
/// A single digit.
std::optional<QStringView> takeDigitArgument(QStringView text, qsizetype &at);
/// A family with its flags ("Arial|b1|i0|c0|p34"), or a font file; without a semicolon the flags, or the ending of the
/// file, show where it ends.
std::optional<QStringView> takeFontArgument(QStringView text, qsizetype &at);
/// Indents and alignment, separated by commas.
std::optional<QStringView> takeParagraphArgument(QStringView text, qsizetype &at);
/// Both parts of a stack; without a semicolon up to the blank behind the lower one.
std::optional<QStringView> takeStackArgument(QStringView text, qsizetype &at);

} // namespace host::view
