#pragma once

#include "host/kernel/input/InputFeeder.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QObject>

#include <optional>

namespace host::app {

/// Answers prompts with what a person does in the window: an event loop runs until something is in the queue. While a
/// program runs without asking, events are processed now and then, so that Esc stops it.
class WindowFeeder : public QObject, public kernel::InputFeeder
{
    Q_OBJECT

public:
    explicit WindowFeeder(kernel::InputQueue &queue);

    /// The prompt that waits for an answer.
    const std::optional<kernel::PromptRequest> &request() const { return m_request; }
    /// Esc: cancels the prompt that waits, else stops the program that runs.
    void cancel();
    /// A run begins: what was cancelled before means nothing to it.
    void forgetCancel();

    kernel::FeedResult feed(const kernel::PromptRequest &request, kernel::InputQueue &queue) override;
    bool poll() override;

signals:
    /// A prompt waits now, or none waits any more.
    void requestChanged();

private:
    kernel::InputQueue &m_queue;
    std::optional<kernel::PromptRequest> m_request;
    QElapsedTimer m_sinceEvents;
    bool m_isStopWanted = false;
};

} // namespace host::app
