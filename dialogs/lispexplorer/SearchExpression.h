#pragma once

#include <QRegularExpression>
#include <QString>

#include <chrono>

namespace ortakit {

/// What a user searches for: a regular expression, case-insensitive, as far as it has been typed.
///
/// An empty or invalid expression matches nothing. So does one that has been given up: expressions such as "(\w+\s?)*$"
/// can take longer than anyone waits. What a line takes beyond `perCharacter` is counted when it is more than
/// `slowLine`; when these times add up to `patience`, the expression finds nothing more until another one is set.
class SearchExpression
{
public:
    /// Even an expression that matches at each character takes less.
    static constexpr std::chrono::nanoseconds perCharacter = std::chrono::microseconds(1);
    static constexpr std::chrono::nanoseconds slowLine = std::chrono::milliseconds(5);
    static constexpr std::chrono::nanoseconds patience = std::chrono::milliseconds(500);

    /// Compiles `text`, unless it is what was set last.
    void set(const QString &text);

    /// Calls `found(start, length)` for each match in `line` from left to right. The length is 0 for an empty match and
    /// negative for one that ends before it starts ("(?=ab\K)").
    template <class Found>
    void findMatches(const QString &line, Found found);

private:
    void count(std::chrono::nanoseconds late);

    QString m_text;
    QRegularExpression m_expression;
    bool m_isUsable = false;
    std::chrono::nanoseconds m_late{0}; // of the slow lines together
};

template <class Found>
void SearchExpression::findMatches(const QString &line, Found found)
{
    if (!m_isUsable)
        return;
    const auto due = std::chrono::steady_clock::now() + line.size() * perCharacter;
    const auto late = [due] { return std::chrono::steady_clock::now() - due; };
    auto matches = m_expression.globalMatch(line);
    while (matches.hasNext() && late() < patience) {
        const QRegularExpressionMatch match = matches.next();
        found(match.capturedStart(), match.capturedLength());
    }
    count(late());
}

} // namespace ortakit
