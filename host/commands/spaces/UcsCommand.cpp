#include "host/commands/Commands.h"
#include "host/commands/common/NamedEntries.h"
#include "host/commands/spaces/UserSystems.h"
#include "host/drawing/editing/RenameLayer.h"
#include "host/drawing/editing/Viewports.h"
#include "host/drawing/records/Dictionaries.h"
#include "host/drawing/records/Tables.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/variables/SystemVariables.h"

#include <numbers>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::Matrix;
using drawing::TableKind;
using drawing::Vec3;

using AskedAxes = Dialogue<std::optional<Matrix>>;

/// A world point as the user's coordinates have it.
QString shownPoint(CommandContext &context, const Vec3 &world)
{
    const Vec3 user = context.document().userAxes().inverted().point(world);
    return u"%1,%2,%3"_s.arg(context.shownLength(user.x), context.shownLength(user.y), context.shownLength(user.z));
}

/// A point, or `usual` for an empty answer.
Dialogue<Vec3> pointOr(CommandContext &context, QString prompt, Vec3 usual, std::optional<Vec3> base)
{
    const QString shown = shownPoint(context, usual);
    const PromptReply reply = co_await context.point(u"%1 <%2>: "_s.arg(prompt, shown), {}, base, shown);
    co_return reply.hasValue() ? reply.point : usual;
}

AskedAxes failed(CommandContext &context, QString reason)
{
    context.fail(reason);
    co_return std::nullopt;
}

AskedAxes askMoved(CommandContext &context)
{
    Matrix axes = context.document().userAxes();
    axes.origin = co_await pointOr(context, Commands::tr("Specify new origin point"), axes.origin, {});
    co_return axes;
}

AskedAxes askMovedOrRaised(CommandContext &context)
{
    Matrix axes = context.document().userAxes();
    const QString shown = shownPoint(context, axes.origin);
    const PromptReply reply =
        co_await context.point(Commands::tr("Specify new origin point or [Zdepth] <%1>: ").arg(shown), {}, {}, shown);
    if (reply.hasValue())
        axes.origin = reply.point;
    if (reply.kind == ReplyKind::Keyword) {
        const PromptReply depth = co_await context.distance(Commands::tr("Specify Z depth <0>: "), {}, {}, u"0"_s);
        axes.origin = axes.origin + axes.zAxis * (depth.hasValue() ? depth.real : 0.0);
    }
    co_return axes;
}

/// The plane through the origin, a point of its x axis and one on the side of its y axis.
AskedAxes askBeyondOrigin(CommandContext &context, Vec3 origin)
{
    const Matrix before = context.document().userAxes();
    const Vec3 onX = co_await pointOr(context, Commands::tr("Specify point on positive portion of X-axis"),
                                      origin + before.xAxis, origin);
    const Vec3 x = drawing::normalized(onX - origin);
    const Vec3 onPlane =
        co_await pointOr(context, Commands::tr("Specify point on positive-Y portion of the UCS XY plane"),
                         origin + drawing::normalized(cross(before.zAxis, x)), origin);
    const Vec3 z = cross(x, onPlane - origin);
    const std::optional<Matrix> axes = z.length() > 1e-12 * (1.0 + (onPlane - origin).length())
                                           ? axesAlong(origin, x, drawing::normalized(z))
                                           : std::nullopt;
    if (!axes)
        co_return co_await failed(context, Commands::tr("The three points lie on a line."));
    co_return axes;
}

AskedAxes askThreePoints(CommandContext &context)
{
    const Vec3 origin =
        co_await pointOr(context, Commands::tr("Specify new origin point"), context.document().userAxes().origin, {});
    co_return co_await askBeyondOrigin(context, origin);
}

AskedAxes askByZAxis(CommandContext &context)
{
    const Matrix before = context.document().userAxes();
    const Vec3 origin = co_await pointOr(context, Commands::tr("Specify new origin point"), before.origin, {});
    const Vec3 onZ = co_await pointOr(context, Commands::tr("Specify point on positive portion of Z-axis"),
                                      origin + before.zAxis, origin);
    if (!((onZ - origin).length() > 0.0))
        co_return co_await failed(context, Commands::tr("The Z axis has no direction."));
    Matrix axes = Matrix::fromExtrusion(onZ - origin);
    axes.origin = origin;
    co_return axes;
}

AskedAxes askTurned(CommandContext &context, char axis)
{
    const double usual = std::numbers::pi / 2.0;
    const QString shown = context.shownAngle(usual);
    const PromptReply reply = co_await context.angle(
        Commands::tr("Specify rotation angle about %1 axis <%2>: ").arg(QChar::fromLatin1(axis)).arg(shown), {}, {},
        shown);
    const Matrix turn = Matrix::rotation(reply.hasValue() ? reply.real : usual);
    // The turn is round z: the axes change places until the wanted one is there.
    Matrix shift;
    if (axis == 'X')
        shift = {{0.0, 1.0, 0.0}, {0.0, 0.0, 1.0}, {1.0, 0.0, 0.0}, {}};
    else if (axis == 'Y')
        shift = {{0.0, 0.0, 1.0}, {1.0, 0.0, 0.0}, {0.0, 1.0, 0.0}, {}};
    co_return context.document().userAxes() * shift *turn *shift.inverted();
}

AskedAxes askObject(CommandContext &context)
{
    const PromptReply picked = co_await context.entity(Commands::tr("Select object to align UCS: "));
    if (picked.entities.empty())
        co_return co_await failed(context, Commands::tr("Nothing was selected."));
    const std::optional<Matrix> axes = axesOfEntity(context.drawing(), picked.entities.front(), picked.point);
    if (!axes)
        co_return co_await failed(context, Commands::tr("No UCS can be aligned with this object."));
    co_return axes;
}

/// The plane that is looked at straight on, through the origin as it is.
Matrix axesOfView(CommandContext &context)
{
    Matrix axes;
    if (const drawing::RecordId viewport = currentViewport(context.drawing()); isValid(viewport)) {
        const drawing::ViewportAim aim = drawing::viewportAim(context.drawing(), viewport);
        axes = Matrix::fromExtrusion(aim.direction) * Matrix::rotation(-aim.twist);
    }
    axes.origin = context.document().userAxes().origin;
    return axes;
}

AskedAxes askOrthographic(CommandContext &context)
{
    const PromptReply side = co_await context.keyword(
        Commands::tr("Enter an option [Top/Bottom/Front/BAck/Left/Right] <Top>: "), {}, u"Top"_s);
    co_return orthographicAxes(side.text);
}

Dialogue<bool> saveSystem(CommandContext &context)
{
    const auto name =
        co_await askEntryName(context, TableKind::Ucs, Commands::tr("Enter name to save current UCS or [?]: "));
    if (!name)
        co_return false;
    if (!drawing::isSymbolName(*name, context.drawing().version())) {
        context.fail(Commands::tr("\"%1\" cannot be the name of a UCS.").arg(*name));
        co_return false;
    }
    drawing::Tables &tables = context.drawing().tables();
    const drawing::RecordId present = tables.find(TableKind::Ucs, *name);
    constexpr int expertEnough = 4;
    if (isValid(present) && context.document().variables().integer(u"EXPERT") < expertEnough) {
        const PromptReply sure = co_await context.keyword(
            Commands::tr("UCS \"%1\" already exists. Replace it? [Yes/No] <No>: ").arg(*name), {}, u"No"_s);
        if (sure.text != u"Yes"_s)
            co_return false;
    }
    const Matrix axes = context.document().userAxes();
    const drawing::RecordId entry = isValid(present) ? present : tables.add(TableKind::Ucs, *name);
    drawing::FieldList fields = context.drawing().fields(entry);
    drawing::setField(fields, 10, axes.origin);
    drawing::setField(fields, 11, axes.xAxis);
    drawing::setField(fields, 12, axes.yAxis);
    tables.modify(entry, fields);
    co_return true;
}

Dialogue<bool> restoreSystem(CommandContext &context)
{
    const auto name =
        co_await askEntryName(context, TableKind::Ucs, Commands::tr("Enter name of UCS to restore or [?]: "));
    const drawing::RecordId entry = name ? neededEntry(context, TableKind::Ucs, u"UCS"_s, *name) : drawing::noRecord;
    if (isValid(entry))
        useSystem(context, namedSystem(context.drawing(), entry));
    co_return isValid(entry);
}

Dialogue<bool> deleteSystems(CommandContext &context)
{
    const PromptReply names = co_await context.text(Commands::tr("Enter UCS name(s) to delete <none>: "), u"none"_s);
    if (!names.hasValue())
        co_return false;
    const std::vector<drawing::RecordId> doomed = matchingEntries(context, TableKind::Ucs, names.text);
    if (doomed.empty())
        context.print(Commands::tr("\nNo matching UCS names found."));
    for (const drawing::RecordId entry : doomed)
        context.drawing().dictionaries().setErasedWithOwned(entry, true);
    co_return true;
}

Dialogue<bool> listSystems(CommandContext &context)
{
    context.print(Commands::tr("\nCurrent UCS:  %1").arg(systemTitle(currentSystem(context))));
    co_return co_await listEntries(
        context, TableKind::Ucs, Commands::tr("Enter UCS name(s) to list <*>: "), [&context](drawing::RecordId entry) {
            const UserSystem system = namedSystem(context.drawing(), entry);
            return Commands::tr("\"%1\"  Origin = <%2>, X = <%3>, Y = <%4>")
                .arg(system.name, shownPoint(context, system.axes.origin),
                     shownPoint(context, context.document().userAxes().origin + system.axes.xAxis),
                     shownPoint(context, context.document().userAxes().origin + system.axes.yAxis));
        });
}

struct AxesOption
{
    QStringView option;
    AskedAxes (*ask)(CommandContext &context);
};

constexpr AxesOption axesOptions[] = {
    {u"Origin", askMoved},
    {u"Move", askMovedOrRaised},
    {u"3point", askThreePoints},
    {u"ZAxis", askByZAxis},
    {u"OBject", askObject},
    {u"Entity", askObject},
    {u"orthoGraphic", askOrthographic},
    {u"X", [](CommandContext &context) { return askTurned(context, 'X'); }},
    {u"Y", [](CommandContext &context) { return askTurned(context, 'Y'); }},
    {u"Z", [](CommandContext &context) { return askTurned(context, 'Z'); }},
    {u"Face",
     [](CommandContext &context) { return failed(context, Commands::tr("Faces of solids cannot be chosen here.")); }},
};

struct SystemOption
{
    QStringView option;
    Dialogue<bool> (*act)(CommandContext &context);
};

constexpr SystemOption systemOptions[] = {
    {u"Save", saveSystem}, {u"Restore", restoreSystem}, {u"Delete", deleteSystems}, {u"?", listSystems}};

Dialogue<bool> takeUcsOption(CommandContext &context, QString option)
{
    for (const SystemOption &row : systemOptions)
        if (row.option == option)
            co_return co_await row.act(context);
    for (const AxesOption &row : axesOptions) {
        if (row.option != option)
            continue;
        const std::optional<Matrix> axes = co_await row.ask(context);
        if (axes)
            useSystem(context, {*axes, {}});
        co_return axes.has_value();
    }
    if (option == u"View")
        useSystem(context, {axesOfView(context), {}});
    else if (option == u"Previous" && !usePreviousSystem(context))
        context.print(Commands::tr("\nNo previous coordinate system saved."));
    else if (option == u"World")
        useSystem(context, {});
    co_return true;
}

/// A point that was given in place of an option is the origin; an empty answer then leaves the axes as they are.
Dialogue<bool> askFromOrigin(CommandContext &context, Vec3 origin)
{
    Matrix axes = context.document().userAxes();
    const PromptReply onX = co_await context.point(Commands::tr("Specify point on X-axis or <accept>: "), {}, origin);
    if (onX.hasValue()) {
        const PromptReply onPlane =
            co_await context.point(Commands::tr("Specify point on the XY plane or <accept>: "), {}, origin);
        const Vec3 near = onPlane.hasValue() ? cross(onX.point - origin, onPlane.point - origin) : axes.zAxis;
        const std::optional<Matrix> turned = axesAlong(origin, onX.point - origin, drawing::normalized(near));
        if (!turned || !(near.length() > 0.0)) {
            context.fail(Commands::tr("The three points lie on a line."));
            co_return false;
        }
        axes = *turned;
    }
    axes.origin = origin;
    useSystem(context, {axes, {}});
    co_return true;
}

/// The older way of asking: what the new system is made of, without the named ones.
Dialogue<bool> askNew(CommandContext &context)
{
    const QString usual = shownPoint(context, context.document().userAxes().origin);
    const PromptReply reply = co_await context.point(
        Commands::tr("Specify origin of new UCS or [ZAxis/3point/OBject/Face/View/X/Y/Z] <%1>: ").arg(usual),
        u"ZAxis 3point,3 OBject Entity Face View X Y Z"_s, {}, usual);
    if (reply.kind == ReplyKind::Keyword)
        co_return co_await takeUcsOption(context, reply.text);
    if (reply.hasValue()) {
        Matrix axes = context.document().userAxes();
        axes.origin = reply.point;
        useSystem(context, {axes, {}});
    }
    co_return true;
}

CommandTask ucs(CommandContext &context)
{
    context.print(Commands::tr("\nCurrent ucs name:  %1").arg(systemTitle(currentSystem(context))));
    const PromptReply reply = co_await context.point(
        Commands::tr("Specify origin of UCS or [Face/NAmed/OBject/Previous/View/World/X/Y/Z/ZAxis] <World>: "),
        u"Face NAmed OBject Entity Previous View World X Y Z ZAxis Origin 3point,3 New Move orthoGraphic Restore Save "
        u"Delete ?"_s,
        {}, u"World"_s);
    if (reply.hasValue()) {
        co_await askFromOrigin(context, reply.point);
    } else if (reply.isKeyword(u"New")) {
        co_await askNew(context);
    } else if (reply.isKeyword(u"NAmed")) {
        const PromptReply named = co_await context.keyword(Commands::tr("Enter an option [Restore/Save/Delete/?]: "));
        if (named.hasValue() || named.kind == ReplyKind::Keyword)
            co_await takeUcsOption(context, named.text);
    } else {
        const QString option = reply.kind == ReplyKind::Keyword ? reply.text : u"World"_s;
        co_await takeUcsOption(context, option);
    }
}

} // namespace

std::vector<CommandRow> ucsCommands()
{
    return {{"UCS", ucs, "Sets, saves and restores the user coordinate system"}};
}

} // namespace host::kernel
