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
///
/// OK refuses, with the focus where it can be put right:
///
/// | when | message |
/// |---|---|
/// | no sheet is checked | "Select the sheets to merge." |
/// | a name is empty, too long, Model, or another sheet's | what nameMessage says below the table |
/// | the prefix has characters that no name has | the same |
/// | the target is a source, or the active drawing | "The target cannot be the current drawing or one of its sheets." |
/// | its folder or name is bad | what ortakit::acceptsFolder() and acceptsNewDrawingName() say |
///
/// A target that exists is replaced after a question; merging and writing are the Lisp program's. Favourites keep all
/// but the sheets. Everything takes time in proportion to the sheets.
class Dlg_QT_MergeSheets final : public ToolDialog
{
    Q_OBJECT

public:
    explicit Dlg_QT_MergeSheets(QWidget *parent = nullptr);
    ~Dlg_QT_MergeSheets() override;

    /// Replaces the list: layouts of the drawing and drawing files (see ortakit::mergedSheetNames()).
    void setSheets(const QStringList &sheets);

    /// The space bar on the table turns the check of the first selected row, and gives it to all of them.
    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void afterShow() override;

private:
    /// Checks all sheets or none, as the box says.
    void selectAll();
    void selectTarget();
    /// The slot of OK.
    void CloseAccept();
    void setPrefix();
    /// Whenever order, checks, prefix or numbering change: the names, and what is wrong with them.
    void refreshNames();
    /// The path counts only with "toNew".
    void refreshTarget();

    void setUpTable();
    void connectWidgets();
    void checkRows(const QList<int> &rows, Qt::CheckState state);
    /// `checked`: rows from top to bottom, one for each of m_names.
    void showNames(const QList<int> &checked);
    /// What is wrong with the first bad name, else how many sheets are merged.
    QString message(qsizetype checkedCount) const;
    bool acceptsNames();
    bool acceptsTarget();
    /// Links and "..", and a path's spelling, make no difference.
    bool isSource(const QString &path) const;
    void writeSheets();
    QList<int> checkedRows() const;
    QString sheetAt(int row) const;
    /// Place among the sheets as they were given, from 1.
    int numberAt(int row) const;

    std::unique_ptr<Ui::Dlg_QT_MergeSheets> m_ui;
    FavouritesBox *m_favourites; ///< owned by the dialog, as its child
    std::unique_ptr<ElidedPathField> m_target;
    QStringList m_sheets; ///< as they were given
    /// Of the checked rows, from top to bottom.
    QList<ortakit::SheetName> m_names;
};
