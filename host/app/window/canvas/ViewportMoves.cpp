#include "host/app/window/canvas/ViewportMoves.h"

#include "host/drawing/editing/Viewports.h"
#include "host/drawing/geometry/ViewportView.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/documents/CurrentView.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace host::app {

using drawing::Vec2;

namespace {

Vec2 modelPoint(const kernel::Document &document, const Vec2 &sheet)
{
    return kernel::workedPoint(document, {sheet.x, sheet.y, 0.0}).xy();
}

void showThroughViewport(kernel::Document &document, const kernel::ViewState &view)
{
    if (std::isfinite(view.height) && view.height > 0.0)
        document.runAs(u"ZOOM"_s, [&] { kernel::showCurrentView(document, view); });
}

} // namespace

bool pansInViewport(const kernel::Document &document, const Vec2 &point)
{
    const drawing::Drawing &drawing = document.drawing();
    const drawing::RecordId viewport = kernel::currentViewport(drawing);
    if (!isValid(viewport) || document.isBusy() || drawing::hasViewportFlag(drawing, viewport, drawing::LockedViewport))
        return false;
    const drawing::ViewportView view = drawing::readViewport(drawing.tags(viewport));
    const Vec2 way = point - view.center.xy();
    return std::abs(way.x) <= view.width / 2.0 && std::abs(way.y) <= view.height / 2.0;
}

bool zoomInViewport(kernel::Document &document, const Vec2 &point, double factor)
{
    if (!pansInViewport(document, point) || !(factor > 0.0))
        return false;
    kernel::ViewState view = kernel::currentView(document);
    const Vec2 fixed = modelPoint(document, point);
    view.centre = fixed + (view.centre - fixed) * (1.0 / factor);
    view.height /= factor;
    showThroughViewport(document, view);
    return true;
}

bool panInViewport(kernel::Document &document, const Vec2 &from, const Vec2 &to)
{
    if (!pansInViewport(document, from))
        return false;
    kernel::ViewState view = kernel::currentView(document);
    view.centre = view.centre - (modelPoint(document, to) - modelPoint(document, from));
    showThroughViewport(document, view);
    return true;
}

} // namespace host::app
