#pragma once

#include "state/ToolDialog.h"

#include <memory>

class QRadioButton;

namespace Ui {
class Dlg_QT_EditTextCase;
}

/// The text case editor's dialog: a case style for texts and what a reference text looks like in it. Closes with no
/// action word; Lisp converts the texts of the drawing.
///
/// Beside the option that is checked, the state carries the style's name under "current". A program that gives only
/// that finds the style preselected as well, while one that gives the options too is taken by these. The names are
/// those of the user's language, "Sentence", "Lower", "Upper", "Title" and "toGgle" without a translation.
class Dlg_QT_EditTextCase final : public ToolDialog
{
    Q_OBJECT

public:
    explicit Dlg_QT_EditTextCase(QWidget *parent = nullptr);
    ~Dlg_QT_EditTextCase() override;

protected:
    void afterShow() override;

private:
    /// Shows the reference text in the style that is checked, and puts the style's name into the state.
    void UpdatePreview();
    /// Nothing happens for a name that no style has.
    void preselect(const QString &modeName);
    /// Of the styles by number, from 1 on in the order of the buttons.
    QRadioButton *button(int modeNumber) const;
    /// 0 when none is checked.
    int checkedMode() const;

    std::unique_ptr<Ui::Dlg_QT_EditTextCase> m_ui;
};
