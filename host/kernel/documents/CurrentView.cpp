#include "host/kernel/documents/CurrentView.h"

#include "host/drawing/editing/Viewports.h"
#include "host/drawing/geometry/ViewportView.h"
#include "host/kernel/documents/CurrentSpace.h"

#include <cmath>

namespace host::kernel {

namespace {

using drawing::Matrix;
using drawing::ViewportView;

ViewportView viewportView(const Document &document, drawing::RecordId viewport)
{
    return drawing::readViewport(document.drawing().tags(viewport));
}

} // namespace

ViewState currentView(const Document &document)
{
    const drawing::RecordId viewport = currentViewport(document.drawing());
    if (!isValid(viewport))
        return document.view();
    const ViewportView view = viewportView(document, viewport);
    constexpr double pixelsHigh = 1000.0;
    const double aspect = view.height > 0.0 ? std::clamp(view.width / view.height, 1e-3, 1e3) : 1.0;
    ViewState state;
    state.height = view.viewHeight;
    state.centre = view.viewHeight > 0.0 ? view.modelToSheet().inverted().point(view.center).xy() : view.target.xy();
    state.pixels = {std::max(1, int(std::lround(aspect * pixelsHigh))), int(pixelsHigh)};
    return state;
}

void showCurrentView(Document &document, const ViewState &view)
{
    const drawing::RecordId viewport = currentViewport(document.drawing());
    if (!isValid(viewport))
        return document.setView(view);
    drawing::ViewportAim aim = drawing::viewportAim(document.drawing(), viewport);
    const Matrix toDisplay = Matrix::rotation(aim.twist) * Matrix::fromExtrusion(aim.direction).inverted() *
                             Matrix::translation(aim.target * -1.0);
    aim.middle = toDisplay.point({view.centre.x, view.centre.y, aim.target.z}).xy();
    aim.height = view.height;
    drawing::aimViewport(document.drawing(), viewport, aim);
}

ViewState fittedTo(ViewState view, const drawing::Box &box)
{
    if (box.isEmpty())
        return view;
    constexpr double margin = 1.05;
    const double aspect = view.pixels.isEmpty() ? 1.0 : double(view.pixels.width()) / view.pixels.height();
    const double height = std::max(box.high.y - box.low.y, (box.high.x - box.low.x) / aspect) * margin;
    view.centre = ((box.low + box.high) * 0.5).xy();
    if (height > 0.0 && std::isfinite(height))
        view.height = height;
    return view;
}

void showBox(Document &document, const drawing::Box &box)
{
    if (!box.isEmpty())
        showCurrentView(document, fittedTo(currentView(document), box));
}

bool showAtSheetScale(Document &document, double factor)
{
    const drawing::RecordId viewport = currentViewport(document.drawing());
    if (!isValid(viewport))
        return false;
    ViewState view = currentView(document);
    view.height = viewportView(document, viewport).height / factor;
    showCurrentView(document, view);
    return true;
}

drawing::Vec3 workedPoint(const Document &document, const drawing::Vec3 &shown)
{
    const drawing::RecordId viewport = currentViewport(document.drawing());
    const ViewportView view = isValid(viewport) ? viewportView(document, viewport) : ViewportView();
    return view.viewHeight > 0.0 ? view.modelToSheet().inverted().point(shown) : shown;
}

drawing::Vec3 shownPoint(const Document &document, const drawing::Vec3 &worked)
{
    const drawing::RecordId viewport = currentViewport(document.drawing());
    const ViewportView view = isValid(viewport) ? viewportView(document, viewport) : ViewportView();
    return view.viewHeight > 0.0 ? view.modelToSheet().point(worked) : worked;
}

double workedLength(const Document &document, double shown)
{
    const drawing::RecordId viewport = currentViewport(document.drawing());
    const ViewportView view = isValid(viewport) ? viewportView(document, viewport) : ViewportView();
    return view.viewHeight > 0.0 && view.height > 0.0 ? shown / view.scale() : shown;
}

void rememberCurrentView(Document &document, const ViewState &before)
{
    if (!isValid(currentViewport(document.drawing())))
        document.rememberView(before);
}

} // namespace host::kernel
