#pragma once

#include <QLatin1StringView>
#include <QStringList>
#include <QStringView>

#include <optional>

namespace host::drawing {

/// Whether `text` matches a wild-card pattern of the CAD Lisp dialect: # a digit, @ a letter, . anything but digits and
/// letters, * any run, ? any character, ~ at the start the opposite, [..] [~..] one of a set, commas between patterns,
/// ` the next character as it is. Letter case counts only if asked for. Costs at most the product of both lengths.
bool matchesWildcard(QStringView text, QStringView pattern, Qt::CaseSensitivity sensitivity = Qt::CaseInsensitive);
bool matchesWildcard(QLatin1StringView text, QStringView pattern,
                     Qt::CaseSensitivity sensitivity = Qt::CaseInsensitive);

/// The pattern that matches this text and no other.
QString literalPattern(QStringView text);
/// The texts that a pattern lists when it is a list of texts and nothing else ("A,B`#1"), so that they can be looked
/// up; nothing for other patterns.
std::optional<QStringList> literalTexts(QStringView pattern);

} // namespace host::drawing
