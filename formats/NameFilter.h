#pragma once

#include <QRegularExpression>
#include <QString>

namespace ortakit {

/// Which names of a list are shown, by a regular expression that somebody is typing: those in which it is found. An
/// empty expression and "*" stand for all names; an invalid one finds nothing.
///
/// Nor does one that is hopeless. Expressions such as "(\w+\s?)*$" can take longer on a single name than anyone waits,
/// so each search has a limit of steps, and a name that needs more is not found; with the 20th such name the expression
/// is given up. That is told by isUsable(), and what it found before is no list to show.
class NameFilter
{
public:
    explicit NameFilter(const QString &expression, Qt::CaseSensitivity caseSensitivity = Qt::CaseSensitive);

    /// Whether `name` is shown. Of a name that is longer than any drawing's, the first 4096 characters are searched.
    bool accepts(const QString &name);

    /// Whether the expression is valid and has not been given up.
    bool isUsable() const;

private:
    bool m_acceptsAll;
    QRegularExpression m_expression;
    int m_overruns = 0;
};

} // namespace ortakit
