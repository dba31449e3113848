#pragma once

#include "state/BlockReplacementDialog.h"

namespace Ui {
class Dlg_QT_ReplaceBlock;
}

/// The dialog that replaces insertions of blocks by insertions of another block of the drawing.
///
/// Closed with "OK", the Lisp program replaces the blocks of `blocksTable` by the one of `blocksTableRep`, takes what
/// is unreferenced then out of the drawing when `PurgeItems` is checked, and brings the attributes up to date when
/// `attsync` is.
///
/// | key | value |
/// |---|---|
/// | blockstable | the blocks to replace, "DESK^TREE^" |
/// | blockstablerep | the block that takes their place, "BUSH^" |
/// | purgeitems, attsync | TRUE or FALSE |
///
/// Apply refuses without a selection in both tables ("You must first select the blocks to replace. "), when one block
/// is in both, in any mix of cases ("\"Block to be replaced\" and \"Replacing block\" must be different."), and when a
/// name of digits would mean another block to Lisp.
class Dlg_QT_ReplaceBlock final : public BlockReplacementDialog
{
    Q_OBJECT

public:
    explicit Dlg_QT_ReplaceBlock(QWidget *parent = nullptr);
    ~Dlg_QT_ReplaceBlock() override;

protected:
    /// Both tables show the blocks of this call.
    void beforeShow() override;
    /// The right preview shows the block of the active drawing.
    void blockSelectRep() override;
    void closeDialog() override;

private:
    std::unique_ptr<Ui::Dlg_QT_ReplaceBlock> m_ui;
};
