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
class Dlg_QT_TrackTime final : public ToolDialog
{
    Q_OBJECT

public:
    explicit Dlg_QT_TrackTime(QWidget *parent = nullptr);
    ~Dlg_QT_TrackTime() override;

    /// Not owned; null for none.
    void setOpenDrawings(OpenDrawings *open) { m_open = open; }

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void beforeShow() override;
    void afterShow() override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void SelectFolder();
    void EnterFolder();
    /// Lists the folder that was typed when it is another one than that which is listed, and there.
    void LeaveFolder();
    void Refresh();
    void FillTable();
    void ClickHeaderTable(int column);
    void SelectChanged();
    /// The box of a cell was clicked. A box among the selected rows stands for all of them.
    void TrackChanged(const QTableWidgetItem *item);
    // For the selected rows; nothing is written before the dialog closes.
    void Track(bool isTracked);
    void ApplyIdleLimit();
    /// After a question.
    void ResetTime();
    /// Writes what the table shows to a file, with semicolons to a ".csv" and with tabs to any other.
    void ExportTable();
    /// OK: writes, names the drawings that could not be written, and closes unless the user cancelled that.
    void CloseDialog();

    void setUpTable();
    void connectFolder();
    void connectTable();
    bool hasFolder();
    void listFolder();
    bool readFolder();
    /// Asks about changes that were not written yet.
    bool mayDropChanges();
    void showListedFolder();
    QTableWidgetItem *makeItem(int drawing, TimeColumn column) const;
    QString trackedText(const DrawingTime &drawing) const;
    void showDrawing(int row);
    void showTotal();
    QList<int> shownDrawings() const;
    /// The drawing's place in m_drawings.
    int drawingAt(int row) const;
    QList<int> selectedRows() const;
    void changeRows(const QList<int> &rows, const std::function<void(DrawingTime &)> &change);
    bool anySelected(const std::function<bool(const DrawingTime &)> &is) const;
    bool writeChanges(QStringList &failures);
    void reportFailures(const QStringList &failures);

    std::unique_ptr<Ui::Dlg_QT_TrackTime> m_ui;
    OpenDrawings *m_open = nullptr;
    QList<DrawingTime> m_drawings;
    QString m_listedFolder; ///< whose drawings m_drawings are
    bool m_hasListedSubFolders = false;
    /// The widgets take their values from a state, or a folder is being listed: what they say meanwhile is no wish of
    /// the user's.
    bool m_isBusy = false;
    TimeColumn m_sortColumn = TimeColumn::Name;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
    QString m_exportFile; ///< chosen last; empty at first
    FavouritesBox *m_favourites = nullptr;
    std::unique_ptr<ElidedPathField> m_directory;
};
