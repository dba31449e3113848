#include "dialogs/patternhatch/PatternSizes.h"

#include "platform/kernel/CKvDocument.h"
#include "platform/widgets/CKvQtUnitSpinBox.h"

#include <QCheckBox>
#include <QSignalBlocker>

namespace ortakit {

namespace {

void setValueSilently(CKvQtUnitSpinBox &box, double value)
{
    const QSignalBlocker noSignals(box);
    box.setUnitValue(value);
}

} // namespace

PatternSizes::PatternSizes(const Fields &fields) : m_fields(fields)
{
    QObject::connect(fields.areFactors, &QCheckBox::toggled, fields.areFactors, [this] { showInUnits(); });
}

double PatternSizes::heightOverWidth() const
{
    if (m_fields.areFactors->isChecked())
        return 1; // factors of the source's own width and height: equal ones keep its proportions
    return m_ownSize.isValid() ? m_ownSize.height() / m_ownSize.width() : m_keptRatio;
}

void PatternSizes::keepProportions()
{
    const double width = m_fields.width->value();
    const double height = m_fields.height->value();
    m_keptRatio = width > 0 && height > 0 ? height / width : 1;
}

void PatternSizes::followWidth()
{
    if (m_fields.keepsProportions->isChecked())
        setValueSilently(*m_fields.height, m_fields.width->value() * heightOverWidth());
}

void PatternSizes::followHeight()
{
    if (m_fields.keepsProportions->isChecked())
        setValueSilently(*m_fields.width, m_fields.height->value() / heightOverWidth());
}

void PatternSizes::takeOwnSize(bool isOfDrawing)
{
    if (m_fields.areFactors->isChecked()) {
        setValueSilently(*m_fields.width, 1);
        setValueSilently(*m_fields.height, 1);
    } else if (m_ownSize.isValid()) {
        if (isOfDrawing)
            setValueSilently(*m_fields.width, m_ownSize.width());
        setValueSilently(*m_fields.height, m_fields.width->value() * heightOverWidth());
    }
}

void PatternSizes::showInUnits()
{
    constexpr int factorDecimals = 6;
    const bool areFactors = m_fields.areFactors->isChecked();
    OdDbDatabase *database = ACTIVE_DOCUMENT() ? ACTIVE_DOCUMENT()->database() : nullptr;
    for (CKvQtUnitSpinBox *box : {m_fields.width, m_fields.height}) {
        const QSignalBlocker noSignals(box);
        box->setUnitType(areFactors ? CKvQtUnitSpinBox::Unitless : CKvQtUnitSpinBox::Distance);
        if (areFactors)
            box->setDecimals(factorDecimals);
        box->setDatabase(database);
    }
}

} // namespace ortakit
