#pragma once

#include "host/app/window/frame/MenuTable.h"

#include <QHash>
#include <QObject>

#include <functional>

class QAction;
class QActionGroup;
class QMainWindow;
class QMenu;
class QToolBar;

namespace host::app {

/// What the window is at, as far as it matters to what can be chosen.
enum class Activity
{
    Nothing,
    Prompting, ///< a prompt waits that takes commands in the middle
    Running
};

/// The menus and toolbars of the window, made from the rows of menuRows(). Each entry is one action, which is an object
/// of the name that its row `does`, in the menus and on its toolbar alike.
class Menus : public QObject
{
    Q_OBJECT

public:
    /// What the window gives the rows to do.
    struct Parts
    {
        std::function<void(const QString &line)> run; ///< of rows with a line
        QHash<QString, std::function<void()>> bodies; ///< by the names of rows that have none
        QHash<QString, std::function<void(Menus &, QMenu &)>>
            places; ///< fill the menu at a place, by its name with "@"
    };

    /// Builds everything into the window, which must outlive this. A row that nothing is given for is left out.
    Menus(QMainWindow &window, Parts parts);

    /// The entry that does this; null when there is none.
    QAction *find(const QString &does) const { return m_actions.value(does); }
    /// An entry that runs a line while nothing else runs, at the end of a menu. `tip` says what that does.
    QAction *addLine(QMenu &menu, const QString &caption, const QString &line, const QString &tip);
    /// Enables what can be chosen now.
    void setActivity(Activity activity);

private:
    void addRow(const MenuRow &row);
    void addEntry(QMenu &menu, const MenuRow &row);
    void addToToolbar(const MenuRow &row, QAction &action);
    /// The menu of a path, made where it is not there yet.
    QMenu &menuOf(const QString &path);
    QToolBar &toolbarOf(const QString &name);
    void fillToolbarMenu(QMenu &menu);

    struct Entry
    {
        QAction *action;
        WhenBusy whenBusy;
        bool isForPrompts;
    };
    QMainWindow &m_window;
    Parts m_parts;
    QHash<QString, QAction *> m_actions;
    QHash<QString, QMenu *> m_menus;
    QHash<QString, QActionGroup *> m_choices;
    QList<QToolBar *> m_toolbars;
    QList<Entry> m_entries;
};

} // namespace host::app
