#include "platform/widgets/CKvQtUnitSpinBox.h"

#include <QtMath>

namespace {

/// Digits behind the point that hold an angle in radians, or a length shown in fractions, without visible loss.
constexpr int fineDecimals = 12;

QString withoutTrailingZeros(QString text)
{
    while (text.contains(u'.') && (text.endsWith(u'0') || text.endsWith(u'.')))
        text.chop(1);
    return text == QStringLiteral("-0") ? QStringLiteral("0") : text;
}

} // namespace

CKvQtUnitSpinBox::CKvQtUnitSpinBox(QWidget *parent) : QDoubleSpinBox(parent)
{
    // Numbers travel through state files and Lisp, which know the decimal point only.
    setLocale(QLocale::c());
}

void CKvQtUnitSpinBox::setUnitType(int type)
{
    m_unitType = type;
    if (isAngle())
        setDecimals(std::max(decimals(), fineDecimals));
}

void CKvQtUnitSpinBox::setUnitValue(double value)
{
    if (isAngle())
        setDecimals(std::max(decimals(), fineDecimals));
    setValue(value);
}

void CKvQtUnitSpinBox::setDatabase(OdDbDatabase *database)
{
    m_database = database;
}

QString CKvQtUnitSpinBox::textFromValue(double value) const
{
    if (isAngle())
        return withoutTrailingZeros(QString::number(qRadiansToDegrees(value), 'f', 6));
    return QString::number(value, 'f', decimals());
}

double CKvQtUnitSpinBox::valueFromText(const QString &text) const
{
    bool ok = false;
    const double number = QLocale::c().toDouble(text.trimmed(), &ok);
    if (!ok)
        return m_defaultValue;
    return isAngle() ? qDegreesToRadians(number) : number;
}

QValidator::State CKvQtUnitSpinBox::validate(QString &text, int &) const
{
    bool ok = false;
    QLocale::c().toDouble(text.trimmed(), &ok);
    return ok ? QValidator::Acceptable : QValidator::Intermediate;
}

void CKvQtUnitSpinBox::fixup(QString &text) const
{
    if (text.trimmed().isEmpty())
        text = textFromValue(m_defaultValue);
}
