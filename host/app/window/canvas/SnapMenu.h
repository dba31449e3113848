#pragma once

#include <QString>

#include <functional>

class QMenu;
class QWidget;

namespace host::app {

// Menus of object snaps, each kind with the mark that it has at the pointer. The owner keeps them until they close.

/// The kinds of OSMODE, with a mark at those that `modes` holds; `changed` hears of a kind that is wanted or not any
/// more.
QMenu *runningSnapMenu(int modes, QWidget *owner, std::function<void(int kind, bool on)> changed);

/// What may be said of the next point alone; `chosen` gets the word that the prompt takes for it.
QMenu *nextPointMenu(QWidget *owner, std::function<void(const QString &word)> chosen);

} // namespace host::app
