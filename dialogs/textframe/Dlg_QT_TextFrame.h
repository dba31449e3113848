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
class Dlg_QT_TextFrame final : public ToolDialog
{
    Q_OBJECT

public:
    explicit Dlg_QT_TextFrame(QWidget *parent = nullptr);
    ~Dlg_QT_TextFrame() override;

protected:
    void afterShow() override;

private:
    /// Turns off what has no meaning beside what is chosen.
    void updateDialog();

    std::unique_ptr<Ui::Dlg_QT_TextFrame> m_ui;
};
