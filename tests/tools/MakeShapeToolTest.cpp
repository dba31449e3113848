#include "tests/support/QtTestPrinters.h"
#include "tests/tools/ToolRun.h"

#include <QDir>

#include <cmath>
#include <gtest/gtest.h>

using namespace tools_test;
using namespace Qt::StringLiterals;

namespace {

struct Point
{
    double x = 0;
    double y = 0;
};

/// A line, or with a bulge (the tangent of a quarter of its angle) an arc.
struct Stroke
{
    Point from;
    Point to;
    double bulge = 0;
};

/// Points along strokes, so close together that their distances say how far two drawings are apart.
std::vector<Point> sampled(const std::vector<Stroke> &strokes)
{
    constexpr int count = 200;
    std::vector<Point> points;
    for (const Stroke &stroke : strokes) {
        const Point run{stroke.to.x - stroke.from.x, stroke.to.y - stroke.from.y};
        for (int i = 0; i <= count; ++i) {
            const double t = double(i) / count;
            // On the arc through both ends: the angle at the chord's start grows evenly with the way.
            const double half = 2 * std::atan(stroke.bulge);
            const double chord = half == 0 ? t : std::sin(half * t) / std::sin(half);
            const double turn = half * (t - 1);
            points.push_back({stroke.from.x + chord * (run.x * std::cos(turn) - run.y * std::sin(turn)),
                              stroke.from.y + chord * (run.x * std::sin(turn) + run.y * std::cos(turn))});
        }
    }
    return points;
}

/// How far the farthest of `points` is from all of `others`.
double farthest(const std::vector<Point> &points, const std::vector<Point> &others)
{
    double most = 0;
    for (const Point point : points) {
        double least = HUGE_VAL;
        for (const Point other : others)
            least = std::min(least, std::hypot(point.x - other.x, point.y - other.y));
        most = std::max(most, least);
    }
    return most;
}

/// A shape of a source file.
struct Shape
{
    QList<QByteArray> header; ///< number, count, name
    QList<int> bytes;
};

/// The shapes of a source, read with no help of the tool.
QList<Shape> shapesOf(const QByteArray &source)
{
    QList<Shape> shapes;
    for (const QByteArray &line : source.split('\n')) {
        EXPECT_LE(line.size(), 128);
        if (line.startsWith('*'))
            shapes.append({line.mid(1).trimmed().split(','), {}});
        else if (!line.startsWith(';') && !shapes.isEmpty())
            for (const QByteArray &byte : line.split(','))
                if (!byte.trimmed().isEmpty())
                    shapes.last().bytes.append(byte.toInt());
    }
    return shapes;
}

/// What the bytes of a shape draw at size 1.
class Plotter
{
public:
    explicit Plotter(const QList<int> &bytes) : m_bytes(bytes)
    {
        while (m_next < m_bytes.size() - 1)
            step(take());
        EXPECT_EQ(take(), 0) << "the end";
        EXPECT_EQ(m_scale, 1.0) << "what is scaled is scaled back";
    }

    std::vector<Stroke> strokes;

private:
    int take()
    {
        const int byte = m_bytes.value(m_next++);
        EXPECT_TRUE(byte >= -127 && byte <= 255) << byte;
        return byte;
    }
    void go(double x, double y, double bulge = 0)
    {
        const Point to{m_at.x + x * m_scale, m_at.y + y * m_scale};
        if (m_isDown)
            strokes.push_back({m_at, to, bulge});
        m_at = to;
    }
    void step(int code)
    {
        static const double sides[] = {1, 1, 1, 0.5, 0, -0.5, -1, -1, -1, -1, -1, -0.5, 0, 0.5, 1, 1};
        switch (code) {
        case 1:
        case 2:
            m_isDown = code == 1;
            return;
        case 3:
        case 4:
            m_scale *= std::pow(take(), code == 3 ? -1 : 1);
            return;
        case 8:
        case 12: {
            const int x = take();
            const int y = take();
            return go(x, y, code == 12 ? take() / 127.0 : 0);
        }
        case 9:
            for (;;) {
                const int x = take();
                const int y = take();
                if (x == 0 && y == 0)
                    return;
                go(x, y);
            }
        case 10: {
            const int radius = take();
            EXPECT_EQ(take(), 0) << "all octants from the right";
            go(-2 * radius, 0, 1);
            return go(2 * radius, 0, 1);
        }
        default:
            EXPECT_GE(code, 16) << "no code of a shape";
            go(sides[code % 16] * (code / 16), sides[(code + 12) % 16] * (code / 16));
        }
    }

    QList<int> m_bytes;
    qsizetype m_next = 0;
    Point m_at;
    bool m_isDown = true;
    double m_scale = 1;
};

class MakeShapeTool : public ToolTest
{
protected:
    static QString confirmed(const QString &file, const QString &resolution)
    {
        return u"command MAKESHAPE\ndialog Dlg_QT_MakeShape\nset shapeFile %1\nset name new\nset resolution %2\n"
               "click acceptButton\n"_s.arg(file, resolution);
    }
    static QString picked(const QString &base) { return u"window 90,-20 140,30\nenter\npoint %1\n"_s.arg(base); }

    QString file = run.path(u"my.shp"_s);
    const QString line = u"lisp (entmake '((0 . \"LINE\") (10 100.0 0.0 0.0) (11 110.0 0.0 0.0)))\n"_s;
};

TEST_F(MakeShapeTool, TheBytesDrawWhatWasPicked)
{
    const double quarter = std::tan(M_PI / 8);
    std::vector<Stroke> rays;
    for (const double x : {-9, -7, -3, 0, 2, 6, 9})
        for (const double y : {-9, 0, 5, 9})
            rays.push_back({{10, 0}, {10 + x, y}});
    const struct
    {
        const char *what;
        const char *entities; ///< drawn around 100,0
        Point base;
        std::vector<Stroke> strokes;
    } rows[] = {
        {"lines in all directions",
         "(foreach x '(-9.0 -7.0 -3.0 0.0 2.0 6.0 9.0) (foreach y '(-9.0 0.0 5.0 9.0) (made (list '(0 . \"LINE\") "
         "'(10 110.0 0.0 0.0) (list 11 (+ 110.0 x) y 0.0)))))",
         {0, 0},
         rays},
        {"an arc of three quarters",
         "(made (list '(0 . \"ARC\") '(10 110.0 0.0 0.0) '(40 . 8.0) '(50 . 0.0) (cons 51 (* 1.5 pi))))",
         {0, 0},
         {{{18, 0}, {10, 8}, quarter}, {{10, 8}, {2, 0}, quarter}, {{2, 0}, {10, -8}, quarter}}},
        {"a circle",
         "(made '((0 . \"CIRCLE\") (10 110.0 0.0 0.0) (40 . 8.0)))",
         {10, 0},
         {{{18, 0}, {2, 0}, 1}, {{2, 0}, {18, 0}, 1}}},
        {"a closed polyline with bulges to both sides",
         "(made '((0 . \"LWPOLYLINE\") (100 . \"AcDbEntity\") (100 . \"AcDbPolyline\") (90 . 3) (70 . 1) "
         "(10 100.0 0.0) (42 . 0.5) (10 110.0 0.0) (42 . -0.3) (10 105.0 9.0) (42 . 1.5)))",
         {0, 0},
         {{{0, 0}, {10, 0}, 0.5}, {{10, 0}, {5, 9}, -0.3}, {{5, 9}, {0, 0}, 1.5}}},
        {"polylines of early versions, fitted ones and what is seen from behind",
         "(foreach one '(((0 . \"POLYLINE\") (66 . 1) (70 . 1)) ((0 . \"VERTEX\") (10 100.0 0.0 0.0) (42 . 0.5)) "
         "((0 . \"VERTEX\") (10 110.0 0.0 0.0)) ((0 . \"VERTEX\") (10 105.0 9.0 0.0)) ((0 . \"SEQEND\")) "
         "((0 . \"POLYLINE\") (66 . 1) (70 . 4)) ((0 . \"VERTEX\") (10 100.0 12.0 0.0) (70 . 16)) "
         "((0 . \"VERTEX\") (10 100.0 1.0 0.0) (70 . 8)) ((0 . \"VERTEX\") (10 104.0 9.0 0.0) (70 . 8)) ((0 . "
         "\"SEQEND\"))"
         "((0 . \"ARC\") (10 -105.0 0.0 0.0) (40 . 4.0) (50 . 0.0) (51 . 1.5707963267948966) (210 0.0 0.0 -1.0))) "
         "(made one))",
         {0, 0},
         {{{0, 0}, {10, 0}, 0.5}, {{10, 0}, {5, 9}}, {{5, 9}, {0, 0}}, {{0, 1}, {4, 9}}, {{1, 0}, {5, 4}, -quarter}}},
        {"the pen is lifted, and lines are turned round",
         "(foreach x '(0.0 3.0 7.0) (made (list '(0 . \"LINE\") (list 10 (+ 100.0 x) 0.0 0.0) "
         "(list 11 (+ 100.0 x) 10.0 0.0))))",
         {5, 5},
         {{{0, 0}, {0, 10}}, {{3, 0}, {3, 10}}, {{7, 0}, {7, 10}}}},
    };
    for (const auto &row : rows) {
        std::vector<Point> expected = sampled(row.strokes);
        const auto [left, right] = std::ranges::minmax(expected, {}, &Point::x);
        const auto [low, high] = std::ranges::minmax(expected, {}, &Point::y);
        const double size = std::max(right.x - left.x, high.y - low.y);
        for (Point &point : expected)
            point = {(point.x - row.base.x) / size, (point.y - row.base.y) / size};
        for (const int resolution : {12, 255}) {
            SCOPED_TRACE(std::string(row.what) + ", " + std::to_string(resolution));
            QFile::remove(file);
            plays(u"lisp (defun made (data) (if (not (entmake data)) (exit)))\nlisp %1\n"_s.arg(
                      QLatin1StringView(row.entities)) +
                  confirmed(file, QString::number(resolution)) +
                  picked(u"%1,%2"_s.arg(100 + row.base.x).arg(row.base.y)) +
                  u"expect-printed Shape NEW, number 1,\n"_s);
            const QList<Shape> shapes = shapesOf(ToolRun::readFile(file));
            ASSERT_EQ(shapes.size(), 1);
            EXPECT_EQ(shapes[0].header, (QList<QByteArray>{"1", QByteArray::number(shapes[0].bytes.size()), "NEW"}));
            const std::vector<Point> drawn = sampled(Plotter(shapes[0].bytes).strokes);
            // An end lies off by up to 0.71 steps, an arc's middle by a quarter of a step more.
            const double tolerance = 1.0 / resolution + 0.01;
            EXPECT_LE(farthest(expected, drawn), tolerance);
            EXPECT_LE(farthest(drawn, expected), tolerance);
        }
    }
}

// A real source of megabytes: one shape comes in, every other byte stays. It is a font, so its first header is made one
// of a shape.
TEST_F(MakeShapeTool, LargeSourcesStayAsTheyAre)
{
    const QString corpus = qEnvironmentVariable("ORTAKIT_CORPUS");
    QByteArray source = ToolRun::readFile(corpus + u"/../fonts/azomix.shp"_s);
    if (corpus.isEmpty() || source.isEmpty())
        GTEST_SKIP() << "ORTAKIT_CORPUS names no folder of drawings with fonts beside it";
    source.replace("*UNIFONT,6,azomix", "*254,6,SIGN");
    source.truncate(source.size() - 1);
    run.writeFile(u"my.shp"_s, source);
    plays(line + confirmed(file, u"10"_s) + picked(u"100,0"_s));
    const bool endsInLineFeed = source.endsWith('\n');
    EXPECT_TRUE(ToolRun::readFile(file) == source + (endsInLineFeed ? "" : "\n") + "*1,6,NEW\n3,10,160,4,10,0\n");
}

} // namespace
