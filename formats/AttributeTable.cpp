#include "formats/AttributeTable.h"

#include <algorithm>

namespace ortakit {

namespace {

constexpr char fieldSeparator = '\t';
constexpr char quote = '"';

bool endsField(char c)
{
    return c == fieldSeparator || c == '\n' || c == '\r';
}

/// Where the field that begins at `begin` with a double quote ends, behind its closing one; -1 when it has none at its
/// end. No field that is looked at afterwards begins within what was passed over in vain, so that all of them together
/// take no longer than the text is.
qsizetype endOfQuoted(QByteArrayView text, qsizetype begin)
{
    qsizetype end = text.indexOf(quote, begin + 1);
    while (end >= 0 && end + 1 < text.size() && text[end + 1] == quote)
        end = text.indexOf(quote, end + 2);
    const bool isClosed = end >= 0 && (end + 1 == text.size() || endsField(text[end + 1]));
    return isClosed ? end + 1 : -1;
}

qsizetype endOfField(QByteArrayView text, qsizetype begin)
{
    if (begin < text.size() && text[begin] == quote) {
        if (const qsizetype end = endOfQuoted(text, begin); end >= 0)
            return end;
    }
    return std::find_if(text.cbegin() + begin, text.cend(), endsField) - text.cbegin();
}

QString textOf(QByteArrayView field)
{
    if (field.size() < 2 || field.front() != quote || endOfQuoted(field, 0) != field.size())
        return decoded(field);
    return decoded(field.sliced(1, field.size() - 2)).replace(QLatin1String("\"\""), QLatin1String("\""));
}

/// How a string of the Lisp language has a character; null for one that stands for itself.
const char *codeOf(QChar c)
{
    switch (c.unicode()) {
    case u'^':
        return "\\136";
    case u'\t':
        return "\\t";
    case u'\n':
        return "\\n";
    case u'\r':
        return "\\r";
    case u'\\':
        return "\\\\";
    case u'"':
        return "\\\"";
    default:
        return nullptr;
    }
}

QString writtenField(const QString &field)
{
    const auto isSpecial = [](QChar c) { return c == u'^' || c == u'\t' || c == u'\n' || c == u'\r'; };
    if (!field.startsWith(u'"') && std::none_of(field.cbegin(), field.cend(), isSpecial))
        return field;
    QString text(u'"');
    for (const QChar c : field) {
        if (const char *code = codeOf(c))
            text += QLatin1String(code);
        else
            text += c;
    }
    return text + u'"';
}

QString writtenRow(const QStringList &fields)
{
    QStringList written;
    written.reserve(fields.size());
    std::transform(fields.cbegin(), fields.cend(), std::back_inserter(written), writtenField);
    return written.join(QLatin1Char(fieldSeparator));
}

} // namespace

AttributeTableReader::AttributeTableReader(QByteArrayView text) : m_text(text)
{
    if (m_text.isEmpty())
        return;
    m_columnCount = readLine(m_headers, mostColumns);
    const qsizetype firstRow = m_next;
    for (QStringList none; m_next < m_text.size(); ++m_rowCount)
        readLine(none, 0);
    m_next = firstRow;
}

bool AttributeTableReader::isTooLarge() const
{
    return m_columnCount > mostColumns || m_rowCount > mostCells / std::max<qsizetype>(m_columnCount, 1);
}

bool AttributeTableReader::next()
{
    if (m_next >= m_text.size())
        return false;
    m_fields.clear();
    readLine(m_fields, m_columnCount);
    return true;
}

/// Appends at most so many fields of the next line; gives how many it has.
qsizetype AttributeTableReader::readLine(QStringList &fields, qsizetype most)
{
    for (qsizetype count = 1;; ++count) {
        const qsizetype end = endOfField(m_text, m_next);
        if (count <= most)
            fields.append(textOf(m_text.sliced(m_next, end - m_next)));
        m_next = std::min(end + 1, m_text.size());
        if (end < m_text.size() && m_text[end] == fieldSeparator)
            continue;
        if (end + 1 < m_text.size() && m_text[end] == '\r' && m_text[end + 1] == '\n')
            ++m_next;
        return count;
    }
}

QString attributeText(const QStringList &headers, const QList<QStringList> &rows)
{
    QString text = writtenRow(headers);
    for (const QStringList &row : rows)
        text += u'^' + writtenRow(row);
    return text;
}

} // namespace ortakit
