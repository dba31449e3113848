// The menus of the main window.

#include "host/app/window/MainWindow.h"
#include "host/app/window/canvas/DrawingCanvas.h"
#include "host/app/window/entry/CommandLine.h"
#include "host/app/window/entry/CommandRunner.h"
#include "host/app/window/frame/DrawingTabs.h"
#include "host/app/window/frame/Mnemonics.h"
#include "host/app/window/frame/Panels.h"
#include "platform/kernel/CKvHelp.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QDir>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>

using namespace Qt::StringLiterals;

namespace host::app {

QAction *MainWindow::addAction(QMenu &menu, const QString &text, const QKeySequence &shortcut, WhenBusy whenBusy,
                               const std::function<void()> &body)
{
    QAction *action = menu.addAction(text);
    action->setShortcut(shortcut);
    connect(action, &QAction::triggered, this, body);
    if (whenBusy == WhenBusy::Disabled)
        m_idleActions.append(action);
    return action;
}

QAction *MainWindow::addChoice(QMenu &menu, QActionGroup &group, const QString &text, const std::function<void()> &body)
{
    QAction *action = addAction(menu, text, {}, WhenBusy::Enabled, body);
    action->setCheckable(true);
    group.addAction(action);
    return action;
}

void MainWindow::buildMenus()
{
    buildFileMenu();
    buildEditMenu();
    buildViewMenu();
    buildToolsMenu();
    buildHelpMenu();
}

void MainWindow::buildFileMenu()
{
    QMenu &menu = *menuBar()->addMenu(tr("&File"));
    const auto withDocument = [this](const std::function<void(kernel::Document &)> &body) {
        return [this, body] {
            if (kernel::Document *active = document())
                body(*active);
        };
    };
    addAction(menu, tr("&New"), QKeySequence(u"Ctrl+N"_s), WhenBusy::Disabled,
              [this] { m_workbench->documents().create(); });
    addAction(menu, tr("&Open..."), QKeySequence(u"Ctrl+O"_s), WhenBusy::Disabled,
              [this] { openAll(m_files.pathsToOpen()); });
    addAction(menu, tr("&Close"), QKeySequence(u"Ctrl+W"_s), WhenBusy::Disabled,
              [this] { closeTab(m_tabs->currentIndex()); });
    menu.addSeparator();
    addAction(menu, tr("&Save"), QKeySequence(u"Ctrl+S"_s), WhenBusy::Disabled,
              withDocument([this](kernel::Document &active) { m_files.save(active); }));
    addAction(menu, tr("Save &as..."), QKeySequence(u"Ctrl+Shift+S"_s), WhenBusy::Disabled,
              withDocument([this](kernel::Document &active) { m_files.saveAs(active); }));
    QMenu &pictures = *menu.addMenu(tr("&Export"));
    for (const auto &[text, extension] :
         {std::pair(tr("&PNG picture..."), u"png"_s), std::pair(tr("&SVG drawing..."), u"svg"_s),
          std::pair(tr("P&DF page..."), u"pdf"_s)})
        addAction(pictures, text, {}, WhenBusy::Disabled,
                  withDocument([this, extension = extension](kernel::Document &active) {
                      m_files.exportPicture(active, extension);
                  }));
    menu.addSeparator();
    addAction(menu, tr("&Quit"), QKeySequence(u"Ctrl+Q"_s), WhenBusy::Enabled, [this] { close(); });
}

void MainWindow::buildEditMenu()
{
    QMenu &menu = *menuBar()->addMenu(tr("&Edit"));
    m_undo = addAction(menu, tr("&Undo"), QKeySequence(u"Ctrl+Z"_s), WhenBusy::Disabled,
                       [this] { m_runner->start(u"_U"_s); });
    m_redo = addAction(menu, tr("&Redo"), QKeySequence(u"Ctrl+Y"_s), WhenBusy::Disabled,
                       [this] { m_runner->start(u"_REDO"_s); });
}

void MainWindow::buildViewMenu()
{
    QMenu &menu = *menuBar()->addMenu(tr("&View"));
    const auto withCanvas = [this](const std::function<void(DrawingCanvas &)> &body) {
        return [this, body] {
            if (DrawingCanvas *current = canvas())
                body(*current);
        };
    };
    addAction(menu, tr("Zoom &extents"), QKeySequence(u"Ctrl+0"_s), WhenBusy::Enabled,
              withCanvas([](DrawingCanvas &current) { current.zoomExtents(); }));
    addAction(menu, tr("Zoom &window"), QKeySequence(u"Ctrl+R"_s), WhenBusy::Enabled,
              withCanvas([](DrawingCanvas &current) { current.beginZoomWindow(); }));
    addAction(menu, tr("Zoom &in"), QKeySequence(u"Ctrl++"_s), WhenBusy::Enabled,
              withCanvas([](DrawingCanvas &current) { current.zoomBy(1.5); }));
    addAction(menu, tr("Zoom &out"), QKeySequence(u"Ctrl+-"_s), WhenBusy::Enabled,
              withCanvas([](DrawingCanvas &current) { current.zoomBy(1.0 / 1.5); }));
    menu.addSeparator();
    addAction(menu, tr("Lisp &console"), QKeySequence(Qt::Key_F12), WhenBusy::Enabled, [this] { toggleConsole(); });
    m_panels->addTo(menu);
    menu.addSeparator();
    auto *grounds = new QActionGroup(this);
    m_blackGround = addChoice(menu, *grounds, tr("&Black ground"), [this] { setGround(view::Ground::Black); });
    m_whiteGround = addChoice(menu, *grounds, tr("W&hite ground"), [this] { setGround(view::Ground::White); });
    menu.addSeparator();
    auto *styles = new QActionGroup(this);
    m_lightStyle = addChoice(menu, *styles, tr("&Light style"), [this] { setStyleOfWindows(Style::Light); });
    m_darkStyle = addChoice(menu, *styles, tr("&Dark style"), [this] { setStyleOfWindows(Style::Dark); });
    (currentStyle() == Style::Dark ? m_darkStyle : m_lightStyle)->setChecked(true);
}

void MainWindow::buildToolsMenu()
{
    QMenu &menu = *menuBar()->addMenu(tr("&Tools"));
    menu.setToolTipsVisible(true);
    const QList<ToolEntry> &entries = m_workbench->tools().entries;
    QStringList captions;
    for (const ToolEntry &entry : entries)
        captions.append(QString(entry.caption).replace(u'&', u"&&"_s));
    captions = withMnemonics(captions);
    for (qsizetype i = 0; i < entries.size(); ++i) {
        const ToolEntry &entry = entries[i];
        QAction *action =
            addAction(menu, captions[i], {}, WhenBusy::Disabled, [this, entry] { m_runner->start(entry.command); });
        action->setToolTip(entry.tip);
        action->setStatusTip(u"%1 (%2)"_s.arg(entry.tip, entry.command));
    }
    if (entries.isEmpty())
        menu.addAction(tr("No tools were found"))->setEnabled(false);
    menu.addSeparator();
    m_record = addAction(menu, tr("&Record session..."), {}, WhenBusy::Enabled, [this] { toggleRecording(); });
}

void MainWindow::buildHelpMenu()
{
    QMenu &menu = *menuBar()->addMenu(tr("&Help"));
    addAction(menu, tr("&Contents"), QKeySequence(Qt::Key_F1), WhenBusy::Enabled, [this] { showHelp(); });
    addAction(menu, tr("&About Ortakit"), {}, WhenBusy::Enabled, [this] { showAbout(); });
}

void MainWindow::showHelp()
{
    const QString folder = m_workbench->session().helpFolder();
    CKvHelp *help = GetKvHelp();
    if (help && !folder.isEmpty())
        help->Help(folder, 0, false, this, 0);
    else
        m_commandLine->print(tr("\nThe help pages were not found.\n"));
}

void MainWindow::showAbout()
{
    QMessageBox box(QMessageBox::NoIcon, tr("About Ortakit"),
                    tr("Ortakit %1\n\nDrafting tools for CAD drawings, with a host of their own.\nQt %2")
                        .arg(QCoreApplication::applicationVersion(), QString::fromLatin1(qVersion())),
                    QMessageBox::Ok, this);
    box.exec();
}

} // namespace host::app
