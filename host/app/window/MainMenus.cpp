// What the entries of the menus do that run no line of the command line.

#include "host/app/playback/SessionRecorder.h"
#include "host/app/window/MainWindow.h"
#include "host/app/window/canvas/DrawingCanvas.h"
#include "host/app/window/entry/CommandLine.h"
#include "host/app/window/entry/CommandRunner.h"
#include "host/app/window/entry/WindowDialogs.h"
#include "host/app/window/frame/DrawingTabs.h"
#include "host/app/window/frame/EditKeys.h"
#include "host/app/window/frame/Menus.h"
#include "host/app/window/frame/Panels.h"
#include "host/app/window/help/HelpKey.h"
#include "host/app/window/help/HelpWindow.h"

#include <QAction>
#include <QApplication>
#include <QHash>
#include <QMap>
#include <QMenu>
#include <QMessageBox>

using namespace Qt::StringLiterals;

namespace host::app {

void MainWindow::buildMenus()
{
    m_menus = std::make_unique<Menus>(
        *this, Menus::Parts{
                   .run =
                       [this](const QString &line) {
                           takeOpenText();
                           m_runner->start(line);
                       },
                   .bodies = menuBodies(),
                   .places = {{u"@tools"_s, [this](Menus &menus, QMenu &menu) { addTools(menus, menu); }},
                              {u"@recent"_s, [this](Menus &, QMenu &menu) { addRecent(menu); }},
                              {u"@panels"_s, [this](Menus &, QMenu &menu) { m_panels->addTo(menu); }}},
               });
    keepEditKeysTo({m_tabs, m_commandLine}, *m_menus);
    m_menus->find(currentStyle() == Style::Dark ? u"darkStyle"_s : u"lightStyle"_s)->setChecked(true);
}

/// What the rows of menuRows() mean that have a name of the window's own.
QHash<QString, std::function<void()>> MainWindow::menuBodies()
{
    const auto withDocument = [this](const std::function<void(kernel::Document &)> &body) {
        return [this, body] {
            takeOpenText();
            if (kernel::Document *active = document())
                body(*active);
        };
    };
    const auto withCanvas = [this](const std::function<void(DrawingCanvas &)> &body) {
        return [this, body] {
            if (DrawingCanvas *current = canvas())
                body(*current);
        };
    };
    const auto exporting = [this, withDocument](const QString &extension) {
        return withDocument([this, extension](kernel::Document &active) {
            m_files.exportPicture(active, extension);
            if (m_recorder)
                m_recorder->add(u"# exporting pictures is not repeated"_s);
        });
    };
    return {
        {u"new"_s, [this] { m_workbench->documents().create(); }},
        {u"open"_s, [this] { openAll(m_files.pathsToOpen()); }},
        {u"close"_s, [this] { closeTab(m_tabs->currentIndex()); }},
        {u"save"_s, withDocument([this](kernel::Document &active) { recordSaved(m_files.save(active)); })},
        {u"saveAs"_s, withDocument([this](kernel::Document &active) { recordSaved(m_files.saveAs(active)); })},
        {u"settings"_s, [this] { showSettings(); }},
        {u"exportPng"_s, exporting(u"png"_s)},
        {u"exportSvg"_s, exporting(u"svg"_s)},
        {u"exportPdf"_s, exporting(u"pdf"_s)},
        {u"print"_s, [this] { m_dialogs->open(u"PLOT"_s); }},
        {u"pageSetup"_s, [this] { m_dialogs->open(u"PAGESETUP"_s); }},
        {u"quit"_s, [this] { close(); }},
        {u"eraseChosen"_s, withDocument([this](kernel::Document &active) {
             if (!active.impliedSelection().empty())
                 m_runner->start(u"_.ERASE"_s);
         })},
        {u"chooseAll"_s, withCanvas([](DrawingCanvas &current) { current.chooseAll(); })},
        {u"markNext"_s, withCanvas([](DrawingCanvas &current) { current.markNext(); })},
        {u"zoomExtents"_s, withCanvas([](DrawingCanvas &current) { current.zoomExtents(); })},
        {u"zoomWindow"_s, withCanvas([](DrawingCanvas &current) { current.beginZoomWindow(); })},
        {u"zoomIn"_s, withCanvas([](DrawingCanvas &current) { current.zoomBy(1.5); })},
        {u"zoomOut"_s, withCanvas([](DrawingCanvas &current) { current.zoomBy(1.0 / 1.5); })},
        {u"startPage"_s, [this] { showStartPage(); }},
        {u"console"_s, [this] { toggleConsole(); }},
        {u"blackGround"_s, [this] { setGround(view::Ground::Black); }},
        {u"whiteGround"_s, [this] { setGround(view::Ground::White); }},
        {u"lightStyle"_s, [this] { setStyleOfWindows(Style::Light); }},
        {u"darkStyle"_s, [this] { setStyleOfWindows(Style::Dark); }},
        {u"palette"_s, [this] { showPalette(); }},
        {u"longHistory"_s, [this] { toggleLongHistory(); }},
        {u"record"_s, [this] { toggleRecording(); }},
        {u"help"_s, [this] { showHelp(helpKeysAt(*(focusWidget() ? focusWidget() : this))); }},
        {u"about"_s, [this] { showAbout(); }},
    };
}

void MainWindow::addTools(Menus &menus, QMenu &menu)
{
    const QList<ToolEntry> &entries = m_workbench->tools().entries;
    QMap<QString, QMenu *> subjects;
    for (const ToolEntry &entry : entries)
        if (!entry.subject.isEmpty())
            subjects.insert(entry.subject, nullptr);
    for (auto subject = subjects.begin(); subject != subjects.end(); ++subject)
        subject.value() = menu.addMenu(QString(subject.key()).replace(u'&', u"&&"_s));
    for (const ToolEntry &entry : entries)
        menus.addLine(*subjects.value(entry.subject, &menu), QString(entry.caption).replace(u'&', u"&&"_s),
                      entry.command, entry.tip);
    if (entries.isEmpty())
        menu.addAction(tr("No tools were found"))->setEnabled(false);
}

/// About the name that is being written, else what runs, else the place where the keyboard is.
void MainWindow::showHelp(const HelpKeys &keys)
{
    kernel::HelpService &help = m_workbench->session().help();
    if (m_workbench->session().helpFolder().isEmpty())
        return m_commandLine->print(tr("\nThe help pages were not found.\n"));
    // A built-in command is known by its name, a Lisp command by what was typed for it.
    QString running = document() ? document()->commandNames().section(u'\'', -1) : QString();
    if (running.isEmpty() && m_runner->isBusy())
        running = m_runner->lastCommand().section(u' ', 0, 0).remove(u'_');
    QStringList wanted = keys.word;
    if (!running.isEmpty())
        wanted.append(u"command "_s + running);
    help.show(wanted + keys.place);
}

void MainWindow::buildHelp()
{
    m_helpViewer = std::make_unique<WindowHelpViewer>(*this, [this](const QUrl &link) {
        m_commandLine->print(
            tr("\nThis link of the help page is not followed: %1\n").arg(QString::fromLatin1(link.toEncoded())));
    });
    m_workbench->session().help().setViewer(m_helpViewer.get());
    new HelpKey([this](const HelpKeys &keys) { showHelp(keys); }, this);
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
