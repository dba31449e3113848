#include "host/app/playback/SessionPlayer.h"

#include "host/app/playback/DialogSteps.h"
#include "host/app/playback/PlaybackText.h"
#include "host/app/playback/WidgetFinder.h"
#include "host/app/workbench/DrawingPicture.h"
#include "host/drawing/geometry/EntityGeometry.h"
#include "host/drawing/records/Entities.h"
#include "host/kernel/documents/Session.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

drawing::Vec3 toVec(const std::array<double, 3> &point)
{
    return {point[0], point[1], point[2]};
}

QString place(const Step &step)
{
    return tr("line %1 (%2): ").arg(step.line).arg(step.source);
}

/// A point to show an entity by, when the session gives none.
drawing::Vec3 pointOn(const drawing::Drawing &drawing, drawing::RecordId entity)
{
    for (const auto &piece : drawing::entityOutline(drawing, entity).pieces)
        if (!piece.points.empty())
            return piece.points.front();
    return {};
}

/// Corners in the order that says whether the box takes what lies within or also what it crosses.
kernel::WindowAnswer box(drawing::Vec3 left, drawing::Vec3 right, Verb verb)
{
    if (left.x > right.x)
        std::swap(left, right);
    return verb == Verb::Window ? kernel::WindowAnswer{left, right} : kernel::WindowAnswer{right, left};
}

/// Where the ${NAME}s of a text begin.
const QRegularExpression &variablePattern()
{
    static const QRegularExpression pattern(u"\\$\\{([^}]*)\\}"_s);
    return pattern;
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
    if (!script.errors.isEmpty()) {
        const ScriptError &error = script.errors.first();
        PlaybackResult result;
        result.line = error.line;
        result.message = error.line > 0 ? tr("line %1: %2").arg(error.line).arg(error.message) : error.message;
        return result;
    }
    standInForWindow(document.session());
    return SessionPlayer(script.steps, document, options).play();
}

PlaybackResult runSession(const QString &text, kernel::Document &document, const PlaybackOptions &options)
{
    return runSession(parsePlayback(text), document, options);
}

SessionPlayer::SessionPlayer(QList<Step> steps, kernel::Document &document, const PlaybackOptions &options)
    : m_steps(std::move(steps)), m_document(document), m_options(options)
{
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
    m_watchdog.start(m_options.timeLimit);
    if (substituteVariables())
        while (next() && !hasFailed())
            runStart(take());
    session.input().clear();
    session.setFeeder(before);
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs, !hadNativeDialogs);
    m_result.ok = !hasFailed();
    return m_result;
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

bool SessionPlayer::substituteVariables()
{
    QHash<QString, QString> values = m_options.variables;
    values.insert(u"DRAWING"_s, m_document.path());
    values.insert(u"HOME_DIR"_s, m_document.session().home());
    if (!m_options.outFolder.isEmpty())
        values.insert(u"OUT"_s, m_options.outFolder);
    for (Step &step : m_steps) {
        for (QString &word : step.words) {
            qsizetype from = 0;
            for (auto match = variablePattern().match(word); match.hasMatch();
                 match = variablePattern().match(word, from)) {
                const auto value = values.constFind(match.captured(1));
                if (value == values.constEnd()) {
                    failAt(step, tr("%1 is not known").arg(match.captured(0)));
                    return false;
                }
                word.replace(match.capturedStart(), match.capturedLength(), *value);
                from = match.capturedStart() + value->size();
            }
        }
    }
    return true;
}

void SessionPlayer::runStart(const Step &step)
{
    QString error;
    switch (step.verb) {
    case Verb::Command:
    case Verb::Lisp:
        runProgram(step);
        return;
    case Verb::Undo:
    case Verb::Redo:
        error = undoOrRedo(step.verb);
        break;
    case Verb::Save:
        error = save(step);
        break;
    case Verb::ExpectLisp:
        error = expectLisp(step);
        break;
    case Verb::ExpectError:
        error = tr("the run before it ended without an error");
        break;
    default:
        error = step.kind == VerbKind::Anywhere ? check(step, nullptr)
                                                : tr("no prompt and no dialog is open that this could be meant for");
    }
    if (!error.isEmpty())
        failAt(step, error);
}

void SessionPlayer::runProgram(const Step &step)
{
    m_printedBefore = m_result.printed.size();
    m_wasCancelled = false;
    finishRun(step, withScript(step.verb == Verb::Lisp ? m_document.run(step.word(0), u"session"_s)
                                                       : m_document.runCommand(step.word(0))));
}

/// What a script typed belongs to the run that read it.
kernel::RunResult SessionPlayer::withScript(const kernel::RunResult &result)
{
    kernel::Session &session = m_document.session();
    if (!result.ok || session.input().isEmpty())
        return result;
    const kernel::RunResult last = session.runQueue();
    session.input().clear();
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
    const QString path = outputPath(m_options.outFolder, name, error);
    if (!error.isEmpty())
        return error;
    const drawing::SaveResult saved = m_document.saveAs(path);
    if (saved)
        m_result.files.append(path);
    return saved.error;
}

QString SessionPlayer::expectLisp(const Step &step)
{
    m_wasCancelled = false;
    const kernel::RunResult result = withScript(m_document.run(step.word(0), u"session"_s));
    if (!result.ok)
        return tr("the run ended with \"%1\"").arg(result.error);
    return result.value == "nil"_L1 ? tr("it is nil") : QString();
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
    while (!hasFailed()) {
        const QString open = tr("the prompt \"%1\"").arg(request.prompt.simplified());
        if (!next()) {
            fail(tr("the session ends while %1 is open").arg(open));
            break;
        }
        const Step step = take();
        QString error;
        if (step.kind == VerbKind::Anywhere) {
            error = check(step, nullptr);
        } else if (step.kind == VerbKind::Answer) {
            const kernel::InputAnswer answer = answerFor(step, error);
            if (error.isEmpty()) {
                queue.push(answer);
                return kernel::FeedResult::Supplied;
            }
        } else {
            error = tr("%1 is open").arg(open);
        }
        if (!error.isEmpty())
            failAt(step, error);
    }
    return kernel::FeedResult::NobodyThere;
}

kernel::InputAnswer SessionPlayer::answerFor(const Step &step, QString &error)
{
    switch (step.verb) {
    case Verb::Answer:
        return kernel::TextAnswer{step.word(0)};
    case Verb::Point:
        return kernel::TextAnswer{step.word(0)};
    case Verb::Pick:
        return kernel::PointAnswer{toVec(step.points.first())};
    case Verb::Window:
    case Verb::Crossing:
        return box(toVec(step.points[0]), toVec(step.points[1]), step.verb);
    case Verb::Cancel:
        m_wasCancelled = true;
        return kernel::CancelAnswer{};
    case Verb::Enter:
        return kernel::TextAnswer{};
    default:
        break;
    }
    static const QStringList wordsForSets = {u"all"_s, u"last"_s, u"previous"_s};
    if (step.words.size() == 1 && step.verb == Verb::Select && wordsForSets.contains(step.word(0).toLower()))
        return kernel::TextAnswer{step.word(0).toUpper()};
    const drawing::Drawing &drawing = m_document.drawing();
    kernel::EntitiesAnswer entities;
    for (const QString &word : step.verb == Verb::Select ? step.words : step.words.first(1)) {
        const drawing::RecordId record = drawing.find(drawing::Handle{word.toULongLong(nullptr, 16)});
        if (!drawing::isValid(record) || !drawing.isAlive(record)) {
            error = tr("the drawing has no entity with the handle %1").arg(word);
            return kernel::CancelAnswer{};
        }
        entities.entities.push_back(record);
    }
    if (step.verb == Verb::Select)
        return entities;
    const drawing::RecordId picked = entities.entities.front();
    return kernel::EntityAnswer{picked, step.points.isEmpty() ? pointOn(drawing, picked) : toVec(step.points.first())};
}

bool SessionPlayer::poll()
{
    QCoreApplication::processEvents();
    return hasFailed();
}

DialogDriver::Reaction SessionPlayer::handleWindow(QWidget &window, Acquaintance acquaintance)
{
    if (!next()) {
        fail(tr("the session ends while %1 is open").arg(describeDialog(window)));
        return Reaction::GiveUp;
    }
    const Step step = take();
    QString error;
    if (step.kind == VerbKind::Anywhere)
        error = check(step, &window);
    else if (acquaintance == Acquaintance::New)
        error = meet(window, step);
    else if (step.kind == VerbKind::Widget)
        error = workIn(window, step);
    else
        error = tr("%1 is still open").arg(describeDialog(window));
    if (!error.isEmpty())
        failAt(step, error);
    if (hasFailed())
        return Reaction::GiveUp;
    return step.kind == VerbKind::Anywhere ? Reaction::Looked : Reaction::Done;
}

QString SessionPlayer::check(const Step &step, QWidget *window)
{
    switch (step.verb) {
    case Verb::ExpectPrinted:
        return expectPrinted(step.word(0));
    case Verb::ExpectModified:
        return expectState(m_document.isModified(), step.word(0),
                           m_document.isModified() ? tr("the drawing was changed") : tr("the drawing is unchanged"));
    case Verb::ExpectCount:
        return expectCount(step);
    default:
        return screenshot(step, window);
    }
}

QString SessionPlayer::expectPrinted(const QString &text) const
{
    const QString printed = m_result.printed.sliced(m_printedBefore);
    return containsText(printed, text) ? QString() : tr("what was printed is \"%1\"").arg(printed.simplified());
}

QString SessionPlayer::expectCount(const Step &step) const
{
    const drawing::Drawing &drawing = m_document.drawing();
    const QByteArray type = step.word(0).toUpper().toLatin1();
    const auto all = drawing.entities().all();
    const auto count = std::count_if(
        all.begin(), all.end(), [&](drawing::RecordId entity) { return type == "*" || drawing.isType(entity, type); });
    return count == step.word(1).toInt() ? QString() : tr("there are %1").arg(count);
}

QString SessionPlayer::outputPath(const QString &folder, const QString &name, QString &error) const
{
    if (QDir::isAbsolutePath(name))
        return name;
    if (folder.isEmpty())
        error = tr("no folder was given to write to (--out)");
    return QDir(folder).filePath(name);
}

QString SessionPlayer::screenshot(const Step &step, QWidget *window)
{
    QString error;
    const bool hasPictureFolder = !m_options.pictureFolder.isEmpty();
    const QString path =
        outputPath(hasPictureFolder ? m_options.pictureFolder : m_options.outFolder, step.word(0), error);
    if (!error.isEmpty())
        return error;
    QWidget *const main = m_document.session().mainWindow();
    if (!window && main && main->isVisible())
        window = main;
    if (window) {
        error = writeWidgetPicture(*window, path);
    } else {
        const view::ExportResult written = writeDrawingPicture(m_document, path);
        error = written.error;
        if (written && !written.report.isWhole())
            m_result.incomplete.emplace_back(path, written.report);
    }
    if (error.isEmpty())
        m_result.files.append(path);
    return error;
}

} // namespace host::app
