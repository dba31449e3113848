#pragma once

#include "formats/ReferenceEntry.h"
#include "state/ToolDialog.h"

#include <memory>

class QCheckBox;

namespace Ui {
class Dlg_QT_RedefinePaths;
}

/// The dialog that gives the files that a drawing refers to other paths.
///
/// The table shows the references of the checked types whose name the filter finds. With OK, the rows that it shows
/// then, selected or not, are what goes back to the Lisp program; what is not shown does not. A path is shown, and goes
/// back, with "\" for every "/". Another choice of types or another filter shows the paths as Lisp gave them.
///
/// The key "modes" of the state holds the words "Xrefs", "Images", "Styles" and "Rtext" for types to check at the first
/// showing.
///
/// | key | value |
/// |---|---|
/// | modes | comes in, at the first showing |
/// | tyxref, tyimages, tystyles, tyrtext | TRUE for the types that are shown |
/// | filter | regular expression for names; see ortakit::NameFilter |
/// | txsearch, txreplace | the texts of the last replacing |
///
/// Accepting checks nothing, asks nothing and sets no action word: whether the new paths lead anywhere is the program's
/// to find out. Replacing wants selected rows, "Select the rows of table for search." otherwise; an empty text to find
/// puts the replacement in front of each path. Filtering, sorting and replacing can be cancelled when they take long,
/// which leaves the table as it was.
class Dlg_QT_RedefinePaths final : public ToolDialog
{
    Q_OBJECT

public:
    explicit Dlg_QT_RedefinePaths(QWidget *parent = nullptr);
    ~Dlg_QT_RedefinePaths() override;

    /// The references of the drawing, each "type^name^path" (see ortakit::referenceOf()). They are in the table from
    /// the next showing on.
    void setEntries(const QStringList &entries);
    /// What was set last, or with OK the rows of the table in their order.
    const QStringList &entries() const { return m_entries; }

    /// The table: the focus selects a first row, and in a wide dialog the paths get the place.
    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    /// From here to afterShow() options change without the table being filled for each.
    void beforeShow() override;
    /// Fills the table with the entries of this call.
    void afterShow() override;

private:
    /// A reference and the box that shows its type; null for a type that is never shown.
    struct Reference
    {
        ortakit::ReferenceEntry entry;
        const QCheckBox *typeBox = nullptr;
    };

    /// With new rows, none of them selected, in the order of the entries.
    void fillTable();
    /// The slot of "select all".
    void Select();
    void SelectChanged();
    /// In the paths of the selected rows; upper and lower case differ.
    void replace();
    /// The slot of OK: entries() are then the rows that are shown, whatever its name says of a selection.
    void ReadSelected();
    void ClickHeaderTable(int column);

    void setUpTable();
    void connectWidgets();
    /// Only checks: a type that the state had checked stays so.
    void checkModes();
    /// By the word of an entry, in any mix of cases; null for a word that is not known.
    const QCheckBox *boxOfType(const QString &type) const;
    /// False when the user did not wait. The pointers hold until m_references change.
    bool findShown(QList<const ortakit::ReferenceEntry *> &shown);

    std::unique_ptr<Ui::Dlg_QT_RedefinePaths> m_ui;
    QStringList m_entries;
    QList<Reference> m_references;  ///< m_entries taken apart
    bool m_hasCheckedModes = false; ///< "modes" counts once
    /// The widgets take their values from the state; the table is filled once behind that.
    bool m_isShowing = false;
    bool m_isSelecting = false; ///< the dialog changes the selection, which it looks at once afterwards
};
