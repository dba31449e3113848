#pragma once

#include "platform/Export.h"

#include <QDoubleSpinBox>
#include <QValidator>

class OdDbDatabase;

/// A spin box for lengths and angles that shows and reads its value in the units of a drawing.
///
/// Without a drawing it behaves as a plain real spin box (angles: degrees).
class KV_EXPORT CKvQtUnitSpinBox : public QDoubleSpinBox
{
    Q_OBJECT
    Q_PROPERTY(int unitType READ unitType WRITE setUnitType)
    Q_PROPERTY(double defaultValue READ defaultValue WRITE setDefaultValue)

public:
    /// Angles hold radians whatever the drawing shows.
    enum UnitType : int
    {
        Distance = 0,
        Angle = 1,
        Unitless = 2,
        Rotation = 3
    };

    explicit CKvQtUnitSpinBox(QWidget *parent = nullptr);

    int unitType() const { return m_unitType; }
    void setUnitType(int type);
    bool isAngle() const { return m_unitType == Angle || m_unitType == Rotation; }

    /// The value that an emptied box goes back to.
    double defaultValue() const { return m_defaultValue; }
    void setDefaultValue(double value) { m_defaultValue = value; }

    /// Sets a value in the unit the box holds: drawing units, or radians.
    void setUnitValue(double value);
    /// Formats by the unit variables of `database` from now on; null goes back to plain numbers. Not owned.
    void setDatabase(OdDbDatabase *database);

    QString textFromValue(double value) const override;
    double valueFromText(const QString &text) const override;
    QValidator::State validate(QString &text, int &position) const override;
    void fixup(QString &text) const override;

private:
    int m_unitType = Distance;
    double m_defaultValue = 0;
    OdDbDatabase *m_database = nullptr;
};
