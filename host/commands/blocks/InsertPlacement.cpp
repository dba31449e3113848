#include "host/commands/blocks/InsertPlacement.h"

#include "host/commands/common/UserPlane.h"
#include "host/drawing/records/Blocks.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace host::kernel {

using drawing::FieldList;
using drawing::Matrix;
using drawing::Vec3;

namespace {

/// A placement while it is asked for.
struct Draft
{
    InsertPlacement placement;
    bool hasScale = false;
    bool hasRotation = false;
};

Dialogue<double> askFactor(CommandContext &context, const QString prompt)
{
    const PromptReply reply = co_await context.real(prompt, {}, u"1"_s, NoZero);
    co_return reply.hasValue() ? reply.real : 1.0;
}

/// What hangs at the pointer; nothing for nobody's block.
Dragged hanging(CommandContext &context, const QString &block, DragShape::Map map)
{
    const bool isKnown = !block.isEmpty() && context.drawing().blocks().get(block);
    return isKnown ? std::make_shared<const DragShape>(DragShape{.block = block, .map = std::move(map)}) : nullptr;
}

/// At the place, as it is scaled and turned so far.
Dragged hangingByBase(CommandContext &context, const QString &block, const InsertPlacement &placement)
{
    const std::optional<drawing::Block> definition = context.drawing().blocks().get(block);
    const Vec3 base = definition ? definition->basePoint : Vec3{};
    const Matrix atOrigin = placementMatrix(context, base, placement);
    return hanging(context, block, [=](const Vec3 &place) -> std::optional<Matrix> {
        return Matrix::translation(place - placement.point) * atOrigin;
    });
}

/// At its point, turned towards the place, or, before an angle is asked for, as it is.
Dragged hangingThere(CommandContext &context, const QString &block, const InsertPlacement &placement, bool isTurned)
{
    const std::optional<drawing::Block> definition = context.drawing().blocks().get(block);
    const Matrix straight = placementMatrix(context, definition ? definition->basePoint : Vec3{}, placement);
    const UserPlane plane(context.document());
    const Vec3 from = plane.userFromWorld(placement.point);
    return hanging(context, block, [=](const Vec3 &place) -> std::optional<Matrix> {
        const Vec3 away = plane.userFromWorld(place) - from;
        const double turn = isTurned ? std::atan2(away.y, away.x) : 0.0;
        return plane.rotation(turn, placement.point) * straight;
    });
}

Dialogue<double> askRotation(CommandContext &context, const std::optional<Vec3> base, const Dragged shape)
{
    const QString zero = context.shownAngle(0.0);
    const PromptReply turn =
        co_await context.orientation(Commands::tr("Specify rotation angle <%1>: ").arg(zero), {}, base, zero)
            .dragging(shape);
    co_return turn.hasValue() ? turn.real : 0.0;
}

/// An option in front of the insertion point.
Dialogue<Draft> takePlacementOption(CommandContext &context, Draft draft, const QString option)
{
    Vec3 &scale = draft.placement.scale;
    if (option == u"Rotate"_s) {
        draft.placement.rotation = co_await askRotation(context, {}, nullptr);
        draft.hasRotation = true;
        co_return draft;
    }
    draft.hasScale = true;
    if (option == u"Scale"_s) {
        const double factor = co_await askFactor(context, Commands::tr("Specify scale factor for XYZ axes <1>: "));
        scale = {factor, factor, factor};
        co_return draft;
    }
    const double factor = co_await askFactor(context, Commands::tr("Specify %1 scale factor <1>: ").arg(option));
    (option == u"X"_s ? scale.x : option == u"Y"_s ? scale.y : scale.z) = factor;
    co_return draft;
}

/// The factor of a further axis, which is that of x when it is not said.
Dialogue<double> askLike(CommandContext &context, double xScale, const QString axis)
{
    const PromptReply reply = co_await context.real(
        Commands::tr("Enter %1 scale factor <use X scale factor>: ").arg(axis), {}, u"X"_s, NoZero);
    co_return reply.hasValue() ? reply.real : xScale;
}

Dialogue<Vec3> askScales(CommandContext &context, const Vec3 insertion, const Dragged shape)
{
    const PromptReply x =
        co_await context.real(Commands::tr("Enter X scale factor or [Corner/XYZ] <1>: "), {}, u"1"_s, NoZero)
            .dragging(shape);
    if (x.isKeyword(u"Corner")) {
        const UserPlane plane(context.document());
        const PromptReply corner =
            co_await context.neededPoint(Commands::tr("Specify opposite corner: "), insertion).asBox();
        const Vec3 size = plane.userFromWorld(corner.point) - plane.userFromWorld(insertion);
        if (size.x == 0.0 || size.y == 0.0)
            context.fail(Commands::tr("Value must be nonzero."));
        co_return Vec3{size.x, size.y, size.x};
    }
    Vec3 scale;
    const bool isSpatial = x.isKeyword(u"XYZ");
    if (isSpatial)
        scale.x = co_await askFactor(context, Commands::tr("Specify X scale factor <1>: "));
    else
        scale.x = x.hasValue() ? x.real : 1.0;
    scale.y = co_await askLike(context, scale.x, u"Y"_s);
    scale.z = scale.x;
    if (isSpatial)
        scale.z = co_await askLike(context, scale.x, u"Z"_s);
    co_return scale;
}

} // namespace

Dialogue<InsertPlacement> askPlacement(CommandContext &context, InsertScales scales, QString block)
{
    Draft draft;
    PromptReply point;
    for (;;) {
        point = co_await context.neededPoint(Commands::tr("Specify insertion point or [Scale/X/Y/Z/Rotate]: "))
                    .dragging(hangingByBase(context, block, draft.placement));
        if (point.hasValue())
            break;
        draft = co_await takePlacementOption(context, draft, point.text);
    }
    InsertPlacement &placement = draft.placement;
    placement.point = point.point;
    if (scales == InsertScales::One) {
        double factor = placement.scale.x;
        if (!draft.hasScale)
            factor = co_await askFactor(context, Commands::tr("Specify scale factor <1>: "));
        placement.scale = {factor, factor, factor};
    } else if (!draft.hasScale) {
        const Dragged still = hangingThere(context, block, placement, false);
        placement.scale = co_await askScales(context, point.point, still);
    }
    if (!draft.hasRotation && !context.hasFailed()) {
        const Dragged turning = hangingThere(context, block, placement, true);
        placement.rotation = co_await askRotation(context, point.point, turning);
    }
    co_return placement;
}

FieldList insertFields(CommandContext &context, const QString &block, const InsertPlacement &placement)
{
    const UserPlane plane(context.document());
    return plane.placed({{0, u"INSERT"_s},
                         {2, block},
                         {10, plane.objectFromWorld(placement.point)},
                         {41, placement.scale.x},
                         {42, placement.scale.y},
                         {43, placement.scale.z},
                         {50, plane.objectDegrees(placement.rotation)}});
}

Matrix placementMatrix(CommandContext &context, const Vec3 &basePoint, const InsertPlacement &placement)
{
    Matrix axes = context.document().userAxes();
    axes.origin = placement.point;
    return axes * Matrix::rotation(placement.rotation) * Matrix::scaling(placement.scale) *
           Matrix::translation(basePoint * -1.0);
}

} // namespace host::kernel
