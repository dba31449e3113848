#include "host/commands/annotate/HatchDialogue.h"

#include "host/drawing/records/Tables.h"
#include "host/drawing/selection/Wildcard.h"
#include "host/kernel/documents/CurrentProperties.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/variables/SystemVariables.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

using drawing::Vec2;
using drawing::Vec3;

namespace {

void listPatterns(CommandContext &context, const QString &wanted)
{
    for (const QString &name : drawing::hatchPatternNames())
        if (drawing::matchesWildcard(name, wanted))
            context.print(u"\n%1  %2"_s.arg(name, -16).arg(drawing::hatchPattern(name)->description));
}

Dialogue<bool> askPatternList(CommandContext &context)
{
    const PromptReply wanted = co_await context.text(Commands::tr("Enter pattern(s) to list <*>: "), u"*"_s);
    listPatterns(context, wanted.hasValue() ? wanted.text.trimmed() : u"*"_s);
    co_return true;
}

Dialogue<bool> askOwnLines(CommandContext &context, HatchLook &look)
{
    look.pattern = u"U"_s;
    const QString angle = context.shownAngle(look.angle);
    const PromptReply turn = co_await context.orientation(
        Commands::tr("Specify angle for crosshatch lines <%1>: ").arg(angle), {}, {}, angle);
    look.angle = turn.hasValue() ? turn.real : look.angle;
    const QString spacing = context.shownLength(look.spacing);
    const PromptReply step = co_await context.distance(
        Commands::tr("Specify spacing between the lines <%1>: ").arg(spacing), {}, {}, spacing, NoZero | NoNegative);
    look.spacing = step.hasValue() ? step.real : look.spacing;
    const QString usual = look.isDouble ? u"Yes"_s : u"No"_s;
    const PromptReply both =
        co_await context.keyword(Commands::tr("Double hatch area? [Yes/No] <%1>: ").arg(usual.left(1)), {}, usual);
    look.isDouble = both.hasValue() ? both.text == u"Yes" : look.isDouble;
    co_return true;
}

Dialogue<bool> askScaleAndAngle(CommandContext &context, HatchLook &look)
{
    const QString scale = context.shownLength(look.scale);
    const PromptReply factor = co_await context.distance(
        Commands::tr("Specify a scale for the pattern <%1>: ").arg(scale), {}, {}, scale, NoZero | NoNegative);
    look.scale = factor.hasValue() ? factor.real : look.scale;
    const QString angle = context.shownAngle(look.angle);
    const PromptReply turn =
        co_await context.orientation(Commands::tr("Specify an angle for the pattern <%1>: ").arg(angle), {}, {}, angle);
    look.angle = turn.hasValue() ? turn.real : look.angle;
    co_return true;
}

bool isWordFor(const QString &typed, const QString &word)
{
    return !typed.isEmpty() && word.startsWith(typed, Qt::CaseInsensitive);
}

/// "NAME,style": the letter behind the comma says how islands count.
QString withoutStyleLetter(QString name, HatchLook &look)
{
    const qsizetype comma = name.indexOf(u',');
    if (comma < 0)
        return name;
    const QString letter = name.mid(comma + 1).trimmed().toUpper();
    look.style = letter == u"O" ? IslandStyle::Outer : letter == u"I" ? IslandStyle::Ignore : IslandStyle::Normal;
    return name.left(comma);
}

Dialogue<bool> askHatchColour(CommandContext &context, HatchSettings &settings)
{
    const PromptReply colour =
        co_await context.text(Commands::tr("Enter new color or [. (for use current)] <.>: "), u"."_s);
    const QString typed = colour.text.trimmed();
    std::erase_if(settings.entity, [](const drawing::Field &field) { return field.code == 62; });
    static const QStringList names = {u"ByBlock"_s, u"Red"_s,  u"Yellow"_s,  u"Green"_s,
                                      u"Cyan"_s,    u"Blue"_s, u"Magenta"_s, u"White"_s};
    bool isNumber = false;
    qint64 index = typed.toInt(&isNumber);
    for (qsizetype i = 0; i < names.size(); ++i)
        if (typed.compare(names[i], Qt::CaseInsensitive) == 0)
            index = i, isNumber = true;
    if (typed.compare(u"ByLayer", Qt::CaseInsensitive) == 0)
        index = 256, isNumber = true;
    if (isNumber && index >= 0 && index <= 256)
        settings.entity.push_back({62, index});
    else if (!typed.isEmpty() && typed != u"." && context.refuse(Commands::tr("\"%1\" is no colour.").arg(typed)))
        co_return false;
    co_return true;
}

Dialogue<bool> askHatchLayer(CommandContext &context, HatchSettings &settings)
{
    const PromptReply layer =
        co_await context.text(Commands::tr("Specify new layer name or [. (for use current)] <.>: "), u"."_s);
    const QString typed = layer.text.trimmed();
    std::erase_if(settings.entity, [](const drawing::Field &field) { return field.code == 8; });
    if (typed.isEmpty() || typed == u".")
        co_return true;
    if (isValid(context.drawing().tables().find(drawing::TableKind::Layer, typed)))
        settings.entity.push_back({8, typed});
    else if (context.refuse(Commands::tr("Cannot find layer \"%1\".").arg(typed)))
        co_return false;
    co_return true;
}

Dialogue<bool> askHatchTransparency(CommandContext &context, HatchSettings &settings)
{
    const PromptReply value = co_await context.text(
        Commands::tr("Enter new transparency value (0-90) or [. (for use current)] <.>: "), u"."_s);
    std::erase_if(settings.entity, [](const drawing::Field &field) { return field.code == 440; });
    bool isNumber = false;
    const int percent = value.text.trimmed().toInt(&isNumber);
    if (isNumber && percent >= 0 && percent <= 90)
        settings.entity.push_back({440, transparencyValue(percent)});
    else if (!value.text.trimmed().isEmpty() && value.text.trimmed() != u"." &&
             context.refuse(Commands::tr("Requires a whole number from 0 to 90.")))
        co_return false;
    co_return true;
}

Dialogue<bool> askHatchOrder(CommandContext &context, HatchSettings &settings)
{
    const PromptReply order =
        co_await context.keyword(Commands::tr("Enter draw order [do Not assign/send to Back/bring to Front/send beHind "
                                              "boundary/bring in front of bounDary] <send behind boundary>: "),
                                 u"Not Back Front beHind bounDary"_s, u"beHind"_s);
    settings.order = order.text == u"Not"        ? QString()
                     : order.text == u"Back"     ? u"Back"_s
                     : order.text == u"Front"    ? u"Front"_s
                     : order.text == u"bounDary" ? u"Above"_s
                                                 : u"Under"_s;
    co_return true;
}

Dialogue<bool> askHatchOrigin(CommandContext &context, HatchSettings &settings)
{
    const PromptReply option = co_await context.keyword(
        Commands::tr("[Use current origin/Set new origin] <Use current origin>: "), u"Use Set"_s, u"Use"_s);
    if (option.text != u"Set")
        co_return true;
    const PromptReply point = co_await context.neededPoint(Commands::tr("Specify point: "));
    settings.look.origin = UserPlane(context.document()).userFromWorld(point.point).xy();
    const PromptReply keeps =
        co_await context.keyword(Commands::tr("Store as default origin? [Yes/No] <N>: "), {}, u"No"_s);
    if (keeps.text == u"Yes" && context.document().variables().get(u"HPORIGIN"))
        context.document().variables().setInternally(u"HPORIGIN", settings.look.origin);
    co_return true;
}

} // namespace

Dialogue<bool> askPatternOf(CommandContext &context, HatchLook &look, QString name)
{
    name = withoutStyleLetter(name, look);
    if (name.startsWith(u'_'))
        name.remove(0, 1);
    if (name.compare(u"U", Qt::CaseInsensitive) == 0 || (name.size() > 2 && isWordFor(name, u"User defined"_s)))
        co_return co_await askOwnLines(context, look);
    if (isWordFor(name, u"SOLID"_s)) {
        look.pattern = u"SOLID"_s;
        co_return true;
    }
    if (!drawing::hatchPattern(name)) {
        context.fail(Commands::tr("Unknown hatch pattern \"%1\".").arg(name));
        co_return false;
    }
    look.pattern = name.toUpper();
    co_return co_await askScaleAndAngle(context, look);
}

Dialogue<bool> askHatchPattern(CommandContext &context, HatchLook &look)
{
    for (;;) {
        const PromptReply name = co_await context.text(
            Commands::tr("Enter a pattern name or [?/Solid/User defined] <%1>: ").arg(look.pattern), look.pattern,
            u"?"_s);
        if (name.isKeyword(u"?")) {
            co_await askPatternList(context);
            continue;
        }
        const QString wanted = name.hasValue() ? name.text.trimmed() : look.pattern;
        co_return co_await askPatternOf(context, look, wanted);
    }
}

Dialogue<bool> askIslandStyle(CommandContext &context, HatchLook &look)
{
    static const QStringList names = {u"Normal"_s, u"Outer"_s, u"Ignore"_s};
    const QString usual = names[static_cast<int>(look.style)];
    const PromptReply style = co_await context.keyword(
        Commands::tr("Enter hatching style [Ignore/Outer/Normal] <%1>: ").arg(usual), {}, usual);
    if (style.hasValue())
        look.style = static_cast<IslandStyle>(names.indexOf(style.text));
    co_return true;
}

Dialogue<bool> askBoundarySet(CommandContext &context, BoundaryOptions &options)
{
    const PromptReply set = co_await context.keyword(
        Commands::tr("Specify candidate set for boundary [New/Everything] <Everything>: "), {}, u"Everything"_s);
    options.candidates.clear();
    if (set.text == u"New") {
        const PromptReply chosen = co_await context.selection();
        options.candidates = chosen.entities;
    }
    co_return true;
}

Dialogue<bool> askIslandDetection(CommandContext &context, BoundaryOptions &options)
{
    const PromptReply islands =
        co_await context.keyword(Commands::tr("Do you want island detection? [Yes/No] <Y>: "), {}, u"Yes"_s);
    options.islands = islands.text == u"No" ? IslandStyle::Ignore : IslandStyle::Normal;
    co_return true;
}

Dialogue<bool> askAdvancedHatch(CommandContext &context, HatchSettings &settings)
{
    const QString yesNo = u"Yes No"_s;
    for (;;) {
        const PromptReply option = co_await context.keyword(
            Commands::tr("Enter an option [Boundary set/Retain boundary/Island detection/Style/Associativity/Gap "
                         "tolerance/separate Hatches] <eXit>: "),
            u"Boundary Retain Island Style Associativity Gap Hatches eXit"_s, u"eXit"_s);
        if (option.text == u"Boundary") {
            co_await askBoundarySet(context, settings.boundary);
        } else if (option.text == u"Retain") {
            const PromptReply keep =
                co_await context.keyword(Commands::tr("Retain derived boundaries? [Yes/No] <N>: "), yesNo, u"No"_s);
            settings.keepsBoundary = keep.text == u"Yes";
        } else if (option.text == u"Island") {
            co_await askIslandDetection(context, settings.boundary);
        } else if (option.text == u"Style") {
            co_await askIslandStyle(context, settings.look);
            settings.boundary.islands = settings.look.style;
        } else if (option.text == u"Associativity") {
            const PromptReply follow =
                co_await context.keyword(Commands::tr("Do you want associativity? [Yes/No] <Y>: "), yesNo, u"Yes"_s);
            settings.isAssociative = follow.text != u"No";
        } else if (option.text == u"Gap") {
            const QString usual = context.shownLength(settings.boundary.gap);
            const PromptReply gap = co_await context.distance(
                Commands::tr("Specify a boundary gap tolerance value <%1>: ").arg(usual), {}, {}, usual, NoNegative);
            settings.boundary.gap = gap.hasValue() ? gap.real : settings.boundary.gap;
        } else if (option.text == u"Hatches") {
            const PromptReply separate =
                co_await context.keyword(Commands::tr("Create separate hatches? [Yes/No] <N>: "), yesNo, u"No"_s);
            settings.isSeparate = separate.text == u"Yes";
        } else {
            co_return true;
        }
    }
}

Dialogue<bool> askHatchProperty(CommandContext &context, HatchSettings &settings, QString option)
{
    if (option == u"DRaw")
        co_return co_await askHatchOrder(context, settings);
    if (option == u"Origin")
        co_return co_await askHatchOrigin(context, settings);
    if (option == u"COlor")
        co_return co_await askHatchColour(context, settings);
    if (option == u"LAyer")
        co_return co_await askHatchLayer(context, settings);
    if (option == u"Transparency")
        co_return co_await askHatchTransparency(context, settings);
    const PromptReply annotative =
        co_await context.keyword(Commands::tr("Create annotative hatch [Yes/No] <N>: "), {}, u"No"_s);
    if (annotative.text == u"Yes" && context.refuse(Commands::tr("Annotative hatches are not made.")))
        co_return false;
    co_return true;
}

void addDrawnArea(CommandContext &context, const UserPlane &plane, const std::vector<Vec3> &points, bool isKept,
                  std::vector<HatchArea> &areas)
{
    BoundaryLoop loop;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const Vec2 from = plane.objectFromWorld(points[i]).xy();
        const Vec2 to = plane.objectFromWorld(points[(i + 1) % points.size()]).xy();
        if (from == to)
            continue;
        loop.loop.stretches.push_back(
            {drawing::CurvePiece::straight({from.x, from.y, 0.0}, {to.x, to.y, 0.0}, 0.0, 1.0), false,
             drawing::PlaneGraph::noSource});
        loop.loop.box.add(Vec3{from.x, from.y, 0.0});
    }
    if (loop.loop.stretches.size() < 3)
        return context.print(Commands::tr("\nA boundary needs three points."));
    areas.push_back({{loop}, std::nullopt});
    if (isKept)
        createBoundaryPolylines(context, {loop});
}

} // namespace host::kernel
