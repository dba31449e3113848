#pragma once

#include "host/app/window/files/FilePictures.h"
#include "host/app/window/files/RecentFiles.h"

#include <QHash>
#include <QWidget>

class QListWidget;
class QListWidgetItem;

namespace host::app {

/// What is shown while no drawing is open: the drawings of lately and the samples, each with its picture, and first
/// steps. It does nothing by itself but pin and forget recent drawings.
class StartPage final : public QWidget
{
    Q_OBJECT

public:
    /// `recent` must outlive it; `samples` is the folder of the samples, which need not be there.
    StartPage(RecentFiles &recent, const QString &samples, const QString &pictureFolder, QWidget *parent);

    /// Whether there are drawings of last time to be opened again.
    void setLastTime(bool areThere);

signals:
    void newWanted();
    /// To be chosen in a dialog.
    void openWanted();
    void lastTimeWanted();
    void fileWanted(const QString &path);
    /// As what a new drawing begins with.
    void sampleWanted(const QString &path);
    void helpWanted();
    /// A new drawing with this command.
    void commandWanted(const QString &command);

private:
    QWidget *makeButtons();
    QWidget *makeFirstSteps();
    QListWidget *makeList(const QString &objectName, const QString &accessibleName);
    void fillRecent();
    void fillSamples(const QString &folder);
    QListWidgetItem *addFile(QListWidget &list, const QString &path, const QString &text);
    void showPicture(const QString &path, const QImage &picture);
    void followStep(const QString &link);
    void showMenu(const QPoint &place);

    RecentFiles &m_recent;
    FilePictures m_pictures;
    QHash<QString, QImage> m_made;
    QListWidget *m_recentList;
    QListWidget *m_samples;
    QWidget *m_lastTime = nullptr;
};

} // namespace host::app
