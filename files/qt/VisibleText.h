#pragma once

#include <QString>

namespace files {

/// `text` as a drawing or a file has it, such that what is read is what it says: the characters that turn the direction
/// of writing, and others that are not seen, stand as codes of the form "\U+202E", and a line end as "↵".
QString visibleText(const QString &text);

/// The same in lines that a message box shows whole, where a single long one would run off the screen.
QString visibleLines(const QString &text);

} // namespace files
