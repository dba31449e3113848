#include "host/kernel/platform/HelpTopics.h"

#include <QFile>

namespace host::kernel {

HelpTopics::HelpTopics(const QString &folder)
{
    QFile file(folder + QStringLiteral("/topics.tsv"));
    if (!file.open(QIODevice::ReadOnly))
        return;
    const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
    for (const QString &line : lines)
        m_addresses.insert(line.section(u'\t', 0, 0).toLower(), line.section(u'\t', 1, 1));
}

QString HelpTopics::address(const QStringList &keys) const
{
    for (const QString &key : keys)
        if (const QString found = m_addresses.value(key.toLower()); !found.isEmpty())
            return found;
    return {};
}

} // namespace host::kernel
