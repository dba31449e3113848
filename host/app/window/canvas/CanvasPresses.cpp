// What a press on the canvas means: an answer to the prompt that waits, a choice of entities, or a corner of a box.

#include "host/app/window/canvas/DrawingCanvas.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/documents/CurrentView.h"
#include "host/kernel/input/Picker.h"
#include "host/view/paint/Picking.h"

namespace host::app {

using kernel::PromptKind;

drawing::Vec3 DrawingCanvas::world(QPointF screen) const
{
    const drawing::Vec2 point = transform().toWorld(screen);
    return kernel::workedPoint(m_document, {point.x, point.y, 0.0});
}

QPointF DrawingCanvas::toScreen(const drawing::Vec3 &worked) const
{
    return transform().toScreen(kernel::shownPoint(m_document, worked).xy());
}

int DrawingCanvas::workedSpace()
{
    return isValid(kernel::currentViewport(m_document.drawing())) ? view::Scene::modelSpace : space();
}

drawing::RecordId DrawingCanvas::entityAt(QPointF screen)
{
    if (const drawing::RecordId marked = m_hover.chosenAt(screen); m_document.drawing().isAlive(marked))
        return marked;
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
    } else if (!m_document.isBusy() && modifiers.testFlag(Qt::ControlModifier)) {
        pressNext(screen);
    } else if (!m_document.isBusy() && !pressGrip(screen, modifiers)) {
        if (const drawing::RecordId entity = entityAt(screen); drawing::isValid(entity))
            choose({entity}, choice);
        else
            beginBox(screen, BoxUse::Choose, choice);
    }
}

void DrawingCanvas::pressNext(QPointF screen)
{
    const bool isAgain = m_cycled && (screen - *m_cycled).manhattanLength() < dragDistance;
    if (isAgain && m_hover.next()) {
        choose(m_chosenLast, Choice::Drop);
    } else {
        m_hover.look(m_scene, workedSpace(), screen, world(screen).xy(),
                     kernel::workedLength(m_document, transform().toWorldLength(pickReach())));
    }
    m_cycled = screen;
    m_chosenLast.clear();
    if (drawing::isValid(m_hover.entity()))
        m_chosenLast.push_back(m_hover.entity());
    choose(m_chosenLast, Choice::Add);
}

bool DrawingCanvas::pressGrip(QPointF screen, Qt::KeyboardModifiers modifiers)
{
    m_grips.update();
    const std::optional<drawing::Vec3> place = m_grips.at(screen, transform());
    if (!place)
        return false;
    if (modifiers.testFlag(Qt::ShiftModifier)) {
        m_grips.toggle(*place);
    } else {
        m_gripFrom = screen;
        emit gripsTaken(m_grips.take(*place));
    }
    update();
    return true;
}

void DrawingCanvas::releaseGrip(QPointF screen)
{
    const bool wasDragged = m_gripFrom && (screen - *m_gripFrom).manhattanLength() > dragDistance;
    m_gripFrom.reset();
    if (wasDragged && wantsPoint())
        pressForPrompt(screen);
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
    } else if (const auto marked = m_hover.chosenAt(screen);
               m_request->kind == PromptKind::Entity && drawing::isValid(marked)) {
        emit answered(kernel::EntityAnswer{marked, world(screen)});
    } else if (const auto grip = m_grips.at(screen, transform(), false); grip && wantsPoint()) {
        emit answered(kernel::PointAnswer{*grip});
    } else if (wantsPoint() || m_request->kind == PromptKind::Entity) {
        emit answered(kernel::PointAnswer{world(screen), true});
    }
}

void DrawingCanvas::chooseAll()
{
    if (m_request && m_request->kind == PromptKind::Selection)
        emit answered(kernel::TextAnswer{QStringLiteral("_ALL")});
    else if (!m_request && !m_document.isBusy())
        m_document.setImpliedSelection(kernel::Picker(m_document).choosable());
}

void DrawingCanvas::choose(const std::vector<drawing::RecordId> &entities, Choice choice)
{
    std::vector<drawing::RecordId> chosen = m_document.impliedSelection();
    view::RecordSet known(entities.begin(), entities.end());
    if (choice == Choice::Drop) {
        std::erase_if(chosen, [&known](drawing::RecordId id) { return known.contains(id); });
    } else {
        known = view::RecordSet(chosen.begin(), chosen.end());
        std::ranges::copy_if(entities, std::back_inserter(chosen),
                             [&known](drawing::RecordId id) { return known.insert(id).second; });
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
        chooseTransform(changed);
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
