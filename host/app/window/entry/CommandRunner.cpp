#include "host/app/window/entry/CommandRunner.h"

#include "host/app/window/entry/CommandLine.h"
#include "host/kernel/running/CommandTable.h"

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

/// The panel that a command opens where a person enters it by itself; empty for other lines. Programs, scripts and
/// sessions get the command, which asks.
QString panelOf(const QString &text, kernel::Document &document)
{
    struct PanelCommand
    {
        QStringView command;
        QStringView panel;
    };
    static constexpr PanelCommand commands[] = {{u"LAYER", u"layersPanel"}, {u"PROPERTIES", u"propertiesPanel"}};
    const QString typed = text.trimmed();
    if (typed.isEmpty() || typed.contains(u' ') || typed.startsWith(u'(') || document.isLispCommand(typed))
        return {};
    const QString plain = kernel::CommandTable::plainName(document.commandOfAlias(typed));
    for (const PanelCommand &row : commands)
        if (plain.compare(row.command, Qt::CaseInsensitive) == 0)
            return row.panel.toString();
    return {};
}

} // namespace

CommandRunner::CommandRunner(kernel::Session &session, CommandLine &commandLine)
    : m_session(session), m_commandLine(commandLine), m_feeder(session.input())
{
    m_session.setFeeder(&m_feeder);
    connect(&m_feeder, &WindowFeeder::requestChanged, this, [this] { showRequest(m_feeder.request()); });
    connect(&session.input(), &kernel::InputQueue::taken, this, &CommandRunner::rememberCommand);
}

CommandRunner::~CommandRunner()
{
    m_session.setFeeder(nullptr);
}

bool CommandRunner::isBusy() const
{
    const auto &documents = m_session.documents().documents();
    return m_isRunning ||
           std::any_of(documents.begin(), documents.end(), [](const auto &open) { return open->isBusy(); });
}

void CommandRunner::enter(const QString &text)
{
    kernel::InputQueue &queue = m_session.input();
    if (m_feeder.request()) {
        queue.pushTyped(text);
    } else if (isBusy()) {
        m_commandLine.print(tr("\nA command is running; Esc stops it.\n"));
    } else if (!document()) {
        m_commandLine.print(tr("\nNo drawing is open.\n"));
    } else if (const QString panel = panelOf(text, *document()); queue.isEmpty() && !panel.isEmpty()) {
        emit panelWanted(panel);
    } else {
        run([&] {
            queue.pushTyped(text);
            return kernel::RunResult();
        });
    }
}

kernel::RunResult CommandRunner::evaluate(const QString &text)
{
    kernel::RunResult result;
    m_session.input().clear();
    run([&] { return result = document()->run(text, u"console"_s); });
    return result;
}

void CommandRunner::answer(const kernel::InputAnswer &answer)
{
    if (m_feeder.request())
        m_session.input().push(answer);
}

void CommandRunner::run(const std::function<kernel::RunResult()> &begin)
{
    m_isRunning = true;
    m_feeder.forgetCancel();
    emit stateChanged();
    // What a run chooses itself stays chosen; what was chosen for it does not.
    bool hasChosen = false;
    QObject here;
    if (document())
        connect(document(), &kernel::Document::impliedSelectionChanged, &here, [&hasChosen] { hasChosen = true; });
    const kernel::RunResult begun = begin();
    const kernel::RunResult queued = m_session.runQueue();
    emit ranTo(begun.ok ? queued : begun);
    m_isRunning = false;
    const bool isUnfinished = !m_session.input().isEmpty();
    m_commandLine.setUnfinished(isUnfinished);
    m_commandLine.setPrompt(isUnfinished ? tr("(_>") : tr("Command:"));
    if (document() && !hasChosen && !document()->impliedSelection().empty())
        document()->setImpliedSelection({});
    emit stateChanged();
    emit ended();
}

PlaybackResult CommandRunner::play(const PlaybackScript &script, PlaybackOptions options)
{
    if (isBusy() || !document())
        return {.ok = false, .line = 0, .message = tr("No session can be played now."), .printed = {}, .files = {}};
    m_isRunning = true;
    emit stateChanged();
    // What a line does in a panel is a person's work, between two runs of the session.
    options.workInPanel = [this](const std::function<void()> &work) {
        m_isRunning = false;
        emit stateChanged();
        work();
        m_isRunning = true;
    };
    options.showPrompt = [this](const std::optional<kernel::PromptRequest> &request) { showRequest(request); };
    PlaybackResult result = runSession(script, *document(), options);
    m_isRunning = false;
    if (!result.ok)
        m_commandLine.print(u'\n' + result.message + u'\n');
    emit stateChanged();
    emit ended();
    return result;
}

void CommandRunner::cancel()
{
    m_feeder.cancel();
    if (isBusy())
        return;
    m_session.input().clear();
    m_commandLine.setUnfinished(false);
    m_commandLine.setPrompt(tr("Command:"));
    if (document())
        document()->setImpliedSelection({});
}

bool CommandRunner::takesCommand() const
{
    using enum kernel::PromptKind;
    const std::optional<kernel::PromptRequest> &request = m_feeder.request();
    return request && request->kind != Command && request->kind != String && request->kind != Event &&
           !request->isTransparent;
}

void CommandRunner::start(const QString &line)
{
    if (takesCommand())
        return enter(u'\'' + line);
    if (!document() || isBusy())
        return;
    // The rest of an expression that was begun at the command line is not what the menu means.
    m_session.input().clear();
    enter(line);
}

void CommandRunner::startWith(const QString &line, const std::vector<kernel::InputAnswer> &answers)
{
    if (!document() || isBusy())
        return;
    m_session.input().clear();
    run([&] {
        m_session.input().pushTyped(line);
        for (const kernel::InputAnswer &answer : answers)
            m_session.input().push(answer);
        return kernel::RunResult();
    });
}

void CommandRunner::rememberCommand(const kernel::PromptRequest &request, const kernel::InputAnswer &answer)
{
    const auto *typed = std::get_if<kernel::TextAnswer>(&answer);
    if (!typed || request.kind != kernel::PromptKind::Command)
        return;
    const QString name = typed->text.trimmed();
    if (!name.isEmpty() && name.front() != u'(' && name.front() != u'!')
        m_lastCommand = name.toUpper();
}

void CommandRunner::showRequest(const std::optional<kernel::PromptRequest> &request)
{
    emit requestChanged(request);
    const bool takesBlanks = request && request->kind == kernel::PromptKind::String && request->allowSpaces;
    m_commandLine.setSpace(takesBlanks ? CommandLine::Space::IsText : CommandLine::Space::Enters);
    m_commandLine.setPrompt(request ? request->prompt : tr("Command:"));
    // Keys are for a program that waits for events, not for the line.
    if (!request || request->kind != kernel::PromptKind::Event)
        m_commandLine.setFocus();
    emit stateChanged();
}

} // namespace host::app
