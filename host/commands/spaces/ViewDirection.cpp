#include "host/commands/spaces/ViewDirection.h"

#include "host/drawing/editing/Viewports.h"
#include "host/drawing/geometry/EntityGeometry.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/variables/SystemVariables.h"

#include <cmath>
#include <numbers>

namespace host::kernel {

using drawing::Matrix;
using drawing::Vec3;

void lookAt(CommandContext &context, const Matrix &axes)
{
    const Matrix display = Matrix::fromExtrusion(axes.zAxis);
    const double angle = std::atan2(dot(axes.xAxis, display.yAxis), dot(axes.xAxis, display.xAxis));
    const double twist = angle > 0.0 ? 2.0 * std::numbers::pi - angle : std::abs(angle);
    const drawing::RecordId viewport = currentViewport(context.drawing());
    if (isValid(viewport)) {
        drawing::ViewportAim aim = drawing::viewportAim(context.drawing(), viewport);
        aim.direction = axes.zAxis;
        aim.twist = twist;
        drawing::aimViewport(context.drawing(), viewport, aim);
        return;
    }
    SystemVariables &variables = context.document().variables();
    Matrix user = context.document().userAxes();
    user.origin = {};
    variables.setInternally(u"VIEWDIR", user.inverted().point(axes.zAxis));
    variables.setInternally(u"VIEWTWIST", twist);
}

drawing::Box drawnExtents(CommandContext &context)
{
    const drawing::Drawing &drawing = context.drawing();
    return drawing::spaceBox(drawing, currentEntities(drawing));
}

drawing::Box wholeDrawing(CommandContext &context)
{
    drawing::Box box = drawnExtents(context);
    const Vec3 low = context.document().variables().point(u"LIMMIN");
    const Vec3 high = context.document().variables().point(u"LIMMAX");
    if (low.x < high.x && low.y < high.y) {
        box.add(low);
        box.add(high);
    }
    return box;
}

} // namespace host::kernel
