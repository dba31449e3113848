#pragma once

#include <QString>

namespace ortakit {

/// How a text is written.
enum class TextCase
{
    Sentence, ///< the very first character of the text is a capital, if it is a letter; all other letters are small
    Lower,
    Upper,
    Title,  ///< a letter that begins the text or stands behind white space is a capital, every other one is small
    Toggle, ///< capitals become small, all other letters capitals
};

/// `text` in that case. Lower and Upper map the text as a whole, so that "ß" becomes "SS". The others map each UTF-16
/// code unit to one, so that the text keeps its length: "ß" stays, and so do letters beyond U+FFFF. What is no letter
/// is always kept.
QString inTextCase(const QString &text, TextCase textCase);

} // namespace ortakit
