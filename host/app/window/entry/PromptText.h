#pragma once

#include <QString>
#include <QStringList>

namespace host::app {

/// An option of a prompt as it is shown and as it is answered.
struct PromptOption
{
    QString shown;
    QString answer; ///< the capitals of the option's first part, where there are any, else all of it
};

/// The options in the square brackets of "Specify next point or [Arc/Undo]: ", the last pair of them.
/// Empty without brackets; empty options between two "/" are left out.
QList<PromptOption> promptOptions(const QString &prompt);

/// The last line of a prompt as rich text, its options as links to "option:ANSWER" with the answer percent-encoded.
QString promptHtml(const QString &prompt);

/// What a clicked link of promptHtml() answers.
QString linkAnswer(const QString &link);

} // namespace host::app
