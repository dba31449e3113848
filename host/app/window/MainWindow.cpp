#include "host/app/window/MainWindow.h"

#include "host/app/window/CommandLine.h"
#include "host/app/window/DrawingCanvas.h"
#include "host/app/window/DrawingTabs.h"
#include "host/app/window/Preferences.h"
#include "host/app/window/TrustQuestion.h"
#include "host/app/window/WindowFeeder.h"
#include "host/drawing/records/HeaderVariables.h"

#include <QAction>
#include <QCloseEvent>
#include <QDockWidget>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QLabel>
#include <QMimeData>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

/// Counting what cannot be drawn looks at every record: not while someone is at it.
constexpr int reportDelay = 150;
/// The report takes half of the status bar, or so many pixels.
constexpr int longestReport = 200;

QString versionName(drawing::Version version)
{
    using drawing::Version;
    switch (version) {
    case Version::R12:
        return u"R12"_s;
    case Version::R13:
        return u"R13"_s;
    case Version::R14:
        return u"R14"_s;
    case Version::R2000:
        return u"2000"_s;
    case Version::R2004:
        return u"2004"_s;
    case Version::R2007:
        return u"2007"_s;
    case Version::R2010:
        return u"2010"_s;
    case Version::R2013:
        return u"2013"_s;
    case Version::R2018:
        return u"2018"_s;
    }
    return QString::number(static_cast<int>(version));
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

/// While many tabs come or go: each of them would have all others laid out anew. They are laid out once in the end,
/// when the one of the active drawing is shown, too.
class MainWindow::ManyTabs
{
public:
    explicit ManyTabs(MainWindow &window) : m_window(window)
    {
        ++m_window.m_manyTabs;
        m_window.m_tabs->tabBar()->hide();
    }
    ~ManyTabs()
    {
        if (--m_window.m_manyTabs > 0)
            return;
        m_window.m_tabs->tabBar()->show();
        m_window.showActive(m_window.document());
    }
    ManyTabs(const ManyTabs &) = delete;
    ManyTabs &operator=(const ManyTabs &) = delete;

private:
    MainWindow &m_window;
};

MainWindow::MainWindow(const WorkbenchOptions &options)
    : m_workbench(std::make_unique<Workbench>(options, this)),
      m_feeder(std::make_unique<WindowFeeder>(m_workbench->session().input())), m_files(*m_workbench, *this),
      m_tabs(new DrawingTabs(this)), m_commandLine(new CommandLine(this)),
      m_commandDock(new QDockWidget(tr("Command line"), this)), m_coordinates(new QLabel(this)),
      m_status(new QLabel(this)), m_notDrawn(new QLabel(this))
{
    setObjectName(u"mainWindow"_s);
    resize(1280, 800);
    setAcceptDrops(true);
    m_tabs->setDocumentMode(true);
    m_tabs->setTabsClosable(true);
    m_tabs->setFocusPolicy(Qt::NoFocus);
    setCentralWidget(m_tabs);
    m_commandDock->setObjectName(u"commandDock"_s);
    m_commandDock->setWidget(m_commandLine);
    m_commandDock->setFeatures(QDockWidget::DockWidgetMovable | QDockWidget::DockWidgetFloatable);
    addDockWidget(Qt::BottomDockWidgetArea, m_commandDock);
    resizeDocks({m_commandDock}, {150}, Qt::Vertical);
    buildMenus();
    buildStatusBar();
    connectCommandLine();

    m_workbench->session().setFeeder(m_feeder.get());
    m_workbench->session().trustedFolders().setQuestion(trustQuestion(*this));
    connect(m_feeder.get(), &WindowFeeder::requestChanged, this, [this] { showRequest(m_feeder->request()); });
    connect(m_tabs, &QTabWidget::currentChanged, this, &MainWindow::activateTab);
    connect(m_tabs, &QTabWidget::tabCloseRequested, this, &MainWindow::closeTab);
    kernel::DocumentManager &documents = m_workbench->documents();
    connect(&documents, &kernel::DocumentManager::opened, this, &MainWindow::addTab);
    connect(&documents, &kernel::DocumentManager::aboutToClose, this, &MainWindow::removeTab);
    connect(&documents, &kernel::DocumentManager::activeChanged, this, &MainWindow::showActive);
    m_reportTimer.setSingleShot(true);
    m_reportTimer.setInterval(reportDelay);
    connect(&m_reportTimer, &QTimer::timeout, this, &MainWindow::updateReport);
    loadPreferences();
    tellProblems();
    m_commandLine->setFocus();
    updateState();
}

MainWindow::~MainWindow()
{
    m_workbench->session().setFeeder(nullptr);
    // Closing documents tells of changes that nobody is left to show.
    disconnect(&m_workbench->documents(), nullptr, this, nullptr);
    disconnect(m_tabs, nullptr, this, nullptr);
    for (const auto &open : m_workbench->documents().documents())
        open->disconnect(this);
    // The canvases look at drawings that go with the workbench.
    while (m_tabs->count() > 0)
        delete m_tabs->widget(0);
}

void MainWindow::buildStatusBar()
{
    m_coordinates->setObjectName(u"coordinates"_s);
    m_coordinates->setMinimumWidth(fontMetrics().horizontalAdvance(u"-000000.0000, -000000.0000"_s));
    m_status->setObjectName(u"drawingStatus"_s);
    m_notDrawn->setObjectName(u"notDrawn"_s);
    // They show names from files: markup in these could read further files.
    m_status->setTextFormat(Qt::PlainText);
    m_notDrawn->setTextFormat(Qt::PlainText);
    statusBar()->addWidget(m_coordinates);
    statusBar()->addWidget(m_status, 1);
    statusBar()->addPermanentWidget(m_notDrawn);
}

void MainWindow::connectCommandLine()
{
    connect(m_commandLine, &CommandLine::entered, this, &MainWindow::enter);
    connect(m_commandLine, &CommandLine::optionPicked, this,
            [this](const QString &option) { answer(kernel::TextAnswer{option}); });
    connect(m_commandLine, &CommandLine::cancelled, this, &MainWindow::cancel);
}

DrawingCanvas *MainWindow::canvas() const
{
    return qobject_cast<DrawingCanvas *>(m_tabs->currentWidget());
}

kernel::Document *MainWindow::document() const
{
    return m_workbench->documents().active();
}

void MainWindow::start(const QStringList &drawings)
{
    openAll(drawings);
    if (m_tabs->count() == 0)
        m_workbench->documents().create();
}

void MainWindow::openAll(const QStringList &drawings)
{
    const ManyTabs many(*this);
    for (const QString &path : drawings)
        m_files.openFile(path);
}

// Tabs

void MainWindow::addTab(kernel::Document *document)
{
    auto *canvas = new DrawingCanvas(*document);
    canvas->setGround(m_ground);
    connect(canvas, &DrawingCanvas::answered, this, &MainWindow::answer);
    connect(canvas, &DrawingCanvas::enterPressed, this, [this] { enter({}); });
    connect(canvas, &DrawingCanvas::keyPressed, this, [this](QKeyEvent *event) {
        if (m_commandLine->takeKey(event))
            event->accept();
    });
    connect(canvas, &DrawingCanvas::pointerMoved, this, [this](const drawing::Vec2 &point) {
        m_coordinates->setText(u"%1, %2"_s.arg(point.x, 0, 'f', 4).arg(point.y, 0, 'f', 4));
    });
    connect(document, &kernel::Document::printed, m_commandLine, &CommandLine::print);
    connect(document, &kernel::Document::titleChanged, this, [this, document] { updateTitle(*document); });
    connect(document, &kernel::Document::runEnded, this, [this, document] {
        updateTitle(*document);
        updateState();
    });
    const int index = m_tabs->addTab(canvas, {});
    updateTitle(*document);
    tellProblems();
    if (m_manyTabs > 0)
        return;
    m_tabs->setCurrentIndex(index);
    updateReport();
}

int MainWindow::tabOf(const kernel::Document *document) const
{
    for (int i = 0; i < m_tabs->count(); ++i)
        if (&static_cast<DrawingCanvas *>(m_tabs->widget(i))->document() == document)
            return i;
    return -1;
}

void MainWindow::removeTab(kernel::Document *document)
{
    const int index = tabOf(document);
    if (index >= 0)
        delete m_tabs->widget(index);
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
    if (m_manyTabs > 0)
        return;
    if (const int index = tabOf(document); index >= 0)
        m_tabs->setCurrentIndex(index);
    updateState();
}

bool MainWindow::mayClose(int index)
{
    auto *tab = qobject_cast<DrawingCanvas *>(m_tabs->widget(index));
    if (!tab || isBusy())
        return false;
    if (tab->document().isModified())
        m_tabs->setCurrentIndex(index);
    return m_files.askToSave(tab->document()) == FileActions::Answer::GoOn;
}

void MainWindow::closeTab(int index)
{
    if (mayClose(index))
        m_workbench->documents().close(&static_cast<DrawingCanvas *>(m_tabs->widget(index))->document());
}

/// All are asked about before the first is closed: who cancels keeps everything open.
bool MainWindow::closeAllTabs()
{
    for (int i = 0; i < m_tabs->count(); ++i)
        if (!mayClose(i))
            return false;
    const ManyTabs many(*this);
    while (m_tabs->count() > 0)
        if (!m_workbench->documents().close(&static_cast<DrawingCanvas *>(m_tabs->widget(0))->document()))
            return false;
    return true;
}

// Running

bool MainWindow::isBusy() const
{
    const auto &documents = m_workbench->documents().documents();
    return m_isRunning ||
           std::any_of(documents.begin(), documents.end(), [](const auto &open) { return open->isBusy(); });
}

void MainWindow::enter(const QString &text)
{
    kernel::InputQueue &queue = m_workbench->session().input();
    if (m_feeder->request()) {
        queue.pushTyped(text);
    } else if (isBusy()) {
        m_commandLine->print(tr("\nA command is running; Esc stops it.\n"));
    } else if (!document()) {
        m_commandLine->print(tr("\nNo drawing is open.\n"));
    } else {
        queue.pushTyped(text);
        runQueue();
    }
}

void MainWindow::answer(const kernel::InputAnswer &answer)
{
    if (m_feeder->request())
        m_workbench->session().input().push(answer);
}

void MainWindow::runQueue()
{
    m_isRunning = true;
    m_feeder->forgetCancel();
    updateState();
    m_workbench->session().runQueue();
    m_isRunning = false;
    const bool isUnfinished = !m_workbench->session().input().isEmpty();
    m_commandLine->setUnfinished(isUnfinished);
    m_commandLine->setPrompt(isUnfinished ? tr("(_>") : tr("Command:"));
    if (document() && !document()->impliedSelection().empty())
        document()->setImpliedSelection({});
    updateState();
    closeIfWanted();
}

void MainWindow::closeIfWanted()
{
    if (m_isCloseWanted)
        QTimer::singleShot(0, this, &QWidget::close);
}

PlaybackResult MainWindow::play(const PlaybackScript &script, PlaybackOptions options)
{
    if (isBusy() || !document())
        return {.ok = false, .line = 0, .message = tr("No session can be played now."), .printed = {}, .files = {}};
    m_isRunning = true;
    updateState();
    options.showPrompt = [this](const std::optional<kernel::PromptRequest> &request) { showRequest(request); };
    PlaybackResult result = runSession(script, *document(), options);
    m_isRunning = false;
    if (!result.ok)
        m_commandLine->print(u'\n' + result.message + u'\n');
    updateState();
    closeIfWanted();
    return result;
}

void MainWindow::cancel()
{
    if (canvas() && canvas()->abandonBox())
        return;
    m_feeder->cancel();
    if (isBusy())
        return;
    m_workbench->session().input().clear();
    m_commandLine->setUnfinished(false);
    m_commandLine->setPrompt(tr("Command:"));
    if (document())
        document()->setImpliedSelection({});
}

void MainWindow::runFromMenu(const QString &command)
{
    if (!document() || isBusy())
        return;
    // The rest of an expression that was begun at the command line is not what the menu means.
    m_workbench->session().input().clear();
    enter(command);
}

void MainWindow::showRequest(const std::optional<kernel::PromptRequest> &request)
{
    if (DrawingCanvas *current = canvas())
        current->setRequest(request);
    const bool takesBlanks = request && request->kind == kernel::PromptKind::String && request->allowSpaces;
    m_commandLine->setSpace(takesBlanks ? CommandLine::Space::IsText : CommandLine::Space::Enters);
    m_commandLine->setPrompt(request ? request->prompt : tr("Command:"));
    m_commandLine->setFocus();
    updateState();
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
    const Preferences preferences = Preferences::load(m_workbench->session().home());
    restoreGeometry(preferences.geometry);
    m_commandLine->setEntries(preferences.entries);
    setGround(preferences.ground);
}

void MainWindow::savePreferences() const
{
    const Preferences preferences{
        .style = currentStyle(), .ground = m_ground, .geometry = saveGeometry(), .entries = m_commandLine->entries()};
    preferences.save(m_workbench->session().home());
}

void MainWindow::updateState()
{
    const kernel::Document *active = document();
    const bool isIdle = !isBusy();
    for (QAction *action : m_idleActions)
        action->setEnabled(isIdle);
    m_tabs->tabBar()->setEnabled(isIdle);
    m_undo->setEnabled(isIdle && active && active->undoSteps().canUndo());
    m_redo->setEnabled(isIdle && active && active->undoSteps().canRedo());
    updateWindowTitle();
    m_reportTimer.start();
}

/// Of this tab alone, and only what is another: each text that is set lays out all tabs.
void MainWindow::updateTitle(const kernel::Document &document)
{
    const int index = tabOf(&document);
    if (index < 0)
        return;
    // An & in a file name is no mnemonic.
    const QString title = document.title().replace(u'&', u"&&"_s);
    const QString name = document.isReadOnly() ? tr("%1 (read only)").arg(title) : title;
    const QString text = document.isModified() ? name + u'*' : name;
    if (m_tabs->tabText(index) != text)
        m_tabs->setTabText(index, text);
    m_tabs->setTabToolTip(index,
                          Qt::convertFromPlainText(QDir::toNativeSeparators(document.path()), Qt::WhiteSpaceNormal));
    updateWindowTitle();
}

void MainWindow::updateWindowTitle()
{
    const kernel::Document *active = document();
    setWindowTitle(active ? u"%1[*] - Ortakit"_s.arg(active->title()) : u"Ortakit"_s);
    setWindowModified(active && active->isModified());
}

void MainWindow::updateReport()
{
    const kernel::Document *active = document();
    DrawingCanvas *current = canvas();
    if (!active || !current || isBusy()) {
        m_status->setText(active ? m_status->text() : QString());
        m_notDrawn->setText({});
        return;
    }
    const view::RenderReport report = current->report();
    const bool isModel = active->drawing().header().integer(u"$TILEMODE", 1) != 0;
    m_status->setText(
        tr("DXF %1, %2")
            .arg(versionName(active->drawing().version()), isModel ? tr("model space") : tr("paper space")));
    const QString text = report.isWhole() ? tr("All entities drawn") : report.missing();
    if (current->isCutShortNews())
        m_commandLine->print(tr("\nThere is more to show than is drawn in one go: the picture lacks part of it.\n"));
    m_notDrawn->setText(
        m_notDrawn->fontMetrics().elidedText(text, Qt::ElideRight, std::max(width() / 2, longestReport)));
    m_notDrawn->setToolTip(Qt::convertFromPlainText(
        report.isWhole() ? report.summary() : report.missing() + u'\n' + report.summary(), Qt::WhiteSpaceNormal));
}

void MainWindow::setGround(view::Ground ground)
{
    m_ground = ground;
    view::setShownGround(ground);
    (ground == view::Ground::Black ? m_blackGround : m_whiteGround)->setChecked(true);
    for (int i = 0; i < m_tabs->count(); ++i)
        static_cast<DrawingCanvas *>(m_tabs->widget(i))->setGround(ground);
}

void MainWindow::setStyleOfWindows(Style style)
{
    applyStyle(style);
    (style == Style::Dark ? m_darkStyle : m_lightStyle)->setChecked(true);
}

// Closing and dropping

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (isBusy()) {
        // The program under way ends first; the window closes when it has.
        m_isCloseWanted = true;
        m_feeder->cancel();
        event->ignore();
        return;
    }
    m_isCloseWanted = false;
    if (!closeAllTabs()) {
        event->ignore();
        return;
    }
    savePreferences();
    event->accept();
}

void MainWindow::dragEnterEvent(QDragEnterEvent *event)
{
    if (!isBusy() && !localFiles(*event->mimeData()).isEmpty())
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
        if (isBusy())
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
    if (!isBusy())
        openAll(drawings);
}

} // namespace host::app
