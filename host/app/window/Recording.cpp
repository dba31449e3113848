// Sessions that the window records.

#include "host/app/playback/PlaybackLine.h"
#include "host/app/playback/SessionRecorder.h"
#include "host/app/window/MainWindow.h"
#include "host/app/window/entry/CommandLine.h"
#include "host/app/window/entry/CommandRunner.h"
#include "host/app/window/frame/Menus.h"

#include <QAction>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace host::app {

void MainWindow::startRecording(const QString &file)
{
    m_recorder = std::make_unique<SessionRecorder>(m_workbench->session(), file);
    connect(m_runner.get(), &CommandRunner::ranTo, m_recorder.get(), &SessionRecorder::takeOutcome);
    m_menus->find(u"record"_s)->setText(tr("Stop &recording"));
    m_commandLine->print(tr("\nRecording to %1.\n").arg(QDir::toNativeSeparators(file)));
}

void MainWindow::stopRecording()
{
    if (!m_recorder)
        return;
    const QString reason = m_recorder->save();
    const QString file = QDir::toNativeSeparators(m_recorder->file());
    m_recorder.reset();
    m_menus->find(u"record"_s)->setText(tr("&Record session..."));
    m_commandLine->print(reason.isEmpty() ? tr("\nRecorded in %1.\n").arg(file)
                                          : tr("\nThe recording was not written: %1: %2\n").arg(file, reason));
}

void MainWindow::recordSaved(bool wasSaved)
{
    if (m_recorder && wasSaved)
        m_recorder->add(u"save "_s + sessionWord(QFileInfo(document()->path()).fileName()));
}

void MainWindow::toggleRecording()
{
    if (m_recorder)
        return stopRecording();
    const QString file = QFileDialog::getSaveFileName(this, tr("Record session"), u"session.txt"_s,
                                                      tr("Recorded sessions (*.txt);;All files (*)"));
    if (!file.isEmpty())
        startRecording(file);
}

} // namespace host::app
