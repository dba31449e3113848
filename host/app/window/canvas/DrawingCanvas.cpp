#include "host/app/window/canvas/DrawingCanvas.h"

#include "host/app/window/canvas/AimMarks.h"
#include "host/app/window/canvas/GridPainter.h"
#include "host/app/window/canvas/PointerMarks.h"
#include "host/app/window/canvas/SnapMenu.h"
#include "host/app/window/canvas/ViewportMoves.h"
#include "host/drawing/records/HeaderVariables.h"
#include "host/drawing/records/PageSetup.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/documents/CurrentView.h"
#include "host/kernel/documents/ExpressionSurroundings.h"
#include "host/kernel/documents/ScreenSketch.h"
#include "host/kernel/input/PointAim.h"
#include "host/kernel/lisp/LispConversion.h"
#include "host/kernel/variables/SystemVariables.h"

#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QPen>
#include <QWheelEvent>

namespace host::app {

namespace {

using kernel::PromptKind;

constexpr double wheelStep = 1.25;
/// Moves of the pointer that come together are looked at once, in milliseconds.
constexpr int hoverDelay = 20;

bool wantsEntities(const std::optional<kernel::PromptRequest> &request)
{
    return request && (request->kind == PromptKind::Entity || request->kind == PromptKind::Selection);
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
    m_document.lendScene(&m_scene);
    m_hoverDelay.setSingleShot(true);
    m_hoverDelay.setInterval(hoverDelay);
    m_hoverDelay.callOnTimeout(this, &DrawingCanvas::updateHover);
    connect(&m_picture, &ScenePicture::refined, this, qOverload<>(&QWidget::update));
    connect(&m_document, &kernel::Document::viewChanged, this, qOverload<>(&QWidget::update));
    connect(&m_document, &kernel::Document::layoutChanged, this, qOverload<>(&QWidget::update));
    connect(&m_document, &kernel::Document::highlightChanged, this, &DrawingCanvas::updateMarks);
    connect(&m_document, &kernel::Document::impliedSelectionChanged, this, &DrawingCanvas::updateMarks);
    connect(&m_document, &kernel::Document::regenerated, this, [this] {
        m_scene.regenerate();
        m_picture.renew();
        update();
    });
    connect(&m_document, &kernel::Document::sketchChanged, this, qOverload<>(&QWidget::update));
    connect(&m_document, &kernel::Document::variableChanged, this, &DrawingCanvas::aimAnew);
    connect(&m_document, &kernel::Document::runEnded, this, qOverload<>(&QWidget::update));
}

DrawingCanvas::~DrawingCanvas()
{
    m_document.lendScene(nullptr);
}

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

void DrawingCanvas::chooseTransform(const view::ViewTransform &transform)
{
    setTransform(transform);
    emit viewChosen();
}

bool DrawingCanvas::wantsPoint() const
{
    return m_request && takesPoints(m_request->kind);
}

int DrawingCanvas::pickReach() const
{
    return std::clamp(m_document.variables().integer(u"PICKBOX", 3), 1, 50);
}

int DrawingCanvas::space()
{
    return m_scene.block(kernel::currentSpaceBlock(m_document.drawing()));
}

void DrawingCanvas::setGround(view::Ground ground)
{
    m_ground = ground;
    update();
}

void DrawingCanvas::showExtents()
{
    view::ViewTransform changed = transform();
    changed.fit(m_scene.extents(space()));
    setTransform(changed);
}

void DrawingCanvas::zoomExtents()
{
    showExtents();
    emit viewChosen();
}

void DrawingCanvas::zoomBy(double factor)
{
    view::ViewTransform changed = transform();
    changed.zoomAt(QRectF(rect()).center(), factor);
    chooseTransform(changed);
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
    if (wantsEvents())
        setFocus();
    m_box.reset();
    m_dragged.reset();
    updateAim();
    m_hover.clear();
    m_hoverDelay.start();
    if (request && request->dragged)
        m_dragged.emplace(m_document, m_scene, workedSpace(), request->dragged);
    if (hadMarked || m_dragged || (m_request && m_request->chosen))
        updateMarks();
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
    report.isCutShort |= m_picture.isCutShort();
    return report;
}

bool DrawingCanvas::isCutShortNews()
{
    return m_picture.isCutShort() && !std::exchange(m_isCutShortTold, true);
}

void DrawingCanvas::updateMarks()
{
    view::RecordSet marked(m_document.highlighted().begin(), m_document.highlighted().end());
    marked.insert(m_document.impliedSelection().begin(), m_document.impliedSelection().end());
    if (m_dragged)
        marked.insert(m_dragged->records().begin(), m_dragged->records().end());
    if (m_request && m_request->chosen)
        marked.insert(m_request->chosen->begin(), m_request->chosen->end());
    m_picture.setHighlighted(std::move(marked));
    update();
}

void DrawingCanvas::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const bool hasWeights = m_document.variables().integer(u"LWDISPLAY") != 0;
    m_picture.paint(painter, {.view = transform(),
                              .space = space(),
                              .ground = m_ground,
                              .pixelRatio = devicePixelRatioF(),
                              .pixelsPerMillimetre = hasWeights ? logicalDpiX() / drawing::millimetresPerInch : 0.0,
                              .defaultWeight = m_document.variables().integer(u"LWDEFAULT", 25)});
    if (m_picture.isProvisional())
        paintUnfinishedMark(painter, tr("simplified"), size(), m_ground);
    paintGrid(painter, m_document, {transform(), size(), m_ground});
    paintSketch(painter);
    m_hover.paint(painter, m_scene, space(), transform(), m_ground);
    m_grips.update();
    m_grips.paint(painter, transform(), m_ground, m_pointer);
    paintOverlay(painter);
}

bool DrawingCanvas::wantsHover() const
{
    constexpr int whenIdle = 1;
    constexpr int whenAsked = 2;
    if (!m_pointer || m_panFrom || m_box || m_isZoomWindow)
        return false;
    const int when = m_document.variables().integer(u"SELECTIONPREVIEW", whenIdle | whenAsked);
    if (m_request)
        return (when & whenAsked) != 0 && wantsEntities(m_request);
    return (when & whenIdle) != 0 && !m_document.isBusy() && !m_grips.at(*m_pointer, transform());
}

void DrawingCanvas::updateHover()
{
    // Through a viewport of a sheet the scene shows the model smaller than it is worked on.
    const bool isChanged =
        wantsHover() && workedSpace() == space()
            ? m_hover.look(m_scene, space(), *m_pointer, world(*m_pointer).xy(), transform().toWorldLength(pickReach()))
            : m_hover.clear();
    if (isChanged)
        update();
}

void DrawingCanvas::markNext()
{
    updateHover();
    if (m_hover.next())
        update();
}

void DrawingCanvas::updateAim()
{
    m_aim.reset();
    if (m_pointer && m_request && (wantsPoint() || m_request->snaps))
        m_aim = kernel::HandAim(m_document).find(world(*m_pointer), *m_request);
}

void DrawingCanvas::aimAnew()
{
    updateAim();
    update();
}

void DrawingCanvas::showTyped(AimField field, const QString &text)
{
    m_typedField = field;
    m_typed = text;
    update();
}

void DrawingCanvas::answerAim()
{
    const std::optional<drawing::Vec3> last = m_document.aim().pointer;
    if (m_request && m_request->base)
        emit answered(kernel::PointAnswer{last.value_or(*m_request->base), true});
}

QPointF DrawingCanvas::aimedAt() const
{
    return m_aim && m_aim->rule != kernel::HandRule::None ? toScreen(m_aim->point) : *m_pointer;
}

void DrawingCanvas::paintSketch(QPainter &painter)
{
    const view::ViewTransform now = transform();
    for (const kernel::ScreenSketch::Line &line : m_document.sketch().lines())
        paintSketchLine(painter, now.toScreen(line.from.xy()), now.toScreen(line.to.xy()),
                        {.colour = line.colour, .isDashed = line.isHighlighted, .ground = m_ground});
}

void DrawingCanvas::paintOverlay(QPainter &painter)
{
    if (!m_pointer)
        return;
    if (m_box) {
        const QPointF from = transform().toScreen(m_box->corner);
        paintPointerBox(painter, QRectF(from, *m_pointer).normalized(),
                        m_pointer->x() < from.x() && m_box->use != BoxUse::Zoom);
    } else if (m_request) {
        if (m_dragged)
            m_dragged->paint(painter, transform(), {size(), m_ground}, m_aim ? m_aim->point : world(*m_pointer));
        if (m_request->base)
            paintRubberBand(painter);
    }
    if (m_request && m_aim)
        paintAim(painter, m_document, *m_request, *m_aim, {transform(), size(), m_ground}, {m_typedField, m_typed});
    const bool hasBox = !wantsPoint() && !m_isZoomWindow;
    paintCrosshair(painter, *m_pointer, size(),
                   {.ground = m_ground, .pickBox = hasBox ? pickReach() : 0, .hasLines = !wantsEntities(m_request)});
}

void DrawingCanvas::paintRubberBand(QPainter &painter)
{
    const QPointF from = toScreen(*m_request->base);
    const QPointF to = aimedAt();
    if (!asksForBox(*m_request)) {
        paintPointerBand(painter, from, to, (m_request->bits & kernel::DashedRubberBand) != 0);
        return;
    }
    // Its sides lie along the user's axes.
    const drawing::Vec3 base = kernel::toUser(m_document, *m_request->base);
    const drawing::Vec3 corner = kernel::toUser(m_document, m_aim ? m_aim->point : world(*m_pointer));
    const auto between = [&](double x, double y) { return toScreen(kernel::toWorld(m_document, {x, y, base.z})); };
    const QPolygonF box({from, between(corner.x, base.y), to, between(base.x, corner.y)});
    paintPointerBox(painter, box, to.x() < from.x());
}

void DrawingCanvas::showEvent(QShowEvent *)
{
    if (!std::exchange(m_wasShown, true))
        showExtents();
}

void DrawingCanvas::resizeEvent(QResizeEvent *)
{
    setTransform(transform());
}

void DrawingCanvas::wheelEvent(QWheelEvent *event)
{
    const double factor = std::pow(wheelStep, event->angleDelta().y() / 120.0);
    event->accept();
    if (zoomInViewport(m_document, sheetPoint(event->position()), factor))
        return update();
    view::ViewTransform changed = transform();
    changed.zoomAt(event->position(), factor);
    chooseTransform(changed);
}

void DrawingCanvas::mousePressEvent(QMouseEvent *event)
{
    setFocus();
    m_pointer = event->position();
    if (event->button() == Qt::MiddleButton) {
        m_panFrom = event->position();
        m_isViewportPanned = pansInViewport(m_document, sheetPoint(event->position()));
        setCursor(Qt::ClosedHandCursor);
    } else if (event->button() == Qt::RightButton && wantsEvents()) {
        emit answered(kernel::PointerAnswer{world(event->position()), true});
    } else if (event->button() == Qt::RightButton && wantsPoint() && event->modifiers().testFlag(Qt::ShiftModifier)) {
        nextPointMenu(this, [this](const QString &word) {
            emit answered(kernel::TextAnswer{word});
        })->popup(event->globalPosition().toPoint());
    } else if (event->button() == Qt::RightButton) {
        emit enterPressed();
    } else if (event->button() == Qt::LeftButton) {
        press(event->position(), event->modifiers());
    }
}

void DrawingCanvas::mouseMoveEvent(QMouseEvent *event)
{
    m_pointer = event->position();
    if (m_panFrom && !m_isViewportPanned) {
        view::ViewTransform changed = transform();
        changed.pan(event->position() - *m_panFrom);
        m_panFrom = event->position();
        chooseTransform(changed);
    }
    m_document.aim().pointer = world(event->position());
    if (wantsEvents() && m_request->tracksPointer)
        emit answered(kernel::PointerAnswer{world(event->position())});
    updateAim();
    if (!m_hoverDelay.isActive())
        m_hoverDelay.start();
    emit pointerMoved(transform().toWorld(event->position()));
    update();
}

void DrawingCanvas::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::MiddleButton) {
        // One step for the whole way: each of them can be undone.
        if (m_panFrom && std::exchange(m_isViewportPanned, false))
            panInViewport(m_document, sheetPoint(*m_panFrom), sheetPoint(event->position()));
        m_panFrom.reset();
        setCursor(Qt::BlankCursor);
    }
    const bool wasDragged = m_box && (event->position() - m_box->pressedAt).manhattanLength() > dragDistance;
    if (event->button() == Qt::LeftButton && wasDragged)
        finishBox(event->position());
    if (event->button() == Qt::LeftButton)
        releaseGrip(event->position());
}

void DrawingCanvas::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::MiddleButton)
        zoomExtents();
    else if (event->button() == Qt::LeftButton && !m_request && !m_document.isBusy() && !m_isZoomWindow)
        abandonBox(), emit doubleClicked(event->position());
    else
        mousePressEvent(event);
}

void DrawingCanvas::leaveEvent(QEvent *)
{
    m_pointer.reset();
    m_hover.clear();
    update();
}

void DrawingCanvas::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && abandonBox())
        return;
    if (wantsEvents() && event->key() != Qt::Key_Escape && !event->text().isEmpty()) {
        emit answered(kernel::KeyAnswer{event->text().front().unicode()});
        return;
    }
    event->ignore();
    emit keyPressed(event);
}

} // namespace host::app
