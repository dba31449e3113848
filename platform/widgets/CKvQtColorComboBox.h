#pragma once

#include "platform/Export.h"

#include <QComboBox>
#include <QIcon>
#include <QStyleOptionComboBox>

/// A combo box of the colours of a drawing. The text of an item is its index number in decimal, so that a number set
/// as the current text picks the colour; what is shown is a swatch and the colour's name. So the text is what a state
/// file and Lisp have of it, in every language.
class KV_EXPORT CKvQtColorComboBox : public QComboBox
{
    Q_OBJECT

public:
    /// With by layer, by block and the seven named colours.
    explicit CKvQtColorComboBox(QWidget *parent = nullptr);

    /// Colour index: 0 by block, 1 to 255, 256 by layer. 0 as well where the current text is no colour.
    int colorIndex() const;
    /// Picks the colour, adding an item for it when there was none. Numbers outside 0 to 256 are ignored.
    void setColorIndex(int index);

    /// What such a box shows for a colour of 0 to 256, for lists of colours: the colour as it is drawn in the window,
    /// so that 7, and 0 and 256 with it, is white on a dark ground and black on a white one.
    /// @{
    static QString colorName(int index);
    static QIcon colorSwatch(int index);
    /// @}

protected:
    /// Swatch and name in place of the number, which stays the text.
    void initStyleOption(QStyleOptionComboBox *option) const override;
};
