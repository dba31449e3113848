#pragma once

#include "host/kernel/commands/CommandTask.h"
#include "platform/Export.h"

#include <QString>

#include <span>

namespace host::kernel {

/// One built-in command.
struct CommandRow
{
    const char *name; ///< upper case, without prefix
    CommandTask (*body)(CommandContext &);
    const char *help; ///< one line for listings
};

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
