#pragma once

#include "host/app/DialogDriver.h"
#include "host/kernel/input/InputFeeder.h"

namespace host::app {

/// For runs that nobody watches: prompts are cancelled, and a dialog that opens all the same is rejected and ends the
/// run.
class UnattendedFeeder final : public DialogDriver, public kernel::InputFeeder
{
public:
    /// Says which dialog opened; empty when none did.
    QString problem() const { return m_problem; }

    kernel::FeedResult feed(const kernel::PromptRequest &request, kernel::InputQueue &queue) override;
    bool poll() override;

private:
    Reaction handleWindow(QWidget &window, Acquaintance acquaintance) override;

    QString m_problem;
};

} // namespace host::app
