#pragma once

#include "dialogs/tracktime/DrawingTimes.h"
#include "state/ToolDialog.h"
#include "state/widgets/ElidedPathField.h"

#include <memory>

class FavouritesBox;
class QTableWidgetItem;

namespace Ui {
class Dlg_QT_TrackTime;
}

/// The editing-time tracker: the drawings of a folder with the time that was worked on each, switched on and off,
/// limited and reset for the selected ones.
///
/// What is changed is written with OK: to the file of a drawing, or, when it is open, to the time that goes on there. A
/// file that cannot be written is named and the others are written. Whoever cancels in between keeps what is written,
/// and the dialog stays open with the rest. Each showing reads the files again.
///
/// | key | value |
/// |---|---|
/// | directory, subfolders | the folder that is listed; that of the active drawing when none is given |
/// | filter | regular expression for names |
/// | tbldrawings | names of the selected drawings, "ground.dwg^", selected again at the next showing |
/// | idlelimit | minutes; OK writes it, as a spin box writes nothing of its own |
///
/// OK closes with the action "OK". Failures are told in one warning that names the first 12, "Some drawings could not
/// be changed.", and do not keep the dialog open. Another folder drops the changes after a question; a folder that is
/// not there is told, and the list stays. Listing reads every drawing, OK reads and writes each changed one.
class Dlg_QT_TrackTime final : public ToolDialog
{
    Q_OBJECT

public:
    explicit Dlg_QT_TrackTime(QWidget *parent = nullptr);
    ~Dlg_QT_TrackTime() override;

    /// Not owned; null for none.
    void setOpenDrawings(OpenDrawings *open) { m_open = open; }

    /// The space bar on the table switches tracking of all selected drawings.
    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    /// From here to afterShow() widgets change without the folder being listed for each.
    void beforeShow() override;
    /// Lists the folder, which reads every drawing in it.
    void afterShow() override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void SelectFolder();
    /// Enter in the folder field: lists another folder than the listed one, or tells what is wrong with it.
    void EnterFolder();
    /// The same when the field is left, in silence.
    void LeaveFolder();
    /// Lists the folder again, also with or without its sub-folders.
    void Refresh();
    /// The drawings that the filter finds, with the selection kept; reads no file.
    void FillTable();
    void ClickHeaderTable(int column);
    void SelectChanged();
    /// A box that was clicked stands for all selected rows when its own is one of them.
    void TrackChanged(const QTableWidgetItem *item);
    /// For the selected drawings; those tracked for the first time get the limit in the field.
    void Track(bool isTracked);
    /// Gives those selected drawings that have a limit the one in the field.
    void ApplyIdleLimit();
    /// After a question.
    void ResetTime();
    /// Writes what the table shows, with ";" between for "*.csv" and tabs otherwise; a failure is told in a box.
    void ExportTable();
    /// The slot of OK; the dialog stays open when the user cancels the writing.
    void CloseDialog();

    void setUpTable();
    void connectFolder();
    void connectTable();
    /// Tells the user when the field leads to no folder.
    bool hasFolder();
    /// Fields that say what is not listed, as after a cancel, go back to what is.
    void listFolder();
    /// False when the user did not wait; everything is as it was then.
    bool readFolder();
    /// Asks about changes that were not written yet.
    bool mayDropChanges();
    void showListedFolder();
    QTableWidgetItem *makeItem(int drawing, TimeColumn column) const;
    QString trackedText(const DrawingTime &drawing) const;
    void showDrawing(int row);
    void showTotal();
    /// Places in m_drawings, in the order of the table.
    QList<int> shownDrawings() const;
    /// Place in m_drawings.
    int drawingAt(int row) const;
    QList<int> selectedRows() const;
    /// Changes what will be written, and shows it.
    void changeRows(const QList<int> &rows, const std::function<void(DrawingTime &)> &change);
    bool anySelected(const std::function<bool(const DrawingTime &)> &is) const;
    /// False when the user cancelled: what is written by then is no change any more. A sentence for each failure.
    bool writeChanges(QStringList &failures);
    void reportFailures(const QStringList &failures);

    std::unique_ptr<Ui::Dlg_QT_TrackTime> m_ui;
    OpenDrawings *m_open = nullptr;
    QList<DrawingTime> m_drawings; ///< of the listed folder, shown or not
    QString m_listedFolder;        ///< whose drawings m_drawings are, with the next
    bool m_hasListedSubFolders = false;
    /// The widgets take their values from a state, or a folder is being listed: what they say meanwhile is no wish of
    /// the user's.
    bool m_isBusy = false;
    TimeColumn m_sortColumn = TimeColumn::Name;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
    QString m_exportFile;                         ///< chosen last; the next export begins there
    FavouritesBox *m_favourites = nullptr;        ///< owned by the dialog, as its child
    std::unique_ptr<ElidedPathField> m_directory; ///< of the folder field
};
