#include "host/app/window/DrawingCanvas.h"

#include "host/drawing/records/HeaderVariables.h"
#include "host/kernel/documents/ExpressionSurroundings.h"
#include "host/kernel/variables/SystemVariables.h"
#include "host/view/paint/Picking.h"
#include "host/view/paint/ScenePainter.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPen>
#include <QWheelEvent>

namespace host::app {

namespace {

using kernel::PromptKind;

/// The pointer must go this far with the button held for a drag, in pixels.
constexpr double dragDistance = 5.0;
constexpr double wheelStep = 1.25;
constexpr int crosshairGap = 0;

bool wantsEntities(const std::optional<kernel::PromptRequest> &request)
{
    return request && (request->kind == PromptKind::Entity || request->kind == PromptKind::Selection);
}

/// Whether a point is an answer.
bool wantsPoint(const std::optional<kernel::PromptRequest> &request)
{
    if (!request)
        return false;
    switch (request->kind) {
    case PromptKind::Distance:
    case PromptKind::Angle:
    case PromptKind::Orientation:
    case PromptKind::Point:
    case PromptKind::Corner:
        return true;
    default:
        return false;
    }
}

} // namespace

DrawingCanvas::DrawingCanvas(kernel::Document &document, QWidget *parent)
    : QWidget(parent), m_document(document), m_scene(document.drawing(), kernel::expressionSurroundings(document))
{
    setObjectName(QStringLiteral("canvas"));
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::BlankCursor);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMinimumSize(200, 120);
    const auto repaint = [this] {
        m_picture = {};
        update();
    };
    connect(&m_document, &kernel::Document::viewChanged, this, repaint);
    connect(&m_document, &kernel::Document::highlightChanged, this, repaint);
    connect(&m_document, &kernel::Document::regenerated, this, [this, repaint] {
        m_scene.regenerate();
        repaint();
    });
    connect(&m_document, &kernel::Document::impliedSelectionChanged, this, repaint);
    connect(&m_document, &kernel::Document::runEnded, this, qOverload<>(&QWidget::update));
}

DrawingCanvas::~DrawingCanvas() = default;

view::ViewTransform DrawingCanvas::transform() const
{
    view::ViewTransform now{QSizeF(size())};
    now.setHeight(m_document.view().centre, m_document.view().height);
    return now;
}

void DrawingCanvas::setTransform(const view::ViewTransform &transform)
{
    kernel::ViewState view = m_document.view();
    view.centre = transform.center();
    view.height = transform.height();
    view.pixels = size();
    m_document.setView(view);
}

int DrawingCanvas::space() const
{
    const bool isModel = m_document.drawing().header().integer(u"$TILEMODE", 1) != 0;
    return isModel ? view::Scene::modelSpace : view::Scene::paperSpace;
}

void DrawingCanvas::setGround(view::Ground ground)
{
    m_ground = ground;
    m_picture = {};
    update();
}

void DrawingCanvas::zoomExtents()
{
    view::ViewTransform changed = transform();
    changed.fit(m_scene.extents(space()));
    setTransform(changed);
}

void DrawingCanvas::zoomBy(double factor)
{
    view::ViewTransform changed = transform();
    changed.zoomAt(QRectF(rect()).center(), factor);
    setTransform(changed);
}

void DrawingCanvas::beginZoomWindow()
{
    m_box.reset();
    m_isZoomWindow = true;
}

void DrawingCanvas::setRequest(const std::optional<kernel::PromptRequest> &request)
{
    const bool hadMarked = m_dragged || (m_request && m_request->chosen);
    m_request = request;
    m_box.reset();
    m_dragged.reset();
    if (request && request->base && request->dragged && !request->dragged->empty())
        m_dragged.emplace(*request->dragged, request->base->xy());
    if (hadMarked || m_dragged || (m_request && m_request->chosen))
        m_picture = {};
    update();
}

bool DrawingCanvas::abandonBox()
{
    const bool was = m_box.has_value() || m_isZoomWindow;
    m_box.reset();
    m_isZoomWindow = false;
    update();
    return was;
}

view::RenderReport DrawingCanvas::report()
{
    view::RenderReport report = m_scene.report(space());
    report.isCutShort |= m_isCutShort;
    return report;
}

bool DrawingCanvas::isCutShortNews()
{
    return m_isCutShort && !std::exchange(m_isCutShortTold, true);
}

void DrawingCanvas::repaintScene()
{
    const double ratio = devicePixelRatioF();
    m_picture = QPixmap(size() * ratio);
    m_picture.setDevicePixelRatio(ratio);
    QPainter painter(&m_picture);
    view::RecordSet highlighted(m_document.highlighted().begin(), m_document.highlighted().end());
    highlighted.insert(m_document.impliedSelection().begin(), m_document.impliedSelection().end());
    view::PaintOptions options;
    options.ground = m_ground;
    if (m_dragged)
        highlighted.insert(m_dragged->records().begin(), m_dragged->records().end());
    if (m_request && m_request->chosen)
        highlighted.insert(m_request->chosen->begin(), m_request->chosen->end());
    options.highlighted = &highlighted;
    m_isCutShort = view::paintScene(painter, m_scene, space(), transform(), options).isCutShort;
    m_paintedRevision = m_document.drawing().revision();
}

void DrawingCanvas::paintEvent(QPaintEvent *)
{
    if (m_picture.isNull() || m_paintedRevision != m_document.drawing().revision())
        repaintScene();
    QPainter painter(this);
    painter.drawPixmap(0, 0, m_picture);
    paintOverlay(painter);
}

void DrawingCanvas::paintOverlay(QPainter &painter)
{
    if (!m_pointer)
        return;
    if (m_box) {
        const QPointF from = transform().toScreen(m_box->corner);
        paintBox(painter, from, *m_pointer, m_pointer->x() < from.x() && m_box->use != BoxUse::Zoom);
    } else if (m_request && m_request->base) {
        paintDragged(painter);
        paintRubberBand(painter);
    }
    paintCrosshair(painter);
}

void DrawingCanvas::paintCrosshair(QPainter &painter)
{
    const QColor color = m_ground == view::Ground::Black ? QColor(0xd0, 0xd4, 0xd8) : QColor(0x40, 0x44, 0x48);
    painter.setPen(QPen(color, 0));
    const QPointF at(std::floor(m_pointer->x()) + 0.5, std::floor(m_pointer->y()) + 0.5);
    const bool hasBox = !wantsPoint(m_request) && !m_isZoomWindow;
    const int reach = std::clamp(m_document.variables().integer(u"PICKBOX", 3), 1, 50);
    if (hasBox)
        painter.drawRect(QRectF(at.x() - reach, at.y() - reach, 2.0 * reach, 2.0 * reach));
    if (wantsEntities(m_request))
        return;
    const double gap = hasBox ? reach : crosshairGap;
    painter.drawLine(QPointF(0, at.y()), QPointF(at.x() - gap, at.y()));
    painter.drawLine(QPointF(at.x() + gap, at.y()), QPointF(width(), at.y()));
    painter.drawLine(QPointF(at.x(), 0), QPointF(at.x(), at.y() - gap));
    painter.drawLine(QPointF(at.x(), at.y() + gap), QPointF(at.x(), height()));
}

void DrawingCanvas::paintDragged(QPainter &painter)
{
    if (m_dragged)
        m_dragged->paint(painter, m_scene, space(), transform(), m_ground, *m_pointer);
}

void DrawingCanvas::paintRubberBand(QPainter &painter)
{
    const QPointF from = transform().toScreen(m_request->base->xy());
    if (m_request->kind == PromptKind::Corner) {
        paintBox(painter, from, *m_pointer, m_pointer->x() < from.x());
        return;
    }
    const bool isDashed = (m_request->bits & kernel::DashedRubberBand) != 0;
    painter.setPen(QPen(QColor(0xf0, 0xa0, 0x30), 0, isDashed ? Qt::DashLine : Qt::SolidLine));
    painter.drawLine(from, *m_pointer);
}

void DrawingCanvas::paintBox(QPainter &painter, QPointF from, QPointF to, bool isCrossing)
{
    const QColor color = isCrossing ? QColor(0x3c, 0xb0, 0x5a) : QColor(0x3d, 0x7f, 0xc4);
    QColor tint = color;
    tint.setAlpha(50);
    painter.setPen(QPen(color, 0, isCrossing ? Qt::DashLine : Qt::SolidLine));
    painter.setBrush(tint);
    painter.drawRect(QRectF(from, to).normalized());
    painter.setBrush(Qt::NoBrush);
}

void DrawingCanvas::showEvent(QShowEvent *)
{
    if (!std::exchange(m_wasShown, true))
        zoomExtents();
}

void DrawingCanvas::resizeEvent(QResizeEvent *)
{
    setTransform(transform());
}

void DrawingCanvas::wheelEvent(QWheelEvent *event)
{
    view::ViewTransform changed = transform();
    changed.zoomAt(event->position(), std::pow(wheelStep, event->angleDelta().y() / 120.0));
    setTransform(changed);
    event->accept();
}

void DrawingCanvas::mousePressEvent(QMouseEvent *event)
{
    setFocus();
    m_pointer = event->position();
    if (event->button() == Qt::MiddleButton) {
        m_panFrom = event->position();
        setCursor(Qt::ClosedHandCursor);
    } else if (event->button() == Qt::RightButton) {
        emit enterPressed();
    } else if (event->button() == Qt::LeftButton) {
        press(event->position(), event->modifiers());
    }
}

void DrawingCanvas::mouseMoveEvent(QMouseEvent *event)
{
    m_pointer = event->position();
    if (m_panFrom) {
        view::ViewTransform changed = transform();
        changed.pan(event->position() - *m_panFrom);
        m_panFrom = event->position();
        setTransform(changed);
    }
    emit pointerMoved(transform().toWorld(event->position()));
    update();
}

void DrawingCanvas::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::MiddleButton) {
        m_panFrom.reset();
        setCursor(Qt::BlankCursor);
    }
    const bool wasDragged = m_box && (event->position() - m_box->pressedAt).manhattanLength() > dragDistance;
    if (event->button() == Qt::LeftButton && wasDragged)
        finishBox(event->position());
}

void DrawingCanvas::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::MiddleButton)
        zoomExtents();
    else
        mousePressEvent(event);
}

void DrawingCanvas::leaveEvent(QEvent *)
{
    m_pointer.reset();
    update();
}

void DrawingCanvas::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && abandonBox())
        return;
    event->ignore();
    emit keyPressed(event);
}

drawing::Vec3 DrawingCanvas::world(QPointF screen) const
{
    const drawing::Vec2 point = transform().toWorld(screen);
    return {point.x, point.y, 0.0};
}

drawing::RecordId DrawingCanvas::entityAt(QPointF screen)
{
    const int reach = std::clamp(m_document.variables().integer(u"PICKBOX", 3), 1, 50);
    const view::ViewTransform now = transform();
    return view::pickAt(m_scene, space(), now.toWorld(screen), now.toWorldLength(reach));
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
    if (m_request->kind == PromptKind::Selection) {
        if (const drawing::RecordId entity = entityAt(screen); drawing::isValid(entity))
            emit answered(kernel::EntityAnswer{entity, world(screen)});
        else
            beginBox(screen, BoxUse::Answer, Choice::Add);
    } else if (wantsPoint(m_request) || m_request->kind == PromptKind::Entity) {
        emit answered(kernel::PointAnswer{world(screen)});
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
    } else if (box.use == BoxUse::Answer) {
        emit answered(kernel::WindowAnswer{{box.corner.x, box.corner.y, 0.0}, {opposite.x, opposite.y, 0.0}});
    } else {
        const auto mode = opposite.x < box.corner.x ? view::PickMode::Crossing : view::PickMode::Window;
        choose(view::pickRectangle(m_scene, space(), box.corner, opposite, mode), box.choice);
    }
}

} // namespace host::app
