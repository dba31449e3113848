#pragma once

#include "host/kernel/files/RecoveryCopy.h"

#include <QElapsedTimer>
#include <QObject>
#include <QThreadPool>
#include <QTimer>

#include <chrono>
#include <map>

namespace host::kernel {

class Document;
class Session;

/// When drawings are copied.
struct AutosavePace
{
    std::chrono::milliseconds look{1000};      ///< how often it is seen whether a drawing has changed
    std::chrono::milliseconds pause{3000};     ///< a drawing that nobody changes for so long is copied
    std::chrono::milliseconds longest{20'000}; ///< no change waits longer for it, also while a program runs
};

/// Keeps copies of the session's changed drawings, so that of a process that is killed no more than the last half
/// minute is missing. They lie in the folder SAVEFILEPATH, or "recovery" of the user's data; SAVEFILE is a document's
/// own. SAVETIME counts as the longest time that a change may wait, and with 0 nothing is copied.
///
/// A copy is what the drawing was at one moment; taking note of that costs a pass over its records (about 0.1 s for a
/// million of them), and the file is written on a thread of its own. One that takes long to write has longer pauses:
/// writing takes at most a tenth of the time.
///
/// The copy of a drawing goes when the drawing is saved, has no changes any more, or is closed; with this object all of
/// them go.
class KV_EXPORT Autosave final : public QObject
{
    Q_OBJECT

public:
    /// The session must outlive it.
    explicit Autosave(Session &session, const AutosavePace &pace = {});
    ~Autosave() override;

    /// The folder of the copies, whether or not it is there.
    static QString folderOf(Session &session);
    /// Where copies may be that were left behind: that folder, and the usual one.
    static QList<RecoveryFile> left(Session &session);
    /// The document was made of this copy, and holds what it holds.
    void adopt(Document &document, std::unique_ptr<RecoveryCopy> copy);

signals:
    /// The document could not be copied, for this reason; told once for each reason.
    void failed(host::kernel::Document *document, const QString &reason);
    /// The document's copy holds what the document held a moment ago.
    void copied(host::kernel::Document *document);

private:
    /// What is known of a document's copy.
    struct State
    {
        std::unique_ptr<RecoveryCopy> copy; ///< null without one
        std::optional<quint64> copied;      ///< revision of the drawing that it holds
        quint64 seen = 0;                   ///< revision at the last look
        bool isWaiting = false;             ///< there are changes that it does not hold
        QElapsedTimer first;                ///< since such a change was seen first
        QElapsedTimer last;                 ///< since one was seen last
        QString problem;                    ///< what was told
    };

    void look();
    bool isDue(Document &document, State &state);
    void copy(Document &document, State &state);
    void finish(Document *document, quint64 revision, const QString &problem);
    /// Waits for what is being written of it.
    void forget(Document *document);
    void drop(Document &document, State &state);
    void waitForWriting();

    Session &m_session;
    const AutosavePace m_pace;
    std::map<Document *, State> m_states;
    QTimer m_timer;
    QThreadPool m_pool;            ///< of one thread
    int m_job = 0;                 ///< number of the last writing
    Document *m_written = nullptr; ///< whose copy is being written
    std::atomic<bool> m_isStopped = false;
    QElapsedTimer m_rest;    ///< since the last writing ended
    qint64 m_restWanted = 0; ///< milliseconds
};

} // namespace host::kernel
