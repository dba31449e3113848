#include "host/app/batch/tools/ToolDriver.h"

#include "host/app/playback/DialogSteps.h"
#include "host/app/playback/RowActions.h"
#include "host/app/playback/WidgetActions.h"
#include "host/app/playback/WidgetFinder.h"
#include "host/app/playback/WidgetValues.h"
#include "host/app/workbench/LimitWatch.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QCoreApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

using Kind = ToolStep::Kind;

/// The button that says yes to a question; null of a box that only tells.
QAbstractButton *assentOf(QMessageBox &message)
{
    if (message.buttons().size() < 2)
        return nullptr;
    for (const auto button : {QMessageBox::Yes, QMessageBox::YesToAll, QMessageBox::Ok, QMessageBox::Open})
        if (QAbstractButton *found = message.button(button))
            return found;
    return nullptr;
}

/// The path in a field is taken by the Return key, as those who type one know.
QString enterPath(QWidget &widget, const QString &path)
{
    const QString error = setValue(widget, path);
    return error.isEmpty() && qobject_cast<QLineEdit *>(&widget) ? pressKey(widget, u"Return"_s) : error;
}

QString chooseRows(QAbstractItemView &view, const QString &value)
{
    QStringList rows;
    if (value != "*"_L1)
        rows = value.split(u'^', Qt::SkipEmptyParts);
    else if (view.model())
        for (int row = 0; row < view.model()->rowCount(view.rootIndex()); ++row)
            rows.append(u"#%1"_s.arg(row));
    return selectRows(view, rows);
}

} // namespace

ToolDriver::ToolDriver(const ToolRow &tool, QList<ToolStep> steps, std::chrono::milliseconds timeLimit)
    : m_tool(tool), m_timeLimit(timeLimit)
{
    for (ToolStep &step : steps) {
        if (step.kind == Kind::Answer)
            m_answers.append(step.value);
        else if (step.kind == Kind::Set && !step.key.isEmpty() && step.key == QLatin1StringView(tool.fileKey))
            m_file = step.value;
        else
            m_steps.append(std::move(step));
    }
    m_elapsed.start();
}

bool ToolDriver::fail(const QString &problem)
{
    if (m_problem.isEmpty())
        m_problem = problem;
    return !m_problem.isEmpty();
}

kernel::FeedResult ToolDriver::feed(const kernel::PromptRequest &request, kernel::InputQueue &queue)
{
    if (m_problem.isEmpty() && !m_isLooking && !m_answers.isEmpty()) {
        queue.push(kernel::TextAnswer{m_answers.takeFirst()});
        return kernel::FeedResult::Supplied;
    }
    // What was chosen beforehand was nothing, which the tool says when the choice ends; and choices have a default.
    const bool isOfNothing = m_tool.selects && request.kind == kernel::PromptKind::Selection;
    if (m_problem.isEmpty() && (isOfNothing || request.kind == kernel::PromptKind::Keyword)) {
        queue.push(kernel::TextAnswer{});
        return kernel::FeedResult::Supplied;
    }
    if (!m_isLooking)
        fail(QCoreApplication::translate("Batch", "the tool asks \"%1\"; see --answer")
                 .arg(request.prompt.simplified()));
    return kernel::FeedResult::NobodyThere;
}

bool ToolDriver::poll()
{
    QCoreApplication::processEvents();
    if (m_timeLimit.count() > 0 && m_elapsed.hasExpired(m_timeLimit.count()))
        fail(limitMessage(m_timeLimit));
    return !m_problem.isEmpty();
}

DialogDriver::Reaction ToolDriver::handleWindow(QWidget &window, Acquaintance acquaintance)
{
    QString error;
    if (qobject_cast<QMessageBox *>(&window))
        error = answerMessage(window);
    else if (qobject_cast<QFileDialog *>(&window))
        error = answerFiles(window);
    else if (m_tool.dialog && isDialogNamed(window, QString::fromLatin1(m_tool.dialog)))
        return handleTool(window, acquaintance);
    else
        error = QCoreApplication::translate("Playback", "nobody is there to answer %1").arg(describeDialog(window));
    if (!error.isEmpty())
        fail(error);
    return m_problem.isEmpty() ? Reaction::Done : Reaction::GiveUp;
}

QString ToolDriver::answerMessage(QWidget &window)
{
    auto &message = static_cast<QMessageBox &>(window);
    const QString text = (message.text() + u' ' + message.informativeText()).simplified();
    if (QAbstractButton *assent = assentOf(message)) {
        m_told.append(text);
        return click(*assent);
    }
    if (message.icon() != QMessageBox::Information)
        return text;
    m_told.append(text);
    message.accept();
    return {};
}

QString ToolDriver::answerFiles(QWidget &window)
{
    if (m_file.isEmpty())
        return QCoreApplication::translate("Batch", "the tool asks for a file; see --set %1=PATH")
            .arg(*m_tool.fileKey ? QLatin1StringView(m_tool.fileKey) : "file"_L1);
    Step step;
    step.verb = Verb::File;
    step.words = {m_file};
    return meet(window, step);
}

DialogDriver::Reaction ToolDriver::handleTool(QWidget &dialog, Acquaintance acquaintance)
{
    if (m_isLooking) {
        m_form = readForm(dialog, m_tool);
        return Reaction::GiveUp;
    }
    if (m_hasNothing)
        return Reaction::Reject;
    if (m_hasAccepted && acquaintance == Acquaintance::New && m_problem.isEmpty())
        return Reaction::Reject; // it came back for the next piece of work, and there is none
    if (m_hasAccepted) {
        if (!m_tool.staysOpen)
            fail(m_told.isEmpty() ? QCoreApplication::translate("Batch", "the dialog does not go on with these values")
                                  : m_told.takeLast());
        return m_problem.isEmpty() ? Reaction::Reject : Reaction::GiveUp;
    }
    if (const QString error = doNext(dialog); !error.isEmpty())
        fail(error);
    return m_problem.isEmpty() ? Reaction::Done : Reaction::GiveUp;
}

/// One step; behind the last one the button that has the tool go on.
QString ToolDriver::doNext(QWidget &dialog)
{
    if (m_steps.isEmpty()) {
        m_hasAccepted = true;
        return press(dialog, QString::fromLatin1(m_tool.accept));
    }
    if (m_steps.first().kind == Kind::Press)
        return press(dialog, m_steps.takeFirst().key);
    return setNext(dialog);
}

/// The first of the values in a row; one that is refused goes behind them, until all were refused.
QString ToolDriver::setNext(QWidget &dialog)
{
    const ToolStep step = m_steps.takeFirst();
    const QString error = setOne(dialog, step);
    if (error.isEmpty()) {
        m_refusals = 0;
        return {};
    }
    qsizetype others = 0;
    while (others < m_steps.size() && m_steps[others].kind == Kind::Set)
        ++others;
    if (m_refusals++ >= others)
        return u"%1: %2"_s.arg(step.key, error);
    m_steps.insert(others, step);
    return {};
}

QString ToolDriver::setOne(QWidget &dialog, const ToolStep &step)
{
    const FoundWidget found = findWidget(dialog, step.key);
    if (!found)
        return found.error;
    QWidget &widget = *found.widget;
    if (auto *view = qobject_cast<QAbstractItemView *>(&widget)) {
        m_hasNothing = step.value == "*"_L1 && view->model() && view->model()->rowCount(view->rootIndex()) == 0;
        if (m_hasNothing)
            m_told.append(QCoreApplication::translate("Batch", "there is nothing to choose in %1").arg(step.key));
        return m_hasNothing ? QString() : chooseRows(*view, step.value);
    }
    if (m_tool.hasPath(step.key))
        return enterPath(widget, step.value);
    if (step.value == "*"_L1 && qobject_cast<const QAbstractButton *>(&widget))
        return setChecked(widget, true);
    // What it shows already needs no hand, which a disabled widget would refuse.
    const auto truth = yesOrNoOf(step.value);
    const bool isShown =
        showsValue(widget, step.value) || (truth && shownValue(widget) == (*truth ? "yes"_L1 : "no"_L1));
    if (isShown)
        return {};
    return m_tool.isOfState(step.key) ? QCoreApplication::translate("Batch", "it does not take \"%1\"").arg(step.value)
                                      : setValue(widget, step.value);
}

QString ToolDriver::press(QWidget &dialog, const QString &name)
{
    const FoundWidget found = findWidget(dialog, name);
    if (!found)
        return found.error;
    if (!m_tool.passesOver || m_hasAccepted || found.widget->isEnabled())
        return click(*found.widget);
    m_told.append(QCoreApplication::translate("Batch", "%1 has nothing to do").arg(name));
    return {};
}

} // namespace host::app
