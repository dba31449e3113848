#include "state/widgets/ElidedPathLabel.h"

#include "files/qt/VisibleText.h"
#include "state/widgets/FullText.h"

#include <QEvent>
#include <QLabel>

ElidedPathLabel::ElidedPathLabel(QLabel *label) : QObject(label), m_label(label)
{
    // A file's name is no markup.
    label->setTextFormat(Qt::PlainText);
    label->installEventFilter(this);
    takeText();
}

void ElidedPathLabel::setFullPath(const QString &path)
{
    ortakit::storeFullText(*m_label, path);
    show();
}

void ElidedPathLabel::takeText()
{
    // A path that itself holds dots is not stored by the state; only what was not shown by this object is one.
    if (m_label->text() != m_shown)
        setFullPath(m_label->text());
}

QString ElidedPathLabel::fullPath() const
{
    return ortakit::storedFullText(*m_label);
}

QString ElidedPathLabel::name() const
{
    return m_label->objectName();
}

bool ElidedPathLabel::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize && m_label->text() == m_shown)
        show();
    return QObject::eventFilter(watched, event);
}

void ElidedPathLabel::show()
{
    const int width = m_label->contentsRect().width() - 2 * m_label->margin();
    m_shown = m_label->fontMetrics().elidedText(files::visibleText(fullPath()), Qt::ElideMiddle, width);
    m_label->setText(m_shown);
    m_label->setToolTip(fullPath());
}
