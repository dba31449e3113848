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
class Dlg_QT_ReplaceBlockToXref final : public BlockReplacementDialog
{
    Q_OBJECT

public:
    explicit Dlg_QT_ReplaceBlockToXref(QWidget *parent = nullptr);
    ~Dlg_QT_ReplaceBlockToXref() override;

protected:
    void afterShow() override;
    void blockSelectRep() override;
    void closeDialog() override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void selectDir();
    void processdir();
    void leaveDirectory();
    void listReferences();

    std::unique_ptr<Ui::Dlg_QT_ReplaceBlockToXref> m_ui;
    std::unique_ptr<ElidedPathField> m_directory;
    QString m_listedFolder; ///< whose files the table shows
};
