#include "state/widgets/ElidedPathField.h"

#include "state/widgets/FullText.h"

#include <QFocusEvent>
#include <QLineEdit>

namespace {

constexpr char pathFieldProperty[] = "isPathField";

} // namespace

ElidedPathField::ElidedPathField(QLineEdit *edit) : m_edit(edit)
{
    edit->setProperty(pathFieldProperty, true);
    edit->installEventFilter(this);
    connect(edit, &QLineEdit::returnPressed, this, [this] {
        takeText();
        emit pathEntered();
    });
}

bool ElidedPathField::isOne(const QLineEdit &edit)
{
    return edit.property(pathFieldProperty).toBool();
}

void ElidedPathField::setFullPath(const QString &path)
{
    ortakit::storeFullText(*m_edit, path);
    show();
}

QString ElidedPathField::fullPath() const
{
    return ortakit::storedFullText(*m_edit);
}

void ElidedPathField::takeText()
{
    const QString text = m_edit->text();
    if (!text.contains(u'\u2026'))
        ortakit::storeFullText(*m_edit, text);
}

bool ElidedPathField::eventFilter(QObject *watched, QEvent *event)
{
    const bool handled = QObject::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::FocusIn:
        if (showsStoredPath())
            m_edit->setText(fullPath());
        break;
    case QEvent::FocusOut:
        // The edit's own context menu takes the focus for a moment.
        if (static_cast<QFocusEvent *>(event)->reason() == Qt::PopupFocusReason)
            break;
        takeText();
        ortakit::showElided(*m_edit, fullPath());
        emit pathEntered();
        break;
    case QEvent::Resize:
        if (!m_edit->hasFocus() && showsStoredPath())
            show();
        break;
    default:
        break;
    }
    return handled;
}

bool ElidedPathField::showsStoredPath() const
{
    const QString text = m_edit->text();
    return !fullPath().isEmpty() && (text == fullPath() || ortakit::isElided(text));
}

void ElidedPathField::show()
{
    if (m_edit->hasFocus())
        m_edit->setText(fullPath());
    else
        ortakit::showElided(*m_edit, fullPath());
}
