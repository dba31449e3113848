#include "host/app/batch/UnattendedFeeder.h"

#include "host/app/playback/WidgetFinder.h"
#include "host/app/workbench/LimitWatch.h"

#include <QCoreApplication>

namespace host::app {

UnattendedFeeder::UnattendedFeeder(std::chrono::milliseconds timeLimit) : m_timeLimit(timeLimit)
{
    m_elapsed.start();
}

kernel::FeedResult UnattendedFeeder::feed(const kernel::PromptRequest &, kernel::InputQueue &)
{
    return kernel::FeedResult::NobodyThere;
}

bool UnattendedFeeder::poll()
{
    QCoreApplication::processEvents();
    if (m_problem.isEmpty() && m_timeLimit.count() > 0 && m_elapsed.hasExpired(m_timeLimit.count()))
        m_problem = limitMessage(m_timeLimit);
    return !m_problem.isEmpty();
}

DialogDriver::Reaction UnattendedFeeder::handleWindow(QWidget &window, Acquaintance)
{
    if (m_problem.isEmpty())
        m_problem = QCoreApplication::translate("Playback", "nobody is there to answer %1").arg(describeDialog(window));
    return Reaction::GiveUp;
}

} // namespace host::app
