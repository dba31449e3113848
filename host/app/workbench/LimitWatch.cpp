#include "host/app/workbench/LimitWatch.h"

#include "host/app/workbench/ProgramOptions.h"
#include "host/app/workbench/ProgramOutput.h"

#include <QCoreApplication>

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace host::app {

LimitWatch::LimitWatch(std::chrono::milliseconds limit, const QString &subject)
{
    if (limit.count() <= 0)
        return;
    const QString message = u"%1: %2; it was ended"_s.arg(subject, limitMessage(limit));
    m_thread = std::thread([this, limit, message] { wait(limit, message); });
}

LimitWatch::~LimitWatch()
{
    {
        const std::scoped_lock lock(m_mutex);
        m_isDone = true;
    }
    m_changed.notify_one();
    if (m_thread.joinable())
        m_thread.join();
}

std::chrono::milliseconds LimitWatch::withTimeToStop(std::chrono::milliseconds limit)
{
    return limit.count() > 0 ? limit + limit / 10 + std::chrono::seconds(2) : limit;
}

void LimitWatch::wait(std::chrono::milliseconds limit, const QString &message)
{
    std::unique_lock lock(m_mutex);
    if (m_changed.wait_for(lock, limit, [this] { return m_isDone; }))
        return;
    writeMessage(message);
    // No destructors: the work that does not end still uses what they would take away.
    std::_Exit(ExitFailed);
}

QString limitMessage(std::chrono::milliseconds limit)
{
    return QCoreApplication::translate("Playback", "it took longer than %1 s")
        .arg(static_cast<double>(limit.count()) / 1000.0);
}

} // namespace host::app
