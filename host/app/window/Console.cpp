// Where Lisp is tried out in the window.

#include "host/app/playback/SessionRecorder.h"
#include "host/app/window/MainWindow.h"
#include "host/app/window/entry/CommandLine.h"
#include "host/app/window/entry/CommandRunner.h"
#include "host/app/window/entry/LispConsole.h"

#include <QPlainTextEdit>

#include <utility>

using namespace Qt::StringLiterals;

namespace host::app {

void MainWindow::buildConsole()
{
    m_console = new LispConsole(
        {.complete =
             [this](const QString &text) { return document() ? completionOf(*document(), text) : Completion(); },
         .help = [this](const QString &name) { return document() ? helpOnName(*document(), name) : QString(); }},
        this);
    m_consoleDock = new QDockWidget(tr("Lisp console"), this);
    m_consoleDock->setObjectName(u"consoleDock"_s);
    m_consoleDock->setWidget(m_console);
    addDockWidget(Qt::BottomDockWidgetArea, m_consoleDock);
    splitDockWidget(m_commandDock, m_consoleDock, Qt::Horizontal);
    m_consoleDock->hide();
    connect(m_console, &LispConsole::entered, this, &MainWindow::evaluate);
    connect(m_console, &LispConsole::cancelled, this, &MainWindow::cancel);
}

void MainWindow::toggleConsole()
{
    // One that lies below others, or has not the keyboard, is meant to come to the front.
    const bool isInUse = m_consoleDock->isVisible() && m_console->input()->hasFocus();
    m_consoleDock->setVisible(!isInUse);
    if (isInUse)
        return m_commandLine->setFocus();
    if (!std::exchange(m_wasConsoleShown, true))
        resizeDocks({m_commandDock, m_consoleDock}, {width() / 2, width() / 2}, Qt::Horizontal);
    m_consoleDock->raise();
    m_console->setFocus();
}

void MainWindow::evaluate(const QString &text)
{
    kernel::Document *active = document();
    if (!active || m_runner->isBusy())
        return m_console->print(active ? tr("\nA command is running; Esc stops it.\n") : tr("\nNo drawing is open.\n"));
    if (m_recorder)
        m_recorder->takeExpression(text);
    const QMetaObject::Connection printing =
        connect(active, &kernel::Document::printed, m_console, &LispConsole::print);
    const kernel::RunResult result = m_runner->evaluate(text);
    disconnect(printing);
    if (result.ok)
        m_console->print(u'\n' + result.value + u'\n');
    // A prompt has taken the keyboard to the command line.
    if (m_consoleDock->isVisible())
        m_console->setFocus();
}

} // namespace host::app
