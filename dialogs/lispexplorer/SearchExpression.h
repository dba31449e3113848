#pragma once

#include <QRegularExpression>
#include <QString>

#include <chrono>

namespace ortakit {

/// What a user searches for: a regular expression, case-insensitive, as far as it has been typed.
///
/// An empty or invalid expression matches nothing. So does one that has been given up: expressions such as "(\w+\s?)*$"
/// can take longer than anyone waits. Lines on which the matching takes more than `slowLine` are counted, and when they
/// add up to `patience`, the expression finds nothing more until another one is set.
class SearchExpression
{
public:
    static constexpr std::chrono::nanoseconds slowLine = std::chrono::milliseconds(5);
    static constexpr std::chrono::nanoseconds patience = std::chrono::milliseconds(500);

    /// Compiles `text`, unless it is what was set last.
    void set(const QString &text);

    /// Calls `found(start, length)` for each match in `line` from left to right. The length is 0 for an empty match and
    /// negative for one that ends before it starts ("(?=ab\K)").
    template <class Found>
    void findMatches(const QString &line, Found found);

private:
    void count(std::chrono::nanoseconds spent);

    QString m_text;
    QRegularExpression m_expression;
    bool m_isUsable = false;
    std::chrono::nanoseconds m_spent{0}; // on slow lines
};

template <class Found>
void SearchExpression::findMatches(const QString &line, Found found)
{
    if (!m_isUsable)
        return;
    const auto start = std::chrono::steady_clock::now();
    const auto spent = [start] { return std::chrono::steady_clock::now() - start; };
    auto matches = m_expression.globalMatch(line);
    while (matches.hasNext() && spent() < patience) {
        const QRegularExpressionMatch match = matches.next();
        found(match.capturedStart(), match.capturedLength());
    }
    count(spent());
}

} // namespace ortakit
