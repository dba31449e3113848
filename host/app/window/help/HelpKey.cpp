#include "host/app/window/help/HelpKey.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

/// The name that the place in a text lies in or right behind.
QString nameAt(const QString &text, qsizetype place)
{
    const auto isPart = [](QChar c) { return !c.isSpace() && !u"()'\"`;,"_s.contains(c); };
    qsizetype begin = place;
    qsizetype end = place;
    while (begin > 0 && isPart(text[begin - 1]))
        --begin;
    while (end < text.size() && isPart(text[end]))
        ++end;
    return text.sliced(begin, end - begin);
}

QStringList keysOfName(QString name)
{
    if (name.isEmpty())
        return {};
    const QString function = name;
    if (name.startsWith(u"c:"_s, Qt::CaseInsensitive))
        name = name.sliced(2);
    while (name.startsWith(u'_') || name.startsWith(u'.'))
        name = name.sliced(1);
    return {u"function "_s + function, u"command "_s + name, u"variable "_s + name};
}

QStringList keysOfCommand(const QString &line)
{
    QStringList keys = keysOfName(line.section(u' ', 0, 0));
    // Built-in commands and functions share some names.
    if (keys.size() == 3)
        keys.swapItemsAt(0, 1);
    return keys;
}

QStringList keysOfText(const QWidget &widget)
{
    if (const auto *text = qobject_cast<const QPlainTextEdit *>(&widget))
        return keysOfName(nameAt(text->toPlainText(), text->textCursor().position()));
    const auto *field = qobject_cast<const QLineEdit *>(&widget);
    if (!field || field->objectName() != u"commandInput")
        return {};
    return field->text().startsWith(u'(') ? keysOfName(nameAt(field->text(), field->cursorPosition()))
                                          : keysOfCommand(field->text());
}

} // namespace

HelpKeys helpKeysAt(const QWidget &widget)
{
    HelpKeys keys{keysOfText(widget), {}};
    for (const QWidget *each = &widget; each; each = each->parentWidget()) {
        const QString name = each->objectName();
        if (!name.isEmpty())
            keys.place += {u"dialog "_s + name, u"window "_s + name};
        // Editors of settings are called by their variables, some with a bit behind that.
        if (!name.isEmpty() && each->window()->objectName() == u"settingsWindow")
            keys.word.append(u"variable "_s + name.section(u'.', 0, 0));
    }
    return keys;
}

HelpKeys helpKeysOf(const QMenu &menu)
{
    const QAction *action = menu.activeAction();
    const QString does = action ? action->objectName() : QString();
    if (does.isEmpty())
        return {{}, {u"window menus"_s}};
    return {QStringList(u"menu "_s + does) + keysOfCommand(does), {u"window menus"_s}};
}

HelpKey::HelpKey(std::function<void(const HelpKeys &)> wanted, QObject *parent)
    : QObject(parent), m_wanted(std::move(wanted))
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool HelpKey::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress || !watched->isWidgetType())
        return false;
    const auto *key = static_cast<QKeyEvent *>(event);
    if (key->key() != Qt::Key_F1 || key->modifiers() != Qt::NoModifier)
        return false;
    const auto *menu = qobject_cast<const QMenu *>(watched);
    const HelpKeys keys = menu ? helpKeysOf(*menu) : helpKeysAt(*static_cast<const QWidget *>(watched));
    while (menu && QApplication::activePopupWidget() && QApplication::activePopupWidget()->close()) {
    }
    m_wanted(keys);
    return true;
}

} // namespace host::app
