#pragma once

#include "platform/Export.h"

#include <QString>

namespace host::kernel {

/// The folders of the person who runs the program, absolute, without a separator at the end. None of them need be
/// there.
struct UserFolders
{
    QString data;     ///< what the person made: aliases, starters, state files, copies for after a crash
    QString settings; ///< what was set: settings.ini, registry.ini, workbench.ini; no programs are run from there
    QString cache;    ///< what can be made anew
};

/// All in `wanted`, or where that is empty in what the environment variable ORTAKIT_HOME names (the cache in its folder
/// "cache"); without either, folders "ortakit" in the system's places for data, settings and caches.
KV_EXPORT UserFolders userFolders(const QString &wanted = {});

/// The file of settings of that name, which may be missing. One that stands with the data, where settings used to be,
/// is moved first. Where that cannot be done, or where it is a link, which would lose what it points to, it is used as
/// it is.
KV_EXPORT QString settingsFile(const UserFolders &folders, const QString &name);

} // namespace host::kernel
