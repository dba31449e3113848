#pragma once

#include "host/kernel/input/PromptRequest.h"
#include "platform/Export.h"

#include <QStringList>

#include <optional>

namespace host::kernel {

/// The keyword that `typed` means, as keywordAnswer() gives it. Each keyword may be shortened down to its upper-case
/// letters
/// ("LTscale" by "LT"; "eXit" by "X"), or to what follows a comma ("LTYPE,LT"). Letter case does not matter, and a
/// leading "_" is skipped. A whole keyword goes before an abbreviation, the first in the list before later ones.
std::optional<QString> matchKeyword(const QString &typed, const QStringList &keywords);
/// The same where the keywords are those of the user's language, and programs get the one at the same place of
/// `answers`, which may also be typed behind a "_".
std::optional<QString> matchKeyword(const QString &typed, const QStringList &keywords, const QStringList &answers);

/// The keyword that an answer to a request means. Where a built-in command asks in another language, its English
/// words are taken as well, without a "_" as far as they are none of the language.
KV_EXPORT std::optional<QString> keywordFor(const PromptRequest &request, const QString &typed);

/// The keywords that a prompt lists in its last brackets: "Close" and "3P" of "or [Close/3P (three points)]: ".
QStringList optionsIn(const QString &prompt);

/// A keyword without the abbreviation behind its comma.
QString keywordName(const QString &keyword);

/// What a keyword is when it was entered: its name. Only of a name with blanks that begins with what follows its comma
/// (". for none,.") it is that: such a name is there to be read.
QString keywordAnswer(const QString &keyword);

/// `prompt` as it is shown: keywords in brackets when the prompt does not list any itself, the default in angle
/// brackets, and a colon, each only where it is not there already.
QString formatPrompt(const QString &prompt, const QStringList &keywords, const QString &defaultText);

} // namespace host::kernel
