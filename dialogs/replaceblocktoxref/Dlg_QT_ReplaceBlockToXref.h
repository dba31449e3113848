#pragma once

#include "state/BlockReplacementDialog.h"
#include "state/widgets/ElidedPathField.h"

#include <optional>

namespace Ui {
class Dlg_QT_ReplaceBlockToXref;
}

/// The dialog that replaces insertions of blocks by an external reference: a drawing file of the folder `directory`,
/// chosen in `blocksTableRep`.
///
/// Offered are the files "NAME.dwg", in any case, whose name has no other dot. The table always shows the files of the
/// folder that is in the field, none when there is no such folder. Apply can be pressed once a reference was chosen, or
/// when the state names one on showing, whether or not its file is still there: the press then says what is missing.
///
/// | key | value |
/// |---|---|
/// | directory | whole path of the folder |
/// | blockstable | the blocks to replace, "DESK^TREE^" |
/// | blockstablerep | file name of the drawing with its extension, "site.dwg^" |
/// | purgeitems | TRUE or FALSE |
///
/// Apply says under the title "Replace blocks" what is missing: "You must first select the blocks to replace. ", then
/// "You must first select the replacing reference. "; and refuses a name of digits that would mean another block to
/// Lisp. A folder that is typed with Enter and is not there is told; one that is left so lists nothing. Whether a
/// reference leads back to the drawing is the Lisp program's to find out.
class Dlg_QT_ReplaceBlockToXref final : public BlockReplacementDialog
{
    Q_OBJECT

public:
    explicit Dlg_QT_ReplaceBlockToXref(QWidget *parent = nullptr);
    ~Dlg_QT_ReplaceBlockToXref() override;

protected:
    /// Lists the folder again, before the state selects in it.
    void afterShow() override;
    void blockSelectRep() override;
    void closeDialog() override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    /// Has the user choose the folder.
    void selectDir();
    /// Enter in the folder field: lists the folder again, or tells what is wrong with it.
    void processdir();
    /// Lists another folder than the listed one, in silence.
    void leaveDirectory();
    void listReferences();

    std::unique_ptr<Ui::Dlg_QT_ReplaceBlockToXref> m_ui;
    std::unique_ptr<ElidedPathField> m_directory; ///< of the folder field
    QString m_listedFolder;                       ///< whose files the table shows
};
