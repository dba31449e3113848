#pragma once

#include <QList>

class QWidget;

namespace host::app {

class Menus;

/// Has the keys that cut, copy, paste, erase and choose mean the drawing while one of `places` or a child of it has the
/// keyboard: in a panel's list or field they are that one's own. The places must outlive the menus.
void keepEditKeysTo(const QList<QWidget *> &places, const Menus &menus);

} // namespace host::app
