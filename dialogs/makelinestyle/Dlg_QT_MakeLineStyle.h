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
/// | key | value |
/// |---|---|
/// | linetypefile | whole path of the file, which need not exist yet |
/// | name, description | of the new linetype, as typed |
///
/// OK says what keeps it from closing, all under the title "Make Linestyle":
///
/// | when | message |
/// |---|---|
/// | no file | "You must select a file. " |
/// | no name | "You must provide a name for the Linestyle. " |
/// | a blank in the name | "Linestyle names cannot include blank spaces." |
/// | the file has the name, in any mix of cases | asks "Linestyle already exists, you want to replace it?" |
///
/// A chosen file that holds something else is refused with "The format of the file is not valid. "; one that was typed
/// is not looked at so. The dialog reads the file with each showing and writes none.
class Dlg_QT_MakeLineStyle final : public DefinitionDialog
{
    Q_OBJECT

public:
    explicit Dlg_QT_MakeLineStyle(QWidget *parent = nullptr);
    ~Dlg_QT_MakeLineStyle() override;

protected:
    /// Lists the file anew: the run before may have added to it.
    void afterShow() override;

private:
    void SelectLinetypeFile();
    /// The slot of OK; takes a path that is still being typed first.
    void CheckName();
    /// A file that is not there lists nothing, and is no error.
    void refreshLinetypes();

    std::unique_ptr<Ui::Dlg_QT_MakeLineStyle> m_ui;
    std::unique_ptr<ElidedPathField> m_file; ///< of Linetypefile
};
