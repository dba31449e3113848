#pragma once

#include <QHash>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QWidget>

namespace host::app {

/// Watches for modal dialogs and pop-up menus and lets a program do what a person would do to them. Such windows run
/// event loops of their own, one inside the other; the driver works inside whichever runs.
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
        New,
        Known
    };
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
    void wake();
    void attend();
    void settle();
    void reject(QWidget &window);

    QList<QPointer<QWidget>> m_known;
    QList<QPointer<QWidget>> m_busy;          ///< something is being done to these
    QHash<const QWidget *, int> m_rejections; ///< how often a window was rejected; keys may be gone
    bool m_isAwake = false;
    bool m_hasGivenUp = false;
};

} // namespace host::app
