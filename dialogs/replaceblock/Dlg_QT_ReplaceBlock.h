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
class Dlg_QT_ReplaceBlock final : public BlockReplacementDialog
{
    Q_OBJECT

public:
    explicit Dlg_QT_ReplaceBlock(QWidget *parent = nullptr);
    ~Dlg_QT_ReplaceBlock() override;

protected:
    void beforeShow() override;
    void blockSelectRep() override;
    void closeDialog() override;

private:
    std::unique_ptr<Ui::Dlg_QT_ReplaceBlock> m_ui;
};
