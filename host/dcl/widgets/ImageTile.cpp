#include "host/dcl/widgets/ImageTile.h"

#include "host/view/display/AciColor.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPolygonF>
#include <QStyle>
#include <QStyleOptionFocusRect>

#include <algorithm>

namespace host::dcl {

namespace {

constexpr int graphicsGround = -2;
constexpr int dialogGround = -15;
constexpr int dialogLine = -18;
constexpr int mostColor = 255;
/// What a program may draw at: more would only overflow.
constexpr int farthest = 32000;

QPoint within(const QPoint &point)
{
    return {std::clamp(point.x(), -farthest, farthest), std::clamp(point.y(), -farthest, farthest)};
}

} // namespace

ImageTile::ImageTile(Use use)
{
    if (use == Use::Button)
        setFocusPolicy(Qt::StrongFocus);
}

QColor ImageTile::color(int number) const
{
    const view::Ground ground = view::shownGround();
    if (number == 0 || number == graphicsGround)
        return view::groundColor(ground);
    if (number > 0 && number <= mostColor)
        return view::aciColor(number, ground);
    if (number == dialogGround)
        return palette().color(QPalette::Window);
    if (number == dialogLine)
        return palette().color(QPalette::PlaceholderText);
    return palette().color(QPalette::WindowText);
}

void ImageTile::setGround(int number)
{
    m_ground = number;
    m_image = {};
    update();
}

QImage &ImageTile::canvas()
{
    const double ratio = devicePixelRatioF();
    const QSize wanted = (QSizeF(size().expandedTo({1, 1})) * ratio).toSize();
    if (m_image.size() == wanted)
        return m_image;
    QImage image(wanted, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(color(m_ground));
    if (!m_image.isNull())
        QPainter(&image).drawImage(rect(), m_image);
    m_image = image;
    return m_image;
}

template <typename Draw>
void ImageTile::paintOn(Draw &&draw)
{
    QPainter painter(&canvas());
    draw(painter);
    painter.end();
    update();
}

void ImageTile::drawLine(const QPoint &from, const QPoint &to, int number)
{
    paintOn([&](QPainter &painter) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(color(number), 1.0, Qt::SolidLine, Qt::SquareCap));
        // A point is the middle of its square, so that upright and level lines are sharp.
        const QPointF middle(0.5, 0.5);
        if (from == to)
            painter.fillRect(QRect(within(from), QSize(1, 1)), color(number));
        else
            painter.drawLine(within(from) + middle, within(to) + middle);
    });
}

void ImageTile::fill(const QRect &area, int number)
{
    paintOn([&](QPainter &painter) { painter.fillRect(area & rect(), color(number)); });
}

void ImageTile::drawSlide(const QRect &area, const Slide &slide)
{
    const QRect place = QRect(within(area.topLeft()), area.size().boundedTo({farthest, farthest}));
    if (slide.size.isEmpty() || place.isEmpty())
        return;
    const QSizeF shape(slide.pixelAspect, 1.0);
    const QSizeF shown = shape.scaled(place.size(), Qt::KeepAspectRatio);
    const QPointF corner(place.x() + (place.width() - shown.width()) / 2,
                         place.y() + (place.height() - shown.height()) / 2);
    const auto mapped = [&](const QPoint &point) {
        return corner + QPointF((point.x() + 0.5) * shown.width() / slide.size.width(),
                                shown.height() - (point.y() + 0.5) * shown.height() / slide.size.height());
    };
    paintOn([&](QPainter &painter) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setClipRect(place);
        for (const Slide::Shape &one : slide.shapes) {
            QPolygonF points;
            for (const QPoint &point : one.points)
                points.append(mapped(point));
            painter.setPen(QPen(color(one.color), 1.0));
            painter.setBrush(one.isFilled ? QBrush(color(one.color)) : QBrush());
            if (one.isFilled)
                painter.drawPolygon(points);
            else
                painter.drawPolyline(points);
        }
    });
}

void ImageTile::flipHighlight()
{
    m_isHighlighted = !m_isHighlighted;
    update();
}

void ImageTile::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.drawImage(rect(), canvas());
    if (focusPolicy() != Qt::NoFocus) {
        painter.setPen(palette().color(hasFocus() ? QPalette::Highlight : QPalette::PlaceholderText));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
    if (m_isHighlighted) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 3.0));
        painter.drawRect(rect().adjusted(1, 1, -2, -2));
    }
    if (!isEnabled())
        painter.fillRect(rect(), QColor(128, 128, 128, 128));
}

void ImageTile::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && focusPolicy() != Qt::NoFocus) {
        setFocus(Qt::MouseFocusReason);
        emit pressed(event->position().toPoint());
    }
}

void ImageTile::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && focusPolicy() != Qt::NoFocus)
        emit doubleClicked(event->position().toPoint());
}

void ImageTile::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Space && focusPolicy() != Qt::NoFocus)
        emit pressed(rect().center());
    else
        QWidget::keyPressEvent(event);
}

} // namespace host::dcl
