#pragma once

#include "dialogs/mergesheets/SheetNames.h"
#include "state/ToolDialog.h"
#include "state/widgets/ElidedPathField.h"

#include <memory>

class FavouritesBox;

namespace Ui {
class Dlg_QT_MergeSheets;
}

/// The dialog that says which sheets are merged into one drawing, in which order, under which names and into which
/// drawing.
///
/// Each call begins with the sheets that setSheets() gives, all of them checked. With OK, the state file has of the
/// checked sheets, from top to bottom and each with "^" behind:
///
/// | key | value |
/// |---|---|
/// | lstsheets | the sheets as the Lisp program gave them, in place of what a table writes there |
/// | sheetnumbers | their places among the arguments, from 1, for sheets whose text has "^" or "=" in it |
/// | newnames | the names that they get |
///
/// Beside these are the widgets' own: "prefix", "numberequal", "tocurrent" or "tonew" with TRUE, and "targetfile",
/// which is the whole path of the new drawing with its extension. Closes with the action "OK".
class Dlg_QT_MergeSheets final : public ToolDialog
{
    Q_OBJECT

public:
    explicit Dlg_QT_MergeSheets(QWidget *parent = nullptr);
    ~Dlg_QT_MergeSheets() override;

    /// Replaces the list: layouts of the drawing and drawing files (see ortakit::mergedSheetNames()).
    void setSheets(const QStringList &sheets);

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void afterShow() override;

private:
    void selectAll();
    void selectTarget();
    void CloseAccept();
    void setPrefix();
    void refreshNames();
    void refreshTarget();

    void setUpTable();
    void connectWidgets();
    void checkRows(const QList<int> &rows, Qt::CheckState state);
    void showNames(const QList<int> &checked);
    QString message(qsizetype checkedCount) const;
    bool acceptsNames();
    bool acceptsTarget();
    bool isSource(const QString &path) const;
    void writeSheets();
    QList<int> checkedRows() const;
    QString sheetAt(int row) const;
    int numberAt(int row) const;

    std::unique_ptr<Ui::Dlg_QT_MergeSheets> m_ui;
    FavouritesBox *m_favourites;
    std::unique_ptr<ElidedPathField> m_target;
    QStringList m_sheets;
    /// Of the checked rows, from top to bottom.
    QList<ortakit::SheetName> m_names;
};
