#include "host/commands/Commands.h"
#include "host/commands/common/EntityEdits.h"
#include "host/commands/common/Movement.h"
#include "host/commands/common/ReferenceValue.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::Matrix;
using drawing::Vec3;

/// Where points are and where they go.
struct PointPairs
{
    std::vector<Vec3> from;
    std::vector<Vec3> to;
};

/// Right-angled axes at a point, x along one direction and y on the side of another.
Matrix frameAt(const Vec3 &origin, const Vec3 &along, const Vec3 &side)
{
    const Vec3 x = normalized(along);
    const Vec3 z = normalized(cross(x, side));
    return {x, cross(z, x), z, origin};
}

/// Two pairs say no turn round the line through them: what is upright in the user's system stays so.
Vec3 sideOf(const Vec3 &along, const Matrix &user)
{
    const Vec3 side = cross(user.zAxis, along);
    return side.length() > 1e-9 * along.length() ? side : user.yAxis;
}

/// The rigid map that brings the first point onto its goal, the second into its direction and the third into its
/// plane. Nothing where points coincide.
std::optional<Matrix> alignment(const PointPairs &pairs, const Matrix &user, bool isScaled)
{
    if (pairs.from.size() == 1)
        return Matrix::translation(pairs.to[0] - pairs.from[0]);
    const Vec3 along = pairs.from[1] - pairs.from[0];
    const Vec3 goal = pairs.to[1] - pairs.to[0];
    if (along.length() == 0.0 || goal.length() == 0.0)
        return std::nullopt;
    const bool isSpatial = pairs.from.size() > 2;
    const Vec3 fromSide = isSpatial ? pairs.from[2] - pairs.from[0] : sideOf(along, user);
    const Vec3 toSide = isSpatial ? pairs.to[2] - pairs.to[0] : sideOf(goal, user);
    const Matrix from = frameAt(pairs.from[0], along, fromSide);
    const Matrix to = frameAt(pairs.to[0], goal, toSide);
    if (from.determinant() == 0.0 || to.determinant() == 0.0)
        return std::nullopt;
    const double factor = isScaled ? goal.length() / along.length() : 1.0;
    return to * Matrix::scaling({factor, factor, factor}) * from.inverted();
}

/// Up to three pairs; an empty source point ends them.
Dialogue<PointPairs> askPointPairs(CommandContext &context)
{
    struct Prompts
    {
        const char *from;
        const char *to;
    };
    static constexpr Prompts all[] = {{QT_TRANSLATE_NOOP("Commands", "Specify first source point: "),
                                       QT_TRANSLATE_NOOP("Commands", "Specify first destination point: ")},
                                      {QT_TRANSLATE_NOOP("Commands", "Specify second source point: "),
                                       QT_TRANSLATE_NOOP("Commands", "Specify second destination point: ")},
                                      {QT_TRANSLATE_NOOP("Commands", "Specify third source point or <continue>: "),
                                       QT_TRANSLATE_NOOP("Commands", "Specify third destination point: ")}};
    PointPairs pairs;
    for (const Prompts &prompts : all) {
        const PromptReply from =
            co_await context.point(Commands::tr(prompts.from), {}, {}, {}, pairs.from.empty() ? NoEmptyAnswer : 0);
        if (!from.hasValue())
            break;
        const PromptReply to = co_await context.neededPoint(Commands::tr(prompts.to), from.point);
        pairs.from.push_back(from.point);
        pairs.to.push_back(to.point);
    }
    co_return pairs;
}

// One pair moves, two turn and may scale, three turn in space.
CommandTask align(CommandContext &context)
{
    const PromptReply chosen = co_await context.selection();
    const std::vector<drawing::RecordId> entities = editable(context, chosen.entities);
    if (entities.empty())
        co_return;
    const PointPairs pairs = co_await askPointPairs(context);
    bool isScaled = false;
    if (pairs.from.size() == 2) {
        const PromptReply scaled = co_await context.keyword(
            Commands::tr("Scale objects based on alignment points? [Yes/No] <N>: "), {}, u"No"_s);
        isScaled = scaled.text == u"Yes";
    }
    if (const auto matrix = alignment(pairs, context.document().userAxes(), isScaled))
        transformAll(context, entities, *matrix);
    else
        context.fail(Commands::tr("The points say no direction."));
}

/// Two points of an axis.
struct Axis
{
    Vec3 from;
    Vec3 to;
};

Dialogue<Axis> askAxis(CommandContext &context)
{
    const Matrix user = context.document().userAxes();
    const PromptReply reply = co_await context.point(
        Commands::tr("Specify first point on axis or define axis by [Xaxis/Yaxis/Zaxis/2points]: "));
    if (reply.kind == ReplyKind::Keyword && !reply.isKeyword(u"2points")) {
        const PromptReply at =
            co_await context.point(Commands::tr("Specify a point on the %1 axis <0,0,0>: ").arg(reply.text.front()), {},
                                   user.origin, u"0,0,0"_s);
        const Vec3 origin = at.hasValue() ? at.point : user.origin;
        const Vec3 along = reply.isKeyword(u"Xaxis") ? user.xAxis : reply.isKeyword(u"Yaxis") ? user.yAxis : user.zAxis;
        co_return Axis{origin, origin + along};
    }
    PromptReply from = reply;
    if (!from.hasValue())
        from = co_await context.neededPoint(Commands::tr("Specify first point on axis: "));
    const PromptReply to = co_await context.neededPoint(Commands::tr("Specify second point on axis: "), from.point);
    co_return Axis{from.point, to.point};
}

Matrix rotationRound(const Axis &axis, double angle)
{
    const Matrix frame = Matrix::translation(axis.from) * Matrix::fromExtrusion(normalized(axis.to - axis.from));
    return frame * Matrix::rotation(angle) * frame.inverted();
}

// An axis in space, then an angle.
CommandTask rotate3d(CommandContext &context)
{
    const PromptReply chosen = co_await context.selection();
    const std::vector<drawing::RecordId> entities = editable(context, chosen.entities);
    if (entities.empty())
        co_return;
    const Axis axis = co_await askAxis(context);
    if ((axis.to - axis.from).length() == 0.0) {
        context.fail(Commands::tr("The two points are one."));
        co_return;
    }
    const PromptReply turn = co_await context.angle(Commands::tr("Specify rotation angle or [Reference]: "), {},
                                                    axis.from, {}, NoEmptyAnswer);
    double angle = turn.real;
    if (turn.isKeyword(u"Reference"))
        angle = co_await askReferenceAngle(context, axis.from);
    transformAll(context, entities, rotationRound(axis, angle));
}

// As MOVE; the points have always been in space.
CommandTask move3d(CommandContext &context)
{
    const PromptReply chosen = co_await context.selection();
    const std::vector<drawing::RecordId> entities = editable(context, chosen.entities);
    if (entities.empty())
        co_return;
    const ShapeFrom shape = [&entities](const Vec3 &base) { return movedBy(entities, base); };
    const Vec3 by = co_await askMovement(context, shape);
    transformAll(context, entities, Matrix::translation(by));
}

} // namespace

std::vector<CommandRow> alignCommands()
{
    return {{"3DMOVE", move3d, "Moves entities in space"},
            {"ALIGN", align, "Moves, turns and scales entities by pairs of points"},
            {"ROTATE3D", rotate3d, "Turns entities round an axis in space"}};
}

} // namespace host::kernel
