#include "host/app/window/entry/WindowFeeder.h"

#include <QCoreApplication>

namespace host::app {

namespace {

/// Often enough for Esc to seem immediate, rarely enough to cost nothing.
constexpr qint64 millisecondsBetweenEvents = 40;

} // namespace

WindowFeeder::WindowFeeder(kernel::InputQueue &queue) : m_queue(queue)
{
    m_sinceEvents.start();
}

void WindowFeeder::cancel()
{
    m_queue.clear();
    if (m_request)
        m_queue.push(kernel::CancelAnswer{});
    else
        m_isStopWanted = true;
}

void WindowFeeder::forgetCancel()
{
    m_isStopWanted = false;
    m_sinceEvents.restart();
}

kernel::FeedResult WindowFeeder::feed(const kernel::PromptRequest &request, kernel::InputQueue &queue)
{
    // Prompts do not nest: one that comes while another waits was asked by something that must not ask.
    if (m_request)
        return kernel::FeedResult::NobodyThere;
    m_request = request;
    emit requestChanged();
    QEventLoop loop;
    connect(&queue, &kernel::InputQueue::filled, &loop, &QEventLoop::quit);
    // The queue may hold the beginning of an expression; only something new gets the prompt on.
    const int status = loop.exec();
    m_sinceEvents.restart();
    m_request.reset();
    emit requestChanged();
    return status == 0 ? kernel::FeedResult::Supplied : kernel::FeedResult::NobodyThere;
}

bool WindowFeeder::poll()
{
    if (m_sinceEvents.elapsed() >= millisecondsBetweenEvents) {
        QCoreApplication::processEvents();
        m_sinceEvents.restart();
    }
    return std::exchange(m_isStopWanted, false);
}

} // namespace host::app
