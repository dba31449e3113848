#pragma once

#include <QObject>
#include <QTimer>

class QWidget;

namespace host::app {

/// What the right button may bring up, by SHORTCUTMENU's bits.
enum ShortcutMenuBit : int
{
    MenuAtRest = 1,      ///< nothing runs and nothing is chosen
    MenuForChosen = 2,   ///< nothing runs, entities are chosen
    MenuAtPrompts = 4,   ///< at any prompt
    MenuWithOptions = 8, ///< at prompts that have options
    MenuWhenHeld = 16    ///< only after SHORTCUTMENUDURATION milliseconds; a short click is Enter
};

/// What the window is at when the right button is pressed.
struct RightButtonPlace
{
    bool isPrompt = false;
    bool hasOptions = false; ///< of the prompt
    bool isChosen = false;   ///< some entities are
};

/// Whether the bits want a menu there; else the button is Enter.
bool wantsShortcutMenu(int bits, const RightButtonPlace &place);

/// A right button that was pressed on a widget: let go soon it was a click, else it is held. One of both is told once
/// for each press.
class RightButton : public QObject
{
    Q_OBJECT

public:
    explicit RightButton(QObject *parent);

    /// The widget must get the events of the button.
    void press(QWidget &on, int milliseconds);

signals:
    void clicked();
    void held();

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    QTimer m_timer;
};

} // namespace host::app
