#pragma once

#include <QHash>
#include <QStringList>

/// The lines of a state file in memory: ordered, merged by key, searched loosely.
///
/// A line's key is the text before its first "=", all of it when there is none.
class StateLines
{
public:
    /// Puts `line` in place of every stored line whose key is, as it is spelled, the lower-case key of `line`; appends
    /// it when there is none. So a stored key with a capital is never replaced. Constant time.
    void merge(const QString &line);
    /// Puts `lines` before the stored ones.
    void prepend(const QStringList &lines);
    /// Replaces the stored lines.
    void assign(const QStringList &lines);

    /// The second field (split at "=") of the first line in which `key` and "=" appear anywhere, in any case; empty
    /// for an empty key and when no line matches.
    ///
    /// That the search is not anchored at the line's start is the contract with the Lisp programs, which put a line
    /// for one key before or after another to steer what is found: "size" is answered by "_dist_size=2".
    QString lookup(const QString &key) const;

    /// What lookup() finds for `key` and each decimal number from 1 to `count`, in this order, without what is empty.
    /// Takes time in proportion to the lines, whatever `count` is.
    QStringList lookupNumbered(const QString &key, qsizetype count) const;

    const QStringList &lines() const { return m_lines; }

private:
    void indexLines();
    void buildSearchText() const;
    QString secondField(qsizetype line) const;

    QStringList m_lines;
    QHash<QString, QList<qsizetype>> m_linesByKey;
    // All lines, each with a line feed behind, and where each starts: one search instead of one for every line.
    mutable QString m_searchText;
    mutable QList<qsizetype> m_lineStarts;
    mutable bool m_searchTextIsCurrent = false;
};
