#include "host/kernel/running/CommandTable.h"

#include <algorithm>

namespace host::kernel {

namespace {

std::vector<CommandRow> sortedRows()
{
    std::vector<CommandRow> rows = builtInCommands();
    std::sort(rows.begin(), rows.end(),
              [](const CommandRow &a, const CommandRow &b) { return qstrcmp(a.name, b.name) < 0; });
    return rows;
}

} // namespace

QString CommandTable::plainName(QStringView typed)
{
    QString name = typed.trimmed().toString().toUpper();
    while (name.startsWith(u'_') || name.startsWith(u'.') || name.startsWith(u'\''))
        name.remove(0, 1);
    return name;
}

const CommandRow *CommandTable::find(QStringView typed)
{
    const QString name = plainName(typed);
    for (const CommandRow &row : all())
        if (name == QLatin1String(row.name))
            return &row;
    return nullptr;
}

std::span<const CommandRow> CommandTable::all()
{
    static const std::vector<CommandRow> rows = sortedRows();
    return rows;
}

} // namespace host::kernel
