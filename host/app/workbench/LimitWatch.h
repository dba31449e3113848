#pragma once

#include <QString>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

namespace host::app {

/// Ends the program with ExitFailed when a piece of work is not done in time, for work that cannot be stopped in order:
/// from a thread of its own, with a message on standard error. Files that are being replaced keep their old content.
/// Nothing is taken down: no destructors run, since the work still uses what they would take away, so locks of drawings
/// stay behind as those of a killed program do.
class LimitWatch
{
public:
    /// From now on until it is destroyed; a limit of zero is none, and takes no thread. `subject` begins the message.
    LimitWatch(std::chrono::milliseconds limit, const QString &subject);
    /// The work is done: waits for the thread, which ends at once.
    ~LimitWatch();
    LimitWatch(const LimitWatch &) = delete;
    LimitWatch &operator=(const LimitWatch &) = delete;

    /// For work that a limit stops in order as a rule: what it may take to stop comes on top, a tenth and two seconds.
    /// No limit stays none.
    static std::chrono::milliseconds withTimeToStop(std::chrono::milliseconds limit);

private:
    /// The thread's work.
    void wait(std::chrono::milliseconds limit, const QString &message);

    // Between the thread that works and the one that watches.
    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_isDone = false; ///< guarded by the mutex
    std::thread m_thread;
};

/// What is said of work that was not done in time, in the user's language: "it took longer than 2.5 s".
QString limitMessage(std::chrono::milliseconds limit);

} // namespace host::app
