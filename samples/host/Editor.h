#pragma once

#include "platform/ed/OdEdCommand.h"
#include "platform/ed/OdEditor.h"

#include <QList>

namespace sample {

/// Who wants to hear of saving, commands, Lisp programs and system variables.
class Editor final : public OdEditor
{
public:
    void addReactor(OdEditorReactor *reactor) override;
    void removeReactor(OdEditorReactor *reactor) override { m_reactors.removeAll(reactor); }

    // [telling]
    /// Calls `event` for each reactor that is also a Kind: reactor.commandWillStart(...) for those of commands. Some
    /// may go during that, and do not hear of it any more.
    template <class Kind = OdEditorReactor, class Event>
    void tell(const Event &event)
    {
        const QList<OdEditorReactor *> reactors = m_reactors;
        for (OdEditorReactor *reactor : reactors) {
            Kind *listener = m_reactors.contains(reactor) ? dynamic_cast<Kind *>(reactor) : nullptr;
            if (listener)
                event(*listener);
        }
    }
    // [/telling]

private:
    QList<OdEditorReactor *> m_reactors;
};

/// The commands that the module brings.
class CommandStack final : public OdEdCommandStack
{
public:
    bool addCommand(OdEdCommand *command) override;
    void removeCommand(OdEdCommand *command) override { m_commands.removeAll(command); }

    /// Null when there is none of this name, in any case.
    OdEdCommand *command(const QString &name) const;

private:
    QList<OdEdCommand *> m_commands;
};

Editor &editor();
CommandStack &commands();

} // namespace sample
