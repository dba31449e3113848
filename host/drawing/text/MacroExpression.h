#pragma once

#include <QString>

#include <functional>
#include <optional>

namespace host::drawing {

struct ReadingNotes;

/// What a drawing may ask of its surroundings, above all its macro expressions. A function that is missing knows
/// nothing; lengths and angles are plain decimal numbers then.
struct MacroSurroundings
{
    /// The value of a system variable as text, by its name in any case; nothing for an unknown name.
    std::function<std::optional<QString>(const QString &name)> variable{};
    /// The value of an environment variable. The host hands in none: a drawing that came from elsewhere must not show
    /// what the machine keeps there, keys and passwords among it, to whoever gets the plot.
    std::function<std::optional<QString>(const QString &name)> environment{};
    /// A length and an angle (radians) as LUNITS and LUPREC, AUNITS and AUPREC count modes and precisions.
    std::function<QString(double value, int mode, int precision)> length{};
    std::function<QString(double radians, int mode, int precision)> angle{};
    /// Where a file lies that the drawing names; empty when there is none, or none that may be read. Missing,
    /// namedFiles() searches.
    std::function<QString(const QString &name)> file{};
    /// Told of a file that was found and could not be read; may be missing.
    std::function<void(const QString &path, const QString &reason)> unread{};
    /// Told of a drawing that was read, with what of its file could not be or is doubtful; may be missing.
    std::function<void(const QString &path, const ReadingNotes &notes)> incomplete{};
};

/// The most characters that an expression gives. More is cut off there and marked.
inline constexpr qsizetype largestMacroText = 4096;

/// The value of a macro expression: `text` with every $(function,argument,...) in it replaced by what it gives.
///
/// Arguments are text with calls in it. Blanks in front of an argument do not belong to it. A part in double quotes is
/// taken as it stands, commas, parentheses and calls included, and "" in it is a quote. Numbers are written with up to
/// 12 digits; a truth is 1 or 0. The functions, by name in any case:
///
/// - `+` `-` `*` `/` of one or more numbers: the first and the others added, subtracted, multiplied, divided.
/// - `=` `!=` `<` `>` `<=` `>=` of two numbers: whether it holds.
/// - `and` `or` `xor` of one or more whole numbers: bit by bit.
/// - `eq,A,B`: whether two texts are the same.
/// - `if,CONDITION,A,B`: A, or B (which may be left out) where the condition is 0; the other is not evaluated.
/// - `nth,N,A0,A1,...`: the argument with that number; the others are not evaluated.
/// - `index,N,LIST`: the member with that number, from 0, of a text with commas; empty where there is none.
/// - `fix,NUMBER`: without what stands behind the point.
/// - `strlen,TEXT`, `upper,TEXT`, `substr,TEXT,START,LENGTH`: characters count from 1; the length may be left out.
/// - `getvar,NAME`: a system variable.
/// - `getenv,NAME`: an environment variable; the name itself where there is none.
/// - `edtime,DATE,PICTURE`: a Julian date, or now for 0; see dateText().
/// - `rtos,NUMBER,MODE,PRECISION`, `angtos,ANGLE,MODE,PRECISION`: a length, an angle; as the drawing's variables say
///   where mode and precision are left out.
/// - `linelen`: how many characters a line may have.
/// - `eval,TEXT`: the text evaluated once more.
///
/// What is wrong shows in the value and the rest is evaluated all the same: $(name)?? is an unknown function and
/// $(name,??) one with the wrong arguments. Two end the value where they are met: $? a parenthesis or quote that never
/// closes, $(++) a value, a nesting or an amount of work beyond measure. So the cost is bounded whatever the text is.
QString evaluateMacro(QStringView text, const MacroSurroundings &surroundings);

} // namespace host::drawing
