#pragma once

#include "state/DefinitionDialog.h"
#include "state/widgets/ElidedPathField.h"

#include <memory>

namespace Ui {
class Dlg_QT_MakeLineStyle;
}

/// The linetype maker's dialog: the ".lin" file, what it defines already, and name and description of the new linetype.
/// Closes with no action word; Lisp measures the pattern and writes the definition.
class Dlg_QT_MakeLineStyle final : public DefinitionDialog
{
    Q_OBJECT

public:
    explicit Dlg_QT_MakeLineStyle(QWidget *parent = nullptr);
    ~Dlg_QT_MakeLineStyle() override;

protected:
    void afterShow() override;

private:
    void SelectLinetypeFile();
    void CheckName();
    void refreshLinetypes();

    std::unique_ptr<Ui::Dlg_QT_MakeLineStyle> m_ui;
    std::unique_ptr<ElidedPathField> m_file;
};
