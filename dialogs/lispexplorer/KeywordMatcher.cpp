#include "dialogs/lispexplorer/KeywordMatcher.h"

#include <algorithm>

namespace ortakit {

namespace {

bool meansItself(QChar character)
{
    static const QString special = QStringLiteral("\\^$.[]|()?*+{}");
    return !isLispBlank(character) && !special.contains(character);
}

bool isPlain(const QString &entry)
{
    return !entry.isEmpty() && entry.isValidUtf16() && std::all_of(entry.begin(), entry.end(), meansItself);
}

/// The character that each match of the entry begins with, or null. Null is always right.
QChar firstOf(const QString &entry)
{
    const bool isKnown = meansItself(entry.front()) && !entry.front().isSurrogate() && !entry.contains(u'|');
    const bool mayBeLeftOut = entry.size() > 1 && QStringView(u"?*{").contains(entry[1]);
    return isKnown && !mayBeLeftOut ? entry.front() : QChar();
}

} // namespace

KeywordMatcher::KeywordMatcher(const QStringList &entries) : m_entries(entries)
{
    for (const QString &entry : m_entries) {
        if (isPlain(entry)) {
            m_plainWords.emplace(reinterpret_cast<const char16_t *>(entry.utf16()), size_t(entry.size()));
            m_longestWord = std::max(m_longestWord, size_t(entry.size()));
        } else if (!entry.isEmpty()) {
            addExpression(entry);
        }
    }
}

void KeywordMatcher::addExpression(const QString &entry)
{
    QRegularExpression expression(QStringLiteral("(?<=[\\s(])") + entry + QStringLiteral("(?=[\\s()\\n])"));
    if (!expression.isValid())
        return;
    expression.optimize();
    m_expressions.push_back({std::move(expression), firstOf(entry)});
}

bool KeywordMatcher::Expression::mayMatch(QStringView line) const
{
    if (first.isNull())
        return true;
    for (qsizetype at = line.indexOf(first, 1); at > 0; at = line.indexOf(first, at + 1)) {
        if (opensKeyword(line[at - 1]))
            return true;
    }
    return false;
}

} // namespace ortakit
