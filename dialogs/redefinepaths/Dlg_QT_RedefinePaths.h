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

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void beforeShow() override;
    void afterShow() override;

private:
    /// A reference and the box that shows its type; null for a type that is never shown.
    struct Reference
    {
        ortakit::ReferenceEntry entry;
        const QCheckBox *typeBox = nullptr;
    };

    void fillTable();
    void Select();
    void SelectChanged();
    void replace();
    void ReadSelected();
    void ClickHeaderTable(int column);

    void setUpTable();
    void connectWidgets();
    void checkModes();
    const QCheckBox *boxOfType(const QString &type) const;
    bool findShown(QList<const ortakit::ReferenceEntry *> &shown);

    std::unique_ptr<Ui::Dlg_QT_RedefinePaths> m_ui;
    QStringList m_entries;
    QList<Reference> m_references;
    bool m_hasCheckedModes = false;
    /// The widgets take their values from the state; the table is filled once behind that.
    bool m_isShowing = false;
    bool m_isSelecting = false;
};
