#include "formats/DefinitionHeaders.h"

namespace ortakit {

DefinitionHeaderReader::DefinitionHeaderReader(QByteArrayView text, qsizetype fieldCount, qsizetype nameField)
    : m_lines(text), m_fieldCount(fieldCount), m_nameField(nameField)
{
}

bool DefinitionHeaderReader::next()
{
    while (m_lines.next()) {
        if (m_lines.line().startsWith('*')) {
            if (++m_count > mostHeaders) {
                m_diagnostics.append({m_lines.number(), HeaderOddity::TooMany, {}});
                return false;
            }
            m_header = m_lines.line().sliced(1);
            noteOddities();
            return true;
        }
    }
    return false;
}

/// Sources have tens of thousands of headers, so the fields are not made into texts before they are asked for.
QByteArrayView DefinitionHeaderReader::fieldBytes(qsizetype number) const
{
    qsizetype begin = 0;
    for (; number > 0; --number) {
        const qsizetype comma = m_header.indexOf(',', begin);
        if (comma < 0)
            return {};
        begin = comma + 1;
    }
    const qsizetype end = m_header.indexOf(',', begin);
    return m_header.sliced(begin, (end < 0 ? m_header.size() : end) - begin);
}

void DefinitionHeaderReader::noteOddities()
{
    if (m_header.count(',') < m_fieldCount - 1)
        m_diagnostics.append({m_lines.number(), HeaderOddity::TooFewFields, m_lines.string()});
    else if (fieldBytes(m_nameField).isEmpty())
        m_diagnostics.append({m_lines.number(), HeaderOddity::NoName, m_lines.string()});
}

} // namespace ortakit
