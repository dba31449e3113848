// Files that are dropped on the main window.

#include "host/app/window/MainWindow.h"
#include "host/app/window/entry/CommandRunner.h"

#include <QDragEnterEvent>
#include <QMimeData>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

QStringList localFiles(const QMimeData &data)
{
    QStringList paths;
    for (const QUrl &url : data.urls())
        if (url.isLocalFile())
            paths.append(url.toLocalFile());
    return paths;
}

} // namespace

void MainWindow::dragEnterEvent(QDragEnterEvent *event)
{
    if (!m_runner->isBusy() && !localFiles(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent *event)
{
    event->acceptProposedAction();
    const QStringList paths = localFiles(*event->mimeData());
    // The program that is dragged from waits for this call to end; a message box would hold it up.
    QTimer::singleShot(0, this, [this, paths] { openDropped(paths); });
}

void MainWindow::openDropped(const QStringList &paths)
{
    // A program that is loaded works in the drawing that was opened last, with its tab.
    QStringList drawings;
    for (const QString &path : paths) {
        if (m_runner->isBusy())
            return;
        if (!path.endsWith(".lsp"_L1, Qt::CaseInsensitive) || (drawings.isEmpty() && !document())) {
            drawings.append(path);
            continue;
        }
        openAll(std::exchange(drawings, {}));
        if (!document())
            continue;
        if (const QString wanted = m_workbench->session().trustedFolders().wanted(*document(), path); !wanted.isEmpty())
            document()->loadLisp(wanted);
    }
    if (!m_runner->isBusy())
        openAll(drawings);
}

} // namespace host::app
