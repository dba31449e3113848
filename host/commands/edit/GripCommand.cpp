#include "host/commands/Commands.h"
#include "host/commands/common/DragShapes.h"
#include "host/commands/common/EntityEdits.h"
#include "host/commands/common/ReferenceValue.h"
#include "host/commands/common/TextSizes.h"
#include "host/commands/common/UserPlane.h"
#include "host/drawing/annotation/DimensionBlock.h"
#include "host/drawing/annotation/DimensionStyle.h"
#include "host/drawing/editing/GripPoints.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/input/Keywords.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/running/Dialogue.h"
#include "host/kernel/variables/SystemVariables.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::Matrix;
using drawing::RecordId;
using drawing::Vec3;
using GripEntities = std::vector<RecordId>;

/// What the grips are moved by; an empty answer goes on to the next row.
struct GripMode
{
    const char *word;   ///< the keyword that turns to it
    const char *title;  ///< as the prompt begins
    const char *prompt; ///< what is asked for
    PromptKind kind;
};

constexpr GripMode gripModes[] = {
    {"STretch", "STRETCH", QT_TRANSLATE_NOOP("Commands", "Specify stretch point or [Base point/Copy/Undo/eXit]: "),
     PromptKind::Point},
    {"MOve", "MOVE", QT_TRANSLATE_NOOP("Commands", "Specify move point or [Base point/Copy/Undo/eXit]: "),
     PromptKind::Point},
    {"ROtate", "ROTATE",
     QT_TRANSLATE_NOOP("Commands", "Specify rotation angle or [Base point/Copy/Undo/Reference/eXit]: "),
     PromptKind::Angle},
    {"SCale", "SCALE", QT_TRANSLATE_NOOP("Commands", "Specify scale factor or [Base point/Copy/Undo/Reference/eXit]: "),
     PromptKind::Distance},
    {"MIrror", "MIRROR", QT_TRANSLATE_NOOP("Commands", "Specify second point or [Base point/Copy/Undo/eXit]: "),
     PromptKind::Point},
};
enum GripModeIndex : std::size_t
{
    StretchByGrip,
    MoveByGrip,
    RotateByGrip,
    ScaleByGrip,
    MirrorByGrip
};

/// Grips of several entities at one place move together; points that were typed have few decimals.
bool isSamePlace(const Vec3 &one, const Vec3 &other)
{
    return (one - other).length() <= 1e-8 * (1.0 + std::abs(one.x) + std::abs(one.y) + std::abs(one.z));
}

/// An edit by grips while it is asked for.
struct GripEdit
{
    GripEntities entities;
    std::vector<Vec3> hot;
    Vec3 base;
    std::size_t mode = StretchByGrip;
    bool isCopying = false;
    std::vector<GripEntities> copies; ///< of each answer, for Undo

    bool isHot(const Vec3 &point) const
    {
        return std::ranges::any_of(hot, [&](const Vec3 &one) { return isSamePlace(one, point); });
    }
};

/// What the place under the pointer would make of the entities.
Dragged gripShape(CommandContext &context, const GripEdit &edit)
{
    const UserPlane plane(context.document());
    switch (edit.mode) {
    case RotateByGrip:
        return turnedBy(plane, edit.entities, edit.base, context.document().variables().real(u"ANGBASE"));
    case ScaleByGrip:
        return scaledBy(plane, edit.entities, edit.base);
    case MirrorByGrip:
        return mirroredIn(plane, edit.entities, edit.base);
    default:
        break;
    }
    DragShape shape = *movedBy(edit.entities, edit.base);
    if (edit.mode == StretchByGrip)
        shape.change = [edit](drawing::Drawing &copies, RecordId copy, RecordId, const Vec3 &by) {
            drawing::moveGrips(
                copies, copy, [&](const Vec3 &point) { return edit.isHot(point); }, by);
        };
    return std::make_shared<const DragShape>(std::move(shape));
}

PromptRequest gripRequest(CommandContext &context, const GripEdit &edit)
{
    const GripMode &mode = gripModes[edit.mode];
    const QString prompt = Commands::tr(mode.prompt);
    const QString title = QLatin1StringView(mode.title) + (edit.isCopying ? Commands::tr(" (multiple)") : QString());
    PromptRequest request;
    request.kind = mode.kind;
    request.prompt = u"\n** %1 **\n%2"_s.arg(title, prompt);
    request.keywords = optionsIn(prompt);
    for (const GripMode &other : gripModes)
        request.keywords.append(QLatin1StringView(other.word));
    request.base = edit.base;
    request.bits = edit.mode == ScaleByGrip ? NoZero | NoNegative : 0;
    request.dragged = gripShape(context, edit);
    return request;
}

bool hasGripAt(const drawing::Drawing &drawing, const GripEntities &entities, const Vec3 &point)
{
    const auto isThere = [&point](const drawing::Grip &grip) { return isSamePlace(point, grip.point); };
    return std::ranges::any_of(
        entities, [&](RecordId id) { return std::ranges::any_of(drawing::gripsOf(drawing, id), isThere); });
}

/// The grips of the entities that stand where the user points.
Dialogue<bool> askHotGrips(CommandContext &context, GripEdit &edit)
{
    for (;;) {
        const PromptReply reply = co_await context.point(Commands::tr("Specify grips to move: "));
        if (!reply.hasValue())
            co_return !edit.hot.empty();
        const bool isGrip = hasGripAt(context.drawing(), edit.entities, reply.point);
        if (!isGrip && context.refuse(Commands::tr("There is no grip of the chosen entities.")))
            co_return false;
        if (isGrip)
            edit.hot.push_back(reply.point);
    }
}

void stretchByGrips(CommandContext &context, const GripEdit &edit, const GripEntities &entities, const Vec3 &by)
{
    drawing::Drawing &drawing = context.drawing();
    int refused = 0;
    for (const RecordId id : entities) {
        const auto isHot = [&edit](const Vec3 &point) { return edit.isHot(point); };
        const drawing::StretchOutcome outcome = drawing::moveGrips(drawing, id, isHot, by);
        refused += outcome == drawing::StretchOutcome::Refused ? 1 : 0;
        if (outcome != drawing::StretchOutcome::Done || !drawing.typeName(id).endsWith("DIMENSION"))
            continue;
        const drawing::DimensionStyle style = readDimensionStyle(drawing, drawing.tags(id));
        drawDimension(drawing, id, dimensionTextSize(context, style.textStyle));
    }
    if (refused > 0)
        context.print(Commands::tr("\n%1 could not be changed.").arg(refused));
}

/// What the answer makes of the entities in the mode.
void applyByGrips(CommandContext &context, const GripEdit &edit, const GripEntities &entities, const PromptReply &reply)
{
    const UserPlane plane(context.document());
    switch (edit.mode) {
    case StretchByGrip:
        return stretchByGrips(context, edit, entities, reply.point - edit.base);
    case MoveByGrip:
        return transformAll(context, entities, Matrix::translation(reply.point - edit.base));
    case RotateByGrip:
        return transformAll(context, entities, plane.rotation(reply.real, edit.base));
    case ScaleByGrip:
        return transformAll(context, entities, Matrix::scaling({reply.real, reply.real, reply.real}, edit.base));
    default:
        break;
    }
    const Vec3 from = plane.userFromWorld(edit.base);
    const Vec3 to = plane.userFromWorld(reply.point);
    if ((to - from).xy().length() == 0.0)
        return context.fail(Commands::tr("The two points are one."));
    mirrorAll(context, entities, plane.inWorld(Matrix::mirror(from, to)));
}

/// One answer that says how: the entities change, or copies of them.
void finishAnswer(CommandContext &context, GripEdit &edit, const PromptReply &reply)
{
    if (!edit.isCopying)
        return applyByGrips(context, edit, edit.entities, reply);
    edit.copies.push_back(copyAll(context, edit.entities, {}));
    applyByGrips(context, edit, edit.copies.back(), reply);
}

Dialogue<PromptReply> askGripReference(CommandContext &context, const GripEdit &edit)
{
    PromptReply reply;
    if (edit.mode == RotateByGrip)
        reply.real = co_await askReferenceAngle(context, edit.base, edit.entities);
    else
        reply.real = co_await askReferenceFactor(context, edit.base, edit.entities);
    co_return reply;
}

/// Turns to what a word says. False for one that ends the edit.
bool takeGripWord(CommandContext &context, GripEdit &edit, const PromptReply &reply)
{
    const auto *mode = std::ranges::find_if(
        gripModes, [&](const GripMode &one) { return reply.isKeyword(QLatin1StringView(one.word).toString()); });
    if (mode != std::end(gripModes)) {
        edit.mode = std::size_t(mode - gripModes);
    } else if (reply.isKeyword(u"Copy")) {
        edit.isCopying = true;
    } else if (reply.isKeyword(u"Undo") && !edit.copies.empty()) {
        eraseAll(context, edit.copies.back());
        edit.copies.pop_back();
    } else if (reply.isKeyword(u"Undo")) {
        context.print(Commands::tr("\nThere is nothing to undo."));
    }
    return !reply.isKeyword(u"eXit");
}

/// Until the entities have changed, or of copies until there are enough.
Dialogue<bool> askGripEdit(CommandContext &context, GripEdit &edit)
{
    for (;;) {
        PromptReply reply = co_await context.ask(gripRequest(context, edit));
        if (reply.isEmpty()) {
            edit.mode = (edit.mode + 1) % std::size(gripModes);
        } else if (reply.isKeyword(u"Base")) {
            reply = co_await context.neededPoint(Commands::tr("Specify base point: "));
            edit.base = reply.point;
        } else if (reply.hasValue() || reply.isKeyword(u"Reference")) {
            if (!reply.hasValue())
                reply = co_await askGripReference(context, edit);
            finishAnswer(context, edit, reply);
            if (!edit.isCopying || context.hasFailed())
                co_return true;
        } else if (!takeGripWord(context, edit, reply)) {
            co_return true;
        }
    }
}

// Entities, their grips that move, then how.
CommandTask gripEdit(CommandContext &context)
{
    const PromptReply chosen = co_await context.selection();
    GripEdit edit{.entities = editable(context, chosen.entities), .hot = {}, .base = {}, .copies = {}};
    const bool isReady = !edit.entities.empty() && co_await askHotGrips(context, edit);
    if (isReady) {
        edit.base = edit.hot.back();
        co_await askGripEdit(context, edit);
    }
}

} // namespace

std::vector<CommandRow> gripCommands()
{
    return {{"GRIPEDIT", gripEdit, "Changes entities by their grips", WhenCancelled::KeepDone}};
}

} // namespace host::kernel
