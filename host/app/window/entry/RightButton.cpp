#include "host/app/window/entry/RightButton.h"

#include <QMouseEvent>
#include <QWidget>

namespace host::app {

bool wantsShortcutMenu(int bits, const RightButtonPlace &place)
{
    if (place.isPrompt)
        return (bits & MenuAtPrompts) != 0 || ((bits & MenuWithOptions) != 0 && place.hasOptions);
    return (bits & (place.isChosen ? MenuForChosen : MenuAtRest)) != 0;
}

RightButton::RightButton(QObject *parent) : QObject(parent)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &RightButton::held);
}

void RightButton::press(QWidget &on, int milliseconds)
{
    on.installEventFilter(this);
    m_timer.start(milliseconds);
}

bool RightButton::eventFilter(QObject *object, QEvent *event)
{
    const bool isRelease = event->type() == QEvent::MouseButtonRelease &&
                           static_cast<const QMouseEvent *>(event)->button() == Qt::RightButton;
    if (isRelease) {
        object->removeEventFilter(this);
        if (m_timer.isActive()) {
            m_timer.stop();
            emit clicked();
        }
    }
    return QObject::eventFilter(object, event);
}

} // namespace host::app
