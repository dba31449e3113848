#include "platform/widgets/CKvQtUnitSpinBox.h"

#include "host/kernel/documents/Document.h"
#include "host/kernel/input/Units.h"
#include "host/kernel/platform/DrawingDatabase.h"

#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QLocale>
#include <QValidator>
#include <QtMath>

namespace {

using host::kernel::UnitFormat;

/// Digits behind the point that hold an angle in radians, or a length shown as a fraction, without visible loss.
constexpr int fineDecimals = 12;

/// The unit variables of a drawing of this host; nothing for any other database.
std::optional<UnitFormat> formatOf(OdDbDatabase *database)
{
    auto *drawing = dynamic_cast<host::kernel::DrawingDatabase *>(database);
    return drawing ? std::optional(UnitFormat::of(drawing->document().variables())) : std::nullopt;
}

QString withoutTrailingZeros(QString text)
{
    while (text.contains(u'.') && (text.endsWith(u'0') || text.endsWith(u'.')))
        text.chop(1);
    return text == QStringLiteral("-0") ? QStringLiteral("0") : text;
}

/// Notations take signs of their own only in front of the whole.
std::optional<double> signedAngle(const UnitFormat &format, const QString &text)
{
    const bool isNegative = text.startsWith(u'-');
    const std::optional<double> size = format.parseAngle(isNegative ? text.mid(1) : text);
    return size && isNegative ? -*size : size;
}

/// The value that `text` spells; nothing when it spells none.
std::optional<double> parse(OdDbDatabase *database, int unitType, bool isAngle, const QString &text)
{
    const QString typed = text.trimmed();
    const std::optional<UnitFormat> format = unitType == CKvQtUnitSpinBox::Unitless ? std::nullopt : formatOf(database);
    bool isNumber = false;
    // A decimal point whatever the language: numbers travel through state files and Lisp.
    const double number = QLocale::c().toDouble(typed, &isNumber);
    if (isNumber && !format && qIsFinite(number))
        return isAngle ? qDegreesToRadians(number) : number;
    if (isAngle)
        return signedAngle(format.value_or(UnitFormat()), typed);
    return unitType == CKvQtUnitSpinBox::Unitless ? std::nullopt : format.value_or(UnitFormat()).parseLength(typed);
}

} // namespace

CKvQtUnitSpinBox::CKvQtUnitSpinBox(QWidget *parent) : QDoubleSpinBox(parent)
{
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
    if (isAngle() || (formatOf(m_database) && m_unitType != Unitless))
        setDecimals(std::max(decimals(), fineDecimals));
    setValue(value);
}

void CKvQtUnitSpinBox::setDatabase(OdDbDatabase *database)
{
    m_database = database;
    if (formatOf(database) && m_unitType != Unitless)
        setDecimals(std::max(decimals(), fineDecimals));
    // The text follows the drawing's units from now on.
    lineEdit()->setText(textFromValue(value()));
}

QString CKvQtUnitSpinBox::textFromValue(double value) const
{
    const std::optional<UnitFormat> format = m_unitType == Unitless ? std::nullopt : formatOf(m_database);
    if (isAngle()) {
        if (!format)
            return withoutTrailingZeros(QString::number(qRadiansToDegrees(value), 'f', 6));
        return value < 0.0 ? u'-' + format->angle(-value) : format->angle(value);
    }
    return format ? format->length(value) : QString::number(value, 'f', decimals());
}

double CKvQtUnitSpinBox::valueFromText(const QString &text) const
{
    return parse(m_database, m_unitType, isAngle(), text).value_or(m_defaultValue);
}

QValidator::State CKvQtUnitSpinBox::validate(QString &text, int &) const
{
    // Half-typed notations are many; what stays unreadable is put right when the box is left.
    const std::optional<double> number = parse(m_database, m_unitType, isAngle(), text);
    const bool isFine = number && *number >= minimum() && *number <= maximum();
    return isFine ? QValidator::Acceptable : QValidator::Intermediate;
}

void CKvQtUnitSpinBox::fixup(QString &text) const
{
    if (text.trimmed().isEmpty())
        text = textFromValue(m_defaultValue);
}
