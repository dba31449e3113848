#pragma once

#include "host/kernel/running/CommandTask.h"
#include "platform/Export.h"

#include <QString>

#include <span>
#include <vector>

namespace host::kernel {

/// What a cancelled command leaves. Of one that was given an answer it does not take, nothing stays in either case.
enum class WhenCancelled
{
    TakeBack, ///< the drawing is as it was before
    KeepDone  ///< each answer was a whole step of its own: the steps so far stay
};

/// Whether a command may be called in the middle of another's prompt: those that ask for nothing but how things are
/// shown or set, so that they do no harm there.
enum class Interrupts
{
    Nothing,
    Prompts
};

/// One built-in command.
struct CommandRow
{
    const char *name;                      ///< upper case, without prefix
    CommandTask (*body)(CommandContext &); ///< see CommandContext
    const char *help;                      ///< one line for listings
    WhenCancelled whenCancelled = WhenCancelled::TakeBack;
    Interrupts interrupts = Interrupts::Nothing;
};

/// All built-in commands, in no order. The kernel runs them and asks no more of them: they are defined above it, in the
/// room of the commands.
std::vector<CommandRow> builtInCommands();

/// The built-in commands.
class KV_EXPORT CommandTable
{
public:
    /// The command that a typed name means, null when there is none: letter case and the prefixes "_" "." "'" do not
    /// matter, a leading "-" belongs to the name. Aliases are not known here; see Document::commandOfAlias().
    static const CommandRow *find(QStringView typed);
    /// `typed` in upper case without its prefixes.
    static QString plainName(QStringView typed);
    /// All rows, sorted by name.
    static std::span<const CommandRow> all();
};

} // namespace host::kernel
