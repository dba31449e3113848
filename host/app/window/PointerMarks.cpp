#include "host/app/window/PointerMarks.h"

#include <QPainter>

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

void paintPointerBox(QPainter &painter, QPointF from, QPointF pointer, bool isCrossing)
{
    const QColor color = isCrossing ? QColor(0x3c, 0xb0, 0x5a) : QColor(0x3d, 0x7f, 0xc4);
    QColor tint = color;
    tint.setAlpha(50);
    painter.setPen(QPen(color, 0, isCrossing ? Qt::DashLine : Qt::SolidLine));
    painter.setBrush(tint);
    painter.drawRect(QRectF(from, pointer).normalized());
    painter.setBrush(Qt::NoBrush);
}

} // namespace host::app
