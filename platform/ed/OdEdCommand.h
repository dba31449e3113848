#pragma once

#include "platform/rx/OdRxObject.h"
#include "platform/rx/OdString.h"

/// What a host knows of the run of a command. The module passes it on unread, and it may be null.
class OdEdCommandContext;

/// A command that a module brings along. It belongs to the module.
class KV_EXPORT OdEdCommand : public virtual OdRxObject
{
public:
    /// Whose commands it belongs to; for listings. May be asked at any time between adding and removing, as the next
    /// one may.
    virtual OdString groupName() const = 0;
    /// What is typed, or given to Lisp's (command ...), to run it; compared without regard to case.
    virtual OdString globalName() const = 0;
    /// Runs the command to its end on the active document. What it asks that document's CKvUserInput for is answered
    /// by the arguments of a (command ...) first. It must not throw.
    /// `context` may be null. The document may be closed by what is asked for here, and another one be active
    /// afterwards.
    virtual void execute(OdEdCommandContext *context) = 0;
};

/// The commands that modules have brought to the host.
class KV_EXPORT OdEdCommandStack
{
public:
    virtual ~OdEdCommandStack() = default;

    /// From now on the host runs `command`, which is not owned and must be removed before it goes away. Its name is
    /// asked for now and must stay the same. False when it has none, or when a command of that name is there already,
    /// one of the host's own among them; nothing has changed then.
    virtual bool addCommand(OdEdCommand *command) = 0;
    /// Removing one that was not added has no effect. The command is told apart by its address and may not be running.
    virtual void removeCommand(OdEdCommand *command) = 0;
};

/// The command stack; never null while a module is loaded.
KV_EXPORT OdEdCommandStack *odedRegCmds();
