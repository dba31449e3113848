#pragma once

#include <QString>
#include <QStringList>

namespace host::app {

/// That of `names` which `wrong` was most likely meant to be; empty when none is near. Case does not count.
QString nearestName(const QString &wrong, const QStringList &names);
/// " (did you mean NAME?)" where one is near.
QString suggestionFor(const QString &wrong, const QStringList &names);

} // namespace host::app
