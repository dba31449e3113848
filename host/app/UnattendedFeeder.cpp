#include "host/app/UnattendedFeeder.h"

#include "host/app/WidgetFinder.h"

#include <QCoreApplication>

namespace host::app {

kernel::FeedResult UnattendedFeeder::feed(const kernel::PromptRequest &, kernel::InputQueue &)
{
    return kernel::FeedResult::NobodyThere;
}

bool UnattendedFeeder::poll()
{
    QCoreApplication::processEvents();
    return !m_problem.isEmpty();
}

DialogDriver::Reaction UnattendedFeeder::handleWindow(QWidget &window, Acquaintance)
{
    if (m_problem.isEmpty())
        m_problem = QCoreApplication::translate("Playback", "nobody is there to answer %1").arg(describeDialog(window));
    return Reaction::GiveUp;
}

} // namespace host::app
