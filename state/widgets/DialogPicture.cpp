#include "state/widgets/DialogPicture.h"

#include "platform/kernel/CKvUtils.h"

#include <QEvent>
#include <QFileInfo>
#include <QLabel>
#include <QPainter>
#include <QPixmap>

namespace {

QString darkVariant(const QString &picture, const QString &darkName)
{
    const QString name = darkName.isEmpty() ? QFileInfo(picture).completeBaseName() : darkName;
    return QStringLiteral(":/images/svg_icons/dark/") + name + QStringLiteral(".svg");
}

} // namespace

DialogPicture::DialogPicture(QWidget *widget, const QString &picture, const QString &darkName)
    : QObject(widget), m_widget(widget), m_picture(picture), m_darkPicture(darkVariant(picture, darkName))
{
    choose();
    widget->installEventFilter(this);
}

bool DialogPicture::eventFilter(QObject *watched, QEvent *event)
{
    // A widget that was never shown hears of no change.
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::Show)
        choose();
    if (event->type() == QEvent::Paint && !qobject_cast<QLabel *>(m_widget)) {
        paint();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

void DialogPicture::choose()
{
    const QString variant = CKvUtils::isDarkStyle() && QFileInfo::exists(m_darkPicture) ? m_darkPicture : m_picture;
    if (variant == m_shown)
        return;
    m_shown = variant;
    m_icon = QIcon(variant);
    if (auto *label = qobject_cast<QLabel *>(m_widget)) {
        // Both variants take the room of the light one, which the dialog was laid out with.
        const QSize size = QPixmap(m_picture).deviceIndependentSize().toSize();
        label->setPixmap(m_icon.pixmap(size.isEmpty() ? label->size() : size));
    }
    m_widget->update();
}

void DialogPicture::paint()
{
    QPainter painter(m_widget);
    m_icon.paint(&painter, m_widget->rect(), Qt::AlignCenter, m_widget->isEnabled() ? QIcon::Normal : QIcon::Disabled);
}
