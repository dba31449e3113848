#pragma once

#include "formats/BlockReport.h"
#include "state/ToolDialog.h"

#include <memory>

namespace Ui {
class Dlg_QT_GetBlockInfo;
}

/// The block information report: the blocks of the drawing with the number of their references, which the Lisp program
/// counts, to be written to a text file or, by the Lisp program, to be put into the drawing as a table.
///
/// Of the widgets only "nestedcheckbox" matters to the state: TRUE counts the references nested in other blocks, too.
/// Three buttons close the dialog, all with acceptance and without an action word:
///
/// | button | resultText() | what is left behind |
/// |---|---|---|
/// | exportTable | "TABLE" | nothing yet: Lisp draws the table |
/// | exportButton | empty | a text file with what the table shows, or what was there when it cannot be written |
/// | Close | empty | nothing |
///
/// The text file is chosen over the main window after the dialog has closed, so that the drawing can be seen; the Lisp
/// program goes on when that is done. What cannot be written is told on the command line.
class Dlg_QT_GetBlockInfo final : public ToolDialog
{
    Q_OBJECT

public:
    explicit Dlg_QT_GetBlockInfo(QWidget *parent = nullptr);
    ~Dlg_QT_GetBlockInfo() override;

    /// Two lists of entries "NAME;NUMBER" to be shown from the next showing on: references in the drawing, and those
    /// with the references nested in other blocks. One that is missing is empty.
    void setEntries(const QList<QStringList> &lists);
    /// What the Lisp program has to do: "TABLE" for a table in the drawing, nothing when it is empty.
    QString resultText() const { return m_resultText; }

protected:
    /// Forgets the last result and fills the table from the lists of this call.
    void afterShow() override;

private:
    /// In time n log n with the number of blocks: the entries are sorted, not the rows.
    void fillTable();
    /// Closes for a table in the drawing.
    void exportToTable();
    /// The dialog may be gone when it returns: choosing a file handles events.
    void ClickInFileButton();
    /// Sorts by the column, each click in the direction opposite to the click before it.
    void ClickHeaderTable(int column);

    /// Of the list that the check box says, by name or by number.
    QStringList sortedEntries() const;

    std::unique_ptr<Ui::Dlg_QT_GetBlockInfo> m_ui;
    QStringList m_topLevel; ///< "NAME;NUMBER" each, as Lisp gave them
    QStringList m_withNested;
    /// As they are shown, from top to bottom.
    QList<ortakit::BlockCount> m_blocks;
    QString m_resultText;
    /// Of the file that was written last.
    QString m_folder;
    int m_sortColumn = 0;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
};
