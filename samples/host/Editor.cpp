#include "Editor.h"

#include <algorithm>

namespace sample {

void Editor::addReactor(OdEditorReactor *reactor)
{
    if (reactor && !m_reactors.contains(reactor))
        m_reactors.append(reactor);
}

bool CommandStack::addCommand(OdEdCommand *added)
{
    if (added->globalName().isEmpty() || command(added->globalName()))
        return false;
    m_commands.append(added);
    return true;
}

OdEdCommand *CommandStack::command(const QString &name) const
{
    const auto found = std::ranges::find_if(m_commands, [&name](const OdEdCommand *command) {
        return command->globalName().compare(name, Qt::CaseInsensitive) == 0;
    });
    return found == m_commands.end() ? nullptr : *found;
}

Editor &editor()
{
    static Editor one;
    return one;
}

CommandStack &commands()
{
    static CommandStack one;
    return one;
}

} // namespace sample

OdEditor *odedEditor()
{
    return &sample::editor();
}

OdEdCommandStack *odedRegCmds()
{
    return &sample::commands();
}
