#pragma once

#include "host/kernel/running/AliasTable.h"
#include "platform/Export.h"

#include <QDateTime>

#include <optional>

namespace host::kernel {

/// What may be typed in place of commands, from the user's alias file. The file is looked at before each use and read
/// again when its time or size is another, so that what the alias editor saves counts from the next command on. Where
/// there is no file, one with the first aliases is made; where that is not possible, they count all the same.
class KV_EXPORT CommandAliases
{
public:
    explicit CommandAliases(const QString &path);

    /// Makes the file with the first aliases where there is none. A folder that refuses is no error.
    void ensureFile() const;
    /// Brings the table up to date. Returns what the user is told when the file has changed and cannot be read, once
    /// for each change; the table is then what it was.
    QString refresh();
    /// The command that `alias` (upper case) stands for as of the last refresh(), as it is written in the file; empty
    /// when it is none.
    QString command(const QString &alias) const { return m_table.value(alias); }
    /// All of them, as of then.
    const AliasTable &table() const { return m_table; }

private:
    /// What is seen of a file without reading it.
    struct Stamp
    {
        QDateTime time;
        qint64 size = 0;

        friend bool operator==(const Stamp &, const Stamp &) = default;
    };
    std::optional<Stamp> stampOfFile() const;
    QString reread();

    QString m_path;
    AliasTable m_table;
    std::optional<Stamp> m_stamp;
};

} // namespace host::kernel
