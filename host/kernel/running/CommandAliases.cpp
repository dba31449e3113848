#include "host/kernel/running/CommandAliases.h"

#include "files/qt/Files.h"
#include "host/kernel/languages/Texts.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace host::kernel {

CommandAliases::CommandAliases(const QString &path) : m_path(path), m_table(firstAliases()) {}

void CommandAliases::ensureFile() const
{
    // A folder that takes none is no fault: the table in memory serves.
    if (!QFileInfo::exists(m_path))
        files::replaceFile(m_path, toAliasFile(firstAliases()));
}

QString CommandAliases::refresh()
{
    ensureFile();
    const std::optional<Stamp> stamp = stampOfFile();
    if (stamp == m_stamp)
        return {};
    m_stamp = stamp;
    return stamp ? reread() : QString();
}

std::optional<CommandAliases::Stamp> CommandAliases::stampOfFile() const
{
    const QFileInfo file(m_path);
    if (!file.exists())
        return {};
    return Stamp{file.lastModified(), file.size()};
}

QString CommandAliases::reread()
{
    constexpr qint64 largestFile = 64 * 1024 * 1024;
    QFile file;
    AliasTableReading reading;
    reading.error = files::openRegular(file, m_path, largestFile);
    if (reading.error.isEmpty())
        reading = readAliasTable(file);
    if (reading.error.isEmpty()) {
        m_table = std::move(reading.table);
        return {};
    }
    return Kernel::tr("The command aliases in %1 cannot be read: %2 The ones before stay in use.")
        .arg(QDir::toNativeSeparators(m_path),
             reading.error.endsWith(u'.') ? reading.error : reading.error + QStringLiteral("."));
}

} // namespace host::kernel
