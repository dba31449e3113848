#pragma once

#include <QStringList>
#include <QTimer>

#include <functional>

class QWidget;

namespace sample {

/// Works dialogs in place of a user: what it was told is done to the next dialog that shows, up to a step that ends it.
/// Without a display it rejects what nobody has steps for, so that no run waits for ever; with one it leaves that to
/// the user.
class Hand
{
public:
    explicit Hand(bool hasDisplay);

    /// One step: "set NAME TEXT", "press NAME", "accept", "reject", "picture FILE", or "do" with a function in place of
    /// words. Names are those of widgets.
    struct Step
    {
        QStringList words;
        std::function<void()> work;
    };
    void add(const Step &step) { m_steps.append(step); }
    /// Accepts every dialog from now on that has no steps of its own.
    void acceptAll() { m_acceptsAll = true; }

private:
    void look();
    void act(QWidget &dialog, const Step &step);

    QTimer m_clock;
    QList<Step> m_steps;
    bool m_hasDisplay;
    bool m_acceptsAll = false;
    QWidget *m_accepted = nullptr; ///< the last one that was, whose own checks may have kept it open
};

} // namespace sample
