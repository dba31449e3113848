#pragma once

#include "state/ToolDialog.h"

#include <memory>

namespace Ui {
class Dlg_QT_numbertext;
}

/// The number text dialog: in which order texts are numbered, what a number looks like and where in its text it goes.
/// It carries the choices and checks none of them; first number and step go to Lisp as they were typed.
///
/// | key | value |
/// |---|---|
/// | sort_x, sort_y, sort_select, sort_point, sort_2points | TRUE for the order |
/// | sent_asc_2, sent_des | TRUE for ascending or descending |
/// | tx_init, tx_step | first number and step |
/// | cb_digits | "3 [001]": the least number of digits, 1 to 8, and what 1 looks like with it |
/// | format_prefix, format_sufix | texts before and behind the number |
/// | placement_prefix, placement_sufix, placement_replace, placement_over | TRUE for where the number goes |
/// | search | the text that it takes the place of, with placement_replace |
///
/// OK leaves the drawing as it is and closes without an action word.
class Dlg_QT_numbertext final : public ToolDialog
{
    Q_OBJECT

public:
    explicit Dlg_QT_numbertext(QWidget *parent = nullptr);
    ~Dlg_QT_numbertext() override;

protected:
    /// Begins in the first number, selected, which is what changes from run to run.
    void afterShow() override;

private:
    /// The fields of the chosen place; without one the page before stays.
    void RefreshPages();

    std::unique_ptr<Ui::Dlg_QT_numbertext> m_ui;
};
