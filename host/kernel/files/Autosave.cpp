#include "host/kernel/files/Autosave.h"

#include "host/kernel/documents/Document.h"
#include "host/kernel/documents/Session.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

/// Writing takes at most one part in so many of the time.
constexpr qint64 restsPerWriting = 9;

QString usualRecoveryFolder(const Session &session)
{
    return QDir(session.home()).filePath(u"recovery"_s);
}

/// What SAVETIME allows a change to wait; nothing when it turns copies off.
std::optional<std::chrono::milliseconds> longestWanted(Session &session)
{
    constexpr int usualMinutes = 10;
    const std::optional<QString> text = session.userVariables().text(u"SAVETIME"_s);
    const int minutes = text ? text->toInt() : usualMinutes;
    return minutes > 0 ? std::optional<std::chrono::milliseconds>(std::chrono::minutes(minutes)) : std::nullopt;
}

RecoveryNote recoveryNoteOf(Document &document)
{
    return {.title = document.title(),
            .path = document.path(),
            .time = QDateTime::currentDateTimeUtc(),
            .isBinary = document.drawing().form() == drawing::FileForm::Binary,
            .base = document.claim().base()};
}

/// What the drawing is now, as long as it lives: records that change get other bytes.
std::vector<QByteArrayView> piecesOf(const drawing::Drawing &drawing)
{
    std::vector<QByteArrayView> pieces;
    drawing.forEachPiece([&](QByteArrayView piece) {
        pieces.push_back(piece);
        return true;
    });
    return pieces;
}

} // namespace

Autosave::Autosave(Session &session, const AutosavePace &pace) : m_session(session), m_pace(pace)
{
    m_pool.setMaxThreadCount(1);
    connect(&session.documents(), &DocumentManager::aboutToClose, this, &Autosave::forget);
    connect(&m_timer, &QTimer::timeout, this, &Autosave::look);
    m_timer.start(pace.look);
}

Autosave::~Autosave()
{
    waitForWriting();
    for (auto &[document, state] : m_states)
        drop(*document, state);
}

QString Autosave::folderOf(Session &session)
{
    const QString wanted = session.userVariables().text(u"SAVEFILEPATH"_s).value_or(QString());
    return QDir::isAbsolutePath(wanted) ? QDir::cleanPath(wanted) : usualRecoveryFolder(session);
}

QList<RecoveryFile> Autosave::left(Session &session)
{
    const QString usual = usualRecoveryFolder(session);
    QList<RecoveryFile> found = RecoveryCopy::leftIn(usual);
    if (const QString folder = folderOf(session); folder != usual)
        found += RecoveryCopy::leftIn(folder);
    return found;
}

void Autosave::adopt(Document &document, std::unique_ptr<RecoveryCopy> copy)
{
    State &state = m_states[&document];
    state.copy = std::move(copy);
    state.copied = state.seen = document.drawing().revision();
    document.setCopyFile(state.copy->file());
}

void Autosave::look()
{
    for (const auto &document : m_session.documents().documents()) {
        State &state = m_states[document.get()];
        if (!document->isModified()) {
            // What is being written would come back.
            if (m_written != document.get())
                drop(*document, state);
        } else if (isDue(*document, state) && !m_written) {
            copy(*document, state);
        }
    }
}

bool Autosave::isDue(Document &document, State &state)
{
    const quint64 revision = document.drawing().revision();
    if (state.copied == revision)
        return false;
    if (!std::exchange(state.isWaiting, true))
        state.first.start();
    if (!state.last.isValid() || std::exchange(state.seen, revision) != revision)
        state.last.start();
    const auto wanted = longestWanted(m_session);
    if (!wanted || (m_rest.isValid() && !m_rest.hasExpired(m_restWanted)))
        return false;
    return state.last.hasExpired(m_pace.pause.count()) ||
           state.first.hasExpired(std::min(m_pace.longest, *wanted).count());
}

void Autosave::copy(Document &document, State &state)
{
    if (!state.copy)
        state.copy = RecoveryCopy::begin(folderOf(m_session), document.title());
    const quint64 revision = document.drawing().revision();
    if (!state.copy)
        return finish(&document, revision,
                      tr("the folder %1 takes no files").arg(QDir::toNativeSeparators(folderOf(m_session))));
    m_written = &document;
    m_isStopped = false;
    // The copy stays as long as it is being written.
    m_pool.start([this, copy = state.copy.get(), pieces = piecesOf(document.drawing()), note = recoveryNoteOf(document),
                  document = &document, revision, job = ++m_job] {
        QElapsedTimer time;
        time.start();
        const QString problem = copy->write(pieces, note, m_isStopped);
        QMetaObject::invokeMethod(this, [this, document, revision, problem, job, took = time.elapsed()] {
            if (!m_written || job != m_job)
                return; // it was waited for
            m_restWanted = took * restsPerWriting;
            finish(document, revision, problem);
        });
    });
}

void Autosave::finish(Document *document, quint64 revision, const QString &problem)
{
    m_written = nullptr;
    m_rest.start();
    State &state = m_states[document];
    // Also after a failure: it is tried again with the next change, or after the longest time.
    state.isWaiting = false;
    state.last.invalidate();
    if (problem.isEmpty()) {
        state.copied = revision;
        document->setCopyFile(state.copy->file());
        emit copied(document);
    }
    if (std::exchange(state.problem, problem) != problem && !problem.isEmpty())
        emit failed(document, problem);
}

void Autosave::waitForWriting()
{
    m_isStopped = true;
    m_pool.waitForDone();
    m_written = nullptr;
}

void Autosave::forget(Document *document)
{
    if (m_written == document)
        waitForWriting();
    if (const auto found = m_states.find(document); found != m_states.end()) {
        drop(*document, found->second);
        m_states.erase(found);
    }
}

void Autosave::drop(Document &document, State &state)
{
    if (state.copy) {
        state.copy->remove();
        document.setCopyFile({});
    }
    state = {};
}

} // namespace host::kernel
