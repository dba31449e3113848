#include "host/app/playback/WidgetFinder.h"

#include "host/app/playback/PlaybackText.h"

#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLabel>
#include <QMessageBox>
#include <QMetaEnum>
#include <QPushButton>
#include <QWidget>

#include <functional>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

constexpr int mostNamesListed = 40;

using WidgetTest = std::function<bool(const QWidget &)>;

QWidget *firstWidget(QWidget &root, const WidgetTest &test, int skip = 0)
{
    QWidget *hidden = nullptr;
    int left = skip;
    for (QWidget *widget : root.findChildren<QWidget *>()) {
        if (!test(*widget) || left-- > 0)
            continue;
        if (widget->isVisible())
            return widget;
        if (!hidden)
            hidden = widget;
    }
    return hidden;
}

QString caption(const QWidget &widget)
{
    if (const auto *button = qobject_cast<const QAbstractButton *>(&widget))
        return plainCaption(button->text());
    if (const auto *label = qobject_cast<const QLabel *>(&widget))
        return plainCaption(label->text());
    if (const auto *box = qobject_cast<const QGroupBox *>(&widget))
        return plainCaption(box->title());
    return {};
}

/// Object names of what a person could use, in order.
QString knownNames(const QWidget &root)
{
    QStringList names;
    for (const QWidget *widget : root.findChildren<QWidget *>()) {
        const QString name = widget->objectName();
        if (name.isEmpty() || name.startsWith("qt_"_L1) || names.contains(name))
            continue;
        if (names.size() == mostNamesListed)
            return names.join(", "_L1) + u", ..."_s;
        names.append(name);
    }
    return names.isEmpty() ? tr("nothing with a name") : names.join(", "_L1);
}

QWidget *standardButton(QWidget &root, const QString &name)
{
    bool ok = false;
    const int key = QMetaEnum::fromType<QDialogButtonBox::StandardButtons>().keyToValue(name.toLatin1(), &ok);
    if (!ok)
        return nullptr;
    if (const auto *box = qobject_cast<QMessageBox *>(&root))
        return box->button(static_cast<QMessageBox::StandardButton>(key));
    for (const QDialogButtonBox *box : root.findChildren<QDialogButtonBox *>())
        if (QPushButton *button = box->button(static_cast<QDialogButtonBox::StandardButton>(key)))
            return button;
    return nullptr;
}

QWidget *byClass(QWidget &root, const QString &reference)
{
    const QByteArray name = reference.section(u'#', 0, 0).toLatin1();
    const int number = std::max(reference.section(u'#', 1).toInt(), 1);
    return firstWidget(
        root, [&](const QWidget &widget) { return widget.inherits(name.constData()); }, number - 1);
}

QWidget *byName(QWidget &root, const QString &name)
{
    if (QWidget *widget = firstWidget(root, [&](const QWidget &w) { return w.objectName() == name; }))
        return widget;
    return firstWidget(root, [&](const QWidget &w) { return w.objectName().compare(name, Qt::CaseInsensitive) == 0; });
}

QWidget *lookUp(QWidget &root, const QString &reference)
{
    if (reference.startsWith("text:"_L1)) {
        const QString text = plainCaption(reference.mid(5));
        return firstWidget(root, [&](const QWidget &widget) { return !text.isEmpty() && caption(widget) == text; });
    }
    if (reference.startsWith("button:"_L1))
        return standardButton(root, reference.mid(7));
    if (reference.startsWith("class:"_L1))
        return byClass(root, reference.mid(6));
    return byName(root, reference);
}

} // namespace

FoundWidget findWidget(QWidget &root, const QString &reference)
{
    if (QWidget *widget = lookUp(root, reference))
        return {widget, {}};
    return {nullptr, tr("%1 has no widget \"%2\"; it has %3").arg(describeDialog(root), reference, knownNames(root))};
}

bool isDialogNamed(const QWidget &dialog, const QString &name)
{
    if (dialog.objectName().compare(name, Qt::CaseInsensitive) == 0)
        return true;
    for (const QMetaObject *type = dialog.metaObject(); type; type = type->superClass()) {
        const QString className = QLatin1StringView(type->className());
        if (className == name || className.endsWith("::"_L1 + name))
            return true;
    }
    return false;
}

QString plainCaption(QString text)
{
    text.replace("&&"_L1, "\x01"_L1).remove(u'&').replace("\x01"_L1, "&"_L1);
    if (text.endsWith("..."_L1))
        text.chop(3);
    if (text.endsWith(u'…'))
        text.chop(1);
    return text.simplified();
}

QString nameOf(const QWidget &widget)
{
    const QString name = widget.objectName();
    if (name.startsWith("qt_"_L1) && widget.parentWidget())
        return nameOf(*widget.parentWidget()); // a part of a widget that has the name
    return name.isEmpty() ? QString(QLatin1StringView(widget.metaObject()->className())) : name;
}

QString describeDialog(const QWidget &dialog)
{
    const QString className = QLatin1StringView(dialog.metaObject()->className());
    QString text = tr("dialog %1").arg(className);
    if (!dialog.objectName().isEmpty() && dialog.objectName() != className)
        text += " (%1)"_L1.arg(dialog.objectName());
    if (!dialog.windowTitle().isEmpty())
        text += " \"%1\""_L1.arg(dialog.windowTitle());
    if (const auto *box = qobject_cast<const QMessageBox *>(&dialog))
        text += tr(" saying \"%1\"").arg(box->text().simplified());
    return text;
}

} // namespace host::app
