#pragma once

#include "state/ToolDialog.h"
#include "state/widgets/ElidedPathField.h"

#include <memory>
#include <vector>

class QTableWidgetItem;

namespace Ui {
class Dlg_QT_ImportBlockAttributes;
}

/// The block attribute import: a table of attributes from a text file, in whose selected cells texts can be replaced.
/// The selected rows go to the Lisp program, which gives them to the blocks of the drawing: the state file has them
/// under "attributes" in the form of ortakit::attributeText(), in place of what a table writes there.
///
/// Each showing reads the file again. The field holds the path of the file that the table is from: one that leads
/// nowhere is told and goes. A file that cannot be read, or holds more than a table takes, leaves the table empty; a
/// user who does not wait for one keeps the table and the file of before. Nothing is ever written to the file.
class Dlg_QT_ImportBlockAttributes final : public ToolDialog
{
    Q_OBJECT

public:
    explicit Dlg_QT_ImportBlockAttributes(QWidget *parent = nullptr);
    ~Dlg_QT_ImportBlockAttributes() override;

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void afterShow() override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    enum class Report
    {
        Told,
        Silent,
    };
    /// What becomes of the table: row by row, null where a row has no cell.
    using TableItems = std::vector<std::unique_ptr<QTableWidgetItem>>;

    void SelectFileAtt();
    /// Enter in the field of the file.
    void fillAttributes();
    /// Selects all cells, or none.
    void Select();
    void SelectChanged();
    /// In the texts of the selected cells, in any mix of cases.
    void replace();
    /// OK: hands the rows that are selected as a whole to the state.
    void ReadSelected();
    void ClickHeaderTable(int column);

    void setUpTable();
    void connectWidgets();
    bool hasFile(Report report);
    void takeFile(Report report);
    bool readTable(const QString &path, Report report);
    void showTable(const QStringList &headers, int rowCount, TableItems items);
    /// Turns on what needs a selection.
    void followSelection();
    /// From one range of the selection to the next.
    QList<QTableWidgetItem *> selectedItems() const;
    QStringList headers() const;
    QStringList rowTexts(int row) const;

    std::unique_ptr<Ui::Dlg_QT_ImportBlockAttributes> m_ui;
    /// The file that the table is from.
    QString m_acceptedFile;
    /// Of the file that was chosen last.
    QString m_folder;
    /// The table is sorted by it; -1 for the order of the file.
    int m_sortColumn = -1;
    /// Cells that have an item.
    qsizetype m_itemCount = 0;
    /// The selection is changed by the dialog, which looks at it once afterwards.
    bool m_isSelecting = false;
    std::unique_ptr<ElidedPathField> m_file;
};
