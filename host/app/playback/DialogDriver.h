#pragma once

#include <QHash>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QWidget>

namespace host::app {

/// Watches for modal dialogs and pop-up menus and lets a program do what a person would do to them. Such windows run
/// event loops of their own, one inside the other; the driver works inside whichever runs. It sees all windows of the
/// program, whoever opened them.
class DialogDriver : public QObject
{
public:
    /// From now on until it is destroyed.
    DialogDriver();
    ~DialogDriver() override;

protected:
    /// Whether something was done with a window since it was shown.
    enum class Acquaintance
    {
        New,  ///< shown since the last call, if only again
        Known ///< something was done with it
    };
    /// What came of looking at a window.
    enum class Reaction
    {
        Done,   ///< something was done; ask again when the window is still open
        Looked, ///< the same, but the window stays as well known as it was
        Reject, ///< close this window as Esc does
        GiveUp  ///< reject this window and all that are open or will be
    };
    /// A modal dialog or menu is open, in front, and idle. May return late: closing it, or opening another one, happens
    /// inside.
    virtual Reaction handleWindow(QWidget &window, Acquaintance acquaintance) = 0;

    /// Rejects what is open, now and later.
    void giveUp();
    /// The modal dialog or menu in front; null when there is none.
    static QWidget *frontWindow();

    bool eventFilter(QObject *object, QEvent *event) override;

private:
    /// Has attend() called by the event loop that runs then.
    void wake();
    /// Looks for the window in front and hands it over.
    void attend();
    /// Lets posted events and timers of no time come, so that a window has shown what follows from what was done.
    void settle();
    /// Esc; a window that asks back three times is hidden.
    void reject(QWidget &window);

    QList<QPointer<QWidget>> m_known;         ///< something was done with these since they were shown
    QList<QPointer<QWidget>> m_busy;          ///< something is being done to these
    QHash<const QWidget *, int> m_rejections; ///< how often a window was rejected; keys may be gone
    bool m_isAwake = false;                   ///< attend() will be called
    bool m_hasGivenUp = false;                ///< all that opens is rejected
};

} // namespace host::app
