#pragma once

#include <QString>
#include <QStringList>

namespace ortakit {

/// A command-line prompt taken apart: "Specify size [Auto/Manual] <Auto>: ".
struct PromptText
{
    /// As given, without its written-out line breaks (a backslash and an n).
    QString given;
    /// What is left for the host's formatter, which shows keywords, default and colon itself: "Specify size".
    QString cleaned;
    /// The options between the first square brackets, as spelled there, without blanks around them.
    QStringList keywords;
    /// The text between the first angle brackets.
    QString defaultText;
};

/// Takes `prompt` apart. A bracket that never closes is plain text.
PromptText parsePrompt(const QString &prompt);

/// Whether a default is a number: digits with an optional sign and point, at least one digit after the point.
bool isNumericDefault(const QString &text);

} // namespace ortakit
