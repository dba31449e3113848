#pragma once

#include "state/ToolDialog.h"
#include "state/tables/NameTable.h"

#include <memory>

class DrawingPreview;

/// What the dialogs that replace blocks share: the table "blocksTable" of the blocks to replace with their preview
/// "PreviewBlock" and the button "selblocks", and the table "blocksTableRep" of what replaces them.
///
/// Closes with the action "GETBLOCKS" (let the user pick insertions of blocks, write their names to `blocksTable` with
/// the action "SETBLOCKS" and call again) or "OK" (replace). Each time it is shown the tables are filled and select
/// what the state names; after "SETBLOCKS" all other widgets take the state's values anew as well.
///
/// A block whose name is a number is handed to Lisp as that number (see NameTable): 007 as 7. Where the drawing also
/// has the block 7, or 07, Lisp would get hold of the wrong one, so the choice of 007 is refused then.
class BlockReplacementDialog : public ToolDialog
{
    Q_OBJECT

public:
    /// A block of the drawing, as the Lisp program describes it.
    struct Block
    {
        QString name;
        int number = 0; ///< what it means is the Lisp program's
    };

    ~BlockReplacementDialog() override;

    /// The blocks of the drawing, each as fields with "^" between: the first is its name, the fourth its number; 0 when
    /// that is missing or no number. What has no name is no block. They are in the tables from the next showing on.
    void setBlocks(const QStringList &descriptions);
    const QList<Block> &blocks() const { return m_blocks; }

protected:
    BlockReplacementDialog(QWidget *parent, const QString &helpTopic);

    /// To be called once behind setupUi(), in place of setUpButtons().
    void setUpBlocks();

    Reentry reentry() const override;
    void beforeShow() override;
    void afterShow() override;

    /// The table of what replaces has another selection, or was just filled: shows its preview.
    virtual void blockSelectRep() = 0;
    /// The checks behind Apply.
    virtual void closeDialog() = 0;

    /// The two tables, there from setUpBlocks() on. The first has the names of blocks(); what stands in the second is
    /// the derived class's.
    /// @{
    NameTable &replaced() { return *m_replaced; }
    NameTable &replacing() { return *m_replacing; }
    /// @}
    /// In the order of blocks().
    QStringList blockNames() const;

    /// What closeDialog() tells a user who chose no block to replace.
    static QString chooseBlocksText();
    /// Tells the user that a chosen name of `table` would mean another block to Lisp; false when there is none.
    bool refusesIndistinctName(const NameTable &table, const QString &title);

private:
    // Slots of the form.
    void ClickHeaderTable(int column);
    void ClickHeaderTableRep(int column);
    void blockSelect();
    void selectblocks();
    void setFirstFocus();

    QList<Block> m_blocks;
    DrawingPreview *m_preview = nullptr;
    std::unique_ptr<NameTable> m_replaced;
    std::unique_ptr<NameTable> m_replacing;
};
