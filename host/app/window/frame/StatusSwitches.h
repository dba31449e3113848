#pragma once

#include <QHash>
#include <QObject>
#include <QTimer>

class QAction;
class QMainWindow;
class QMenu;
class QToolButton;

namespace host::kernel {
class Document;
}

namespace host::app {

class WindowServices;

/// The switches of the status bar: what helps to aim, each a button with a mark and a key of its own that works while a
/// prompt waits, too. They show what the active document's system variables say, whoever set these. A right click, or
/// the menu key, lists what there is to choose of a switch that has more than on and off.
///
/// A switch that is set between commands is an undo step where the drawing keeps it; within a command it is part of
/// that, but stays when the command is cancelled.
class StatusSwitches final : public QObject
{
    Q_OBJECT

public:
    /// Puts the buttons into the window's status bar and the keys into the window, which owns both and outlives this.
    StatusSwitches(QMainWindow &window, WindowServices &services);

private:
    void addSwitch(QMainWindow &window, int row);
    /// What the person wants; what goes against it is switched off.
    void toggle(int row, bool on);
    void set(kernel::Document &document, const char *variable, int value);
    /// What a cancelled command took back with all else that it did.
    void setAgain();
    void follow(kernel::Document *document);
    void showState();
    /// Kinds of object snap, angles of polar tracking; null for a switch with nothing to choose.
    QMenu *choices(int row, QToolButton *owner);
    QMenu *snapKinds(QToolButton *owner);
    QMenu *polarAngles(QToolButton *owner);

    WindowServices &m_services;
    QList<QAction *> m_actions; ///< in the order of the rows
    QTimer m_soon;              ///< what changes together is shown once
    QMetaObject::Connection m_variables;

    struct Change
    {
        int before;
        int wanted;
    };
    QHash<QString, Change> m_whileBusy; ///< by variable
};

} // namespace host::app
