#include "state/exchange/StateLines.h"

#include <QMap>
#include <QStringMatcher>

#include <algorithm>

namespace {

QStringView keyOf(QStringView line)
{
    const qsizetype end = line.indexOf(u'=');
    return end < 0 ? line : line.first(end);
}

/// The number that stands in `line` before `end` and behind `key`, in any case; 0 when there is none, or it does not
/// have the one spelling that a program looks for.
qsizetype numberBefore(QStringView line, qsizetype end, const QString &key)
{
    qsizetype begin = end;
    while (begin > 0 && line[begin - 1] >= u'0' && line[begin - 1] <= u'9')
        --begin;
    if (begin == end || line[begin] == u'0' || !line.first(begin).endsWith(key, Qt::CaseInsensitive))
        return 0;
    return line.sliced(begin, end - begin).toInt();
}

} // namespace

void StateLines::merge(const QString &line)
{
    const QString key = keyOf(line).toString();
    const QString wanted = key.toLower();
    m_searchTextIsCurrent = false;

    const auto found = m_linesByKey.find(wanted);
    if (found == m_linesByKey.end()) {
        m_linesByKey[key].append(m_lines.size());
        m_lines.append(line);
        return;
    }
    for (const qsizetype stored : std::as_const(*found))
        m_lines[stored] = line;
    if (key != wanted) {
        // The lines carry the new spelling now. It has a capital, so no later merge looks for them.
        const QList<qsizetype> renamed = m_linesByKey.take(wanted);
        m_linesByKey[key].append(renamed);
    }
}

void StateLines::prepend(const QStringList &lines)
{
    assign(lines + m_lines);
}

void StateLines::assign(const QStringList &lines)
{
    m_lines = lines;
    indexLines();
}

QString StateLines::lookup(const QString &key) const
{
    if (key.isEmpty())
        return {};
    if (!m_searchTextIsCurrent)
        buildSearchText();

    const QStringMatcher matcher(key + u'=', Qt::CaseInsensitive);
    for (qsizetype position = matcher.indexIn(m_searchText); position >= 0;
         position = matcher.indexIn(m_searchText, position + 1)) {
        const auto next = std::upper_bound(m_lineStarts.cbegin(), m_lineStarts.cend(), position);
        const qsizetype line = std::distance(m_lineStarts.cbegin(), next) - 1;
        // A key with a line feed may match over the end of a line.
        if (position + key.size() < m_lineStarts[line] + m_lines[line].size())
            return secondField(line);
    }
    return {};
}

QStringList StateLines::lookupNumbered(const QString &key, qsizetype count) const
{
    QMap<qsizetype, QString> found;
    for (qsizetype line = 0; line < m_lines.size(); ++line) {
        const QString &text = m_lines[line];
        for (qsizetype end = text.indexOf(u'='); end >= 0; end = text.indexOf(u'=', end + 1)) {
            const qsizetype number = numberBefore(text, end, key);
            if (number > 0 && number <= count && !found.contains(number))
                found.insert(number, secondField(line));
        }
    }
    QStringList values = found.values();
    values.removeAll(QString());
    return values;
}

void StateLines::indexLines()
{
    m_searchTextIsCurrent = false;
    m_linesByKey.clear();
    for (qsizetype i = 0; i < m_lines.size(); ++i)
        m_linesByKey[keyOf(m_lines[i]).toString()].append(i);
}

void StateLines::buildSearchText() const
{
    m_searchText.clear();
    m_lineStarts.clear();
    m_lineStarts.reserve(m_lines.size());
    for (const QString &line : m_lines) {
        m_lineStarts.append(m_searchText.size());
        m_searchText += line;
        m_searchText += u'\n';
    }
    m_searchTextIsCurrent = true;
}

QString StateLines::secondField(qsizetype line) const
{
    const QString &text = m_lines[line];
    const qsizetype begin = text.indexOf(u'=') + 1;
    const qsizetype end = text.indexOf(u'=', begin);
    return text.mid(begin, end < 0 ? -1 : end - begin);
}
