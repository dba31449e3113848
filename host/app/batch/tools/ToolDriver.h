#pragma once

#include "host/app/batch/tools/ToolForm.h"
#include "host/app/playback/DialogDriver.h"
#include "host/app/workbench/ProgramOptions.h"
#include "host/kernel/input/InputFeeder.h"

#include <QElapsedTimer>

#include <chrono>

namespace host::app {

/// Stands in for the person in front of a tool: fills its dialog in as its steps say, presses the button that has it go
/// on, answers its dialogs for files and its prompts, and says yes to its questions. Each value is put in as a hand
/// would, so the dialog's own checks hold. Of values in a row, one that a widget does not take yet is tried again
/// behind the others.
class ToolDriver final : public DialogDriver, public kernel::InputFeeder
{
public:
    /// `steps` have their values filled in; paths in them are absolute.
    ToolDriver(const ToolRow &tool, QList<ToolStep> steps, std::chrono::milliseconds timeLimit);

    /// Why the run is no good: what a message of the tool says, what was asked and not answered; empty when all went
    /// well.
    QString problem() const { return m_problem; }
    /// What was told in boxes that need no answer.
    QStringList told() const { return m_told; }
    /// The form as the dialog opened with it; of a driver that only looks.
    const ToolForm &form() const { return m_form; }
    /// From now on the dialog is looked at and rejected.
    void onlyLook() { m_isLooking = true; }

    kernel::FeedResult feed(const kernel::PromptRequest &request, kernel::InputQueue &queue) override;
    bool isAttended() const override { return false; }
    bool poll() override;

private:
    Reaction handleWindow(QWidget &window, Acquaintance acquaintance) override;
    Reaction handleTool(QWidget &dialog, Acquaintance acquaintance);
    QString answerMessage(QWidget &window);
    QString answerFiles(QWidget &window);
    QString doNext(QWidget &dialog);
    QString setNext(QWidget &dialog);
    QString setOne(QWidget &dialog, const ToolStep &step);
    QString press(QWidget &dialog, const QString &name);
    bool fail(const QString &problem);

    const ToolRow &m_tool;
    QList<ToolStep> m_steps; ///< still to be done in the dialog
    QStringList m_answers;   ///< still to be given to prompts
    QString m_file;          ///< for dialogs for files; empty: none was given
    std::chrono::milliseconds m_timeLimit;
    QElapsedTimer m_elapsed;
    QString m_problem;
    QStringList m_told;
    ToolForm m_form;
    qsizetype m_refusals = 0; ///< how many steps in a row were refused
    bool m_isLooking = false;
    bool m_hasAccepted = false;
    bool m_hasNothing = false; ///< all rows of a list were to be chosen, and it has none
};

} // namespace host::app
