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
///
/// OK, and a double click on a block, look at the drawing again and refuse:
///
/// | when | message |
/// |---|---|
/// | the file is missing | "Filename can`t be empty", "Cannot find the specified file." |
/// | it is no drawing | "The drawing file cannot be read.", with the reason |
/// | there is no block in it | "The drawing has no blocks." |
/// | it had the block and has it no more | "The drawing file does not have the block ... any more." |
/// | no block is selected | "You must first select a block." |
/// | the name has control characters, which no state file can hold | "... Rename it first." |
///
/// A file's path goes out absolute. Nothing is brought into the drawing here: that is who calls, with the two keys.
/// "filter", a regular expression for names in any case, begins empty each time; "showanonymous" stays.
class DLG_QT_SelectBlock final : public ToolDialog
{
    Q_OBJECT

public:
    explicit DLG_QT_SelectBlock(QWidget *parent = nullptr);
    ~DLG_QT_SelectBlock() override;

protected:
    /// From here to afterShow() options change without the blocks being read for each.
    void beforeShow() override;
    void afterShow() override;

private:
    /// The other drawing is read at once, and no block is chosen then.
    void changeSource();
    /// Reads another file than the one that is listed; nothing while the active drawing is chosen.
    void leaveDrawing();
    /// Enter in the file field: also tells what is wrong with the file.
    void enterDrawing();
    void selectDrawing();
    /// Lists the blocks that the filter finds, keeping the chosen one; the only one that a typed filter finds is
    /// chosen. In time in proportion to the blocks.
    void fillBlocks();
    /// Shows the chosen block.
    void blockSelect();
    void clickOK();

    /// Which drawing the state names; the active one without a word of it.
    void applySource();
    /// Takes the source from these widgets and lists its blocks.
    void readBlocks();
    /// Or says in its place why there are none.
    void showCount(qsizetype shown, qsizetype all);
    /// Empty while no block is selected.
    QString chosenName() const;
    /// In any mix of cases; a name that is not listed changes nothing.
    void choose(const QString &name);
    /// Each with its message, and true when there is nothing to tell.
    bool acceptsSource();
    bool acceptsBlock(const QString &name);

    std::unique_ptr<Ui::DLG_QT_SelectBlock> m_ui;
    std::unique_ptr<ElidedPathField> m_drawing; ///< of tx_drawing
    BlockSource m_source;                       ///< holds at most one other drawing in memory
    /// The widgets are being set; nothing follows from it yet.
    bool m_isShowing = false;
};
