#pragma once

#include <QElapsedTimer>
#include <QString>

#include <memory>

class QProgressDialog;
class QWidget;

/// Work of many small steps that the user waits for: once it has taken half a second, a progress bar with a Cancel
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
    /// `text` says what is being done; `steps` is the number of calls of goesOn() to come.
    LongWork(QWidget *parent, const QString &text, qsizetype steps);
    ~LongWork();
    LongWork(const LongWork &) = delete;
    LongWork &operator=(const LongWork &) = delete;

    /// To be asked before each step; false once the user has cancelled. Costs next to nothing between two looks at the
    /// clock.
    bool goesOn();

private:
    void show();

    QWidget *m_parent;
    QString m_text;
    qsizetype m_steps;
    qsizetype m_step = 0;
    QElapsedTimer m_sinceStart;
    qint64 m_nextLook;
    std::unique_ptr<QProgressDialog> m_progress;
};
