#pragma once

#include "state/DefinitionDialog.h"
#include "state/widgets/ElidedPathField.h"

#include <memory>

namespace Ui {
class Dlg_QT_MakeLineStyle;
}

/// The linetype maker's dialog: the ".lin" file, what it defines already, and name and description of the new linetype.
/// Closes with no action word; Lisp measures the pattern and writes the definition.
///
/// The file may be one that is not there yet. What it defines is read when it is chosen, when Enter is pressed in its
/// field, with each showing and before OK checks the name: one that cannot be read defines nothing. A chosen file whose
/// content or ending is not that of a linetype file is refused; one that was typed is taken as it is. The state file
/// has its whole path, whatever the field shows of it.
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
    /// OK: closes when file and name are acceptable (see acceptsDefinition()).
    void CheckName();
    /// Shows what the file defines now.
    void refreshLinetypes();

    std::unique_ptr<Ui::Dlg_QT_MakeLineStyle> m_ui;
    std::unique_ptr<ElidedPathField> m_file;
};
