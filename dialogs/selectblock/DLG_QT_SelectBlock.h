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
/// reference or an anonymous block of a file cannot be chosen: neither can be brought into another drawing by name. Nor
/// can a block whose name holds control characters, as a state file has lines.
///
/// A file is read when it is chosen or its field is left, and again before OK when it has changed since: a block that
/// is gone by then is told. Without a block, or with a file that is no drawing, OK says what is missing and stays.
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
    /// The active drawing in place of a file, or the other way round.
    void changeSource();
    /// The path that was typed counts when its field is left.
    void leaveDrawing();
    /// As with Enter, which also tells what is wrong with the file.
    void enterDrawing();
    void selectDrawing();
    /// Lists the blocks that the filter lets through; one that is found alone is chosen.
    void fillBlocks();
    /// Shows the chosen block.
    void blockSelect();
    void clickOK();

    /// Sets the widgets of the source as the state has it.
    void applySource();
    /// Takes the source from these widgets and lists its blocks.
    void readBlocks();
    /// Says how many blocks there are, or why there are none.
    void showCount(qsizetype shown, qsizetype all);
    /// Empty when none is chosen.
    QString chosenName() const;
    /// In any mix of cases; nothing happens when it is not in the list.
    void choose(const QString &name);
    // The checks of OK. Each tells the user what is wrong, and is false then.
    bool acceptsSource();
    bool acceptsBlock(const QString &name);

    std::unique_ptr<Ui::DLG_QT_SelectBlock> m_ui;
    std::unique_ptr<ElidedPathField> m_drawing;
    BlockSource m_source;
    /// The widgets are being set; nothing follows from it yet.
    bool m_isShowing = false;
};
