// Coordinate systems.

#include "host/drawing/math/Matrix.h"
#include "host/functions/FunctionGroups.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/lisp/LispConversion.h"
#include "host/lisp/Interpreter.h"

namespace host::kernel {

namespace {

using drawing::Matrix;
using drawing::Vec3;
using lisp::Arguments;
using lisp::Value;

/// The map from a coordinate system to world coordinates. A system is 0 (world), 1 (user), 2 and 3 (display, which is
/// always the plan view of the world here), an entity name (the entity's own) or an extrusion direction.
Matrix axesAt(Arguments &args, std::size_t index)
{
    Document &document = documentOf(args);
    if (args[index].isEntityName()) {
        const drawing::RecordId entity = recordAt(args, index);
        return Matrix::fromExtrusion(document.drawing().tags(entity).point(210, {0.0, 0.0, 1.0}));
    }
    if (args[index].isCons())
        return Matrix::fromExtrusion(pointAt(args, index));
    const int system = args.integer(index);
    if (system < 0 || system > 3)
        args.badValue(index, "coordinate system");
    return system == 1 ? document.userAxes() : Matrix();
}

// (trans point from to [displacement]) -> the point in another coordinate system; as a displacement when the last
// argument is given and not nil.
Value trans(Arguments &args)
{
    const Vec3 point = pointAt(args, 0);
    const Matrix from = axesAt(args, 1);
    const Matrix to = axesAt(args, 2).inverted();
    return toLisp(args.has(3) ? to.direction(from.direction(point)) : to.point(from.point(point)));
}

} // namespace

void addCoordinateFunctions(lisp::Interpreter &interpreter)
{
    static constexpr lisp::NativeRow rows[] = {
        {"trans", trans, lisp::Arity::between(3, 4), "point from to [displacement]",
         "a point or displacement in another coordinate system"},
    };
    interpreter.define(rows);
}

} // namespace host::kernel
