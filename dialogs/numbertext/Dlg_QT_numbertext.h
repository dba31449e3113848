#pragma once

#include "state/ToolDialog.h"

#include <memory>

namespace Ui {
class Dlg_QT_numbertext;
}

/// The number text dialog: in which order texts are numbered, what a number looks like and where in its text it goes.
/// It carries the choices and checks none of them; first number and step go to Lisp as they were typed. Closes with no
/// action word.
///
/// The width of numbers is a text that begins with the number of digits, 1 to 8 ("3 [001]"). Where the number goes
/// decides which page of further options is shown; the state file has those of the others as well.
class Dlg_QT_numbertext final : public ToolDialog
{
    Q_OBJECT

public:
    explicit Dlg_QT_numbertext(QWidget *parent = nullptr);
    ~Dlg_QT_numbertext() override;

protected:
    void afterShow() override;

private:
    /// Shows the page that belongs to the place of the number.
    void RefreshPages();

    std::unique_ptr<Ui::Dlg_QT_numbertext> m_ui;
};
