#include "state/widgets/TypedFields.h"

#include "state/widgets/ElidedPathField.h"
#include "state/widgets/FullText.h"

#include <QFocusEvent>
#include <QLineEdit>
#include <QSignalBlocker>

namespace {

bool isOwnField(const QLineEdit &edit)
{
    // Those of combo boxes have no name, those of spin boxes and table cells one of Qt's.
    const QString name = edit.objectName();
    return !name.isEmpty() && !name.startsWith(QLatin1String("qt_")) && !ElidedPathField::isOne(edit);
}

void leave(QLineEdit &edit)
{
    const QString whole = ortakit::wholeText(edit);
    // As when a state is applied: what looks shortened is stored by whoever knows that it is not.
    if (!ortakit::isElided(whole))
        ortakit::storeFullText(edit, whole);
    const QSignalBlocker noSignals(edit); // nothing has changed
    ortakit::showElided(edit, whole);
}

/// Whether the edit goes on being the one that the user works on.
bool isForAMoment(const QEvent &event)
{
    const Qt::FocusReason reason = static_cast<const QFocusEvent &>(event).reason();
    return reason == Qt::PopupFocusReason || reason == Qt::ActiveWindowFocusReason;
}

} // namespace

TypedFields::TypedFields(const QWidget &dialog)
{
    for (QLineEdit *edit : dialog.findChildren<QLineEdit *>()) {
        if (!isOwnField(*edit))
            continue;
        edit->installEventFilter(this);
        connect(edit, &QLineEdit::textEdited, this,
                [edit](const QString &text) { ortakit::storeFullText(*edit, text); });
    }
}

bool TypedFields::eventFilter(QObject *watched, QEvent *event)
{
    auto &edit = *static_cast<QLineEdit *>(watched);
    switch (event->type()) {
    case QEvent::FocusIn:
    case QEvent::DragEnter: // a text can be dropped without the focus
        ortakit::showWhole(edit);
        break;
    case QEvent::FocusOut:
        if (!isForAMoment(*event))
            leave(edit);
        break;
    case QEvent::DragLeave:
    case QEvent::Resize:
        if (!edit.hasFocus())
            leave(edit);
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}
