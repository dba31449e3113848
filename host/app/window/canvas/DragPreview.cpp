#include "host/app/window/canvas/DragPreview.h"

#include "host/kernel/documents/CurrentView.h"
#include "host/kernel/documents/Document.h"

namespace host::app {

using drawing::Vec2;
using drawing::Vec3;

DragPreview::DragPreview(kernel::Document &document, view::Scene &scene, int space, kernel::Dragged shape)
    : m_document(document), m_scene(&scene), m_space(space), m_shape(std::move(shape)),
      m_whole(m_shape->entities.begin(), m_shape->entities.end())
{
    if (m_shape->source) {
        m_ownScene = std::make_unique<view::Scene>(*m_shape->source);
        m_scene = m_ownScene.get();
        m_space = view::Scene::modelSpace;
    } else if (!m_shape->block.isEmpty()) {
        m_space = scene.block(m_shape->block);
    } else if (m_shape->change) {
        sortStretched();
    }
}

/// What lies within the window as a whole needs no stretching.
void DragPreview::sortStretched()
{
    m_scene->prepare(m_space);
    std::vector<drawing::RecordId> crossing;
    for (const drawing::RecordId entity : m_shape->entities) {
        const view::RecordSummary *summary = m_scene->find(m_space, entity);
        if (!summary)
            continue;
        const drawing::Box &box = summary->box;
        const auto isIn = [&](double x, double y) {
            return m_shape->isCaught && m_shape->isCaught(entity, {x, y, box.low.z});
        };
        if (isIn(box.low.x, box.low.y) && isIn(box.high.x, box.low.y) && isIn(box.low.x, box.high.y) &&
            isIn(box.high.x, box.high.y))
            continue;
        crossing.push_back(entity);
        m_whole.erase(entity);
    }
    if (!crossing.empty())
        m_stretched = std::make_unique<StretchGhost>(m_document.drawing(), *m_shape, crossing);
}

/// The map as it is seen from above, for what lies in the user's plane; of blocks and other drawings in their own.
FlatMap DragPreview::flat(const view::ViewTransform &view, const drawing::Matrix &map) const
{
    const bool isOwn = m_shape->entities.empty();
    const drawing::Matrix axes = isOwn ? drawing::Matrix() : m_document.userAxes();
    constexpr double steepest = 1e-6;
    const bool isSeen = std::abs(axes.zAxis.z) > steepest;
    const auto through = [&](double x, double y) -> Vec2 {
        const Vec3 flatAway{x - axes.origin.x, y - axes.origin.y, 0.0};
        const double z = isSeen ? axes.origin.z - dot(axes.zAxis, flatAway) / axes.zAxis.z : 0.0;
        const QPointF at = view.toScreen(kernel::shownPoint(m_document, map.point({x, y, z})).xy());
        return {at.x(), at.y()};
    };
    const Vec2 middle = isOwn ? Vec2{} : view.center();
    const double step = view.toWorldLength(1000.0);
    const Vec2 at = through(middle.x, middle.y);
    const Vec2 x = (through(middle.x + step, middle.y) - at) * (1.0 / step);
    const Vec2 y = (through(middle.x, middle.y + step) - at) * (1.0 / step);
    return {at - x * middle.x - y * middle.y, x, y};
}

void DragPreview::paint(QPainter &painter, const view::ViewTransform &view, const GhostPicture::Look &look,
                        const Vec3 &place)
{
    const std::optional<drawing::Matrix> map = m_shape->map(place);
    if (!map)
        return;
    const bool hasOnly = !m_shape->entities.empty();
    if (!hasOnly || !m_whole.empty())
        m_picture.paint(painter, *m_scene, m_space, hasOnly ? &m_whole : nullptr, flat(view, *map), look);
    if (m_stretched)
        m_stretched->paint(painter, map->origin, flat(view, {}), look);
}

} // namespace host::app
