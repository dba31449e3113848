#pragma once

#include "platform/ed/OdEdCommand.h"

#include <QHash>

namespace host::kernel {

/// The commands that modules have brought. They are called like built-in ones: typed, from menus, by (command). Modules
/// own them and take them out before they are unloaded; nothing here is called then.
class KV_EXPORT CommandStack final : public OdEdCommandStack
{
public:
    /// False when there is none, when it has no name, and when its global name is taken: by a built-in command or by
    /// another module's. Prefixes of the name and its letter case do not count.
    bool addCommand(OdEdCommand *command) override;
    /// All names of this command; one that was never added is no fault.
    void removeCommand(OdEdCommand *command) override;

    /// The command that a typed name means, prefixes and letter case aside; null when there is none.
    OdEdCommand *find(QStringView typed) const;

private:
    QHash<QString, OdEdCommand *> m_commands; ///< by plain name
};

} // namespace host::kernel
