#include "host/app/playback/SessionPlayer.h"

#include "host/app/playback/DialogSteps.h"
#include "host/app/playback/PlaybackText.h"
#include "host/app/playback/PromptAnswers.h"
#include "host/app/playback/SessionChecks.h"
#include "host/app/playback/SessionFiles.h"
#include "host/app/playback/WidgetFinder.h"
#include "host/app/workbench/DrawingPicture.h"
#include "host/kernel/documents/Session.h"

#include <QApplication>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

QString place(const Step &step)
{
    const QString part = step.place.isEmpty() ? QString() : u", "_s + step.place;
    return tr("line %1%2 (%3): ").arg(QString::number(step.line), part, step.source);
}

/// A parent for dialogs in a run without a window. It goes when the documents have gone.
void standInForWindow(kernel::Session &session)
{
    if (session.mainWindow())
        return;
    auto *window = new QWidget;
    QObject::connect(&session.documents(), &QObject::destroyed, window, [window] { delete window; });
    session.setMainWindow(window);
}

} // namespace

PlaybackResult runSession(const PlaybackScript &script, kernel::Document &document, const PlaybackOptions &options)
{
    PlaybackResult result;
    if (!script.errors.isEmpty()) {
        const ScriptError &error = script.errors.first();
        result.line = error.line;
        result.message = error.line > 0 ? tr("line %1: %2").arg(error.line).arg(error.message) : error.message;
        return result;
    }
    if (!script.cases.isEmpty()) {
        result.line = script.cases.first().line;
        result.message = tr("line %1: the session has cases, each of which wants the drawing opened anew")
                             .arg(script.cases.first().line);
        return result;
    }
    return runCase({0, {}, script.steps}, document, options);
}

PlaybackResult runSession(const QString &text, kernel::Document &document, const PlaybackOptions &options)
{
    return runSession(parsePlayback(text), document, options);
}

PlaybackResult runCase(const PlaybackCase &one, kernel::Document &document, const PlaybackOptions &options)
{
    standInForWindow(document.session());
    return SessionPlayer(one.steps, document, options).play();
}

SessionPlayer::SessionPlayer(QList<Step> steps, kernel::Document &document, const PlaybackOptions &options)
    : m_steps(std::move(steps)), m_document(document), m_options(options), m_values(options.variables)
{
    m_values.insert(u"DRAWING"_s, m_document.path());
    m_values.insert(u"HOME_DIR"_s, m_document.session().home());
    if (!m_options.outFolder.isEmpty())
        m_values.insert(u"OUT"_s, m_options.outFolder);
    connect(&m_document, &kernel::Document::printed, this, [this](const QString &text) { m_result.printed += text; });
    m_watchdog.setSingleShot(true);
    connect(&m_watchdog, &QTimer::timeout, this, [this] {
        const QWidget *open = frontWindow();
        fail(tr("the session took longer than %1 s; open is %2")
                 .arg(static_cast<double>(m_options.timeLimit.count()) / 1000.0)
                 .arg(open ? describeDialog(*open) : tr("no dialog")));
    });
}

SessionPlayer::~SessionPlayer() = default;

PlaybackResult SessionPlayer::play()
{
    kernel::Session &session = m_document.session();
    const bool hadNativeDialogs = !QCoreApplication::testAttribute(Qt::AA_DontUseNativeDialogs);
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    kernel::InputFeeder *const before = session.feeder();
    session.setFeeder(this);
    session.input().clear();
    session.documents().setActive(&m_document);
    session.documents().wishes().keep(&m_document);
    m_watchdog.start(m_options.timeLimit);
    playSteps();
    session.documents().wishes().keep(nullptr);
    session.input().clear();
    session.setFeeder(before);
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs, !hadNativeDialogs);
    m_result.ok = !hasFailed();
    return m_result;
}

void SessionPlayer::playSteps()
{
    if (!knowsAllNames())
        return;
    const auto comparesOpened = [](const Step &step) {
        return step.verb == Verb::ExpectChanges || step.verb == Verb::ExpectFileChanges;
    };
    if (std::any_of(m_steps.begin(), m_steps.end(), comparesOpened))
        m_opened = m_document.drawing().toBytes();
    while (next() && !hasFailed() && !m_result.wasLeft) {
        const Step step = take();
        if (!hasFailed())
            runStart(step);
    }
}

void SessionPlayer::fail(const QString &message)
{
    if (hasFailed())
        return;
    m_result.message = message;
    if (m_position > 0)
        m_result.line = m_steps[m_position - 1].line;
    m_document.session().input().clear();
    giveUp();
}

void SessionPlayer::failAt(const Step &step, const QString &message)
{
    if (hasFailed())
        return;
    fail(place(step) + message);
    m_result.line = step.line;
}

void SessionPlayer::rest()
{
    if (m_options.pace.count() == 0)
        return;
    QEventLoop loop;
    QTimer::singleShot(m_options.pace, &loop, &QEventLoop::quit);
    loop.exec();
}

Step SessionPlayer::take()
{
    rest();
    Step step = m_steps[m_position++];
    if (const QString error = fillIn(step, m_values); !error.isEmpty())
        failAt(step, error);
    return step;
}

/// Before anything is played: a name that no value will be given to.
bool SessionPlayer::knowsAllNames()
{
    QSet<QString> named;
    for (const Step &step : m_steps) {
        for (const QString &name : openNames(step)) {
            if (!m_values.contains(name) && !named.contains(name)) {
                failAt(step, tr("${%1} is not known").arg(name));
                return false;
            }
        }
        if (step.verb == Verb::Let)
            named.insert(step.word(0));
    }
    return true;
}

kernel::FeedResult SessionPlayer::feed(const kernel::PromptRequest &request, kernel::InputQueue &queue)
{
    if (m_options.showPrompt)
        m_options.showPrompt(request);
    const kernel::FeedResult result = answerPrompt(request, queue);
    if (m_options.showPrompt)
        m_options.showPrompt({});
    return result;
}

kernel::FeedResult SessionPlayer::answerPrompt(const kernel::PromptRequest &request, kernel::InputQueue &queue)
{
    const QString open = tr("the prompt \"%1\"").arg(request.prompt.simplified());
    if (!hasFailed() && isCancelledHere(open)) {
        queue.push(kernel::CancelAnswer{});
        return kernel::FeedResult::Supplied;
    }
    while (!hasFailed()) {
        if (!next()) {
            fail(tr("the session ends while %1 is open").arg(open));
            break;
        }
        const Step step = take();
        if (hasFailed())
            break;
        QString error;
        if (step.kind == VerbKind::Anywhere)
            error = check(step, nullptr);
        else if (step.kind == VerbKind::Answer)
            error = answer(step, queue);
        else
            error = tr("%1 is open").arg(open);
        if (!error.isEmpty())
            failAt(step, error);
        else if (step.kind == VerbKind::Answer)
            return kernel::FeedResult::Supplied;
    }
    return kernel::FeedResult::NobodyThere;
}

QString SessionPlayer::answer(const Step &step, kernel::InputQueue &queue)
{
    QString error;
    const kernel::InputAnswer answer = answerFor(step, m_document.drawing(), error);
    if (!error.isEmpty())
        return error;
    m_isAbandoned = step.verb == Verb::Abandon;
    m_wasCancelled = m_wasCancelled || m_isAbandoned || step.verb == Verb::Cancel;
    queue.push(answer);
    return {};
}

bool SessionPlayer::poll()
{
    QCoreApplication::processEvents();
    return hasFailed();
}

DialogDriver::Reaction SessionPlayer::handleWindow(QWidget &window, Acquaintance acquaintance)
{
    const bool looks = next() && next()->kind == VerbKind::Anywhere;
    const bool opens = acquaintance == Acquaintance::New && !looks;
    if (m_isAbandoned || (opens && isCancelledHere(describeDialog(window))))
        return Reaction::Reject;
    if (!next()) {
        fail(tr("the session ends while %1 is open").arg(describeDialog(window)));
        return Reaction::GiveUp;
    }
    const Step step = take();
    if (hasFailed())
        return Reaction::GiveUp;
    if (const QString error = actOn(window, acquaintance, step); !error.isEmpty())
        failAt(step, error);
    if (hasFailed())
        return Reaction::GiveUp;
    return step.kind == VerbKind::Anywhere ? Reaction::Looked : Reaction::Done;
}

QString SessionPlayer::actOn(QWidget &window, Acquaintance acquaintance, const Step &step)
{
    if (step.kind == VerbKind::Anywhere)
        return check(step, &window);
    if (step.verb == Verb::Abandon) {
        m_isAbandoned = m_wasCancelled = true;
        return {};
    }
    if (acquaintance == Acquaintance::New)
        return meet(window, step);
    if (step.kind == VerbKind::Widget)
        return workIn(window, step);
    return tr("%1 is still open").arg(describeDialog(window));
}

CheckedState SessionPlayer::checkedState() const
{
    return {m_document, m_options, m_result.printed.sliced(m_printedBefore), m_opened, m_before};
}

QString SessionPlayer::check(const Step &step, QWidget *window)
{
    if (step.verb == Verb::View)
        return show(step);
    return step.verb == Verb::Screenshot ? screenshot(step, window) : checkState(step, checkedState());
}

/// The whole box is seen, whatever shape the canvas has.
QString SessionPlayer::show(const Step &step)
{
    const auto &[from, to] = std::pair(step.points[0], step.points[1]);
    kernel::ViewState view = m_document.view();
    const double shape = view.pixels.isEmpty() ? 0.0 : double(view.pixels.height()) / view.pixels.width();
    const double height = std::max(std::abs(to[1] - from[1]), std::abs(to[0] - from[0]) * shape);
    if (!(height > 0.0) || !std::isfinite(height))
        return tr("a view needs two corners");
    view.centre = {(from[0] + to[0]) / 2.0, (from[1] + to[1]) / 2.0};
    view.height = height;
    m_document.setView(view);
    return {};
}

QString SessionPlayer::screenshot(const Step &step, QWidget *window)
{
    QString error;
    const bool hasPictureFolder = !m_options.pictureFolder.isEmpty();
    const QString path =
        placeOfFile(hasPictureFolder ? m_options.pictureFolder : m_options.outFolder, step.word(0), error);
    if (!error.isEmpty())
        return error;
    QWidget *const main = m_document.session().mainWindow();
    if (!window && main && main->isVisible())
        window = main;
    if (window) {
        error = writeWidgetPicture(*window, path);
    } else {
        const view::ExportResult written =
            writeDrawingPicture(m_document, path, [this](const QString &reference, const drawing::ReadingNotes &notes) {
                m_result.references.insert_or_assign(reference, notes);
            });
        error = written.error;
        if (written && !written.report.isWhole())
            m_result.incomplete.emplace_back(path, written.report);
    }
    if (error.isEmpty())
        m_result.files.append(path);
    return error;
}

} // namespace host::app
