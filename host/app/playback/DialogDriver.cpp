#include "host/app/playback/DialogDriver.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QEventLoop>
#include <QMenu>
#include <QTimer>

namespace host::app {

namespace {

/// A dialog that asks back before it closes is asked so often, then hidden.
constexpr int patience = 3;
/// A program may have a timer that never rests.
constexpr int mostRounds = 20;

bool isAttended(const QWidget &window)
{
    return window.isWindow() && (window.isModal() || qobject_cast<const QMenu *>(&window));
}

} // namespace

DialogDriver::DialogDriver()
{
    qApp->installEventFilter(this);
}

DialogDriver::~DialogDriver() = default;

void DialogDriver::giveUp()
{
    m_hasGivenUp = true;
    m_busy.clear();
    wake();
}

QWidget *DialogDriver::frontWindow()
{
    if (QWidget *popup = QApplication::activePopupWidget(); qobject_cast<QMenu *>(popup))
        return popup;
    return QApplication::activeModalWidget();
}

bool DialogDriver::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::Show || event->type() == QEvent::Hide) {
        auto *window = qobject_cast<QWidget *>(object);
        if (window && event->type() == QEvent::Hide) {
            m_known.removeAll(window);
            m_rejections.remove(window);
        } else if (window && isAttended(*window))
            wake();
    }
    return QObject::eventFilter(object, event);
}

void DialogDriver::wake()
{
    if (m_isAwake)
        return;
    m_isAwake = true;
    QTimer::singleShot(0, this, &DialogDriver::attend);
}

/// What was left for later, a message that a key brings above all, comes before anything else is done; and who had a
/// message in front has the keyboard again, as on a desktop. Such a message runs in here.
void DialogDriver::settle()
{
    QWidget *window = frontWindow();
    if (!window || m_hasGivenUp || m_busy.contains(QPointer<QWidget>(window)))
        return;
    if (!qobject_cast<QMenu *>(window) && !window->isActiveWindow())
        window->activateWindow();
    QAbstractEventDispatcher *events = QAbstractEventDispatcher::instance();
    for (int round = 0; round < mostRounds && events->processEvents(QEventLoop::AllEvents); ++round) {
    }
}

void DialogDriver::attend()
{
    m_isAwake = false;
    settle();
    const QPointer<QWidget> window = frontWindow();
    if (!window)
        return;
    if (m_hasGivenUp) {
        reject(*window);
        return;
    }
    // An action on this very window has not returned: whoever does it comes again when it has.
    if (m_busy.contains(window))
        return;
    const auto acquaintance = m_known.contains(window) ? Acquaintance::Known : Acquaintance::New;
    if (acquaintance == Acquaintance::New)
        m_known.append(window);
    m_busy.append(window);
    const Reaction reaction = handleWindow(*window, acquaintance);
    if (reaction == Reaction::Looked && acquaintance == Acquaintance::New)
        m_known.removeAll(window);
    m_busy.removeAll(window);
    m_busy.removeAll(QPointer<QWidget>());
    m_known.removeAll(QPointer<QWidget>());
    if (reaction == Reaction::GiveUp)
        giveUp();
    if (reaction == Reaction::Reject && window)
        reject(*window);
    wake();
}

void DialogDriver::reject(QWidget &window)
{
    if (++m_rejections[&window] > patience)
        window.hide();
    else if (auto *dialog = qobject_cast<QDialog *>(&window))
        dialog->reject();
    else
        window.close();
    wake();
}

} // namespace host::app
