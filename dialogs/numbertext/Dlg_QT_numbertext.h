#pragma once

#include "state/ToolDialog.h"

#include <memory>

namespace Ui {
class Dlg_QT_numbertext;
}

/// The number text dialog: in which order texts are numbered, what a number looks like and where in its text it goes.
/// It carries the choices and checks none of them; first number and step go to Lisp as they were typed.
class Dlg_QT_numbertext final : public ToolDialog
{
    Q_OBJECT

public:
    explicit Dlg_QT_numbertext(QWidget *parent = nullptr);
    ~Dlg_QT_numbertext() override;

protected:
    void afterShow() override;

private:
    void RefreshPages();

    std::unique_ptr<Ui::Dlg_QT_numbertext> m_ui;
};
