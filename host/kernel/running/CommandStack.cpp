#include "host/kernel/running/CommandStack.h"

#include "host/kernel/running/CommandTable.h"

namespace host::kernel {

bool CommandStack::addCommand(OdEdCommand *command)
{
    if (!command)
        return false;
    const QString name = CommandTable::plainName(command->globalName());
    if (name.isEmpty() || m_commands.contains(name) || CommandTable::find(name))
        return false;
    m_commands.insert(name, command);
    return true;
}

void CommandStack::removeCommand(OdEdCommand *command)
{
    m_commands.removeIf([command](const auto &entry) { return entry.value() == command; });
}

OdEdCommand *CommandStack::find(QStringView typed) const
{
    return m_commands.value(CommandTable::plainName(typed));
}

} // namespace host::kernel
