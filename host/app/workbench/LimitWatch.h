#pragma once

#include <QString>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

namespace host::app {

/// Ends the program with ExitFailed when a piece of work is not done in time, for work that cannot be stopped in order:
/// from a thread of its own, with a message on standard error. Files that are being replaced keep their old content.
class LimitWatch
{
public:
    /// From now on until it is destroyed; a limit of zero is none. `subject` begins the message.
    LimitWatch(std::chrono::milliseconds limit, const QString &subject);
    ~LimitWatch();
    LimitWatch(const LimitWatch &) = delete;
    LimitWatch &operator=(const LimitWatch &) = delete;

    /// For work that a limit stops in order as a rule: what it may take to stop comes on top.
    static std::chrono::milliseconds withTimeToStop(std::chrono::milliseconds limit);

private:
    void wait(std::chrono::milliseconds limit, const QString &message);

    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_isDone = false;
    std::thread m_thread;
};

/// "it took longer than 2.5 s".
QString limitMessage(std::chrono::milliseconds limit);

} // namespace host::app
