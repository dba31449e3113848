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
/// Both ways take the blocks as they are shown, in their order, and close the dialog. A file that cannot be written is
/// told on the command line; what was there before stays.
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
    void afterShow() override;

private:
    void fillTable();
    void exportToTable();
    /// Closes, asks for the file and writes it before the Lisp program goes on.
    void ClickInFileButton();
    /// Each click on any column turns the direction.
    void ClickHeaderTable(int column);

    /// Those with nested references or without them, as the user wants it.
    QStringList sortedEntries() const;

    std::unique_ptr<Ui::Dlg_QT_GetBlockInfo> m_ui;
    QStringList m_topLevel;
    QStringList m_withNested;
    /// As they are shown, from top to bottom.
    QList<ortakit::BlockCount> m_blocks;
    QString m_resultText;
    /// Of the file that was written last.
    QString m_folder;
    int m_sortColumn = 0;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
};
