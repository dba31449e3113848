// Copies of changed drawings that are kept for after a crash, and opening them then.

#include "host/app/window/MainWindow.h"
#include "host/app/window/entry/CommandLine.h"
#include "host/app/window/files/RecoveryDialog.h"
#include "host/kernel/files/Autosave.h"

#include <QLocale>

namespace host::app {

void MainWindow::startAutosave()
{
    m_autosave = std::make_unique<kernel::Autosave>(m_workbench->session());
    connect(m_autosave.get(), &kernel::Autosave::failed, this,
            [this](const kernel::Document *document, const QString &reason) {
                m_commandLine->print(
                    tr("\nNo copy of %1 is kept for after a crash: %2.\n").arg(document->title(), reason));
            });
}

void MainWindow::recover(Recovery wish)
{
    QList<kernel::RecoveryFile> left = kernel::Autosave::left(m_workbench->session());
    if (left.isEmpty())
        return;
    if (wish == Recovery::Ask) {
        RecoveryDialog dialog(left, this);
        left = dialog.exec() == QDialog::Accepted ? dialog.chosen() : QList<kernel::RecoveryFile>();
    }
    for (const kernel::RecoveryFile &copy : left)
        openCopy(copy);
}

void MainWindow::openCopy(const kernel::RecoveryFile &copy)
{
    // From here on it is this program's, and goes with the drawing.
    std::unique_ptr<kernel::RecoveryCopy> adopted = kernel::RecoveryCopy::adopt(copy.file);
    if (!adopted)
        return m_commandLine->print(tr("\n%1 was recovered by another program.\n").arg(copy.note.title));
    kernel::Document *document = m_files.openCopy(copy);
    if (!document)
        return;
    m_autosave->adopt(*document, std::move(adopted));
    document->print(tr("\nRecovered as it was on %1. It is not in its file until it is saved.\n")
                        .arg(QLocale().toString(copy.note.time.toLocalTime(), QLocale::ShortFormat)));
}

} // namespace host::app
