#pragma once

#include <QSizeF>

class CKvQtUnitSpinBox;
class QCheckBox;

namespace ortakit {

/// Width and height of the copies in their fields, and how one follows from the other while proportions are kept.
class PatternSizes
{
public:
    /// They belong to the dialog, which outlives this.
    struct Fields
    {
        CKvQtUnitSpinBox *width;
        CKvQtUnitSpinBox *height;
        QCheckBox *areFactors; ///< of the source's own size, in place of lengths in drawing units
        QCheckBox *keepsProportions;
    };
    /// From now on the fields show lengths or plain numbers as `areFactors` says.
    explicit PatternSizes(const Fields &fields);

    /// The source's own width and height; invalid when it has none.
    void setOwnSize(const QSizeF &size) { m_ownSize = size; }
    /// Puts the own size into the fields. Of a source that is no drawing only the proportions are taken: pixels are no
    /// length in a drawing. Factors become 1.
    void takeOwnSize(bool isOfDrawing);
    /// What the fields say now are the proportions of a source without a size of its own.
    void keepProportions();
    /// Sets the other field when proportions are kept, without a signal.
    void followWidth();
    void followHeight();
    /// Lengths follow the active drawing's units; factors are plain numbers in every drawing.
    void showInUnits();

private:
    double heightOverWidth() const;

    Fields m_fields;
    QSizeF m_ownSize;
    double m_keptRatio = 1; ///< height over width
};

} // namespace ortakit
