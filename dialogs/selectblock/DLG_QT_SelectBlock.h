#pragma once

#include "dialogs/selectblock/BlockSource.h"
#include "state/ToolDialog.h"
#include "state/widgets/ElidedPathField.h"

#include <memory>

namespace Ui {
class DLG_QT_SelectBlock;
}

/// The dialog that has the user choose one block, of the active drawing or of a drawing file.
///
/// Closed with "OK", the state has the block under "name" and where it is from under "source": "active", or the path of
/// the file. Lisp writes the same two to have a block and its drawing chosen when the dialog opens.
///
/// Anonymous blocks are listed on demand; layouts, and what belongs to external references, never. An external
/// reference or an anonymous block of a file cannot be chosen: neither can be brought into another drawing by name.
class DLG_QT_SelectBlock final : public ToolDialog
{
    Q_OBJECT

public:
    explicit DLG_QT_SelectBlock(QWidget *parent = nullptr);
    ~DLG_QT_SelectBlock() override;

protected:
    void beforeShow() override;
    void afterShow() override;

private:
    void changeSource();
    void leaveDrawing();
    void enterDrawing();
    void selectDrawing();
    void fillBlocks();
    void blockSelect();
    void clickOK();

    void applySource();
    void readBlocks();
    void showCount(qsizetype shown, qsizetype all);
    QString chosenName() const;
    void choose(const QString &name);
    bool acceptsSource();
    bool acceptsBlock(const QString &name);

    std::unique_ptr<Ui::DLG_QT_SelectBlock> m_ui;
    std::unique_ptr<ElidedPathField> m_drawing;
    BlockSource m_source;
    /// The widgets are being set; nothing follows from it yet.
    bool m_isShowing = false;
};
