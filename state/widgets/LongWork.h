#pragma once

#include <QElapsedTimer>
#include <QString>

#include <memory>

class QProgressDialog;
class QWidget;

/// What a step of the work takes.
enum class WorkSteps
{
    Small,
    Large ///< a file, say: a look at the clock is nothing beside it
};

/// Work of many steps that the user waits for: once it has taken half a second, a progress bar with a Cancel
/// button comes up over the dialog that it is done for. Meanwhile events are handled, but the dialog takes no input.
///
///     LongWork work(this, tr("Replacing..."), rows.size());
///     for (const int row : rows) {
///         if (!work.goesOn())
///             return; // and everything is as it was before
///         ...
///     }
class LongWork
{
public:
    /// `text` says what is being done; `steps` is the number of calls of goesOn() to come. With `manyUnknown` the bar
    /// shows only that it goes on.
    LongWork(QWidget *parent, const QString &text, qsizetype steps, WorkSteps size = WorkSteps::Small);
    static constexpr qsizetype manyUnknown = -1;
    ~LongWork();
    LongWork(const LongWork &) = delete;
    LongWork &operator=(const LongWork &) = delete;

    /// To be asked before each step; false once the user has cancelled. Costs next to nothing between two looks at the
    /// clock, which are taken every few small steps and for each large one.
    bool goesOn();

private:
    void show();

    QWidget *m_parent;
    QString m_text;
    qsizetype m_steps; ///< 0 when nobody knows
    qsizetype m_stepsBetweenLooks;
    qsizetype m_step = 0;
    QElapsedTimer m_sinceStart;
    qint64 m_nextLook;
    std::unique_ptr<QProgressDialog> m_progress;
};
