#include "formats/AttributeTable.h"

namespace ortakit {

namespace {

constexpr char fieldSeparator = '\t';

/// The first `most` fields of `line`.
QStringList fieldsOf(QByteArrayView line, qsizetype most)
{
    QStringList fields;
    for (qsizetype begin = 0; begin >= 0 && fields.size() < most;) {
        const qsizetype end = line.indexOf(fieldSeparator, begin);
        fields.append(QString::fromUtf8(line.sliced(begin, (end < 0 ? line.size() : end) - begin)));
        begin = end < 0 ? -1 : end + 1;
    }
    return fields;
}

} // namespace

AttributeTableReader::AttributeTableReader(QByteArrayView text) : m_lines(text)
{
    if (!m_lines.next())
        return;
    m_columnCount = m_lines.line().count(fieldSeparator) + 1;
    m_headers = fieldsOf(m_lines.line(), mostColumns);
    const QByteArrayView rows = text.sliced(std::min(m_lines.nextOffset(), text.size()));
    m_rowCount = rows.count('\n') + (rows.isEmpty() || rows.endsWith('\n') ? 0 : 1);
}

bool AttributeTableReader::isTooLarge() const
{
    return m_columnCount > mostColumns || m_rowCount > mostCells / std::max<qsizetype>(m_columnCount, 1);
}

QStringList AttributeTableReader::fields() const
{
    return fieldsOf(m_lines.line(), m_columnCount);
}

QString attributeText(const QStringList &headers, const QList<QStringList> &rows)
{
    const auto separator = QLatin1Char(fieldSeparator);
    QString text = headers.join(separator);
    for (const QStringList &row : rows)
        text += u'^' + row.join(separator);
    return text;
}

} // namespace ortakit
