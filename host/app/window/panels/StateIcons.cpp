#include "host/app/window/panels/StateIcons.h"

#include "host/app/window/panels/LayerRows.h"
#include "host/view/display/AciColor.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

#include <numbers>

namespace host::app {

namespace {

// All are drawn into a square of 16 units.
constexpr double unitsOfMark = 16.0;
const QColor lampLight(0xf2, 0xb9, 0x1d);
const QColor sunLight(0xf0, 0x8c, 0x1e);
const QColor iceBlue(0x3f, 0x8f, 0xd8);
const QColor paleIce(0xa8, 0xdb, 0xff);
const QColor lockGold(0xc9, 0x97, 0x2c);
const QColor strikeRed(0xd8, 0x3b, 0x3b);

void paintLamp(QPainter &painter, const QColor &ink, bool isOn)
{
    painter.setPen(QPen(ink, 1.0));
    painter.setBrush(isOn ? QBrush(lampLight) : QBrush(Qt::NoBrush));
    painter.drawEllipse(QPointF(8, 6.5), 4.5, 4.5);
    painter.setBrush(ink);
    painter.drawRect(QRectF(6.25, 11.5, 3.5, 2.5));
}

void paintSpokes(QPainter &painter, int count, double from, double to)
{
    for (int i = 0; i < count; ++i) {
        const double angle = 2.0 * std::numbers::pi * i / count;
        const QPointF direction(std::sin(angle), std::cos(angle));
        painter.drawLine(QPointF(8, 8) + direction * from, QPointF(8, 8) + direction * to);
    }
}

void paintSun(QPainter &painter)
{
    painter.setPen(QPen(sunLight, 1.4));
    painter.setBrush(sunLight);
    painter.drawEllipse(QPointF(8, 8), 3.0, 3.0);
    paintSpokes(painter, 8, 4.8, 6.8);
}

/// On dark grounds and chosen rows, where the ink is light, blue would hardly be seen.
void paintFlake(QPainter &painter, const QColor &ink)
{
    const QColor ice = ink.lightness() > 128 ? paleIce : iceBlue;
    painter.setPen(QPen(ice, 1.6));
    paintSpokes(painter, 6, 0.0, 6.8);
    painter.setPen(QPen(ice, 1.2));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(QPointF(8, 8), 3.2, 3.2);
}

void paintLock(QPainter &painter, const QColor &ink, bool isLocked)
{
    const double lift = isLocked ? 0.0 : -2.0;
    QPainterPath shackle(QPointF(5, 8));
    shackle.lineTo(5, 5 + lift);
    shackle.arcTo(QRectF(5, 2 + lift, 6, 6), 180, -180);
    shackle.lineTo(11, isLocked ? 8 : 4.5);
    painter.setPen(QPen(ink, 1.4));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(shackle);
    painter.setPen(QPen(ink, 1.0));
    painter.setBrush(isLocked ? QBrush(lockGold) : QBrush(Qt::NoBrush));
    painter.drawRect(QRectF(3.5, 8, 9, 6));
}

void paintPrinter(QPainter &painter, const QColor &ink, bool isPlotted)
{
    painter.setPen(QPen(ink, 1.1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(4.5, 2, 7, 4.5));
    painter.drawRect(QRectF(2, 6.5, 12, 5));
    painter.setBrush(Qt::white);
    painter.drawRect(QRectF(4.5, 9.5, 7, 4.5));
    if (isPlotted)
        return;
    painter.setPen(QPen(strikeRed, 1.8));
    painter.drawLine(QPointF(2, 2), QPointF(14, 14));
}

void paintTick(QPainter &painter)
{
    painter.setPen(QPen(QColor(0x2f, 0xa0, 0x4f), 2.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(QPolygonF({{3, 8.5}, {6.5, 12}, {13, 4}}));
}

void paintInFrame(QPainter &painter, const QColor &ink, bool isFrozen)
{
    painter.setPen(QPen(ink, 1.0));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(0.5, 0.5, 15, 15));
    painter.translate(2.4, 2.4);
    painter.scale(0.7, 0.7);
    isFrozen ? paintFlake(painter, ink) : paintSun(painter);
}

void paintMark(QPainter &painter, StateMark mark, const QColor &ink)
{
    switch (mark) {
    case StateMark::None:
        return;
    case StateMark::Current:
        return paintTick(painter);
    case StateMark::On:
    case StateMark::Off:
        return paintLamp(painter, ink, mark == StateMark::On);
    case StateMark::Thawed:
        return paintSun(painter);
    case StateMark::Frozen:
        return paintFlake(painter, ink);
    case StateMark::Unlocked:
    case StateMark::Locked:
        return paintLock(painter, ink, mark == StateMark::Locked);
    case StateMark::Plots:
    case StateMark::NoPlot:
        return paintPrinter(painter, ink, mark == StateMark::Plots);
    case StateMark::ThawedInViewport:
    case StateMark::FrozenInViewport:
        return paintInFrame(painter, ink, mark == StateMark::FrozenInViewport);
    }
}

/// Draws anew for every size, so that no scale blurs it.
class DrawnIcon final : public QIconEngine
{
public:
    explicit DrawnIcon(StateMark mark) : m_mark(mark) {}
    explicit DrawnIcon(const QColor &colour) : m_colour(colour) {}

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode, QIcon::State) override
    {
        const QColor ink = QGuiApplication::palette().color(QPalette::Text);
        if (!m_colour.isValid())
            return paintState(*painter, rect, m_mark, ink);
        painter->setPen(QPen(ink, 0));
        painter->setBrush(m_colour);
        painter->drawRect(QRectF(rect).adjusted(1.5, 1.5, -1.5, -1.5));
    }
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect({}, size), mode, state);
        return pixmap;
    }
    QIconEngine *clone() const override { return new DrawnIcon(*this); }

private:
    StateMark m_mark = StateMark::None;
    QColor m_colour = {};
};

} // namespace

void paintState(QPainter &painter, const QRectF &square, StateMark mark, const QColor &ink)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(square.topLeft());
    painter.scale(square.width() / unitsOfMark, square.height() / unitsOfMark);
    paintMark(painter, mark, ink);
    painter.restore();
}

QIcon stateIcon(StateMark mark)
{
    return QIcon(new DrawnIcon(mark));
}

QIcon colourIcon(const QColor &colour)
{
    return QIcon(new DrawnIcon(colour));
}

QColor shownColour(const LayerRow &row)
{
    return row.layer.trueColour ? view::trueColor(int(*row.layer.trueColour))
                                : view::aciColor(row.layer.colour, view::shownGround());
}

} // namespace host::app
