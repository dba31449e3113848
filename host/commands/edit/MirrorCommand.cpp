#include "host/commands/Commands.h"
#include "host/commands/common/DragShapes.h"
#include "host/commands/common/EntityEdits.h"
#include "host/commands/common/UserPlane.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/running/Dialogue.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::Matrix;
using drawing::RecordId;
using drawing::Vec3;

/// The entities, or copies of them, in the mirror.
Dialogue<bool> finishMirror(CommandContext &context, std::vector<RecordId> entities, Matrix matrix, QString question)
{
    const PromptReply erase = co_await context.keyword(question, u"Yes No"_s, u"No"_s);
    const bool isMoved = erase.hasValue() && erase.text == u"Yes";
    entities = isMoved ? editable(context, entities) : copyAll(context, entities, {});
    mirrorAll(context, entities, matrix);
    co_return true;
}

// Two points of the mirror line in the user's plane, then whether the originals go.
CommandTask mirror(CommandContext &context)
{
    const PromptReply chosen = co_await context.selection();
    if (chosen.entities.empty())
        co_return;
    const PromptReply first = co_await context.neededPoint(Commands::tr("Specify first point of mirror line: "));
    const UserPlane plane(context.document());
    const PromptReply second =
        co_await context.neededPoint(Commands::tr("Specify second point of mirror line: "), first.point)
            .dragging(mirroredIn(plane, chosen.entities, first.point));
    const Vec3 from = plane.userFromWorld(first.point);
    const Vec3 to = plane.userFromWorld(second.point);
    if ((to - from).xy().length() == 0.0) {
        context.fail(Commands::tr("The two points are one."));
        co_return;
    }
    const Matrix matrix = plane.inWorld(Matrix::mirror(from, to));
    co_await finishMirror(context, chosen.entities, matrix, Commands::tr("Erase source objects? [Yes/No] <N>: "));
}

/// Reflection in the plane through a point with this normal.
Matrix reflection(const Vec3 &origin, const Vec3 &normal)
{
    const Vec3 n = normalized(normal);
    Matrix m{Vec3{1, 0, 0} - n * (2.0 * n.x), Vec3{0, 1, 0} - n * (2.0 * n.y), Vec3{0, 0, 1} - n * (2.0 * n.z), {}};
    m.origin = origin - m.direction(origin);
    return m;
}

/// The normal and a point of the mirror plane; a normal of length 0 when the points say none.
struct MirrorPlane
{
    Vec3 origin;
    Vec3 normal;
};

/// The plane through three points, of which the first may be there already.
Dialogue<MirrorPlane> askThreePoints(CommandContext &context, std::optional<Vec3> given)
{
    Vec3 first;
    if (given) {
        first = *given;
    } else {
        const PromptReply reply = co_await context.neededPoint(Commands::tr("Specify first point on mirror plane: "));
        first = reply.point;
    }
    const PromptReply second =
        co_await context.neededPoint(Commands::tr("Specify second point on mirror plane: "), first);
    const PromptReply third =
        co_await context.neededPoint(Commands::tr("Specify third point on mirror plane: "), second.point);
    co_return MirrorPlane{first, cross(second.point - first, third.point - first)};
}

Dialogue<MirrorPlane> askPlaneThrough(CommandContext &context, QString axes)
{
    const Matrix user = context.document().userAxes();
    const QString zero = u"0,0,0"_s;
    const PromptReply at =
        co_await context.point(Commands::tr("Specify point on %1 plane <%2>: ").arg(axes, zero), {}, user.origin, zero);
    const Vec3 normal = axes == u"XY" ? user.zAxis : axes == u"YZ" ? user.xAxis : user.yAxis;
    co_return MirrorPlane{at.hasValue() ? at.point : user.origin, normal};
}

Dialogue<MirrorPlane> askMirrorPlane(CommandContext &context)
{
    const PromptReply reply = co_await context.point(
        Commands::tr("Specify first point of mirror plane (3 points) or [Zaxis/View/XY/YZ/ZX/3points] <3points>: "), {},
        {}, u"3points"_s);
    if (reply.hasValue())
        co_return co_await askThreePoints(context, reply.point);
    if (reply.isKeyword(u"Zaxis")) {
        const PromptReply at = co_await context.neededPoint(Commands::tr("Specify point on mirror plane: "));
        const PromptReply to =
            co_await context.neededPoint(Commands::tr("Specify point on Z-axis (normal) of mirror plane: "), at.point);
        co_return MirrorPlane{at.point, to.point - at.point};
    }
    if (reply.isKeyword(u"View")) {
        const PromptReply at =
            co_await context.point(Commands::tr("Specify point on view plane <0,0,0>: "), {}, {}, u"0,0,0"_s);
        co_return MirrorPlane{at.hasValue() ? at.point : Vec3{}, {0.0, 0.0, 1.0}};
    }
    if (reply.kind == ReplyKind::Keyword && !reply.isKeyword(u"3points"))
        co_return co_await askPlaneThrough(context, reply.text);
    co_return co_await askThreePoints(context, std::nullopt);
}

// A plane in space, then whether the originals go.
CommandTask mirror3d(CommandContext &context)
{
    const PromptReply chosen = co_await context.selection();
    if (chosen.entities.empty())
        co_return;
    const MirrorPlane plane = co_await askMirrorPlane(context);
    if (plane.normal.length() == 0.0) {
        context.fail(Commands::tr("The points say no plane."));
        co_return;
    }
    const Matrix matrix = reflection(plane.origin, plane.normal);
    co_await finishMirror(context, chosen.entities, matrix, Commands::tr("Delete source objects? [Yes/No] <N>: "));
}

} // namespace

std::vector<CommandRow> mirrorCommands()
{
    return {{"MIRROR", mirror, "Mirrors entities in a line"}, {"MIRROR3D", mirror3d, "Mirrors entities in a plane"}};
}

} // namespace host::kernel
