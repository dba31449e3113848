#pragma once

#include "state/ToolDialog.h"

#include <memory>

class FavouritesBox;
class RowMover;

namespace Ui {
class Dlg_QT_DrawOderColor;
}

/// The dialog that puts the colours of a drawing into the order in which their entities are to be drawn: the first
/// colour of the list at the back, the last one in front of all others.
///
/// Each call begins with the colours that setColors() gives, whatever the state says. The state file has the order
/// under "lstcolors", each number with "^" behind ("3^7^1^"), in place of what a table writes there; so do favourites.
/// Picking a favourite brings its colours in their order; colours of this call that it does not know stay behind them,
/// for a drawing may have more colours than the one that the favourite was made with.
///
/// Closes with the action "OK" and checks nothing: an empty list and one of a single colour are orders as well. The
/// drawing is not looked at, so that a colour may be in the list that no entity has.
class Dlg_QT_DrawOderColor final : public ToolDialog
{
    Q_OBJECT

public:
    explicit Dlg_QT_DrawOderColor(QWidget *parent = nullptr);
    ~Dlg_QT_DrawOderColor() override;

    /// Replaces the list by the colours that these strings name, in their order, one for each string. A string is read
    /// as a decimal integer without its sign; what is none, or does not fit into the 16 bits of the result, counts as
    /// 0. Numbers above 256, which are no colours, and repeated ones are kept.
    void setColors(const QStringList &numbers);
    /// The numbers in the order of the list.
    QList<int> colors() const;

protected:
    void afterShow() override;

private:
    /// Puts the chosen colour in front of all others, or selects it where the list has it.
    void addColor();
    /// Those of the selected rows; the row behind them is selected then, to go on with.
    void removeColors();
    /// Reversing and sorting move rows that are there, so that the selection goes with them.
    void reverse();
    void sortNumbers();
    /// Whenever a favourite was loaded; one without an order changes nothing.
    void takeFavourite();

    void setUpTable();
    void connectWidgets();
    /// In time in proportion to the colours.
    void fill(const QList<int> &colors);
    /// Whenever the order changed: the picture, the buttons, and what state file and favourites get for the table are
    /// brought up to date.
    void followOrder();
    void enableButtons();

    std::unique_ptr<Ui::Dlg_QT_DrawOderColor> m_ui;
    RowMover *m_mover;           ///< owned by the table, as its child
    FavouritesBox *m_favourites; ///< owned by the dialog, as its child
    /// What this call began with.
    QList<int> m_givenColors;
};
