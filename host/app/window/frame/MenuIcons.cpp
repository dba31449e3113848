#include "host/app/window/frame/MenuIcons.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

namespace host::app {

namespace {

/// What is drawn of an icon on a field of 24 by 24, y down: M and L to a point, C along a Bézier curve, Z back to the
/// begin, A an arc (centre, radius, start and sweep in degrees, to the left), O a circle (centre, radius), R a
/// rectangle (corner, size). What stands behind "!" has the colour that says what is done or what comes of it.
struct IconDrawing
{
    const char *name;
    const char *drawing;
};

// clang-format off
constexpr IconDrawing drawings[] = {
    {"new", "M 6 3 L 14 3 L 18 7 L 18 21 L 6 21 Z M 14 3 L 14 7 L 18 7"},
    {"open", "M 3 19 L 3 5 L 9 5 L 11 8 L 19 8 L 19 11 M 3 19 L 7 11 L 22 11 L 18 19 Z"},
    {"save", "M 4 4 L 17 4 L 20 7 L 20 20 L 4 20 Z M 8 4 L 8 9 L 15 9 L 15 4 ! R 7 13 10 7"},
    {"undo", "M 4 9 L 14 9 A 14 14 5 90 -180 L 9 19 ! M 9 4 L 4 9 L 9 14"},
    {"redo", "M 20 9 L 10 9 A 10 14 5 90 180 L 15 19 ! M 15 4 L 20 9 L 15 14"},
    {"zoomExtents", "O 10 10 6.5 M 15 15 L 21 21 ! M 7 9 L 7 7 L 9 7 M 11 7 L 13 7 L 13 9 M 13 11 L 13 13 L 11 13 M 9 13 L 7 13 L 7 11"},
    {"zoomWindow", "O 10 10 6.5 M 15 15 L 21 21 ! R 7 8 6 4"},
    {"zoomIn", "O 10 10 6.5 M 15 15 L 21 21 ! M 7 10 L 13 10 M 10 7 L 10 13"},
    {"zoomOut", "O 10 10 6.5 M 15 15 L 21 21 ! M 7 10 L 13 10"},
    {"pan", "M 12 3 L 12 21 M 3 12 L 21 12 ! M 9 6 L 12 3 L 15 6 M 9 18 L 12 21 L 15 18 M 6 9 L 3 12 L 6 15 M 18 9 L 21 12 L 18 15"},
    {"line", "M 4 20 L 20 4 ! O 4 20 1.3 O 20 4 1.3"},
    {"polyline", "M 3 19 L 8 6 L 14 6 A 14 11 5 90 -180 L 11 16 ! O 3 19 1.3 O 11 16 1.3"},
    {"arc", "A 4 20 16 0 90 ! O 4 4 1.3 O 20 20 1.3"},
    {"circle", "O 12 12 9 ! O 12 12 1"},
    {"ellipse", "M 2.5 12 C 2.5 5 21.5 5 21.5 12 C 21.5 19 2.5 19 2.5 12 Z ! O 12 12 1"},
    {"rectangle", "R 3 6 18 12 ! O 3 18 1.3 O 21 6 1.3"},
    {"polygon", "M 12 3 L 20.6 9.2 L 17.3 19.3 L 6.7 19.3 L 3.4 9.2 Z ! O 12 12 1"},
    {"spline", "M 3 18 C 7 -2 15 26 21 6 ! O 3 18 1.3 O 21 6 1.3"},
    {"point", "M 12 4 L 12 20 M 4 12 L 20 12 ! O 12 12 4"},
    {"hatch", "R 3 3 18 18 ! M 3 10 L 10 3 M 3 17 L 17 3 M 7 21 L 21 7 M 14 21 L 21 14"},
    {"text", "M 4 20 L 11 4 L 13 4 L 20 20 ! M 7 14 L 17 14"},
    {"insert", "R 3 11 10 10 ! M 21 3 L 9 15 M 9 9.5 L 9 15 L 14.5 15"},
    {"block", "R 4 4 16 16 M 4 4 L 20 20 M 20 4 L 4 20 ! O 12 12 2"},
    {"dimension", "M 4 21 L 4 9 M 20 21 L 20 9 ! M 4 12 L 20 12 M 7.5 9.5 L 4 12 L 7.5 14.5 M 16.5 9.5 L 20 12 L 16.5 14.5 M 10 4 L 12 3 L 12 8"},
    {"erase", "M 14 4 L 21 11 L 12 20 L 7 20 L 3 16 Z M 8.5 9.5 L 15.5 16.5 ! M 14 21 L 21 21"},
    {"copy", "R 3 8 12 12 ! M 9 5 L 9 3 L 21 3 L 21 15 L 18 15"},
    {"mirror", "M 3 19 L 9.5 19 L 9.5 5 Z ! M 21 19 L 14.5 19 L 14.5 5 Z M 12 2 L 12 5 M 12 8 L 12 11 M 12 14 L 12 17 M 12 20 L 12 22"},
    {"offset", "A 21 21 18 90 90 ! A 21 21 11 90 90"},
    {"array", "R 3 3 6 6 ! R 15 3 6 6 R 3 15 6 6 R 15 15 6 6"},
    {"move", "R 3 10 11 11 ! M 10 14 L 21 3 M 15 3 L 21 3 L 21 9"},
    {"rotate", "A 12 13 8 60 270 ! M 11 2 L 16 6 L 11.5 10"},
    {"scale", "R 3 12 9 9 ! M 3 8 L 3 3 L 21 3 L 21 21 L 16 21 M 13 11 L 17 7 M 13 7 L 17 7 L 17 11"},
    {"stretch", "M 12 6 L 4 6 L 4 18 L 12 18 ! M 12 6 L 17 6 L 17 18 L 12 18 M 12 12 L 22 12 M 19.5 9.5 L 22 12 L 19.5 14.5"},
    {"trim", "M 14 2 L 14 22 M 3 12 L 14 12 ! M 17 12 L 18.5 12 M 21 12 L 22 12 M 17.5 16 L 21.5 20 M 21.5 16 L 17.5 20"},
    {"extend", "M 20 2 L 20 22 M 3 12 L 10 12 ! M 10 12 L 19 12 M 16 9 L 19 12 L 16 15"},
    {"break", "M 2 12 L 8.5 12 M 15.5 12 L 22 12 ! M 8.5 7 L 8.5 17 M 15.5 7 L 15.5 17"},
    {"join", "M 3 19 L 9 11 M 15 11 L 21 19 ! M 9 11 L 15 11 O 9 11 1.3 O 15 11 1.3"},
    {"chamfer", "M 4 21 L 4 11 M 13 4 L 21 4 ! M 4 11 L 13 4"},
    {"fillet", "M 4 21 L 4 14 M 14 4 L 21 4 ! A 14 14 10 90 90"},
    {"explode", "R 8 8 8 8 ! M 6 6 L 2.5 2.5 M 18 6 L 21.5 2.5 M 6 18 L 2.5 21.5 M 18 18 L 21.5 21.5"},
    {"match", "M 13 3 L 21 11 L 16 16 L 8 8 Z M 10.5 5.5 L 18.5 13.5 ! M 11 13 L 5 21 L 3 19 Z"},
};
// clang-format on

/// Reads a drawing and paints it as it goes.
class IconPainter
{
public:
    IconPainter(QPainter &painter, QColor colour, QColor accent) : m_painter(painter), m_accent(accent)
    {
        setColour(colour);
    }

    void paint(const char *drawing)
    {
        m_words = QByteArray(drawing).split(' ');
        while (!m_words.isEmpty())
            takeStep(m_words.takeFirst().front());
        flush();
    }

private:
    double number() { return m_words.isEmpty() ? 0.0 : m_words.takeFirst().toDouble(); }
    QPointF point()
    {
        const double x = number();
        return {x, number()};
    }

    void takeStep(char step)
    {
        switch (step) {
        case 'M':
            return m_path.moveTo(point());
        case 'L':
            return m_path.lineTo(point());
        case 'Z':
            return m_path.closeSubpath();
        case 'C':
            return takeCurve();
        case 'A':
            return takeArc();
        case 'O':
            return takeCircle();
        case 'R':
            return takeRectangle();
        case '!':
            flush();
            return setColour(m_accent);
        default:
            return;
        }
    }

    void takeCurve()
    {
        const QPointF first = point();
        const QPointF second = point();
        m_path.cubicTo(first, second, point());
    }

    QRectF square()
    {
        const QPointF centre = point();
        const double radius = number();
        return {centre - QPointF(radius, radius), QSizeF(2.0 * radius, 2.0 * radius)};
    }

    void takeArc()
    {
        const QRectF round = square();
        const double start = number();
        if (m_path.isEmpty())
            m_path.arcMoveTo(round, start);
        m_path.arcTo(round, start, number());
    }

    void takeCircle() { m_path.addEllipse(square()); }

    void takeRectangle()
    {
        const QPointF corner = point();
        const QPointF size = point();
        m_path.addRect(QRectF(corner, QSizeF(size.x(), size.y())));
    }

    void setColour(const QColor &colour)
    {
        m_painter.setPen(QPen(colour, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    }

    void flush()
    {
        m_painter.drawPath(m_path);
        m_path.clear();
    }

    QPainter &m_painter;
    QColor m_accent;
    QPainterPath m_path;
    QByteArrayList m_words;
};

class IconEngine final : public QIconEngine
{
public:
    explicit IconEngine(const IconDrawing &drawing) : m_drawing(drawing) {}

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State) override
    {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const QPalette palette = QGuiApplication::palette();
        const QColor colour = palette.color(group, QPalette::ButtonText);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.topLeft());
        painter->scale(rect.width() / 24.0, rect.height() / 24.0);
        IconPainter(*painter, colour, mode == QIcon::Disabled ? colour : palette.color(QPalette::Link))
            .paint(m_drawing.drawing);
        painter->restore();
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect({0, 0}, size), mode, state);
        return pixmap;
    }

    QIconEngine *clone() const override { return new IconEngine(m_drawing); }

private:
    const IconDrawing &m_drawing;
};

} // namespace

QIcon menuIcon(const QString &name)
{
    for (const IconDrawing &drawing : drawings)
        if (name == QLatin1String(drawing.name))
            return QIcon(new IconEngine(drawing));
    return {};
}

QStringList menuIconNames()
{
    QStringList names;
    for (const IconDrawing &drawing : drawings)
        names.append(QString::fromLatin1(drawing.name));
    return names;
}

} // namespace host::app
