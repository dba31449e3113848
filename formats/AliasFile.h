#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

class QIODevice;

namespace ortakit {

/// A short name that is typed in place of a command.
struct CommandAlias
{
    QString command;
    QString alias;

    friend bool operator==(const CommandAlias &, const CommandAlias &) = default;
};

/// What an alias file holds: the pairs in the order of the file, as they are written there. After an error the ones
/// before it.
struct AliasReading
{
    QList<CommandAlias> aliases;
    /// Empty when all of the file was read; otherwise what the user is told.
    QString error;

    explicit operator bool() const { return error.isEmpty(); }
};

/// Reads an alias file from the current position of `source`: XML in which every element "record", at any depth, gives
/// a pair from its attributes "command" and "alias"; one that is missing is empty text. Other elements are passed over.
/// An error is the parser's own text.
///
/// Beside what is no XML the reader refuses what would cost more than the length of the file justifies: a single tag,
/// comment, text or document type of more than 64 KB, elements with more than 100 attributes, and entities that expand
/// to much more than the file.
AliasReading readAliases(QIODevice &source);

/// The same of the file at `path`. What cannot be opened, or is no regular file, is an error.
AliasReading readAliasFile(const QString &path);

/// The text of an alias file: root element "aliases", an element "record" for each pair in order, both names in upper
/// case. Pairs with an empty command or alias are left out, and with them the characters that XML cannot hold.
QByteArray writtenAliases(const QList<CommandAlias> &aliases);

/// A list to print: a line for each pair, in order and in upper case, the commands filled up with points so that the
/// aliases stand in a column.
QString aliasListing(const QList<CommandAlias> &aliases);

/// Writes writtenAliases() to the file at `path`, all of it or nothing; see replaceFile(). False when that failed.
bool writeAliasFile(const QString &path, const QList<CommandAlias> &aliases);

} // namespace ortakit
