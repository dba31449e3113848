#include "host/drawing/geometry/ViewportView.h"
#include "host/view/build/DisplayBuilder.h"
#include "host/view/build/Scene.h"

#include <array>
#include <numbers>

namespace host::view {

using drawing::Tag;
using drawing::TagList;

namespace {

Path closed(Path points)
{
    points.push_back(points.front());
    return points;
}

void addArea(BuildContext &context, Path outline, FillKind kind)
{
    Fill fill;
    fill.kind = kind;
    fill.contours.push_back({.points = closed(std::move(outline))});
    context.add(std::move(fill));
}

std::vector<int> frozenLayers(const BuildContext &context, const drawing::ViewportView &view)
{
    std::vector<int> layers;
    for (const drawing::Handle handle : view.frozenHandles) {
        const RecordId entry = context.drawing.find(handle);
        if (isValid(entry) && context.drawing.isType(entry, "LAYER"))
            layers.push_back(context.appearance().layer(context.drawing.tags(entry).text(2)));
    }
    for (const QString &name : view.frozenLayers)
        layers.push_back(context.appearance().layer(name));
    std::ranges::sort(layers);
    return layers;
}

void addModelView(BuildContext &context, const drawing::ViewportView &view, const Path &frame)
{
    auto reference = std::make_unique<Reference>();
    reference->block = Scene::modelSpace;
    reference->placement = view.modelToSheet();
    reference->isViewport = true;
    reference->hiddenLayers = frozenLayers(context, view);
    const Matrix toModel = reference->placement.inverted();
    for (const Vec3 &corner : frame)
        reference->clip.push_back(toModel.point(corner));
    if (areUsable(reference->clip))
        context.add(std::move(reference));
}

} // namespace

bool buildSolid(BuildContext &context, const TagList &tags)
{
    const Matrix ocs = Matrix::fromExtrusion(tags.point(210, {0.0, 0.0, 1.0}));
    const Vec3 third = tags.point(12);
    // The third and fourth corner lie crosswise.
    Path outline = {ocs.point(tags.point(10)), ocs.point(tags.point(11)), ocs.point(tags.point(13, third)),
                    ocs.point(third)};
    if (!areUsable(outline))
        return false;
    addArea(context, std::move(outline), FillKind::Area);
    return true;
}

bool build3dFace(BuildContext &context, const TagList &tags)
{
    const Vec3 third = tags.point(12);
    const std::array<Vec3, 4> corners = {tags.point(10), tags.point(11), third, tags.point(13, third)};
    if (!std::ranges::all_of(corners, [](const Vec3 &p) { return isUsable(p); }))
        return false;
    const qint64 invisible = tags.integer(70);
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const Vec3 &to = corners[(i + 1) % corners.size()];
        if ((invisible & (1 << i)) == 0 && !(corners[i] == to))
            context.addStroke({corners[i], to});
    }
    // All edges invisible is what the face says, not a failure.
    context.display.isHidden = context.display.items.empty();
    return true;
}

bool buildViewport(BuildContext &context, const TagList &tags)
{
    if (drawing::isSheetItself(tags)) {
        context.display.isHidden = true;
        return true;
    }
    const drawing::ViewportView view = drawing::readViewport(tags);
    const Vec3 &center = view.center;
    const Vec3 half{view.width / 2.0, view.height / 2.0, 0.0};
    const Path frame = {center - half, center + Vec3{half.x, -half.y, 0.0}, center + half,
                        center + Vec3{-half.x, half.y, 0.0}};
    if (!areUsable(frame))
        return false;
    if (drawing::isViewportOn(tags) && view.viewHeight > 0.0)
        addModelView(context, view, frame);
    context.addStroke(closed(frame));
    return true;
}

} // namespace host::view
