// Files that are dropped on the main window.

#include "files/qt/VisibleText.h"
#include "host/app/window/MainWindow.h"
#include "host/app/window/entry/CommandRunner.h"

#include <QDragEnterEvent>
#include <QFileInfo>
#include <QImageReader>
#include <QMimeData>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

/// Why a file that was dropped cannot be a drawing; empty when it may be one, whatever its name.
QString whyNoDrawing(const QString &path)
{
    const QFileInfo file(path);
    const QString name = files::visibleText(file.fileName());
    if (file.isDir())
        return MainWindow::tr("%1 is a folder.").arg(name);
    const QByteArray suffix = file.suffix().toLower().toLatin1();
    if (QImageReader::supportedImageFormats().contains(suffix) || suffix == "pdf")
        return MainWindow::tr("%1 is a picture or document, no drawing.").arg(name);
    return {};
}

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
    QStringList refused;
    for (const QString &path : paths) {
        if (m_runner->isBusy())
            return;
        if (const QString reason = whyNoDrawing(path); !reason.isEmpty()) {
            refused.append(reason);
            continue;
        }
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
    if (!refused.isEmpty())
        m_files.complain(refused.first(std::min<qsizetype>(refused.size(), 10)).join(u'\n'));
}

} // namespace host::app
