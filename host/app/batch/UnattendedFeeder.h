#pragma once

#include "host/app/playback/DialogDriver.h"
#include "host/kernel/input/InputFeeder.h"

#include <QElapsedTimer>

#include <chrono>

namespace host::app {

/// For runs that nobody watches: prompts are cancelled, and a dialog that opens all the same is rejected and ends the
/// run, as does a limit that is passed.
class UnattendedFeeder : public DialogDriver, public kernel::InputFeeder
{
public:
    /// The most that a run may take from now on; zero for as long as it wants.
    explicit UnattendedFeeder(std::chrono::milliseconds timeLimit = {});

    /// Says which dialog opened or which limit was passed; empty when all went well.
    QString problem() const { return m_problem; }

    kernel::FeedResult feed(const kernel::PromptRequest &request, kernel::InputQueue &queue) override;
    bool isAttended() const override { return false; }
    bool poll() override;

private:
    Reaction handleWindow(QWidget &window, Acquaintance acquaintance) override;

    std::chrono::milliseconds m_timeLimit;
    QElapsedTimer m_elapsed;
    QString m_problem;
};

} // namespace host::app
