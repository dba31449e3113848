#include "dialogs/lispexplorer/SearchExpression.h"

namespace ortakit {

void SearchExpression::set(const QString &text)
{
    if (text == m_text)
        return;
    m_text = text;
    m_expression = QRegularExpression(text, QRegularExpression::CaseInsensitiveOption);
    m_isUsable = !text.isEmpty() && m_expression.isValid();
    m_late = {};
    if (m_isUsable)
        m_expression.optimize();
}

void SearchExpression::count(std::chrono::nanoseconds late)
{
    if (late < slowLine)
        return;
    m_late += late;
    m_isUsable = m_late < patience;
}

} // namespace ortakit
