#include "host/commands/Commands.h"
#include "host/drawing/editing/LayoutEdits.h"
#include "host/drawing/editing/RenameNamed.h"
#include "host/kernel/documents/CommandMemory.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/documents/Session.h"
#include "host/kernel/running/CommandContext.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::TableKind;

struct RenameKind
{
    QStringView option;
    const char *what; ///< as the questions say it
    std::optional<TableKind> table;
    QStringView dictionary; ///< of what is in no table
};

constexpr RenameKind renameKinds[] = {
    {u"Block", "block", TableKind::BlockRecord, {}},
    {u"Dimstyle", "dimension style", TableKind::DimStyle, {}},
    {u"LAyer", "layer", TableKind::Layer, {}},
    {u"LType", "linetype", TableKind::Linetype, {}},
    {u"Material", "material", {}, u"ACAD_MATERIAL"},
    {u"multileadersTyle", "multileader style", {}, u"ACAD_MLEADERSTYLE"},
    {u"Style", "text style", TableKind::Style, {}},
    {u"Tablestyle", "table style", {}, u"ACAD_TABLESTYLE"},
    {u"Ucs", "UCS", TableKind::Ucs, {}},
    {u"VIew", "view", TableKind::View, {}},
    {u"VPort", "viewport", TableKind::Viewport, {}},
    {u"LAYOut", "layout", {}, {}},
};

QString renameSheet(CommandContext &context, const QString &from, const QString &to)
{
    const auto layout = drawing::findLayout(context.drawing(), from);
    return layout ? drawing::renameLayout(context.drawing(), *layout, to) : u"Layout \"%1\" not found."_s.arg(from);
}

CommandTask rename(CommandContext &context)
{
    const PromptReply option = co_await context.keyword(
        u"Enter object type to rename [Block/Dimstyle/LAyer/LType/Material/multileadersTyle/Style/Tablestyle/Ucs/VIew/"
        "VPort]: "_s,
        u"Block Dimstyle LAyer LType,LT Material multileadersTyle,MU Style Tablestyle Ucs VIew VPort LAYOut,LAYO"_s);
    const auto *kind = std::ranges::find(renameKinds, QStringView(option.text), &RenameKind::option);
    if (kind == std::end(renameKinds))
        co_return;
    const QString what = QLatin1StringView(kind->what);
    const PromptReply from = co_await context.text(u"Enter old %1 name: "_s.arg(what));
    const PromptReply to = co_await context.text(u"Enter new %1 name: "_s.arg(what));
    const QString before = from.text.trimmed();
    const QString after = to.text.trimmed();
    QString problem;
    if (kind->table)
        problem = drawing::renameEntry(context.drawing(), *kind->table, before, after);
    else if (!kind->dictionary.isEmpty())
        problem = drawing::renameInDictionary(context.drawing(), kind->dictionary, before, after);
    else
        problem = renameSheet(context, before, after);
    if (!problem.isEmpty())
        context.fail(problem);
}

/// The name as the table of commands has it; empty, with the reason printed, for none.
Dialogue<QString> askCommandName(CommandContext &context)
{
    const PromptReply reply = co_await context.name(u"Enter command name: "_s);
    const CommandRow *row = CommandTable::find(reply.text);
    if (!row)
        context.fail(u"Unknown command \"%1\"."_s.arg(reply.text));
    co_return row ? QString::fromLatin1(row->name) : QString();
}

CommandTask undefine(CommandContext &context)
{
    const QString name = co_await askCommandName(context);
    if (!name.isEmpty())
        context.document().session().undefinedCommands().insert(name);
}

CommandTask redefine(CommandContext &context)
{
    const QString name = co_await askCommandName(context);
    if (!name.isEmpty() && !context.document().session().undefinedCommands().remove(name))
        context.print(u"\n%1 is a command already."_s.arg(name));
}

} // namespace

std::vector<CommandRow> renameCommands()
{
    return {{"-RENAME", rename, "Gives blocks, layers, styles and other named things another name"},
            {"REDEFINE", redefine, "Makes a command known again that UNDEFINE hid"},
            {"RENAME", rename, "As -RENAME; there is no window for it"},
            {"UNDEFINE", undefine, "Hides a command, which a point in front still runs"}};
}

} // namespace host::kernel
