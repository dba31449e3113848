// Commands that set variables by a question of their own.

#include "host/commands/Commands.h"
#include "host/commands/common/PropertyValues.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/running/Dialogue.h"
#include "host/kernel/variables/SystemVariables.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

void setSetting(CommandContext &context, QStringView variable, const VariableValue &value)
{
    if (context.document().variables().set(variable, value) != SetOutcome::Done)
        context.fail(Commands::tr("%1 cannot be set to that value.").arg(variable));
}

/// ON or OFF, or as the variable has it; an empty answer leaves it.
Dialogue<bool> askSwitch(CommandContext &context, QString variable)
{
    const bool isOn = context.document().variables().integer(variable) != 0;
    const QString usual = isOn ? u"ON"_s : u"OFF"_s;
    const PromptReply reply =
        co_await context.keyword(Commands::tr("Enter mode [ON/OFF] <%1>: ").arg(usual), u"ON OFF 1 0"_s, usual);
    if (reply.hasValue())
        setSetting(context, variable, qint32(reply.isKeyword(u"ON") || reply.isKeyword(u"1")));
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

/// One spacing for each direction.
Dialogue<drawing::Vec2> askBothSpacings(CommandContext &context, drawing::Vec2 now)
{
    const QString shownX = context.shownLength(now.x);
    const PromptReply x = co_await context.distance(Commands::tr("Specify horizontal spacing(X) <%1>: ").arg(shownX),
                                                    {}, {}, shownX, NoNegative);
    const QString shownY = context.shownLength(now.y);
    const PromptReply y = co_await context.distance(Commands::tr("Specify vertical spacing(Y) <%1>: ").arg(shownY), {},
                                                    {}, shownY, NoNegative);
    co_return drawing::Vec2{x.hasValue() ? x.real : now.x, y.hasValue() ? y.real : now.y};
}

/// What a spacing is for: the grid that is shown, or the one that points snap to.
struct SpacingSetting
{
    const char *question;
    QStringView mode; ///< the variables
    QStringView unit;
};

constexpr SpacingSetting gridSpacing = {
    QT_TRANSLATE_NOOP("Commands", "Specify grid spacing(X) or [ON/OFF/Snap/Aspect]"), u"GRIDMODE", u"GRIDUNIT"};
constexpr SpacingSetting snapSpacing = {
    QT_TRANSLATE_NOOP("Commands", "Specify snap spacing or [ON/OFF/Aspect/Rotate/Style/Type]"), u"SNAPMODE",
    u"SNAPUNIT"};

/// A spacing, which switches it on as well, or ON, OFF, Aspect. Another option is given back.
Dialogue<QString> askSpacing(CommandContext &context, SpacingSetting setting)
{
    drawing::Vec2 spacing = context.document().variables().point(setting.unit).xy();
    const QString shown = context.shownLength(spacing.x);
    const PromptReply reply =
        co_await context.distance(u"%1 <%2>: "_s.arg(Commands::tr(setting.question), shown), {}, {}, shown, NoNegative);
    const bool isSwitch = reply.isKeyword(u"ON") || reply.isKeyword(u"OFF");
    if (isSwitch)
        setSetting(context, setting.mode, qint32(reply.isKeyword(u"ON")));
    if (isSwitch)
        co_return QString();
    if (reply.isKeyword(u"Aspect"))
        spacing = co_await askBothSpacings(context, spacing);
    else if (reply.kind == ReplyKind::Keyword)
        co_return reply.text;
    else if (reply.hasValue())
        spacing = {reply.real, reply.real};
    setSetting(context, setting.unit, spacing);
    setSetting(context, setting.mode, qint32(1));
    co_return QString();
}

CommandTask grid(CommandContext &context)
{
    const QString option = co_await askSpacing(context, gridSpacing);
    if (option == u"Snap"_s)
        setSetting(context, u"GRIDUNIT", context.document().variables().point(u"SNAPUNIT").xy());
}

/// Where the snap grid begins and how it is turned.
Dialogue<bool> askSnapRotation(CommandContext &context)
{
    const SystemVariables &variables = context.document().variables();
    const drawing::Vec3 base = variables.point(u"SNAPBASE");
    const QString shown = u"%1,%2"_s.arg(context.shownLength(base.x), context.shownLength(base.y));
    const PromptReply point =
        co_await context.point(Commands::tr("Specify base point <%1>: ").arg(shown), {}, {}, shown);
    const QString turn = context.shownAngle(variables.real(u"SNAPANG"));
    const PromptReply angle =
        co_await context.angle(Commands::tr("Specify rotation angle <%1>: ").arg(turn), {}, {}, turn);
    if (point.hasValue())
        setSetting(context, u"SNAPBASE", context.document().userAxes().inverted().point(point.point).xy());
    if (angle.hasValue())
        setSetting(context, u"SNAPANG", angle.real);
    co_return true;
}

/// A plain grid, or one along the isometric axes, which has one spacing.
Dialogue<bool> askSnapStyle(CommandContext &context)
{
    const bool wasIsometric = context.document().variables().integer(u"SNAPSTYL") != 0;
    const QString usual = wasIsometric ? u"Isometric"_s : u"Standard"_s;
    const PromptReply style = co_await context.keyword(
        Commands::tr("Enter snap grid style [Standard/Isometric] <%1>: ").arg(usual), {}, usual);
    const bool isIsometric = style.hasValue() ? style.isKeyword(u"Isometric") : wasIsometric;
    const char *question = isIsometric ? QT_TRANSLATE_NOOP("Commands", "Specify vertical spacing")
                                       : QT_TRANSLATE_NOOP("Commands", "Specify snap spacing or [Aspect]");
    co_await askSpacing(context, {question, u"SNAPMODE", u"SNAPUNIT"});
    setSetting(context, u"SNAPSTYL", qint32(isIsometric));
    co_return true;
}

Dialogue<bool> askSnapType(CommandContext &context)
{
    const QString usual = context.document().variables().integer(u"SNAPTYPE") != 0 ? u"Polar"_s : u"Grid"_s;
    const PromptReply type =
        co_await context.keyword(Commands::tr("Enter snap type [Polar/Grid] <%1>: ").arg(usual), {}, usual);
    if (type.hasValue())
        setSetting(context, u"SNAPTYPE", qint32(type.isKeyword(u"Polar")));
    co_return true;
}

CommandTask snap(CommandContext &context)
{
    const QString option = co_await askSpacing(context, snapSpacing);
    if (option == u"Rotate"_s)
        co_await askSnapRotation(context);
    else if (option == u"Style"_s)
        co_await askSnapStyle(context);
    else if (option == u"Type"_s)
        co_await askSnapType(context);
}

// An empty answer goes on to the next plane.
CommandTask isometricPlane(CommandContext &context)
{
    static const QStringList planes = {u"Left"_s, u"Top"_s, u"Right"_s};
    const qsizetype now = context.document().variables().integer(u"SNAPISOPAIR");
    const QString next = planes[(now + 1) % planes.size()];
    const PromptReply reply = co_await context.keyword(
        Commands::tr("Enter isometric plane setting [Left/Top/Right] <%1>: ").arg(next), {}, next);
    const QString plane = reply.hasValue() ? reply.text : next;
    setSetting(context, u"SNAPISOPAIR", qint32(planes.indexOf(plane)));
    context.print(Commands::tr("\nCurrent Isoplane: ") + plane);
}

CommandTask limits(CommandContext &context)
{
    const SystemVariables &variables = context.document().variables();
    const auto shown = [&](const drawing::Vec3 &point) {
        return u"%1,%2"_s.arg(context.shownLength(point.x), context.shownLength(point.y));
    };
    const QString low = shown(variables.point(u"LIMMIN"));
    const PromptReply first = co_await context.point(
        Commands::tr("Specify lower left corner or [ON/OFF] <%1>: ").arg(low), {}, {}, low, OutsideLimits);
    if (first.kind == ReplyKind::Keyword) {
        setSetting(context, u"LIMCHECK", qint32(first.isKeyword(u"ON")));
        co_return;
    }
    const QString high = shown(variables.point(u"LIMMAX"));
    const PromptReply second = co_await context.point(Commands::tr("Specify upper right corner <%1>: ").arg(high), {},
                                                      {}, high, OutsideLimits);
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
        co_await context.distance(Commands::tr("Specify new default elevation <%1>: ").arg(height), {}, {}, height);
    const QString thickness = context.shownLength(variables.real(u"THICKNESS"));
    const PromptReply thick = co_await context.distance(
        Commands::tr("Specify new default thickness <%1>: ").arg(thickness), {}, {}, thickness);
    if (up.hasValue())
        setSetting(context, u"ELEVATION", up.real);
    if (thick.hasValue())
        setSetting(context, u"THICKNESS", thick.real);
}

CommandTask colour(CommandContext &context)
{
    const QString now = context.document().variables().text(u"CECOLOR");
    const PromptReply reply =
        co_await context.name(Commands::tr("Enter default object color [Truecolor/COlorbook] <%1>: ").arg(now), now);
    if (reply.kind == ReplyKind::Keyword)
        context.fail(Commands::tr("New objects take colors by number or name here."));
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
        {"ISOPLANE", isometricPlane, "Chooses the isometric plane", WhenCancelled::TakeBack, Interrupts::Prompts},
        {"LIMITS", limits, "Sets and checks the drawing's limits", WhenCancelled::TakeBack, Interrupts::Prompts},
        {"ORTHO", ortho, "Switches whether lines go along the axes", WhenCancelled::TakeBack, Interrupts::Prompts},
        {"QTEXT", quickText, "Switches whether texts are boxes"},
        {"REGENAUTO", regenerateAlone, "Switches whether the drawing is made anew by itself", WhenCancelled::TakeBack,
         Interrupts::Prompts},
        {"SNAP", snap, "Sets and switches the grid that points snap to", WhenCancelled::TakeBack, Interrupts::Prompts}};
}

} // namespace host::kernel
