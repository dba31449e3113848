#include "host/app/window/canvas/HoverMark.h"

#include "host/drawing/records/Symbols.h"
#include "host/view/paint/Picking.h"
#include "host/view/paint/ScenePainter.h"

#include <QPainter>

namespace host::app {

namespace {

/// Of more entities in reach than these nobody sees which is meant.
constexpr std::size_t mostHovered = 2000;
/// A hand that rests moves the pointer as far, in pixels.
constexpr double restlessness = 3.0;
/// Room round the entity's box for thick lines and the marks of points, in pixels.
constexpr int hoverBorder = 8;

bool isOnLockedLayer(const drawing::Drawing &drawing, drawing::RecordId entity)
{
    const auto layer = drawing::findLayer(drawing, drawing.tags(entity).text(8, QStringLiteral("0")));
    return layer && layer->isLocked;
}

/// A padlock, right above the place.
void paintLock(QPainter &painter, QPointF at, view::Ground ground)
{
    const QColor color = ground == view::Ground::Black ? QColor(0xf0, 0xc0, 0x40) : QColor(0xa0, 0x60, 0x00);
    const QRectF body(at.x() + 10.0, at.y() - 16.0, 10.0, 8.0);
    painter.fillRect(body, color);
    painter.setPen(QPen(color, 2.0));
    painter.drawArc(QRectF(body.x() + 2.0, body.y() - 5.0, 6.0, 9.0), 0, 180 * 16);
}

} // namespace

bool HoverMark::look(view::Scene &scene, int space, QPointF screen, drawing::Vec2 point, double reach)
{
    if (m_isCycled && isStill(screen))
        return false;
    const drawing::RecordId before = entity();
    m_entities = view::pickAllAt(scene, space, point, reach, mostHovered);
    m_marked = 0;
    m_isCycled = false;
    m_place = screen;
    return entity() != before;
}

bool HoverMark::clear()
{
    m_isCycled = false;
    m_marked = 0;
    return !std::exchange(m_entities, {}).empty();
}

bool HoverMark::next()
{
    if (m_entities.size() < 2)
        return false;
    m_marked = (m_marked + 1) % m_entities.size();
    m_isCycled = true;
    return true;
}

drawing::RecordId HoverMark::entity() const
{
    return m_entities.empty() ? drawing::noRecord : m_entities[m_marked];
}

bool HoverMark::isStill(QPointF screen) const
{
    return (screen - m_place).manhattanLength() <= restlessness;
}

drawing::RecordId HoverMark::chosenAt(QPointF screen) const
{
    return m_isCycled && isStill(screen) ? entity() : drawing::noRecord;
}

void HoverMark::paint(QPainter &painter, view::Scene &scene, int space, const view::ViewTransform &view,
                      view::Ground ground)
{
    if (!isValid(entity()) || !scene.drawing().isAlive(entity()))
        return;
    const Basis now{entity(),
                    view.center(),
                    view.scale(),
                    view.screenSize(),
                    ground,
                    painter.device()->devicePixelRatioF(),
                    scene.drawing().revision()};
    if (m_basis != now) {
        m_basis = now;
        makePicture(scene, space, view);
    }
    // Bolder by a pixel each way.
    for (const QPoint by : {QPoint(-1, 0), QPoint(1, 0), QPoint(0, -1), QPoint(0, 1)})
        painter.drawPixmap(m_corner + by, m_picture);
    if (m_isLocked)
        paintLock(painter, m_place, ground);
}

void HoverMark::makePicture(view::Scene &scene, int space, const view::ViewTransform &view)
{
    m_picture = {};
    m_isLocked = isOnLockedLayer(scene.drawing(), entity());
    const view::RecordSummary *record = scene.find(space, entity());
    if (!record)
        return;
    QRect part = QRectF(QPointF(), view.screenSize()).toAlignedRect();
    if (!record->isEndless) {
        const QRectF seen =
            QRectF(view.toScreen(record->box.low.xy()), view.toScreen(record->box.high.xy())).normalized();
        part = (seen.adjusted(-hoverBorder, -hoverBorder, hoverBorder, hoverBorder) & QRectF(part)).toAlignedRect();
    }
    if (part.isEmpty())
        return;
    m_corner = part.topLeft();
    m_picture = QPixmap(part.size() * m_basis->pixelRatio);
    m_picture.setDevicePixelRatio(m_basis->pixelRatio);
    m_picture.fill(Qt::transparent);
    QPainter painter(&m_picture);
    painter.translate(-m_corner);
    view::PaintOptions options;
    options.ground = m_basis->ground;
    options.fillGround = false;
    view::paintRecord(painter, scene, space, entity(), view, options);
}

} // namespace host::app
