#pragma once

#include <QString>
#include <QStringList>

namespace host::kernel {
class Document;
}

namespace host::app {

/// What may stand where a line ends.
struct Completion
{
    qsizetype start = 0; ///< where the word begins that is to be completed
    QStringList names;   ///< sorted; each begins with the word in any mix of cases

    /// What all names have in common: the word itself at least, where there are names.
    QString commonStart() const;
};

/// The names that complete the last word of `text`, which is what stands left of the cursor: system variables in the
/// string behind getvar or setvar, commands in one behind command; elsewhere what symbols hold, functions (commands of
/// programs begin with "c:") and variables, in small letters. None in other strings and in comments.
Completion completionOf(kernel::Document &document, const QString &text);

/// Whether all lists, strings and block comments of a Lisp text are closed.
bool isWhole(const QString &text);

/// What the innermost list calls that is open at the end of `text`, in capitals; empty outside of lists.
QString calledAt(const QString &text);

/// A few lines about a function (how it is called and what it gives), a command or a system variable, whatever there is
/// of that name in any mix of cases; empty when there is nothing.
QString helpOnName(kernel::Document &document, const QString &name);

} // namespace host::app
