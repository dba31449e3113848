#include "host/app/playback/DialogSteps.h"
#include "host/app/playback/PlaybackText.h"
#include "host/app/playback/PlaybackVerbs.h"
#include "host/app/playback/SessionChecks.h"
#include "host/app/playback/SessionFiles.h"
#include "host/app/playback/SessionPlayer.h"
#include "host/kernel/documents/Session.h"

#include <QAbstractEventDispatcher>
#include <QFileInfo>

// What a session does between commands: its runs, and the lines around them.

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

bool isRun(Verb verb)
{
    return verb == Verb::Command || verb == Verb::Lisp;
}

/// A value as Lisp prints it, strings without what they are written with.
QString withoutQuotes(const QString &printed)
{
    QStringView rest(printed);
    QString word;
    return printed.startsWith(u'"') && takeWord(rest, word) ? word : printed;
}

/// What a panel does may come by posted events.
void settlePanel()
{
    constexpr int mostRounds = 20;
    QAbstractEventDispatcher *events = QAbstractEventDispatcher::instance();
    for (int round = 0; round < mostRounds && events->processEvents(QEventLoop::AllEvents); ++round) {
    }
}

} // namespace

void SessionPlayer::runStart(const Step &step)
{
    QString error;
    switch (step.verb) {
    case Verb::Command:
    case Verb::Lisp:
        runProgram(step);
        return;
    case Verb::CancelEach:
        rehearse(step);
        return;
    case Verb::Undo:
    case Verb::Redo:
        error = undoOrRedo(step.verb);
        break;
    case Verb::Save:
        error = save(step);
        break;
    case Verb::Write:
        error = writeText(step, m_options);
        break;
    case Verb::Let:
        error = let(step);
        break;
    case Verb::OnlyIf:
        error = onlyIf(step);
        break;
    case Verb::Panel:
        error = enterPanel(step);
        break;
    case Verb::ExpectLisp:
        error = expectLisp(step);
        break;
    case Verb::ExpectError:
        error = tr("the run before it ended without an error");
        break;
    case Verb::ExpectUndo:
        error = checkUndo(checkedState());
        break;
    default:
        error = step.kind == VerbKind::Anywhere ? check(step, nullptr)
                : m_panel && step.kind == VerbKind::Widget
                    ? actInPanel(step)
                    : tr("no prompt and no dialog is open that this could be meant for");
    }
    if (!error.isEmpty())
        failAt(step, error);
}

QString SessionPlayer::enterPanel(const Step &step)
{
    QWidget *const window = m_document.session().mainWindow();
    m_panel = window && m_options.workInPanel ? window->findChild<QWidget *>(step.word(0)) : nullptr;
    if (!m_panel)
        return tr("there is no panel \"%1\"").arg(step.word(0));
    m_options.workInPanel([this] {
        m_panel->show();
        m_panel->raise();
        settlePanel();
    });
    return {};
}

QString SessionPlayer::actInPanel(const Step &step)
{
    const bool looks = QByteArrayView(rowOf(step.verb).name).startsWith("expect");
    if (!looks) {
        m_printedBefore = m_result.printed.size();
        m_before = comparesRun() ? m_document.drawing().toBytes() : QByteArray();
    }
    QString error;
    m_options.workInPanel([&] {
        error = workIn(*m_panel, step);
        settlePanel();
    });
    return error;
}

void SessionPlayer::runProgram(const Step &step)
{
    m_printedBefore = m_result.printed.size();
    m_wasCancelled = m_isAbandoned = false;
    m_before = m_rehearsal || comparesRun() ? m_document.drawing().toBytes() : QByteArray();
    const kernel::RunResult result = withScript(step.verb == Verb::Lisp ? m_document.run(step.word(0), u"session"_s)
                                                                        : m_document.runCommand(step.word(0)));
    if (m_rehearsal && !m_rehearsal->cancelled.isEmpty())
        finishCancelled(step, result);
    else
        finishRun(step, result);
}

/// Plays the run that follows once for each prompt and window that it opens, cancelled there, and then as it is: that
/// is when nothing was left to cancel.
void SessionPlayer::rehearse(const Step &step)
{
    if (!next() || !isRun(next()->verb))
        return failAt(step, tr("it stands in front of a command or lisp"));
    const qsizetype start = m_position;
    m_rehearsal = Rehearsal{};
    for (bool wasCancelled = true; wasCancelled && !hasFailed(); ++m_rehearsal->cancelAt) {
        m_position = start;
        m_rehearsal->opened = 0;
        m_rehearsal->cancelled.clear();
        if (const Step run = take(); !hasFailed())
            runProgram(run);
        wasCancelled = !m_rehearsal->cancelled.isEmpty();
    }
    m_rehearsal.reset();
}

/// Whether a prompt or window that opens now is to be cancelled.
bool SessionPlayer::isCancelledHere(const QString &what)
{
    if (m_isAbandoned)
        return true;
    if (!m_rehearsal || m_rehearsal->opened++ != m_rehearsal->cancelAt)
        return false;
    m_rehearsal->cancelled = what;
    m_isAbandoned = true;
    return true;
}

/// What a script typed belongs to the run that read it, also where it went on in another drawing.
kernel::RunResult SessionPlayer::withScript(const kernel::RunResult &result)
{
    kernel::Session &session = m_document.session();
    kernel::DocumentManager &documents = session.documents();
    if (!result.ok || (session.input().isEmpty() && documents.wishes().isEmpty()))
        return result;
    const kernel::RunResult last = session.runQueue();
    session.input().clear();
    documents.setActive(&m_document);
    return last.ok ? result : last;
}

void SessionPlayer::finishRun(const Step &step, const kernel::RunResult &result)
{
    if (hasFailed())
        return;
    if (next() && next()->verb == Verb::ExpectError && !result.ok) {
        const Step expected = take();
        if (!containsText(result.error, expected.word(0)))
            failAt(expected, tr("the error is \"%1\"").arg(result.error));
        return;
    }
    if (!result.ok && !m_wasCancelled)
        failAt(step, tr("the run ended with \"%1\"").arg(result.error));
}

/// A cancelled run may end with the error that says so, and with no other.
void SessionPlayer::finishCancelled(const Step &step, const kernel::RunResult &result)
{
    const QString where = tr("cancelled at %1, ").arg(m_rehearsal->cancelled);
    if (!result.ok && !result.isCancelled())
        return failAt(step, where + tr("the run ended with \"%1\"").arg(result.error));
    const QByteArray bytes = m_document.drawing().toBytes();
    if (bytes != m_before)
        failAt(step, where + tr("the drawing differs from what it was: %1").arg(describeDifferences(m_before, bytes)));
}

QString SessionPlayer::undoOrRedo(Verb verb)
{
    const bool isUndo = verb == Verb::Undo;
    const int done = isUndo ? m_document.undoSteps().undo() : m_document.undoSteps().redo();
    if (done > 0)
        return {};
    return isUndo ? tr("there is nothing to undo") : tr("there is nothing to redo");
}

QString SessionPlayer::save(const Step &step)
{
    QString error;
    const QString name =
        step.words.isEmpty() ? QFileInfo(m_document.title()).completeBaseName() + u".dxf"_s : step.word(0);
    const QString path = placeOfFile(m_options.outFolder, name, error);
    if (!error.isEmpty())
        return error;
    const drawing::SaveResult saved = m_document.saveAs(path);
    if (saved)
        m_result.files.append(path);
    return saved.error;
}

kernel::RunResult SessionPlayer::evaluate(const QString &expression, QString &error)
{
    m_wasCancelled = false;
    const kernel::RunResult result = withScript(m_document.run(expression, u"session"_s));
    if (!result.ok)
        error = tr("the run ended with \"%1\"").arg(result.error);
    return result;
}

QString SessionPlayer::expectLisp(const Step &step)
{
    QString error;
    const kernel::RunResult result = evaluate(step.word(0), error);
    return error.isEmpty() && result.value == "nil"_L1 ? tr("it is nil") : error;
}

QString SessionPlayer::let(const Step &step)
{
    QString error;
    m_values.insert(step.word(0), withoutQuotes(evaluate(step.word(1), error).value));
    return error;
}

QString SessionPlayer::onlyIf(const Step &step)
{
    QString error;
    m_result.wasLeft = evaluate(step.word(0), error).value == "nil"_L1;
    return error;
}

/// Whether a line behind the run that begins compares the drawing with what it is now. Taking its bytes is not free.
bool SessionPlayer::comparesRun() const
{
    for (qsizetype i = m_position; i < m_steps.size() && !isRun(m_steps[i].verb); ++i)
        if (m_steps[i].verb == Verb::ExpectUndo || m_steps[i].verb == Verb::ExpectUnchanged)
            return true;
    return false;
}

} // namespace host::app
