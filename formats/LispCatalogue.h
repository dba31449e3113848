#pragma once

#include <QByteArrayView>
#include <QStringList>

namespace ortakit {

/// What a Lisp engine holds, as the Lisp side writes it to a file: one symbol a line, fields divided by "!". Field 0 is
/// the kind, "COMMAND", "FUNCTION" or "VARIABLE"; then come name, data type, and the type of a function or the value of
/// a variable. Commands and functions have one more field, the value that the dump gives them. A missing field is
/// empty.
struct LispCatalogue
{
    /// Whole lines by their kind, in the order of the file.
    QStringList commands;
    QStringList functions;
    QStringList variables;
};

/// Lines of another kind are left out.
LispCatalogue parseLispCatalogue(QByteArrayView text);

struct LispCatalogueReading
{
    LispCatalogue catalogue;
    /// Empty when the file was read; otherwise what the user is told.
    QString error;

    explicit operator bool() const { return error.isEmpty(); }
};

/// Far beyond what an engine's symbols take.
inline constexpr qint64 largestLispCatalogue = qint64(64) * 1024 * 1024;

LispCatalogueReading readLispCatalogue(const QString &path);

/// Name, data type and type or value of a catalogue line: always three.
QStringList lispSymbolColumns(const QString &line);

/// The catalogue as Lisp assignments, each a comment, so that loading the file does nothing until its reader takes the
/// semicolon off a line. UTF-8 with the platform's line ends; commands first, then functions, then variables.
QByteArray lispDump(const LispCatalogue &catalogue);

} // namespace ortakit
