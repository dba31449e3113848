#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

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
    /// Of the error, from 1; 0 where no line has it.
    qint64 line = 0;
    /// Nothing is in the file that writtenAliases() would leave out: elements, attributes and texts of others,
    /// comments.
    bool hasOnlyAliases = true;

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

/// An alias file that is edited: its aliases are read, and later others are written in their place.
///
/// Nothing is written over what was not read. Whatever else the file holds by then, because it is damaged, another
/// program has written it meanwhile, or it has more in it than aliases, is kept beside as a file of its own, and
/// nothing is written where that fails.
class AliasFile
{
public:
    /// Reads the file at `path`.
    AliasReading open(const QString &path);
    /// Another file, whose content does not count: the user has chosen to replace it.
    void choose(const QString &path);
    const QString &path() const { return m_path; }

    /// Why the file that is there now cannot be read, with the line; empty when it can, or there is none.
    QString damage() const;

    /// What came of writing.
    struct Written
    {
        QString error; ///< the system's words; empty when it was written
        QString kept;  ///< the file that keeps what was there before; empty when nothing of it is lost
    };
    /// Writes writtenAliases(), all of it or nothing.
    Written write(const QList<CommandAlias> &aliases);

private:
    QString m_path;
    /// What was read whole, or written here, without anything but aliases.
    std::optional<QByteArray> m_known;
    bool m_isChosen = false;
};

} // namespace ortakit
