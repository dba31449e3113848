#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace host::kernel {
class Document;
}

namespace host::app {

/// A name that fits what is being written.
struct Suggestion
{
    QString name; ///< as it is written in place of the last word
    QString help; ///< one line about it; may be empty

    friend bool operator==(const Suggestion &, const Suggestion &) = default;
};

/// What may be meant at the command level, of all that begins as `typed` in any mix of cases, at most `most`: commands,
/// aliases, commands of programs and system variables; in an expression (behind "(" or "!") what completionOf() says
/// of its last word. What is typed itself comes first, the others by their names. Prefixes of `typed` ("_", "-" of
/// names that have none) do not matter and stay. Nothing for an empty text. Quick with thousands of aliases.
QList<Suggestion> suggestionsAt(kernel::Document &document, const QString &typed, qsizetype most);

/// Of a prompt's keywords ("Arc", "LType,LT", "eXit") those that begin as `typed`; none for numbers and points.
QList<Suggestion> suggestedKeywords(const QStringList &keywords, const QString &typed);

/// Where the word begins that a suggestion for `typed` takes the place of.
qsizetype suggestedFrom(const QString &typed);

/// The commands that programs have defined in this document, in capitals without "C:", by their names.
QStringList programCommands(kernel::Document &document);

} // namespace host::app
