#include "host/commands/Commands.h"
#include "host/drawing/editing/LayoutEdits.h"
#include "host/drawing/editing/RenameNamed.h"
#include "host/kernel/documents/CommandMemory.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/documents/Session.h"
#include "host/kernel/languages/Texts.h"
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
    {u"Block", QT_TRANSLATE_NOOP("Commands", "block"), TableKind::BlockRecord, {}},
    {u"Dimstyle", QT_TRANSLATE_NOOP("Commands", "dimension style"), TableKind::DimStyle, {}},
    {u"LAyer", QT_TRANSLATE_NOOP("Commands", "layer"), TableKind::Layer, {}},
    {u"LType", QT_TRANSLATE_NOOP("Commands", "linetype"), TableKind::Linetype, {}},
    {u"Material", QT_TRANSLATE_NOOP("Commands", "material"), {}, u"ACAD_MATERIAL"},
    {u"multileadersTyle", QT_TRANSLATE_NOOP("Commands", "multileader style"), {}, u"ACAD_MLEADERSTYLE"},
    {u"Style", QT_TRANSLATE_NOOP("Commands", "text style"), TableKind::Style, {}},
    {u"Tablestyle", QT_TRANSLATE_NOOP("Commands", "table style"), {}, u"ACAD_TABLESTYLE"},
    {u"Ucs", QT_TRANSLATE_NOOP("Commands", "UCS"), TableKind::Ucs, {}},
    {u"VIew", QT_TRANSLATE_NOOP("Commands", "view"), TableKind::View, {}},
    {u"VPort", QT_TRANSLATE_NOOP("Commands", "viewport"), TableKind::Viewport, {}},
    {u"LAYOut", QT_TRANSLATE_NOOP("Commands", "layout"), {}, {}},
};

QString renameSheet(CommandContext &context, const QString &from, const QString &to)
{
    const auto layout = drawing::findLayout(context.drawing(), from);
    return layout ? drawing::renameLayout(context.drawing(), *layout, to)
                  : Commands::tr("Layout \"%1\" not found.").arg(from);
}

CommandTask rename(CommandContext &context)
{
    const PromptReply option = co_await context.keyword(
        Commands::tr("Enter object type to rename "
                     "[Block/Dimstyle/LAyer/LType/Material/multileadersTyle/Style/Tablestyle/Ucs/VIew/"
                     "VPort]: "),
        u"Block Dimstyle LAyer LType,LT Material multileadersTyle,MU Style Tablestyle Ucs VIew VPort LAYOut,LAYO"_s);
    const auto *kind = std::ranges::find(renameKinds, QStringView(option.text), &RenameKind::option);
    if (kind == std::end(renameKinds))
        co_return;
    const QString what = Commands::tr(kind->what);
    const PromptReply from = co_await context.text(Commands::tr("Enter old %1 name: ").arg(what));
    const PromptReply to = co_await context.text(Commands::tr("Enter new %1 name: ").arg(what));
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
    const PromptReply reply = co_await context.name(Commands::tr("Enter command name: "));
    const CommandRow *row = CommandTable::find(reply.text);
    if (!row)
        context.fail(Commands::tr("Unknown command \"%1\".").arg(reply.text));
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
        context.print(Commands::tr("\n%1 is a command already.").arg(name));
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
