#include "host/commands/Commands.h"
#include "host/drawing/text/DateText.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/variables/SystemVariables.h"
#include "platform/kernel/CKvHelp.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

QString dateShown(double julian)
{
    return julian > 0.0 ? drawing::dateText(julian, u"DDDD, MONTH D, YYYY  H:MM:SS").value_or(u"unknown"_s)
                        : u"unknown"_s;
}

/// Days with their fraction.
QString spanShown(double days)
{
    const auto seconds = static_cast<qint64>(std::clamp(days, 0.0, 1e6) * 86400.0 + 0.5);
    return Commands::tr("%1 days %2:%3:%4")
        .arg(seconds / 86400)
        .arg(seconds / 3600 % 24, 2, 10, QChar(u'0'))
        .arg(seconds / 60 % 60, 2, 10, QChar(u'0'))
        .arg(seconds % 60, 2, 10, QChar(u'0'));
}

// When the drawing was made and changed, and how long it was worked on.
CommandTask tellTime(CommandContext &context)
{
    const SystemVariables &variables = context.document().variables();
    context.print(Commands::tr("\nCurrent time:             ") +
                  dateShown(drawing::julianDate(QDateTime::currentDateTime())));
    context.print(Commands::tr("\nTimes for this drawing:"));
    context.print(Commands::tr("\n  Created:                ") + dateShown(variables.real(u"TDCREATE")));
    context.print(Commands::tr("\n  Last updated:           ") + dateShown(variables.real(u"TDUPDATE")));
    context.print(Commands::tr("\n  Total editing time:     ") + spanShown(variables.real(u"TDINDWG")));
    context.print(Commands::tr("\n  Elapsed timer:          ") + spanShown(variables.real(u"TDUSRTIMER")));
    co_return;
}

void printCorner(CommandContext &context, const QString &what, const drawing::Vec3 &corner)
{
    context.print(u"\n%1 X: %2  Y: %3"_s.arg(what.leftJustified(24), context.shownLength(corner.x),
                                             context.shownLength(corner.y)));
}

// What is in the drawing and what is current.
CommandTask tellStatus(CommandContext &context)
{
    const SystemVariables &variables = context.document().variables();
    const QString name = context.document().path().isEmpty() ? context.document().title() : context.document().path();
    context.print(Commands::tr("\n%1 objects in %2").arg(currentEntities(context.drawing()).size()).arg(name));
    printCorner(context, Commands::tr("Limits are, low"), variables.point(u"LIMMIN"));
    printCorner(context, Commands::tr("Limits are, high"), variables.point(u"LIMMAX"));
    printCorner(context, Commands::tr("Uses, low"), variables.point(u"EXTMIN"));
    printCorner(context, Commands::tr("Uses, high"), variables.point(u"EXTMAX"));
    printCorner(context, Commands::tr("Insertion base is"), variables.point(u"INSBASE"));
    const std::pair<QString, QStringView> rows[] = {
        {Commands::tr("Current space:"), u"CTAB"},          {Commands::tr("Current layer:"), u"CLAYER"},
        {Commands::tr("Current color:"), u"CECOLOR"},       {Commands::tr("Current linetype:"), u"CELTYPE"},
        {Commands::tr("Current elevation:"), u"ELEVATION"}, {Commands::tr("Thickness:"), u"THICKNESS"},
    };
    for (const auto &[what, variable] : rows)
        context.print(u"\n%1 %2"_s.arg(what.leftJustified(24), variables.display(variable)));
    co_return;
}

CommandTask showHelp(CommandContext &)
{
    if (CKvHelp *const help = GetKvHelp())
        help->Help({}, 0, true, nullptr, 0);
    co_return;
}

} // namespace

std::vector<CommandRow> statusCommands()
{
    return {{"?", showHelp, "As HELP"},
            {"HELP", showHelp, "Shows the help pages", WhenCancelled::TakeBack, Interrupts::Prompts},
            {"STATUS", tellStatus, "Tells what is in the drawing and what is current", WhenCancelled::TakeBack,
             Interrupts::Prompts},
            {"TIME", tellTime, "Tells when the drawing was made and changed", WhenCancelled::TakeBack,
             Interrupts::Prompts}};
}

} // namespace host::kernel
