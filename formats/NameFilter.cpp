#include "formats/NameFilter.h"

namespace ortakit {

namespace {

/// Per character that the search starts from. The most that ordinary expressions need on names of 255 characters.
constexpr int stepLimit = 20000;
constexpr int hopeless = 20;
constexpr qsizetype searchedLength = 4096;

/// The limit has to stand in the expression. One that the user sets counts only when it is lower.
QString limited(const QString &expression)
{
    return QStringLiteral("(*LIMIT_MATCH=%1)").arg(stepLimit) + expression;
}

} // namespace

NameFilter::NameFilter(const QString &expression, Qt::CaseSensitivity caseSensitivity)
    : m_acceptsAll(expression.isEmpty() || expression == QLatin1String("*")), m_expression(limited(expression))
{
    if (caseSensitivity == Qt::CaseInsensitive)
        m_expression.setPatternOptions(QRegularExpression::CaseInsensitiveOption);
    if (!m_acceptsAll)
        m_expression.optimize();
}

bool NameFilter::accepts(const QString &name)
{
    if (m_acceptsAll)
        return true;
    if (!isUsable())
        return false;
    const QRegularExpressionMatch match = m_expression.match(QStringView(name).left(searchedLength));
    if (!match.isValid())
        ++m_overruns;
    return match.hasMatch();
}

bool NameFilter::isUsable() const
{
    return m_acceptsAll || (m_expression.isValid() && m_overruns < hopeless);
}

} // namespace ortakit
