#pragma once

#include "state/ToolDialog.h"

#include <memory>

namespace Ui {
class Dlg_QT_TextFrame;
}

/// The text frame dialog: which frame is drawn around texts, how far from them, what of its size stays the same from
/// text to text, and whether it is filled. It carries the choices and checks nothing but what can be typed as offset.
///
/// The offset goes to Lisp as it was typed, which may be empty; numbers have a decimal point whatever the user's
/// locale, because that is what Lisp reads.
///
/// | key | value |
/// |---|---|
/// | type_slot, type_rectangle, type_circle | TRUE for the shape |
/// | offset | distance from the text: nothing below zero, and no exponent, can be typed |
/// | constant, variable | TRUE for frames made alike, or each by its text |
/// | constant_width, constant_height, constant_both | TRUE for what is made alike |
/// | bk_transparent, bk_hatch | TRUE for an empty or a filled frame |
/// | color | number of the filling's colour, 0 to 256 |
///
/// Closes with no action word; Lisp draws the frames.
class Dlg_QT_TextFrame final : public ToolDialog
{
    Q_OBJECT

public:
    explicit Dlg_QT_TextFrame(QWidget *parent = nullptr);
    ~Dlg_QT_TextFrame() override;

protected:
    /// Begins in the offset, selected.
    void afterShow() override;

private:
    /// With each option: only what has a meaning for the choice is enabled. Disabled widgets are written all the same.
    void updateDialog();

    std::unique_ptr<Ui::Dlg_QT_TextFrame> m_ui;
};
