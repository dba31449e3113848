#include "dialogs/lispexplorer/SearchExpression.h"

namespace ortakit {

void SearchExpression::set(const QString &text)
{
    if (text == m_text)
        return;
    m_text = text;
    m_expression = QRegularExpression(text, QRegularExpression::CaseInsensitiveOption);
    m_isUsable = !text.isEmpty() && m_expression.isValid();
    m_spent = {};
    if (m_isUsable)
        m_expression.optimize();
}

void SearchExpression::count(std::chrono::nanoseconds spent)
{
    if (spent < slowLine)
        return;
    m_spent += spent;
    m_isUsable = m_spent < patience;
}

} // namespace ortakit
