#include "host/kernel/commands/CommandTable.h"

#include "host/kernel/commands/Commands.h"

#include <QHash>

namespace host::kernel {

namespace {

std::vector<CommandRow> collectRows()
{
    std::vector<CommandRow> rows;
    for (const auto &group : {drawCommands(), editCommands(), blockCommands(), layerCommands(), fileCommands(),
                              viewCommands(), undoCommands()})
        rows.insert(rows.end(), group.begin(), group.end());
    std::sort(rows.begin(), rows.end(),
              [](const CommandRow &a, const CommandRow &b) { return qstrcmp(a.name, b.name) < 0; });
    return rows;
}

/// What people type for short.
QString unabbreviated(const QString &name)
{
    static const QHash<QString, QString> names = {
        {QStringLiteral("L"), QStringLiteral("LINE")},     {QStringLiteral("C"), QStringLiteral("CIRCLE")},
        {QStringLiteral("PL"), QStringLiteral("PLINE")},   {QStringLiteral("E"), QStringLiteral("ERASE")},
        {QStringLiteral("M"), QStringLiteral("MOVE")},     {QStringLiteral("CO"), QStringLiteral("COPY")},
        {QStringLiteral("CP"), QStringLiteral("COPY")},    {QStringLiteral("RO"), QStringLiteral("ROTATE")},
        {QStringLiteral("SC"), QStringLiteral("SCALE")},   {QStringLiteral("I"), QStringLiteral("INSERT")},
        {QStringLiteral("-I"), QStringLiteral("-INSERT")}, {QStringLiteral("W"), QStringLiteral("WBLOCK")},
        {QStringLiteral("-W"), QStringLiteral("-WBLOCK")}, {QStringLiteral("-LA"), QStringLiteral("-LAYER")},
        {QStringLiteral("LA"), QStringLiteral("-LAYER")},  {QStringLiteral("LAYER"), QStringLiteral("-LAYER")},
        {QStringLiteral("Z"), QStringLiteral("ZOOM")},     {QStringLiteral("RE"), QStringLiteral("REGEN")},
        {QStringLiteral("R"), QStringLiteral("REDRAW")},   {QStringLiteral("SET"), QStringLiteral("SETVAR")}};
    return names.value(name, name);
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
    const QString name = unabbreviated(plainName(typed));
    for (const CommandRow &row : all())
        if (name == QLatin1String(row.name))
            return &row;
    return nullptr;
}

std::span<const CommandRow> CommandTable::all()
{
    static const std::vector<CommandRow> rows = collectRows();
    return rows;
}

} // namespace host::kernel
