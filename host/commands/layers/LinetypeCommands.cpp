#include "files/qt/Files.h"
#include "host/commands/Commands.h"
#include "host/commands/common/LoadableLinetype.h"
#include "host/commands/common/PropertyValues.h"
#include "host/drawing/records/Tables.h"
#include "host/drawing/references/LinetypeSource.h"
#include "host/drawing/selection/Wildcard.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/variables/SystemVariables.h"

#include <QFileInfo>
#include <QSet>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::LinetypeDefinition;
using drawing::TableKind;

/// Larger sources are no hand-written linetypes.
constexpr qint64 largestSource = 16 * 1024 * 1024;

/// The linetypes of the sources that come with the program, under the names that programs call them by; nothing for
/// another name.
std::vector<LinetypeDefinition> suppliedDefinitions(const QString &source)
{
    const QString name = QFileInfo(source).completeBaseName().toLower();
    if (name == u"acad")
        return drawing::predefinedLinetypes(drawing::LinetypeUnit::Inch);
    if (name == u"acadiso")
        return drawing::predefinedLinetypes(drawing::LinetypeUnit::Millimetre);
    return {};
}

/// The definitions in the source that was named: a file, or without one what comes with the program. Nothing, with the
/// reason printed, when it cannot be read.
std::vector<LinetypeDefinition> definitionsOf(CommandContext &context, const QString &typed)
{
    QString path = context.document().findFile(typed.trimmed());
    if (path.isEmpty())
        path = context.document().findFile(typed.trimmed() + u".lin"_s);
    if (path.isEmpty())
        if (std::vector<LinetypeDefinition> supplied = suppliedDefinitions(typed.trimmed()); !supplied.empty())
            return supplied;
    const files::WholeBytes file = files::readWhole(path, largestSource);
    if (!file) {
        context.print(path.isEmpty() ? Commands::tr("\nCannot read linetype file \"%1\".").arg(typed)
                                     : Commands::tr("\nCannot read linetype file \"%1\": %2 (the limit is %3 MB).")
                                           .arg(typed, file.reason)
                                           .arg(largestSource >> 20));
        return {};
    }
    const QByteArray &bytes = file.bytes;
    return drawing::readLinetypeSource(bytes.startsWith("\xEF\xBB\xBF") ? bytes.sliced(3) : bytes);
}

/// The definitions that a list of patterns names, each name once.
std::vector<LinetypeDefinition> matching(std::vector<LinetypeDefinition> definitions, const QString &names)
{
    QSet<QString> seen;
    std::erase_if(definitions, [&](const LinetypeDefinition &definition) {
        const QString name = definition.name.toUpper();
        const bool isLeftOut = seen.contains(name) || !drawing::matchesWildcard(definition.name, names);
        seen.insert(name);
        return isLeftOut;
    });
    return definitions;
}

void tellLoaded(CommandContext &context, const LinetypeDefinition &definition)
{
    drawing::ShapeFiles shapes([&](const QString &name) { return context.document().findNamedFile(name); });
    const QString error = drawing::loadLinetype(context.drawing(), definition, shapes);
    context.print(error.isEmpty() ? Commands::tr("\nLinetype \"%1\" loaded.").arg(definition.name)
                                  : Commands::tr("\nLinetype \"%1\" not loaded: %2.").arg(definition.name, error));
}

void setCurrentLinetype(CommandContext &context, const QString &typed)
{
    const QString name = withoutMark(typed.trimmed());
    loadedLinetype(context, name);
    if (context.document().variables().set(u"CELTYPE", name) != SetOutcome::Done)
        context.print(Commands::tr("\nLinetype \"%1\" not found.").arg(name));
}

void listLoaded(CommandContext &context)
{
    for (const drawing::RecordId entry : context.drawing().tables().entries(TableKind::Linetype))
        context.print(u'\n' + context.drawing().tables().name(entry));
}

// Load (names, file, and for each that the drawing has whether to read it anew), Set, ?, one after another until an
// empty answer.
CommandTask linetype(CommandContext &context)
{
    for (;;) {
        const PromptReply option =
            co_await context.keyword(Commands::tr("Enter an option [?/Load/Set]: "), u"? Load Set"_s);
        if (!option.hasValue())
            co_return;
        if (option.text == u"?"_s) {
            listLoaded(context);
        } else if (option.text == u"Set"_s) {
            const PromptReply name = co_await context.text(Commands::tr("Specify linetype name: "));
            if (name.hasValue())
                setCurrentLinetype(context, name.text);
        } else {
            const PromptReply names = co_await context.text(Commands::tr("Enter linetype(s) to load: "));
            const PromptReply source = co_await context.text(Commands::tr("Enter name of linetype file: "));
            if (!names.hasValue() || !source.hasValue())
                continue;
            const auto chosen = matching(definitionsOf(context, source.text), names.text);
            if (chosen.empty())
                context.print(Commands::tr("\nNo matching linetypes found."));
            for (const LinetypeDefinition &definition : chosen) {
                if (isValid(context.drawing().tables().find(TableKind::Linetype, definition.name))) {
                    const PromptReply again = co_await context.keyword(
                        Commands::tr("Linetype \"%1\" is already loaded. Reload it? [Yes/No] <Yes>: ")
                            .arg(definition.name),
                        u"Yes No"_s, u"Yes"_s);
                    if (again.text == u"No"_s || again.kind == ReplyKind::Cancelled)
                        continue;
                }
                tellLoaded(context, definition);
            }
        }
    }
}

} // namespace

std::vector<CommandRow> linetypeCommands()
{
    return {{"-LINETYPE", linetype, "Loads linetypes from a file and chooses the current one", WhenCancelled::TakeBack,
             Interrupts::Prompts},
            {"LINETYPE", linetype, "As -LINETYPE; there is no window for it"}};
}

} // namespace host::kernel
