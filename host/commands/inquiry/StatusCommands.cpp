#include "host/commands/Commands.h"
#include "host/drawing/text/DateText.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/documents/Document.h"
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
    return u"%1 days %2:%3:%4"_s.arg(seconds / 86400)
        .arg(seconds / 3600 % 24, 2, 10, QChar(u'0'))
        .arg(seconds / 60 % 60, 2, 10, QChar(u'0'))
        .arg(seconds % 60, 2, 10, QChar(u'0'));
}

// When the drawing was made and changed, and how long it was worked on.
CommandTask tellTime(CommandContext &context)
{
    const SystemVariables &variables = context.document().variables();
    context.print(u"\nCurrent time:             "_s + dateShown(drawing::julianDate(QDateTime::currentDateTime())));
    context.print(u"\nTimes for this drawing:"_s);
    context.print(u"\n  Created:                "_s + dateShown(variables.real(u"TDCREATE")));
    context.print(u"\n  Last updated:           "_s + dateShown(variables.real(u"TDUPDATE")));
    context.print(u"\n  Total editing time:     "_s + spanShown(variables.real(u"TDINDWG")));
    context.print(u"\n  Elapsed timer:          "_s + spanShown(variables.real(u"TDUSRTIMER")));
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
    context.print(u"\n%1 objects in %2"_s.arg(currentEntities(context.drawing()).size()).arg(name));
    printCorner(context, u"Limits are, low"_s, variables.point(u"LIMMIN"));
    printCorner(context, u"Limits are, high"_s, variables.point(u"LIMMAX"));
    printCorner(context, u"Uses, low"_s, variables.point(u"EXTMIN"));
    printCorner(context, u"Uses, high"_s, variables.point(u"EXTMAX"));
    printCorner(context, u"Insertion base is"_s, variables.point(u"INSBASE"));
    const std::pair<QString, QStringView> rows[] = {
        {u"Current space:"_s, u"CTAB"},          {u"Current layer:"_s, u"CLAYER"},
        {u"Current color:"_s, u"CECOLOR"},       {u"Current linetype:"_s, u"CELTYPE"},
        {u"Current elevation:"_s, u"ELEVATION"}, {u"Thickness:"_s, u"THICKNESS"},
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
