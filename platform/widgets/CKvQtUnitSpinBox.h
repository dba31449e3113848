#pragma once

#include "platform/Export.h"

#include <QDoubleSpinBox>
#include <QValidator>

class OdDbDatabase;

/// A spin box for lengths and angles that shows and reads its value in the units of a drawing.
///
/// Without a drawing it behaves as a plain real spin box (angles: degrees). Numbers have a decimal point whatever the
/// language, because they travel through state files and Lisp.
class KV_EXPORT CKvQtUnitSpinBox : public QDoubleSpinBox
{
    Q_OBJECT
    Q_PROPERTY(int unitType READ unitType WRITE setUnitType)
    Q_PROPERTY(double defaultValue READ defaultValue WRITE setDefaultValue)

public:
    /// Angles hold radians whatever the drawing shows.
    enum UnitType : int
    {
        Distance = 0, ///< drawing units, shown as LUNITS and LUPREC say
        Angle = 1,    ///< radians, shown as AUNITS and AUPREC say
        Unitless = 2, ///< a plain number whatever the drawing
        Rotation = 3  ///< as Angle
    };

    explicit CKvQtUnitSpinBox(QWidget *parent = nullptr);

    /// One of UnitType, as an int so that forms can set it. Angles get enough decimals to hold radians without loss.
    int unitType() const { return m_unitType; }
    void setUnitType(int type);
    bool isAngle() const { return m_unitType == Angle || m_unitType == Rotation; }

    /// The value that an emptied box goes back to.
    double defaultValue() const { return m_defaultValue; }
    void setDefaultValue(double value) { m_defaultValue = value; }

    /// Sets a value in the unit the box holds: drawing units, or radians. Angles and a drawing's lengths
    /// are held to 12 decimals whatever is shown; beyond minimum() and maximum() it is cut to them.
    void setUnitValue(double value);
    /// Formats by the unit variables of `database` from now on; null goes back to plain numbers. Not owned.
    void setDatabase(OdDbDatabase *database);

    /// What is shown; angles without trailing zeros, a negative one as its size behind a minus.
    QString textFromValue(double value) const override;
    /// Reads what the drawing's units may be typed as, a plain number among it. Text that spells no value is the
    /// default value; a number beyond minimum() and maximum() is taken as it is.
    double valueFromText(const QString &text) const override;
    /// Acceptable or intermediate, never invalid: half-typed notations are many.
    QValidator::State validate(QString &text, int &position) const override;
    /// Puts the default value into a box that was emptied.
    void fixup(QString &text) const override;

private:
    int m_unitType = Distance;
    double m_defaultValue = 0;
    OdDbDatabase *m_database = nullptr; ///< whose units are shown; null for plain numbers
};
