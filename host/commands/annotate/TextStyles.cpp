#include "host/commands/annotate/TextStyles.h"

#include "host/drawing/records/Tables.h"
#include "host/drawing/selection/Wildcard.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/variables/SystemVariables.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

using drawing::TableKind;
using drawing::TextStyle;

TextStyle currentTextStyle(CommandContext &context)
{
    const QString name = context.document().variables().text(u"TEXTSTYLE");
    TextStyle style = drawing::findTextStyle(context.drawing(), name).value_or(TextStyle());
    style.name = name;
    return style;
}

void listTextStyles(CommandContext &context, const QString &pattern)
{
    for (const drawing::RecordId entry : context.drawing().tables().entries(TableKind::Style)) {
        const TextStyle style = drawing::readTextStyle(context.drawing(), entry);
        if (!style.isShapeFile && drawing::matchesWildcard(style.name, pattern))
            context.print(Commands::tr("\nStyle name: \"%1\"  Font files: %2  Height: %3  Width factor: %4")
                              .arg(style.name, style.fontFile, context.shownLength(style.fixedHeight),
                                   context.shownLength(style.widthFactor)));
    }
}

Dialogue<QString> askTextStyleName(CommandContext &context, QString prompt)
{
    const QString current = context.document().variables().text(u"TEXTSTYLE");
    const PromptReply name =
        co_await context.text(Commands::tr("%1 or [?] <%2>: ").arg(prompt, current), current, u"?"_s);
    if (!name.isKeyword(u"?"))
        co_return name.hasValue() ? name.text.trimmed() : current;
    const PromptReply pattern = co_await context.text(Commands::tr("Enter text style(s) to list <*>: "), u"*"_s);
    listTextStyles(context, pattern.hasValue() ? pattern.text.trimmed() : u"*"_s);
    co_return QString();
}

Dialogue<bool> askTextStyle(CommandContext &context)
{
    QString wanted;
    while (wanted.isEmpty())
        wanted = co_await askTextStyleName(context, Commands::tr("Enter style name"));
    const bool isKnown = context.document().variables().set(u"TEXTSTYLE", wanted) == SetOutcome::Done;
    if (!isKnown)
        context.fail(Commands::tr("Cannot find text style \"%1\".").arg(wanted));
    co_return isKnown;
}

} // namespace host::kernel
