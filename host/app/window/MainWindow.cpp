#include "host/app/window/MainWindow.h"

#include "host/app/playback/SessionRecorder.h"
#include "host/app/window/canvas/AimTyping.h"
#include "host/app/window/canvas/DrawingCanvas.h"
#include "host/app/window/canvas/InPlaceEdit.h"
#include "host/app/window/entry/CommandLine.h"
#include "host/app/window/entry/CommandRunner.h"
#include "host/app/window/entry/LispConsole.h"
#include "host/app/window/entry/RightButton.h"
#include "host/app/window/entry/WindowDialogs.h"
#include "host/app/window/files/RecentFiles.h"
#include "host/app/window/files/StartPage.h"
#include "host/app/window/files/TrustQuestion.h"
#include "host/app/window/frame/CommandPalette.h"
#include "host/app/window/frame/DrawingStatus.h"
#include "host/app/window/frame/DrawingTabs.h"
#include "host/app/window/frame/LayoutTabs.h"
#include "host/app/window/frame/LossBar.h"
#include "host/app/window/frame/Menus.h"
#include "host/app/window/frame/Panels.h"
#include "host/app/window/frame/Preferences.h"
#include "host/app/window/frame/StatusSwitches.h"
#include "host/app/window/frame/TrustBar.h"
#include "host/app/window/frame/WindowServices.h"
#include "host/app/window/help/HelpKey.h"
#include "host/app/window/help/HelpWindow.h"
#include "host/app/window/panels/StyleBar.h"
#include "host/kernel/documents/ScreenSketch.h"
#include "host/kernel/files/Autosave.h"
#include "host/kernel/variables/SystemVariables.h"

#include <QAction>
#include <QCloseEvent>
#include <QDockWidget>
#include <QKeyEvent>
#include <QPointer>
#include <QScreen>
#include <QStatusBar>
#include <QTabBar>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

/// Counting what cannot be drawn looks at every record: not while someone is at it.
constexpr int reportDelay = 150;

} // namespace

MainWindow::MainWindow(const WorkbenchOptions &options)
    : m_workbench(std::make_unique<Workbench>(options, this)), m_files(*m_workbench, *this),
      m_tabs(new DrawingTabs(this)), m_layouts(new LayoutTabs(this)), m_commandLine(new CommandLine(this)),
      m_commandDock(new QDockWidget(tr("Command line"), this)),
      m_runner(std::make_unique<CommandRunner>(m_workbench->session(), *m_commandLine)),
      m_status(std::make_unique<DrawingStatus>(*statusBar())), m_rightButton(new RightButton(this))
{
    setObjectName(u"mainWindow"_s);
    resize(QSize(1280, 800).boundedTo(screen()->availableSize()));
    setAcceptDrops(true);
    setCentralWidget(new QWidget(this));
    auto *middle = new QVBoxLayout(centralWidget());
    middle->setContentsMargins(0, 0, 0, 0);
    middle->setSpacing(0);
    middle->addWidget(m_tabs, 1);
    middle->addWidget(m_layouts);
    m_commandDock->setObjectName(u"commandDock"_s);
    m_commandDock->setWidget(m_commandLine);
    m_commandDock->setFeatures(QDockWidget::DockWidgetMovable | QDockWidget::DockWidgetFloatable);
    addDockWidget(Qt::BottomDockWidgetArea, m_commandDock);
    resizeDocks({m_commandDock}, {150}, Qt::Vertical);
    buildConsole();
    buildServices();
    middle->insertWidget(0, new TrustBar(*m_services, centralWidget()));
    middle->insertWidget(1, new LossBar(*m_services, centralWidget()));
    m_panels = std::make_unique<Panels>(*this, *m_services);
    m_switches = std::make_unique<StatusSwitches>(*this, *m_services);
    m_typing = std::make_unique<AimTyping>(*m_commandLine->input(), [this] { return canvas(); });
    m_dialogs = std::make_unique<WindowDialogs>(*m_services);
    m_dialogs->connectLayouts(*m_layouts);
    buildMenus();
    buildHelp();
    addToolBar(new StyleBar(*m_services, this));
    connectRunner();

    m_workbench->session().trustedFolders().setQuestion(trustQuestion(*this));
    connect(m_tabs, &QTabWidget::currentChanged, this, &MainWindow::activateTab);
    connect(m_tabs, &QTabWidget::tabCloseRequested, this, &MainWindow::closeTab);
    connect(m_tabs, &DrawingTabs::manyEnded, this, [this] { showActive(document()); });
    connect(m_layouts, &LayoutTabs::chosen, this, &MainWindow::showLayout);
    kernel::DocumentManager &documents = m_workbench->documents();
    connect(&documents, &kernel::DocumentManager::opened, this, &MainWindow::addTab);
    connect(&documents, &kernel::DocumentManager::aboutToClose, m_tabs, &DrawingTabs::remove);
    connect(&documents, &kernel::DocumentManager::activeChanged, this, &MainWindow::showActive);
    m_reportTimer.setSingleShot(true);
    m_reportTimer.setInterval(reportDelay);
    connect(&m_reportTimer, &QTimer::timeout, this, &MainWindow::updateReport);
    documents.wishes().setQuestion([this] { return m_files.pathsToOpen(); });
    connect(&documents.wishes(), &kernel::DocumentWishes::quitWanted, this, [this] { m_isCloseWanted = true; });
    startAutosave();
    connectRecent();
    loadPreferences();
    tellProblems();
    m_commandLine->setFocus();
    updateState();
}

MainWindow::~MainWindow()
{
    m_workbench->session().help().setViewer(nullptr);
    m_recorder.reset();
    // Closing documents tells of changes that nobody is left to show.
    disconnect(&m_workbench->documents(), nullptr, this, nullptr);
    disconnect(&m_workbench->documents(), nullptr, m_services.get(), nullptr);
    disconnect(m_tabs, nullptr, this, nullptr);
    for (const auto &open : m_workbench->documents().documents())
        open->disconnect(this), open->disconnect(m_services.get());
    // The canvases look at drawings that go with the workbench.
    while (m_tabs->count() > 0)
        delete m_tabs->widget(0);
}

void MainWindow::connectRunner()
{
    connect(m_rightButton, &RightButton::clicked, this, [this] { enterFromCanvas({}); });
    connect(m_rightButton, &RightButton::held, this, &MainWindow::showShortcutMenu);
    connect(m_commandLine, &CommandLine::entered, this, &MainWindow::enter);
    m_commandLine->setNames([this](const QString &typed) { return namesThatFit(typed); });
    connect(m_commandLine, &CommandLine::optionPicked, this,
            [this](const QString &option) { m_runner->answer(kernel::TextAnswer{option}); });
    connect(m_commandLine, &CommandLine::cancelled, this, &MainWindow::cancel);
    connect(m_runner.get(), &CommandRunner::requestChanged, this,
            [this](const std::optional<kernel::PromptRequest> &request) {
                if (DrawingCanvas *current = canvas())
                    current->setRequest(request);
                m_typing->restart();
            });
    connect(m_runner.get(), &CommandRunner::stateChanged, this, &MainWindow::updateState);
    connect(m_runner.get(), &CommandRunner::panelWanted, this, [this](const QString &name) { m_panels->show(name); });
    connect(m_runner.get(), &CommandRunner::ended, this, [this] {
        if (m_isCloseWanted)
            QTimer::singleShot(0, this, &QWidget::close);
    });
}

QTabWidget &MainWindow::tabs()
{
    return *m_tabs;
}

DrawingCanvas *MainWindow::canvas() const
{
    return m_tabs->canvas(m_tabs->currentIndex());
}

kernel::Document *MainWindow::document() const
{
    return m_workbench->documents().active();
}

void MainWindow::start(const QStringList &drawings, Opening opening, WithoutDrawings wish)
{
    m_hasStartPage = wish == WithoutDrawings::StartPage;
    if (opening == Opening::AsUsual)
        openAll(drawings);
    else
        for (const QString &path : drawings)
            m_files.recoverFile(path);
    if (m_hasStartPage && m_reopensDrawings && m_tabs->count() == 0)
        openLastTime();
    if (m_hasStartPage)
        missDrawings();
    else if (m_tabs->count() == 0)
        m_workbench->documents().create();
}

void MainWindow::openAll(const QStringList &drawings)
{
    const DrawingTabs::Many many(*m_tabs);
    for (const QString &path : drawings)
        m_files.openFile(path);
}

void MainWindow::enter(const QString &text)
{
    if (m_isInCanvas)
        enterFromCanvas(text);
    else if (!m_dialogs->open(text))
        m_runner->enter(text);
}

/// What runs may close the drawing of the canvas, and must not begin inside one of its events.
void MainWindow::enterFromCanvas(const QString &text)
{
    QTimer::singleShot(0, this, [this, text] {
        if (!m_dialogs->open(text))
            m_runner->enter(text);
    });
}

void MainWindow::moveGrips(const std::vector<kernel::InputAnswer> &answers)
{
    const QPointer<kernel::Document> edited = document();
    if (!edited || m_runner->isBusy())
        return;
    const std::vector<drawing::RecordId> chosen = edited->impliedSelection();
    m_runner->startWith(u"_.GRIPEDIT"_s, answers);
    if (edited)
        edited->setImpliedSelection(chosen);
}

PlaybackResult MainWindow::play(const PlaybackScript &script, PlaybackOptions options)
{
    return m_runner->play(script, std::move(options));
}

void MainWindow::cancel()
{
    if (!canvas() || !canvas()->abandonBox())
        m_runner->cancel();
}

void MainWindow::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        cancel();
    else
        QMainWindow::keyPressEvent(event);
}

// Drawings, which come, are shown and go

void MainWindow::addTab(kernel::Document *document)
{
    DrawingCanvas *canvas = m_tabs->add(*document);
    m_typing->watch(*canvas);
    m_dialogs->connectCanvas(*canvas);
    connect(canvas, &DrawingCanvas::answered, m_runner.get(), &CommandRunner::answer);
    connect(canvas, &DrawingCanvas::gripsTaken, this, [this](const std::vector<drawing::Vec3> &places) {
        std::vector<kernel::InputAnswer> answers;
        for (const drawing::Vec3 &place : places)
            answers.emplace_back(kernel::PointAnswer{place});
        answers.emplace_back(kernel::TextAnswer{});
        // Not within the canvas's event, as enterFromCanvas().
        QTimer::singleShot(0, this, [this, answers] { moveGrips(answers); });
    });
    connect(canvas, &DrawingCanvas::viewChosen, this, [this] {
        if (m_recorder)
            m_recorder->takeView();
    });
    connect(canvas, &DrawingCanvas::enterPressed, this, &MainWindow::pressRightButton);
    connect(canvas, &DrawingCanvas::keyPressed, this, [this](QKeyEvent *event) {
        m_isInCanvas = true;
        if (m_commandLine->takeKey(event))
            event->accept();
        m_isInCanvas = false;
    });
    connect(canvas, &DrawingCanvas::pointerMoved, this,
            [this](const drawing::Vec2 &point) { m_status->showPointer(point); });
    connect(document, &kernel::Document::sketchChanged, this, [this, document] {
        using enum kernel::ScreenSketch::Place;
        m_status->showTexts(document->sketch().text(Coordinates), document->sketch().text(Status));
    });
    connect(document, &kernel::Document::printed, m_commandLine, &CommandLine::print);
    connect(document, &kernel::Document::regenerated, &m_reportTimer, qOverload<>(&QTimer::start));
    connect(document, &kernel::Document::titleChanged, this, [this, document] { updateTitle(*document); });
    // The form of its file is in the status bar.
    connect(document, &kernel::Document::titleChanged, &m_reportTimer, qOverload<>(&QTimer::start));
    connect(document, &kernel::Document::runEnded, this, [this, document] {
        updateTitle(*document);
        updateState();
    });
    hideStartPage();
    updateWindowTitle();
    tellProblems();
    if (m_tabs->areMany())
        return;
    m_tabs->setCurrentWidget(canvas);
    updateReport();
}

void MainWindow::activateTab(int)
{
    if (DrawingCanvas *current = canvas())
        m_workbench->documents().setActive(&current->document());
    updateState();
    updateReport();
}

void MainWindow::showActive(kernel::Document *document)
{
    if (m_tabs->areMany())
        return;
    if (const int index = m_tabs->tabOf(document); index >= 0)
        m_tabs->setCurrentIndex(index);
    updateState();
}

void MainWindow::takeOpenText()
{
    DrawingCanvas *shown = canvas();
    if (auto *line = shown ? shown->findChild<InPlaceEdit *>() : nullptr)
        line->take();
}

void MainWindow::showLayout(const QString &name)
{
    takeOpenText();
    kernel::Document *active = document();
    if (active && !m_runner->isBusy())
        active->runAs(u"LAYOUT"_s, [&] { active->variables().set(u"CTAB", name); });
    if (m_recorder)
        m_recorder->add(u"lisp (setvar \"CTAB\" \"%1\")"_s.arg(name));
    updateState();
}

bool MainWindow::mayClose(int index)
{
    DrawingCanvas *tab = m_tabs->canvas(index);
    if (!tab || m_runner->isBusy())
        return false;
    takeOpenText();
    if (tab->document().isModified())
        m_tabs->setCurrentIndex(index);
    return m_files.askToSave(tab->document()) == FileActions::Answer::GoOn;
}

void MainWindow::closeTab(int index)
{
    if (m_startPage && m_tabs->widget(index) == m_startPage)
        hideStartPage();
    else if (mayClose(index))
        m_workbench->documents().close(&m_tabs->canvas(index)->document());
}

bool MainWindow::mayCloseAll()
{
    if (m_runner->isBusy())
        return false;
    takeOpenText();
    QList<kernel::Document *> changed;
    for (const auto &open : m_workbench->documents().documents())
        if (open->isModified())
            changed.append(open.get());
    if (changed.size() == 1)
        return mayClose(m_tabs->tabOf(changed.first()));
    return m_files.askToSave(changed, [this](kernel::Document &asked) { showActive(&asked); }) ==
           FileActions::Answer::GoOn;
}

/// All are asked about before the first is closed: who cancels keeps everything open.
bool MainWindow::closeAllTabs()
{
    if (!mayCloseAll())
        return false;
    kernel::DocumentManager &documents = m_workbench->documents();
    m_lastDrawings.clear();
    for (const auto &open : documents.documents())
        if (!open->path().isEmpty())
            m_lastDrawings.append(open->path());
    const DrawingTabs::Many many(*m_tabs);
    while (documents.documentCount() > 0)
        if (!documents.close(documents.documents().front().get()))
            return false;
    return true;
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (m_runner->isBusy()) {
        // The program under way ends first; the window closes when it has.
        m_isCloseWanted = true;
        m_runner->stop();
        event->ignore();
        return;
    }
    m_isCloseWanted = false;
    m_workbench->documents().wishes().forgetQuit();
    if (!closeAllTabs()) {
        event->ignore();
        return;
    }
    savePreferences();
    event->accept();
}

// State

void MainWindow::tellProblems()
{
    const QStringList &problems = m_workbench->problems();
    for (; m_problemsTold < problems.size(); ++m_problemsTold)
        m_commandLine->print(u'\n' + problems[m_problemsTold] + u'\n');
}

void MainWindow::loadPreferences()
{
    const Preferences preferences = Preferences::load(Preferences::folder(m_workbench->session()));
    restoreGeometry(preferences.geometry);
    m_commandLine->setEntries(preferences.entries);
    m_console->setEntries(preferences.forms);
    m_lastDrawings = preferences.drawings;
    m_reopensDrawings = preferences.reopensDrawings;
    m_recentlyRun = preferences.recent;
    restoreState(preferences.places);
    setGround(preferences.ground);
}

void MainWindow::savePreferences() const
{
    const Preferences preferences{.style = currentStyle(),
                                  .ground = m_tabs->ground(),
                                  .geometry = saveGeometry(),
                                  .places = saveState(),
                                  .entries = m_commandLine->entries(),
                                  .forms = m_console->entries(),
                                  .drawings = m_lastDrawings,
                                  .reopensDrawings = m_reopensDrawings,
                                  .recent = m_palette ? m_palette->recent() : m_recentlyRun};
    preferences.save(Preferences::folder(m_workbench->session()));
}

void MainWindow::updateState()
{
    const kernel::Document *active = document();
    const bool isIdle = !m_runner->isBusy();
    m_menus->setActivity(isIdle                     ? Activity::Nothing
                         : m_runner->takesCommand() ? Activity::Prompting
                                                    : Activity::Running);
    m_tabs->tabBar()->setEnabled(isIdle);
    m_layouts->setEnabled(isIdle);
    m_layouts->show(active);
    m_menus->find(u"_U"_s)->setEnabled(isIdle && active && active->undoSteps().canUndo());
    m_menus->find(u"_REDO"_s)->setEnabled(isIdle && active && active->undoSteps().canRedo());
    updateWindowTitle();
    m_reportTimer.start();
    emit m_services->stateChanged();
}

void MainWindow::updateTitle(const kernel::Document &document)
{
    m_tabs->updateTitle(document);
    updateWindowTitle();
}

void MainWindow::updateWindowTitle()
{
    const kernel::Document *active = document();
    setWindowTitle(active ? u"%1[*] - Ortakit"_s.arg(shownTitle(*active)) : u"Ortakit"_s);
    setWindowModified(active && active->isModified());
}

void MainWindow::updateReport()
{
    const kernel::Document *active = document();
    DrawingCanvas *current = canvas();
    if (!active) {
        m_status->clear();
    } else if (!current || m_runner->isBusy()) {
        m_status->clearReport();
    } else {
        m_status->show(active->drawing(), current->report());
        if (current->isCutShortNews())
            m_commandLine->print(
                tr("\nThere is more to show than is drawn in one go: the picture lacks part of it.\n"));
    }
}

void MainWindow::setGround(view::Ground ground)
{
    view::setShownGround(ground);
    m_menus->find(ground == view::Ground::Black ? u"blackGround"_s : u"whiteGround"_s)->setChecked(true);
    m_tabs->setGround(ground);
}

void MainWindow::setStyleOfWindows(Style style)
{
    applyStyle(style);
    m_menus->find(style == Style::Dark ? u"darkStyle"_s : u"lightStyle"_s)->setChecked(true);
}

} // namespace host::app
