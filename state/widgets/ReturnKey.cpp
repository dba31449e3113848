#include "state/widgets/ReturnKey.h"

#include <QKeyEvent>
#include <QLineEdit>

#include <utility>

namespace ortakit {

namespace {

class ReturnFilter final : public QObject
{
public:
    ReturnFilter(QObject *field, std::function<void()> action) : QObject(field), m_action(std::move(action)) {}

    bool eventFilter(QObject *, QEvent *event) override
    {
        const int key = event->type() == QEvent::KeyPress ? static_cast<QKeyEvent *>(event)->key() : 0;
        if (key != Qt::Key_Return && key != Qt::Key_Enter)
            return false;
        m_action();
        return true;
    }

private:
    std::function<void()> m_action;
};

} // namespace

void setReturnAction(QLineEdit &field, std::function<void()> action)
{
    field.installEventFilter(new ReturnFilter(&field, std::move(action)));
}

} // namespace ortakit
