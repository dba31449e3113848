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
///
/// | key | value |
/// |---|---|
/// | referenceedit | the text to show, often that of the first entity |
/// | radiobutton1 ... radiobutton5 | TRUE for one of Sentence, Lower, Upper, Title, toGgle, in this order |
/// | current | the style's name, translated as the options are; comes in and goes out |
///
/// "current" counts only where the file of this call has none of the five options, and only spelled as the dialog
/// writes it; another word leaves the option that was checked. Accepting checks nothing.
class Dlg_QT_EditTextCase final : public ToolDialog
{
    Q_OBJECT

public:
    explicit Dlg_QT_EditTextCase(QWidget *parent = nullptr);
    ~Dlg_QT_EditTextCase() override;

protected:
    void afterShow() override;

private:
    /// With each option: shows the reference text in its style and sets "current" for the state file.
    void UpdatePreview();
    /// Nothing happens for a name that no style has.
    void preselect(const QString &modeName);
    /// 1 to 5; nothing else is allowed.
    QRadioButton *button(int modeNumber) const;
    /// 1 to 5; 0 when none is checked, as a state file may have it.
    int checkedMode() const;

    std::unique_ptr<Ui::Dlg_QT_EditTextCase> m_ui;
};
