// Commands that set variables by a question of their own.

#include "host/commands/Commands.h"
#include "host/commands/common/PropertyValues.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/running/Dialogue.h"
#include "host/kernel/variables/SystemVariables.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

void setSetting(CommandContext &context, QStringView variable, const VariableValue &value)
{
    if (context.document().variables().set(variable, value) != SetOutcome::Done)
        context.fail(u"%1 cannot be set to that value."_s.arg(variable));
}

/// ON or OFF; an empty answer leaves it.
Dialogue<bool> askSwitch(CommandContext &context, QString variable)
{
    const bool isOn = context.document().variables().integer(variable) != 0;
    const QString usual = isOn ? u"ON"_s : u"OFF"_s;
    const PromptReply reply = co_await context.keyword(u"Enter mode [ON/OFF] <%1>: "_s.arg(usual), {}, usual);
    if (reply.hasValue())
        setSetting(context, variable, qint32(reply.text == u"ON"_s));
    co_return true;
}

CommandTask fill(CommandContext &context)
{
    co_await askSwitch(context, u"FILLMODE"_s);
}

CommandTask ortho(CommandContext &context)
{
    co_await askSwitch(context, u"ORTHOMODE"_s);
}

CommandTask quickText(CommandContext &context)
{
    co_await askSwitch(context, u"QTEXTMODE"_s);
}

CommandTask regenerateAlone(CommandContext &context)
{
    co_await askSwitch(context, u"REGENMODE"_s);
}

/// Spacing, which switches it on as well, or ON, OFF, or one spacing for each direction.
Dialogue<bool> askSpacing(CommandContext &context, QString what, QString mode, QString unit)
{
    const drawing::Vec2 now = context.document().variables().point(unit).xy();
    const QString shown = context.shownLength(now.x);
    const PromptReply reply = co_await context.distance(u"Specify %1 or [ON/OFF/Aspect] <%2>: "_s.arg(what, shown), {},
                                                        {}, shown, NoNegative);
    drawing::Vec2 spacing = now;
    if (reply.isKeyword(u"Aspect")) {
        const PromptReply x =
            co_await context.distance(u"Specify horizontal spacing(X) <%1>: "_s.arg(shown), {}, {}, shown, NoNegative);
        const QString shownY = context.shownLength(now.y);
        const PromptReply y =
            co_await context.distance(u"Specify vertical spacing(Y) <%1>: "_s.arg(shownY), {}, {}, shownY, NoNegative);
        spacing = {x.hasValue() ? x.real : now.x, y.hasValue() ? y.real : now.y};
    } else if (reply.hasValue()) {
        spacing = {reply.real, reply.real};
    } else if (reply.kind == ReplyKind::Keyword) {
        setSetting(context, mode, qint32(reply.isKeyword(u"ON")));
        co_return true;
    }
    setSetting(context, unit, spacing);
    setSetting(context, mode, qint32(1));
    co_return true;
}

CommandTask grid(CommandContext &context)
{
    co_await askSpacing(context, u"grid spacing(X)"_s, u"GRIDMODE"_s, u"GRIDUNIT"_s);
}

CommandTask snap(CommandContext &context)
{
    co_await askSpacing(context, u"snap spacing"_s, u"SNAPMODE"_s, u"SNAPUNIT"_s);
}

CommandTask limits(CommandContext &context)
{
    const SystemVariables &variables = context.document().variables();
    const auto shown = [&](const drawing::Vec3 &point) {
        return u"%1,%2"_s.arg(context.shownLength(point.x), context.shownLength(point.y));
    };
    const QString low = shown(variables.point(u"LIMMIN"));
    const PromptReply first =
        co_await context.point(u"Specify lower left corner or [ON/OFF] <%1>: "_s.arg(low), {}, {}, low, OutsideLimits);
    if (first.kind == ReplyKind::Keyword) {
        setSetting(context, u"LIMCHECK", qint32(first.isKeyword(u"ON")));
        co_return;
    }
    const QString high = shown(variables.point(u"LIMMAX"));
    const PromptReply second =
        co_await context.point(u"Specify upper right corner <%1>: "_s.arg(high), {}, {}, high, OutsideLimits);
    if (first.hasValue())
        setSetting(context, u"LIMMIN", first.point.xy());
    if (second.hasValue())
        setSetting(context, u"LIMMAX", second.point.xy());
}

CommandTask elevation(CommandContext &context)
{
    const SystemVariables &variables = context.document().variables();
    const QString height = context.shownLength(variables.real(u"ELEVATION"));
    const PromptReply up =
        co_await context.distance(u"Specify new default elevation <%1>: "_s.arg(height), {}, {}, height);
    const QString thickness = context.shownLength(variables.real(u"THICKNESS"));
    const PromptReply thick =
        co_await context.distance(u"Specify new default thickness <%1>: "_s.arg(thickness), {}, {}, thickness);
    if (up.hasValue())
        setSetting(context, u"ELEVATION", up.real);
    if (thick.hasValue())
        setSetting(context, u"THICKNESS", thick.real);
}

CommandTask colour(CommandContext &context)
{
    const QString now = context.document().variables().text(u"CECOLOR");
    const PromptReply reply =
        co_await context.name(u"Enter default object color [Truecolor/COlorbook] <%1>: "_s.arg(now), now);
    if (reply.kind == ReplyKind::Keyword)
        context.fail(u"New objects take colors by number or name here."_s);
    if (!reply.hasValue())
        co_return;
    const int number = colourNumber(reply.text);
    setSetting(context, u"CECOLOR", number > 0 ? QString::number(number) : withoutMark(reply.text));
}

} // namespace

std::vector<CommandRow> settingCommands()
{
    return {
        {"-COLOR", colour, "Sets the color of new objects"},
        {"COLOR", colour, "As -COLOR; there is no window for it", WhenCancelled::TakeBack, Interrupts::Prompts},
        {"COLOUR", colour, "As -COLOR"},
        {"ELEV", elevation, "Sets the elevation and thickness of new objects", WhenCancelled::TakeBack,
         Interrupts::Prompts},
        {"FILL", fill, "Switches whether areas are filled", WhenCancelled::TakeBack, Interrupts::Prompts},
        {"GRID", grid, "Sets and switches the grid", WhenCancelled::TakeBack, Interrupts::Prompts},
        {"LIMITS", limits, "Sets and checks the drawing's limits", WhenCancelled::TakeBack, Interrupts::Prompts},
        {"ORTHO", ortho, "Switches whether lines go along the axes", WhenCancelled::TakeBack, Interrupts::Prompts},
        {"QTEXT", quickText, "Switches whether texts are boxes"},
        {"REGENAUTO", regenerateAlone, "Switches whether the drawing is made anew by itself", WhenCancelled::TakeBack,
         Interrupts::Prompts},
        {"SNAP", snap, "Sets and switches the grid that points snap to", WhenCancelled::TakeBack, Interrupts::Prompts}};
}

} // namespace host::kernel
