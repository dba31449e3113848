#include "host/app/window/canvas/StretchGhost.h"

#include "host/drawing/editing/DrawingCopier.h"
#include "host/drawing/records/Journal.h"

namespace host::app {

namespace {

constexpr std::size_t mostStretched = 300;
/// A drawing keeps the bytes of all its changes: after so many moves it begins anew.
constexpr int movesKept = 200;

} // namespace

StretchGhost::StretchGhost(const drawing::Drawing &source, const kernel::DragShape &shape,
                           const std::vector<drawing::RecordId> &entities)
    : m_shape(shape), m_original(drawing::newDrawingLike(source))
{
    drawing::DrawingCopier copier(source, *m_original);
    for (std::size_t i = 0; i < std::min(entities.size(), mostStretched); ++i)
        if (const auto copy = copier.copyEntity(entities[i], drawing::noRecord); isValid(copy))
            m_entities.push_back({entities[i], copy});
}

/// Both drawings have the same records: one is read from the bytes of the other.
void StretchGhost::renew()
{
    std::vector<drawing::Handle> handles;
    for (const Entity &entity : m_entities)
        handles.push_back((m_drawing ? *m_drawing : *m_original).handle(entity.copy));
    m_scene.reset();
    m_drawing = drawing::Drawing::fromBytes(m_original->toBytes()).drawing;
    for (std::size_t i = 0; i < m_entities.size(); ++i)
        m_entities[i].copy = m_drawing->find(handles[i]);
    m_scene = std::make_unique<view::Scene>(*m_drawing);
    m_moves = 0;
}

void StretchGhost::stretch(const drawing::Vec3 &by)
{
    if (m_by == by)
        return;
    m_by = by;
    if (!m_drawing || ++m_moves > movesKept)
        renew();
    m_drawing->journal().abandonGroup();
    m_drawing->journal().beginGroup(QStringLiteral("stretch"));
    for (const Entity &entity : m_entities)
        m_shape.change(*m_drawing, entity.copy, entity.original, by);
}

void StretchGhost::paint(QPainter &painter, const drawing::Vec3 &by, const FlatMap &map, const GhostPicture::Look &look)
{
    stretch(by);
    m_picture.paint(painter, *m_scene, view::Scene::modelSpace, nullptr, map, look);
}

} // namespace host::app
