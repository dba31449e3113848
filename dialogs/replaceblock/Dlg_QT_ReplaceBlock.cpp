#include "dialogs/replaceblock/Dlg_QT_ReplaceBlock.h"

#include "ui_Dlg_QT_ReplaceBlock.h"

Dlg_QT_ReplaceBlock::Dlg_QT_ReplaceBlock(QWidget *parent)
    : BlockReplacementDialog(parent, QStringLiteral("replaceblock")), m_ui(std::make_unique<Ui::Dlg_QT_ReplaceBlock>())
{
    m_ui->setupUi(this);
    setUpBlocks();
}

Dlg_QT_ReplaceBlock::~Dlg_QT_ReplaceBlock() = default;

void Dlg_QT_ReplaceBlock::beforeShow()
{
    BlockReplacementDialog::beforeShow();
    replacing().setNames(blockNames());
}

void Dlg_QT_ReplaceBlock::blockSelectRep()
{
    m_ui->PreviewBlock2->setBlock(replacing().shownName());
}

void Dlg_QT_ReplaceBlock::closeDialog()
{
    if (!replaced().hasSelection() || !replacing().hasSelection()) {
        warn(chooseBlocksText());
        return;
    }
    if (replaced().selectedNames().contains(replacing().shownName(), Qt::CaseInsensitive)) {
        warn(tr("\"Block to be replaced\" and \"Replacing block\" must be different."));
        return;
    }
    if (refusesIndistinctName(replaced(), {}) || refusesIndistinctName(replacing(), {}))
        return;
    acceptWith(QStringLiteral("OK"));
}
