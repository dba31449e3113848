// The drawings of lately: their menu, the start page, and opening those of last time again.

#include "files/qt/VisibleText.h"
#include "host/app/window/MainWindow.h"
#include "host/app/window/entry/CommandRunner.h"
#include "host/app/window/files/RecentFiles.h"
#include "host/app/window/files/StartPage.h"
#include "host/app/window/frame/DrawingTabs.h"
#include "host/app/window/frame/Preferences.h"
#include "host/app/window/help/HelpKey.h"

#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QMenu>

using namespace Qt::StringLiterals;

namespace host::app {

void MainWindow::connectRecent()
{
    m_recent = std::make_unique<RecentFiles>(Preferences::folder(m_workbench->session()));
    connect(&m_workbench->documents(), &kernel::DocumentManager::opened, this, [this](kernel::Document *document) {
        const auto note = [this, document] {
            if (!document->path().isEmpty())
                m_recent->add(document->path());
        };
        note();
        connect(document, &kernel::Document::titleChanged, this, note);
    });
    connect(&m_workbench->documents(), &kernel::DocumentManager::activeChanged, this,
            [this](const kernel::Document *document) {
                // Only where no other one follows.
                if (!document)
                    QTimer::singleShot(0, this, &MainWindow::missDrawings);
            });
}

void MainWindow::addRecent(QMenu &menu)
{
    QMenu *recent = menu.addMenu(tr("Open &recent"));
    recent->setObjectName(u"recentMenu"_s);
    recent->setToolTipsVisible(true);
    // Looking for files may take its time: only when the menu is wanted.
    connect(recent, &QMenu::aboutToShow, this, [this, recent] { fillRecentMenu(*recent); });
}

void MainWindow::fillRecentMenu(QMenu &menu)
{
    menu.clear();
    const bool isIdle = !m_runner->isBusy();
    int number = 0;
    for (const RecentFile &file : m_recent->all()) {
        const QString name = files::visibleText(QFileInfo(file.path).fileName()).replace(u'&', u"&&"_s);
        const QString folder = files::visibleText(QDir::toNativeSeparators(QFileInfo(file.path).absolutePath()));
        const QString key = ++number <= 9 ? u"&%1 "_s.arg(number) : QString();
        QAction *entry = menu.addAction(key + (file.isPinned ? tr("%1 (pinned)").arg(name) : name), this,
                                        [this, path = file.path] { openAll({path}); });
        entry->setToolTip(folder);
        entry->setEnabled(isIdle && QFileInfo(file.path).isFile());
    }
    menu.addSeparator();
    menu.addAction(tr("&Last time's drawings"), this, &MainWindow::openLastTime)
        ->setEnabled(isIdle && !m_lastDrawings.isEmpty());
    QAction *reopens = menu.addAction(tr("Open them at each &start"));
    reopens->setCheckable(true);
    reopens->setChecked(m_reopensDrawings);
    connect(reopens, &QAction::toggled, this, [this](bool isWanted) { m_reopensDrawings = isWanted; });
    menu.addAction(tr("&Clear the list"), this, [this] { m_recent->clear(); })->setEnabled(number > 0);
}

void MainWindow::openLastTime()
{
    openAll(m_lastDrawings);
}

void MainWindow::missDrawings()
{
    if (m_hasStartPage && isVisible() && m_workbench->documents().documentCount() == 0)
        showStartPage();
}

void MainWindow::showStartPage()
{
    if (!m_startPage) {
        const QString pictures = m_workbench->session().folders().cache + u"/pictures"_s;
        m_startPage = new StartPage(*m_recent, findSamplesFolder(), pictures, m_tabs);
        connectStartPage(*m_startPage);
        m_tabs->insertTab(0, m_startPage, tr("Start"));
    }
    m_startPage->setLastTime(!m_lastDrawings.isEmpty());
    m_tabs->setCurrentWidget(m_startPage);
    m_startPage->setFocus();
}

void MainWindow::connectStartPage(StartPage &page)
{
    const auto create = [this] { m_workbench->documents().create(); };
    connect(&page, &StartPage::newWanted, this, create);
    connect(&page, &StartPage::openWanted, this, [this] { openAll(m_files.pathsToOpen()); });
    connect(&page, &StartPage::lastTimeWanted, this, &MainWindow::openLastTime);
    connect(&page, &StartPage::fileWanted, this, [this](const QString &path) { openAll({path}); });
    connect(&page, &StartPage::sampleWanted, this, [this](const QString &path) { m_files.openSample(path); });
    connect(&page, &StartPage::helpWanted, this, [this] { showHelp({{}, {u"window startPage"_s}}); });
    connect(&page, &StartPage::commandWanted, this, [this, create](const QString &command) {
        create();
        QTimer::singleShot(0, this, [this, command] { m_runner->start(command); });
    });
}

/// It may be what the call comes from.
void MainWindow::hideStartPage()
{
    if (!m_startPage)
        return;
    m_tabs->removeTab(m_tabs->indexOf(m_startPage));
    m_startPage->hide();
    m_startPage->deleteLater();
    m_startPage.clear();
}

} // namespace host::app
