#pragma once

#include "platform/ed/OdEdCommand.h"

#include <QHash>

namespace host::kernel {

/// The commands that modules have brought. A name of a built-in command is taken.
class KV_EXPORT CommandStack final : public OdEdCommandStack
{
public:
    bool addCommand(OdEdCommand *command) override;
    void removeCommand(OdEdCommand *command) override;

    /// The command that a typed name means, prefixes and letter case aside; null when there is none.
    OdEdCommand *find(QStringView typed) const;

private:
    QHash<QString, OdEdCommand *> m_commands; ///< by plain name
};

} // namespace host::kernel
