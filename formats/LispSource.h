#pragma once

#include <QByteArrayView>
#include <QList>
#include <QStringList>

namespace ortakit {

/// One function that a Lisp source file defines with `defun`.
struct LispFunctionEntry
{
    QString name;       ///< empty when blanks stand before the opening parenthesis
    QStringList header; ///< the comment lines and empty lines directly above, tabs as four blanks
    QString defunLine;  ///< the line that the form begins on, as it is
    QStringList body;   ///< the lines behind it up to the one that closes the form, tabs as four blanks
};

/// Which part of a function is shown.
enum class LispPart
{
    Header,   ///< header and defun line
    Function, ///< defun line and body
    Both
};

/// The text of that part, its lines joined with line feeds.
QString lispText(const LispFunctionEntry &entry, LispPart part);

/// The functions of a Lisp source text in their order.
///
/// The scan goes by lines and knows no strings: a comment goes from the first ";" of a line to its end, and every
/// parenthesis before it counts, those in string literals as well. A line with "(defun" outside of all forms begins
/// a function, which ends with the line that brings the count of parentheses back to zero; one that never does gives
/// no entry. Lines outside of forms do not change the count. A line of blanks between comment and function cuts the
/// header off, an empty line does not.
QList<LispFunctionEntry> scanLispSource(QByteArrayView text);

struct LispSourceReading
{
    QList<LispFunctionEntry> functions;
    /// Empty when the file was read; otherwise what the user is told.
    QString error;
};

/// Nobody writes a program of this size by hand; what is larger is data under a wrong name.
inline constexpr qint64 largestLispSource = qint64(32) * 1024 * 1024;

/// In any form of Unicode, else in the code page: see files::utf8Text().
LispSourceReading readLispSource(const QString &path, QByteArrayView codePage = {});

} // namespace ortakit
