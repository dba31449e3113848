#include "host/app/window/canvas/PointerMarks.h"

#include "host/drawing/geometry/SnapPoints.h"

#include <QPainter>
#include <QPainterPath>

#include <cmath>

namespace host::app {

namespace {

QColor markColor(view::Ground ground)
{
    return ground == view::Ground::Black ? QColor(0xd0, 0xd4, 0xd8) : QColor(0x40, 0x44, 0x48);
}

} // namespace

void paintUnfinishedMark(QPainter &painter, const QString &text, QSize canvas, view::Ground ground)
{
    constexpr int border = 6;
    painter.setPen(markColor(ground));
    painter.drawText(QRect(QPoint(), canvas).adjusted(border, border, -border, -border),
                     Qt::AlignRight | Qt::AlignBottom, text);
}

void paintCrosshair(QPainter &painter, QPointF pointer, QSize canvas, const Crosshair &look)
{
    painter.setPen(QPen(markColor(look.ground), 0));
    const QPointF at(std::floor(pointer.x()) + 0.5, std::floor(pointer.y()) + 0.5);
    const double gap = look.pickBox;
    if (look.pickBox > 0)
        painter.drawRect(QRectF(at.x() - gap, at.y() - gap, 2.0 * gap, 2.0 * gap));
    if (!look.hasLines)
        return;
    painter.drawLine(QPointF(0, at.y()), QPointF(at.x() - gap, at.y()));
    painter.drawLine(QPointF(at.x() + gap, at.y()), QPointF(canvas.width(), at.y()));
    painter.drawLine(QPointF(at.x(), 0), QPointF(at.x(), at.y() - gap));
    painter.drawLine(QPointF(at.x(), at.y() + gap), QPointF(at.x(), canvas.height()));
}

void paintPointerBand(QPainter &painter, QPointF from, QPointF pointer, bool isDashed)
{
    painter.setPen(QPen(QColor(0xf0, 0xa0, 0x30), 0, isDashed ? Qt::DashLine : Qt::SolidLine));
    painter.drawLine(from, pointer);
}

namespace {

constexpr double snapMarkSize = 6.0;
const QColor snapMarkColor(0x2f, 0xc8, 0x5a);

/// The sign's lines about the origin, from -1 to 1 both ways, y down.
QPainterPath snapSign(int kind)
{
    using namespace drawing;
    QPainterPath path;
    switch (kind) {
    case SnapMidPoint:
        path.addPolygon(QPolygonF({{-1, 1}, {1, 1}, {0, -1}, {-1, 1}}));
        break;
    case SnapCentre:
        path.addEllipse(QPointF(), 1, 1);
        break;
    case SnapNode:
        path.addEllipse(QPointF(), 1, 1);
        [[fallthrough]];
    case SnapIntersection:
    case SnapApparentIntersection:
        path.addPolygon(QPolygonF({{-1, -1}, {1, 1}}));
        path.addPolygon(QPolygonF({{-1, 1}, {1, -1}}));
        break;
    case SnapQuadrant:
        path.addPolygon(QPolygonF({{0, -1}, {1, 0}, {0, 1}, {-1, 0}, {0, -1}}));
        break;
    case SnapInsertion:
        path.addPolygon(QPolygonF(
            {{-1, -1}, {0.3, -1}, {0.3, -0.3}, {1, -0.3}, {1, 1}, {-0.3, 1}, {-0.3, 0.3}, {-1, 0.3}, {-1, -1}}));
        break;
    case SnapPerpendicular:
        path.addPolygon(QPolygonF({{-1, -1}, {-1, 1}, {1, 1}}));
        path.addPolygon(QPolygonF({{-1, 0}, {0, 0}, {0, 1}}));
        break;
    case SnapTangent:
        path.addEllipse(QPointF(0, 0.2), 0.8, 0.8);
        path.addPolygon(QPolygonF({{-1, -0.8}, {1, -0.8}}));
        break;
    case SnapNearest:
        path.addPolygon(QPolygonF({{-1, -1}, {1, -1}, {-1, 1}, {1, 1}, {-1, -1}}));
        break;
    default:
        path.addRect(-1, -1, 2, 2);
    }
    return path;
}

} // namespace

void paintSnapMark(QPainter &painter, QPointF at, int kind, const QString &name)
{
    constexpr double textGap = 14.0;
    painter.setPen(QPen(snapMarkColor, 2.0));
    painter.drawPath(QTransform::fromTranslate(at.x(), at.y()).scale(snapMarkSize, snapMarkSize).map(snapSign(kind)));
    painter.drawText(at + QPointF(textGap, textGap + painter.fontMetrics().ascent()), name);
}

void paintAimFields(QPainter &painter, QPointF at, QSize canvas, view::Ground ground, const QList<AimFieldLook> &fields)
{
    constexpr double gap = 14.0;
    constexpr double border = 4.0;
    const QFontMetricsF metrics(painter.font(), painter.device());
    const double height = metrics.height() + 2.0;
    double width = 0.0;
    for (const AimFieldLook &field : fields)
        width += metrics.horizontalAdvance(field.text) + 3.0 * border;
    const double left = std::max(0.0, std::min(at.x() + gap, canvas.width() - width));
    const double top = std::max(0.0, at.y() - gap - height);
    const bool isDark = ground == view::Ground::Black;
    double x = left;
    for (const AimFieldLook &field : fields) {
        const QRectF box(std::floor(x) + 0.5, std::floor(top) + 0.5,
                         std::ceil(metrics.horizontalAdvance(field.text) + 2.0 * border), std::ceil(height));
        painter.setPen(field.isWritten ? QPen(QColor(0x4f, 0xa3, 0xff), 2.0) : QPen(markColor(ground), 0));
        painter.setBrush(field.isLocked ? QColor(0xf0, 0xa0, 0x30)
                         : isDark       ? QColor(0x2a, 0x2e, 0x33)
                                        : QColor(0xf4, 0xf5, 0xf6));
        painter.drawRect(box);
        painter.setPen(field.isLocked || !isDark ? QColor(Qt::black) : QColor(Qt::white));
        painter.drawText(box, Qt::AlignCenter, field.text);
        x += box.width() + border;
    }
    painter.setBrush(Qt::NoBrush);
}

void paintTrackingRay(QPainter &painter, QPointF from, QPointF at, QSize canvas, const QString &text)
{
    constexpr double half = 4.0;
    constexpr double textGap = 14.0;
    const QPointF away = at - from;
    const double length = std::hypot(away.x(), away.y());
    painter.setPen(QPen(snapMarkColor, 0, Qt::DotLine));
    // From any place on the canvas this reaches beyond it; a base far outside is not where the ray is dotted from.
    const double reach = canvas.width() + canvas.height();
    if (length > 0.0)
        painter.drawLine(length < reach ? from : at - away * (reach / length), at + away * (reach / length));
    painter.setPen(QPen(snapMarkColor, 2.0));
    painter.drawLine(at - QPointF(half, half), at + QPointF(half, half));
    painter.drawLine(at - QPointF(half, -half), at + QPointF(half, -half));
    painter.drawText(at + QPointF(textGap, textGap + painter.fontMetrics().ascent()), text);
}

QIcon snapIcon(int kind, double pixelRatio)
{
    constexpr double side = 16.0;
    QPixmap picture(QSizeF(side, side).toSize() * pixelRatio);
    picture.setDevicePixelRatio(pixelRatio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(snapMarkColor, 2.0));
    const double middle = side / 2.0;
    painter.drawPath(QTransform::fromTranslate(middle, middle).scale(snapMarkSize, snapMarkSize).map(snapSign(kind)));
    return QIcon(picture);
}

void paintSketchLine(QPainter &painter, QPointF from, QPointF to, const SketchLook &look)
{
    // Far outside the window the painter's numbers run over.
    constexpr double farthest = 1e6;
    const auto isNear = [](QPointF p) { return std::abs(p.x()) < farthest && std::abs(p.y()) < farthest; };
    if (!isNear(from) || !isNear(to))
        return;
    // 0 draws in the ground's colour: programs take lines away with it.
    const QColor color = look.colour == 0 ? view::groundColor(look.ground) : view::aciColor(look.colour, look.ground);
    painter.setPen(QPen(color, 0, look.isDashed ? Qt::DashLine : Qt::SolidLine));
    painter.drawLine(from, to);
}

void paintPointerBox(QPainter &painter, const QPolygonF &box, bool isCrossing)
{
    const QColor color = isCrossing ? QColor(0x3c, 0xb0, 0x5a) : QColor(0x3d, 0x7f, 0xc4);
    QColor tint = color;
    tint.setAlpha(50);
    painter.setPen(QPen(color, 0, isCrossing ? Qt::DashLine : Qt::SolidLine));
    painter.setBrush(tint);
    painter.drawPolygon(box);
    painter.setBrush(Qt::NoBrush);
}

} // namespace host::app
