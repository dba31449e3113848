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
/// that finds the style preselected as well.
class Dlg_QT_EditTextCase final : public ToolDialog
{
    Q_OBJECT

public:
    explicit Dlg_QT_EditTextCase(QWidget *parent = nullptr);
    ~Dlg_QT_EditTextCase() override;

protected:
    void afterShow() override;

private:
    void UpdatePreview();
    void preselect(const QString &modeName);
    QRadioButton *button(int modeNumber) const;
    int checkedMode() const;

    std::unique_ptr<Ui::Dlg_QT_EditTextCase> m_ui;
};
