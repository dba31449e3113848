#pragma once

#include <QIcon>
#include <QStringList>

namespace host::app {

/// The drawn icon of this name, in the colours that windows have when it is painted, sharp at any scale. Drawn when it
/// is first seen; null for a name of none.
QIcon menuIcon(const QString &name);

/// All there are.
QStringList menuIconNames();

} // namespace host::app
