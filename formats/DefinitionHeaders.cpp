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
            takeHeader();
            return true;
        }
    }
    return false;
}

void DefinitionHeaderReader::takeHeader()
{
    m_fields = QString::fromUtf8(m_lines.line().sliced(1)).split(u',');
    if (m_fields.size() < m_fieldCount)
        m_diagnostics.append({m_lines.number(), HeaderOddity::TooFewFields, m_lines.string()});
    else if (field(m_nameField).isEmpty())
        m_diagnostics.append({m_lines.number(), HeaderOddity::NoName, m_lines.string()});
}

} // namespace ortakit
