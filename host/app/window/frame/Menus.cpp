#include "host/app/window/frame/Menus.h"

#include "host/app/window/frame/MenuIcons.h"
#include "host/app/window/frame/Mnemonics.h"

#include <QAction>
#include <QActionGroup>
#include <QCoreApplication>
#include <QKeySequence>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

QString translatedCaption(const char *text)
{
    return QCoreApplication::translate("Menus", text);
}

/// What a pointer that rests on the button tells: what it is, its keys, and what it does.
QString toolTipOf(const QAction &action, const QString &tip)
{
    QString name = QString(action.text()).remove(u'&').remove(u"..."_s);
    if (!action.shortcut().isEmpty())
        name += u" (%1)"_s.arg(action.shortcut().toString(QKeySequence::NativeText));
    return tip.isEmpty() ? name : u"%1\n%2"_s.arg(name, tip);
}

void setMnemonicsOf(const QList<QAction *> &actions)
{
    QList<QAction *> named;
    QStringList captions;
    for (QAction *action : actions) {
        if (action->menu())
            setMnemonicsOf(action->menu()->actions());
        if (action->isSeparator() || action->text().isEmpty())
            continue;
        named.append(action);
        captions.append(action->text());
    }
    captions = withMnemonics(captions);
    for (qsizetype i = 0; i < named.size(); ++i)
        named[i]->setText(captions[i]);
}

} // namespace

Menus::Menus(QMainWindow &window, Parts parts) : m_window(window), m_parts(std::move(parts))
{
    for (const MenuRow &row : menuRows())
        addRow(row);
    fillToolbarMenu(menuOf(u"&View/&Toolbars"_s));
    setMnemonicsOf(m_window.menuBar()->actions());
}

void Menus::addRow(const MenuRow &row)
{
    QMenu &menu = menuOf(QString::fromUtf8(row.menu));
    const QString does = QString::fromLatin1(row.does);
    if (row.isSeparator())
        menu.addSeparator();
    else if (m_parts.places.contains(does))
        m_parts.places.value(does)(*this, menu);
    else if (row.isLine() || m_parts.bodies.contains(does))
        addEntry(menu, row);
}

void Menus::addEntry(QMenu &menu, const MenuRow &row)
{
    const QString does = QString::fromLatin1(row.does);
    const QString tip = menuTip(row);
    QAction *action = menu.addAction(translatedCaption(row.text));
    action->setObjectName(does);
    action->setShortcut(QKeySequence(QString::fromLatin1(row.keys)));
    action->setToolTip(toolTipOf(*action, tip));
    action->setStatusTip(row.isLine() ? u"%1 (%2)"_s.arg(tip, row.command()) : tip);
    if (row.isLine())
        connect(action, &QAction::triggered, this, [this, does] { m_parts.run(does); });
    else
        connect(action, &QAction::triggered, this, m_parts.bodies.value(does));
    if (row.choice[0] != '\0') {
        QActionGroup *&group = m_choices[QString::fromLatin1(row.choice)];
        if (!group)
            group = new QActionGroup(this);
        action->setCheckable(true);
        group->addAction(action);
    }
    if (row.toolbar[0] != '\0')
        addToToolbar(row, *action);
    m_actions.insert(does, action);
    m_entries.append({action, row.whenBusy, isForPrompts(row)});
}

void Menus::addToToolbar(const MenuRow &row, QAction &action)
{
    action.setIcon(menuIcon(QString::fromLatin1(row.icon)));
    action.setIconVisibleInMenu(true);
    toolbarOf(QString::fromLatin1(row.toolbar)).addAction(&action);
}

QAction *Menus::addLine(QMenu &menu, const QString &caption, const QString &line, const QString &tip)
{
    QAction *action = menu.addAction(caption);
    action->setObjectName(line);
    action->setToolTip(tip);
    action->setStatusTip(u"%1 (%2)"_s.arg(tip, line));
    connect(action, &QAction::triggered, this, [this, line] { m_parts.run(line); });
    m_entries.append({action, WhenBusy::Disabled, false});
    return action;
}

QMenu &Menus::menuOf(const QString &path)
{
    QMenu *&menu = m_menus[path];
    if (menu)
        return *menu;
    const qsizetype slash = path.lastIndexOf(u'/');
    const QString title = translatedCaption(path.sliced(slash + 1).toUtf8().constData());
    if (slash < 0)
        return *(menu = m_window.menuBar()->addMenu(title));
    // Making the outer one may move what the hash holds.
    QMenu *inner = menuOf(path.first(slash)).addMenu(title);
    m_menus[path] = inner;
    return *inner;
}

QToolBar &Menus::toolbarOf(const QString &name)
{
    for (QToolBar *bar : m_toolbars)
        if (bar->objectName() == name + u"Bar"_s)
            return *bar;
    auto *bar = new QToolBar(translatedCaption(name.toUtf8().constData()), &m_window);
    bar->setObjectName(name + u"Bar"_s);
    bar->setAccessibleName(bar->windowTitle());
    bar->setIconSize({20, 20});
    // What opens and shows above, what draws at one side, what changes at the other: all of them fit that way.
    static constexpr Qt::ToolBarArea areas[] = {Qt::TopToolBarArea, Qt::LeftToolBarArea, Qt::RightToolBarArea};
    m_window.addToolBar(areas[std::min<qsizetype>(m_toolbars.size(), 2)], bar);
    m_toolbars.append(bar);
    return *bar;
}

void Menus::fillToolbarMenu(QMenu &menu)
{
    for (QToolBar *bar : m_toolbars)
        menu.addAction(bar->toggleViewAction());
}

void Menus::setActivity(Activity activity)
{
    for (const Entry &entry : m_entries)
        entry.action->setEnabled(activity == Activity::Nothing || entry.whenBusy == WhenBusy::Enabled ||
                                 (activity == Activity::Prompting && entry.isForPrompts));
}

} // namespace host::app
