#include "host/commands/Commands.h"
#include "host/commands/common/NamedEntries.h"
#include "host/commands/spaces/UserSystems.h"
#include "host/commands/spaces/ViewDirection.h"
#include "host/drawing/editing/RenameLayer.h"
#include "host/drawing/editing/Viewports.h"
#include "host/drawing/math/Angles.h"
#include "host/drawing/records/Dictionaries.h"
#include "host/drawing/records/Layouts.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/documents/CurrentView.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/variables/SystemVariables.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::Field;
using drawing::Matrix;
using drawing::TableKind;
using drawing::Vec2;
using drawing::Vec3;

constexpr qint64 paperView = 1; ///< of group 70

/// How the view that commands work on is looked at.
struct Gaze
{
    Vec3 direction{0.0, 0.0, 1.0};
    double twist = 0.0; ///< radians
};

Gaze currentGaze(CommandContext &context)
{
    if (const drawing::RecordId viewport = currentViewport(context.drawing()); isValid(viewport)) {
        const drawing::ViewportAim aim = drawing::viewportAim(context.drawing(), viewport);
        return {aim.direction, aim.twist};
    }
    const SystemVariables &variables = context.document().variables();
    return {context.document().userAxes().direction(variables.point(u"VIEWDIR")), variables.real(u"VIEWTWIST")};
}

Matrix displayAxes(const Gaze &gaze)
{
    return Matrix::fromExtrusion(gaze.direction) * Matrix::rotation(-gaze.twist);
}

/// Makes or changes the view of that name.
void storeView(CommandContext &context, const QString &name, const ViewState &view)
{
    drawing::Tables &tables = context.drawing().tables();
    const drawing::RecordId present = tables.find(TableKind::View, name);
    const drawing::RecordId entry = isValid(present) ? present : tables.add(TableKind::View, name);
    const Gaze gaze = currentGaze(context);
    const Vec3 centre = displayAxes(gaze).inverted().point({view.centre.x, view.centre.y, 0.0});
    const double aspect = view.pixels.isEmpty() ? 1.0 : double(view.pixels.width()) / view.pixels.height();
    const bool isPaper = currentSpace(context.drawing()) == drawing::Space::Paper;
    drawing::FieldList fields = context.drawing().fields(entry);
    for (const Field &field : {Field{70, isPaper ? paperView : qint64(0)}, Field{40, view.height},
                               Field{10, centre.xy()}, Field{41, view.height * aspect}, Field{11, gaze.direction},
                               Field{12, Vec3{}}, Field{50, gaze.twist / drawing::radians}})
        drawing::setField(fields, field.code, field.value);
    tables.modify(entry, fields);
}

/// A name for a view; nothing, with the command failed, for one that cannot be.
Dialogue<std::optional<QString>> askNewName(CommandContext &context)
{
    const auto name = co_await askEntryName(context, TableKind::View, Commands::tr("Enter view name to save: "));
    if (name && !drawing::isSymbolName(*name, context.drawing().version())) {
        context.fail(Commands::tr("\"%1\" cannot be the name of a view.").arg(*name));
        co_return std::nullopt;
    }
    co_return name;
}

Dialogue<bool> saveView(CommandContext &context)
{
    const auto name = co_await askNewName(context);
    if (name)
        storeView(context, *name, currentView(context.document()));
    co_return true;
}

Dialogue<bool> saveWindow(CommandContext &context)
{
    const auto name = co_await askNewName(context);
    if (!name)
        co_return false;
    const PromptReply first = co_await context.neededPoint(Commands::tr("Specify first corner: "));
    PromptRequest request;
    request.kind = PromptKind::Corner;
    request.prompt = Commands::tr("\nSpecify opposite corner: ");
    request.base = first.point;
    request.bits = NoEmptyAnswer;
    const PromptReply second = co_await context.ask(request);
    ViewState view = currentView(context.document());
    view.centre = ((first.point + second.point) * 0.5).xy();
    const Vec3 size = second.point - first.point;
    view.height = std::abs(size.y);
    view.pixels = {std::max(1, int(std::min(1e6, 1000.0 * std::abs(size.x / size.y)))), 1000};
    if (!(view.height > 0.0) || size.x == 0.0)
        context.fail(Commands::tr("The window has no area."));
    else
        storeView(context, *name, view);
    co_return true;
}

/// Goes to the kind of space that the view shows. False when there is no viewport to show it in.
Dialogue<bool> enterSpaceOf(CommandContext &context, qint64 flags)
{
    drawing::Drawing &drawing = context.drawing();
    if ((flags & paperView) != 0) {
        if (isModelTab(drawing))
            setCurrentLayout(drawing, drawing.layouts().currentName());
        drawing.layouts().setCurrentViewport(drawing::noRecord);
        context.document().followLayout();
        co_return true;
    }
    if (currentSpace(drawing) == drawing::Space::Model)
        co_return true;
    const PromptReply picked = co_await context.entity(Commands::tr("Select viewport for view: "));
    if (picked.entities.empty() || !drawing.isType(picked.entities.front(), "VIEWPORT")) {
        context.fail(Commands::tr("The view shows model space, and no viewport was chosen for it."));
        co_return false;
    }
    drawing.layouts().setCurrentViewport(picked.entities.front());
    co_return true;
}

Dialogue<bool> restoreView(CommandContext &context)
{
    const auto name = co_await askEntryName(context, TableKind::View, Commands::tr("Enter view name to restore: "));
    const drawing::RecordId entry =
        name ? neededEntry(context, TableKind::View, Commands::tr("view"), *name) : drawing::noRecord;
    if (!isValid(entry))
        co_return false;
    const bool isThere = co_await enterSpaceOf(context, context.drawing().tags(entry).integer(70));
    if (!isThere)
        co_return false;
    const drawing::TagList tags = context.drawing().tags(entry);
    const Gaze gaze{tags.point(11, {0.0, 0.0, 1.0}), tags.real(50) * drawing::radians};
    const Matrix axes = displayAxes(gaze);
    const ViewState before = currentView(context.document());
    lookAt(context, axes);
    ViewState view = before;
    const Vec3 centre = tags.point(10);
    view.centre = (tags.point(12) + axes.point({centre.x, centre.y, 0.0})).xy();
    view.height = tags.real(40) > 0.0 ? tags.real(40) : before.height;
    rememberCurrentView(context.document(), before);
    showCurrentView(context.document(), view);
    co_return true;
}

Dialogue<bool> deleteViews(CommandContext &context)
{
    const PromptReply names = co_await context.text(Commands::tr("Enter view name(s) to delete: "));
    if (!names.hasValue())
        co_return false;
    const std::vector<drawing::RecordId> doomed = matchingEntries(context, TableKind::View, names.text);
    if (doomed.empty())
        context.print(Commands::tr("\nNo matching views found."));
    for (const drawing::RecordId entry : doomed)
        context.drawing().dictionaries().setErasedWithOwned(entry, true);
    co_return true;
}

Dialogue<bool> listViews(CommandContext &context)
{
    co_return co_await listEntries(context, TableKind::View, Commands::tr("Enter view name(s) to list <*>: "),
                                   [&context](drawing::RecordId entry) {
                                       const drawing::TagList tags = context.drawing().tags(entry);
                                       return u"\"%1\"  %2"_s.arg(tags.text(2),
                                                                  (tags.integer(70) & paperView) ? u"P"_s : u"M"_s);
                                   });
}

Dialogue<bool> lookFrom(CommandContext &context, QString side)
{
    const ViewState before = currentView(context.document());
    lookAt(context, orthographicAxes(side));
    rememberCurrentView(context.document(), before);
    if (side == u"Top")
        showBox(context.document(), drawnExtents(context));
    co_return true;
}

Dialogue<bool> askSide(CommandContext &context)
{
    const PromptReply side = co_await context.keyword(
        Commands::tr("Enter an option [Top/Bottom/Front/BAck/Left/Right] <Top>: "), {}, u"Top"_s);
    const QString chosen = side.text.isEmpty() ? u"Top"_s : side.text;
    co_return co_await lookFrom(context, chosen);
}

/// Views here never change the user's coordinate system: the answer is taken so that programs go on in step.
Dialogue<bool> askUcsWithViews(CommandContext &context)
{
    co_await context.keyword(Commands::tr("Save current UCS with named views? [Yes/No] <Yes>: "), {}, u"Yes"_s);
    context.print(Commands::tr("\nCoordinate systems are not kept with views."));
    co_return true;
}

CommandTask namedView(CommandContext &context)
{
    struct Action
    {
        QStringView option;
        Dialogue<bool> (*act)(CommandContext &context);
    };
    static constexpr Action actions[] = {
        {u"?", listViews},   {u"Delete", deleteViews},  {u"Orthographic", askSide}, {u"Restore", restoreView},
        {u"Save", saveView}, {u"Ucs", askUcsWithViews}, {u"Window", saveWindow}};
    const PromptReply option = co_await context.keyword(
        Commands::tr("Enter an option [?/Delete/Orthographic/Restore/Save/Ucs/Window]: "),
        u"? Delete Orthographic Restore Save Ucs Window Top,TOP Bottom,BOTTOM Front,FRONT BAck,BACK Left,LEFT "
        u"Right,RIGHT"_s);
    for (const Action &action : actions) {
        if (option.text == action.option) {
            co_await action.act(context);
            co_return;
        }
    }
    if (!option.text.isEmpty())
        co_await lookFrom(context, option.text);
}

/// The plan view of a coordinate system, and all that is drawn.
CommandTask plan(CommandContext &context)
{
    const PromptReply option =
        co_await context.keyword(Commands::tr("Enter an option [Current ucs/Ucs/World] <Current>: "), {}, u"Current"_s);
    Matrix axes = context.document().userAxes();
    if (option.text == u"World"_s)
        axes = {};
    if (option.text == u"Ucs"_s) {
        const auto name = co_await askEntryName(context, TableKind::Ucs, Commands::tr("Enter name of UCS or [?]: "));
        const drawing::RecordId entry =
            name ? neededEntry(context, TableKind::Ucs, u"UCS"_s, *name) : drawing::noRecord;
        if (!isValid(entry))
            co_return;
        axes = namedSystem(context.drawing(), entry).axes;
    }
    const ViewState before = currentView(context.document());
    lookAt(context, axes);
    rememberCurrentView(context.document(), before);
    showBox(context.document(), drawnExtents(context));
}

/// From an angle in the user's x-y plane and one above it.
Dialogue<Vec3> askTurnedDirection(CommandContext &context)
{
    const PromptReply around = co_await context.angle(Commands::tr("Enter angle in XY plane from X axis: "));
    const PromptReply above = co_await context.angle(Commands::tr("Enter angle from XY plane: "));
    const double flat = std::cos(above.real);
    co_return Vec3{flat * std::cos(around.real), flat * std::sin(around.real), std::sin(above.real)};
}

// Where to look from, in the user's axes; an empty answer leaves the direction.
CommandTask viewPoint(CommandContext &context)
{
    const Vec3 present = context.document().variables().point(u"VIEWDIR");
    const QString shown = u"%1,%2,%3"_s.arg(context.shownLength(present.x), context.shownLength(present.y),
                                            context.shownLength(present.z));
    const PromptReply reply = co_await context.point(Commands::tr("Specify a view point or [Rotate] <%1>: ").arg(shown),
                                                     u"Rotate"_s, {}, shown);
    Matrix axes = context.document().userAxes();
    Vec3 direction = present;
    if (reply.isKeyword(u"Rotate"))
        direction = co_await askTurnedDirection(context);
    else if (reply.hasValue())
        direction = axes.inverted().point(reply.point);
    if (direction == Vec3{}) {
        context.fail(Commands::tr("There is no direction from the target to itself."));
        co_return;
    }
    axes.origin = {};
    const ViewState before = currentView(context.document());
    lookAt(context, Matrix::fromExtrusion(axes.point(direction)));
    rememberCurrentView(context.document(), before);
    showBox(context.document(), drawnExtents(context));
}

} // namespace

std::vector<CommandRow> namedViewCommands()
{
    return {
        {"-VPOINT", viewPoint, "Looks from another direction"},
        {"-VIEW", namedView, "Saves, restores and deletes named views", WhenCancelled::TakeBack, Interrupts::Prompts},
        {"PLAN", plan, "Looks straight at the plane of a coordinate system"},
        {"VPOINT", viewPoint, "As -VPOINT; there is no window for it"},
        {"VIEW", namedView, "As -VIEW; there is no window for it"}};
}

} // namespace host::kernel
