// What a press on the canvas means: an answer to the prompt that waits, a choice of entities, or a corner of a box.

#include "host/app/window/canvas/DrawingCanvas.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/documents/CurrentView.h"
#include "host/view/paint/Picking.h"

namespace host::app {

using kernel::PromptKind;

drawing::Vec3 DrawingCanvas::world(QPointF screen) const
{
    const drawing::Vec2 point = transform().toWorld(screen);
    return kernel::workedPoint(m_document, {point.x, point.y, 0.0});
}

int DrawingCanvas::workedSpace()
{
    return isValid(kernel::currentViewport(m_document.drawing())) ? view::Scene::modelSpace : space();
}

drawing::RecordId DrawingCanvas::entityAt(QPointF screen)
{
    const double reach = transform().toWorldLength(pickReach());
    return view::pickAt(m_scene, workedSpace(), world(screen).xy(), kernel::workedLength(m_document, reach));
}

void DrawingCanvas::press(QPointF screen, Qt::KeyboardModifiers modifiers)
{
    if (m_box) {
        finishBox(screen);
        return;
    }
    const Choice choice = modifiers.testFlag(Qt::ShiftModifier) ? Choice::Drop : Choice::Add;
    if (m_isZoomWindow) {
        beginBox(screen, BoxUse::Zoom, choice);
    } else if (m_request) {
        pressForPrompt(screen);
    } else if (!m_document.isBusy()) {
        if (const drawing::RecordId entity = entityAt(screen); drawing::isValid(entity))
            choose({entity}, choice);
        else
            beginBox(screen, BoxUse::Choose, choice);
    }
}

void DrawingCanvas::pressForPrompt(QPointF screen)
{
    if (wantsEvents()) {
        emit answered(kernel::PointAnswer{world(screen)});
        return;
    }
    if (m_request->kind == PromptKind::Selection) {
        if (const drawing::RecordId entity = entityAt(screen); drawing::isValid(entity))
            emit answered(kernel::EntityAnswer{entity, world(screen)});
        else
            beginBox(screen, BoxUse::Answer, Choice::Add);
    } else if (wantsPoint() || m_request->kind == PromptKind::Entity) {
        emit answered(kernel::PointAnswer{world(screen), true});
    }
}

void DrawingCanvas::choose(const std::vector<drawing::RecordId> &entities, Choice choice)
{
    std::vector<drawing::RecordId> chosen = m_document.impliedSelection();
    for (const drawing::RecordId entity : entities) {
        const auto place = std::find(chosen.begin(), chosen.end(), entity);
        if (choice == Choice::Add && place == chosen.end())
            chosen.push_back(entity);
        else if (choice == Choice::Drop && place != chosen.end())
            chosen.erase(place);
    }
    m_document.setImpliedSelection(std::move(chosen));
}

void DrawingCanvas::beginBox(QPointF screen, BoxUse use, Choice choice)
{
    m_box = PendingBox{transform().toWorld(screen), screen, use, choice};
    update();
}

void DrawingCanvas::finishBox(QPointF screen)
{
    const PendingBox box = *m_box;
    m_box.reset();
    update();
    const drawing::Vec2 opposite = transform().toWorld(screen);
    if (box.use == BoxUse::Zoom) {
        m_isZoomWindow = false;
        drawing::Box seen;
        seen.add(drawing::Vec3{box.corner.x, box.corner.y, 0.0});
        seen.add(drawing::Vec3{opposite.x, opposite.y, 0.0});
        view::ViewTransform changed = transform();
        changed.fit(seen, 0.0);
        setTransform(changed);
        return;
    }
    const drawing::Vec3 from = kernel::workedPoint(m_document, {box.corner.x, box.corner.y, 0.0});
    const drawing::Vec3 to = world(screen);
    if (box.use == BoxUse::Answer) {
        emit answered(kernel::WindowAnswer{from, to});
    } else {
        const auto mode = opposite.x < box.corner.x ? view::PickMode::Crossing : view::PickMode::Window;
        choose(view::pickRectangle(m_scene, workedSpace(), from.xy(), to.xy(), mode), box.choice);
    }
}

} // namespace host::app
