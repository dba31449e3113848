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
/// Each showing reads the file again.
///
/// | key | value |
/// |---|---|
/// | attributefile | whole path of the file, comes in and goes out |
/// | attributes | goes out: headings and selected rows, texts replaced |
/// | txsearch, txreplace | the texts of the last replacing |
///
/// A file that was typed is taken with Enter or when its field is left. What is no file is told ("Filename can`t be
/// empty", "Cannot find the specified file."), and the field gets back the file that the table is from; a file that
/// cannot be read or is too large empties the table. OK wants whole rows selected, "Select the rows of table for
/// import." otherwise, and leaves file and drawing as they are.
///
/// Reading, replacing and collecting take time in proportion to the cells and can be cancelled, which changes nothing.
class Dlg_QT_ImportBlockAttributes final : public ToolDialog
{
    Q_OBJECT

public:
    explicit Dlg_QT_ImportBlockAttributes(QWidget *parent = nullptr);
    ~Dlg_QT_ImportBlockAttributes() override;

    /// The file field, when it is left.
    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    /// Reads the file that the field names, in silence: nobody has asked for it yet.
    void afterShow() override;
    /// Enter in a field is used there and does not press OK.
    void keyPressEvent(QKeyEvent *event) override;

private:
    /// Whether the user is told what is wrong with a file: only after something that they did.
    enum class Report
    {
        Told,
        Silent,
    };
    /// What becomes of the table: row by row, null where a row has no cell.
    using TableItems = std::vector<std::unique_ptr<QTableWidgetItem>>;

    void SelectFileAtt();
    /// Takes what the file field says, and tells what is wrong with it.
    void fillAttributes();
    /// The slot of "select all".
    void Select();
    void SelectChanged();
    /// In the selected cells, in any mix of cases; nothing for an empty text to find.
    void replace();
    /// The slot of OK.
    void ReadSelected();
    void ClickHeaderTable(int column);

    void setUpTable();
    void connectWidgets();
    bool hasFile(Report report);
    /// Reads the file of the field; the one before stays when the user does not wait for it.
    void takeFile(Report report);
    bool readTable(const QString &path, Report report);
    /// The items become the table's own.
    void showTable(const QStringList &headers, int rowCount, TableItems items);
    /// Brings up to date what needs a selection, and whether "select all" still holds.
    void followSelection();
    /// Still owned by the table. Costs by the selected cells, not by all.
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
    std::unique_ptr<ElidedPathField> m_file; ///< of AttributeFile
};
