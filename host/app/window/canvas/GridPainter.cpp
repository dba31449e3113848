#include "host/app/window/canvas/GridPainter.h"

#include "host/app/window/canvas/GhostPicture.h"
#include "host/kernel/documents/CurrentView.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/input/GridLattice.h"
#include "host/kernel/lisp/LispConversion.h"
#include "host/kernel/variables/SystemVariables.h"

#include <QPainter>

#include <cmath>

namespace host::app {

using drawing::Vec2;

namespace {

constexpr double closestLines = 8.0; // pixels

// Of GRIDDISPLAY.
constexpr int goesBeyondLimits = 1;
constexpr int thinsOut = 2;

/// The lines of one direction: where they go, and how one comes from the other.
struct LineSet
{
    double first = 0.0; ///< numbers of the lattice
    double last = 0.0;
    double step = 1.0;
    double major = 1.0; ///< stronger ones are multiples of that
};

/// From numbers of the lattice to pixels.
FlatMap latticeOnScreen(const kernel::Document &document, const kernel::GridLattice &lattice,
                        const view::ViewTransform &view)
{
    const double elevation = document.variables().real(u"ELEVATION");
    const auto through = [&](double column, double row) -> Vec2 {
        const Vec2 user = lattice.at(column, row);
        const QPointF at =
            view.toScreen(kernel::shownPoint(document, kernel::toWorld(document, {user.x, user.y, elevation})).xy());
        return {at.x(), at.y()};
    };
    const Vec2 origin = through(0.0, 0.0);
    return {origin, through(1.0, 0.0) - origin, through(0.0, 1.0) - origin};
}

/// Lines that are `gap` pixels apart where each is drawn; nothing where they come too close.
std::optional<LineSet> thinned(LineSet lines, double gap, int major, bool mayThin)
{
    const double factor = std::max(2, major);
    constexpr int mostTimes = 60;
    for (int i = 0; i < mostTimes && gap * lines.step < closestLines; ++i) {
        if (!mayThin)
            return {};
        lines.step *= factor;
    }
    lines.major = lines.step * factor;
    lines.first = std::ceil(lines.first / lines.step) * lines.step;
    // Numbers so large that the next one is the same have no lines between them.
    constexpr double mostLines = 10'000.0;
    const double count = (lines.last - lines.first) / lines.step;
    if (!(count >= 0.0) || count > mostLines)
        return {};
    return lines;
}

/// Ends of the lines, first those between and then the stronger ones.
std::pair<QList<QLineF>, QList<QLineF>> gridLines(const LineSet &set, const std::function<QLineF(double)> &line)
{
    std::pair<QList<QLineF>, QList<QLineF>> lines;
    for (double i = 0.0; set.first + i * set.step <= set.last; i += 1.0) {
        const double number = set.first + i * set.step;
        const bool isMajor = std::abs(std::remainder(number, set.major)) < set.step / 2.0;
        (isMajor ? lines.second : lines.first).append(line(number));
    }
    return lines;
}

void clipToLimits(QPainter &painter, const kernel::Document &document, const view::ViewTransform &view)
{
    const Vec2 low = document.variables().point(u"LIMMIN").xy();
    const Vec2 high = document.variables().point(u"LIMMAX").xy();
    QPolygonF corners;
    for (const Vec2 &corner : {low, Vec2{high.x, low.y}, high, Vec2{low.x, high.y}})
        corners.append(view.toScreen(kernel::shownPoint(document, {corner.x, corner.y, 0.0}).xy()));
    // Lines on the limits are within.
    painter.setClipRect(corners.boundingRect().adjusted(-1.0, -1.0, 1.0, 1.0));
}

} // namespace

void paintGrid(QPainter &painter, kernel::Document &document, const AimScreen &screen)
{
    const kernel::SystemVariables &variables = document.variables();
    const std::optional<kernel::GridLattice> lattice =
        variables.integer(u"GRIDMODE") != 0 ? kernel::gridLattice(variables) : std::nullopt;
    if (!lattice)
        return;
    const FlatMap map = latticeOnScreen(document, *lattice, screen.view);
    const double area = std::abs(drawing::cross(map.xAxis, map.yAxis));
    if (!(area > 0.0) || !std::isfinite(area))
        return;
    Vec2 low = map.toPlane({0.0, 0.0});
    Vec2 high = low;
    for (const QPointF &corner : {QPointF(screen.size.width(), 0), QPointF(0, screen.size.height()),
                                  QPointF(screen.size.width(), screen.size.height())}) {
        const Vec2 cell = map.toPlane(corner);
        low = {std::min(low.x, cell.x), std::min(low.y, cell.y)};
        high = {std::max(high.x, cell.x), std::max(high.y, cell.y)};
    }
    const int shown = variables.integer(u"GRIDDISPLAY");
    const int major = variables.integer(u"GRIDMAJOR", 5);
    const auto columns = thinned({low.x, high.x}, area / map.yAxis.length(), major, (shown & thinsOut) != 0);
    const auto rows = thinned({low.y, high.y}, area / map.xAxis.length(), major, (shown & thinsOut) != 0);
    if (!columns || !rows)
        return;
    painter.save();
    if ((shown & goesBeyondLimits) == 0)
        clipToLimits(painter, document, screen.view);
    const bool isDark = screen.ground == view::Ground::Black;
    // The drawing stays in front: its lines are farther from the ground than those of the grid.
    painter.setCompositionMode(isDark ? QPainter::CompositionMode_Lighten : QPainter::CompositionMode_Darken);
    const auto [thinColumns, strongColumns] = gridLines(*columns, [&](double x) {
        return QLineF(map.toScreen({x, low.y}), map.toScreen({x, high.y}));
    });
    const auto [thinRows, strongRows] = gridLines(*rows, [&](double y) {
        return QLineF(map.toScreen({low.x, y}), map.toScreen({high.x, y}));
    });
    painter.setPen(QPen(isDark ? QColor(0x2a, 0x2e, 0x33) : QColor(0xe6, 0xe8, 0xea), 0));
    painter.drawLines(thinColumns);
    painter.drawLines(thinRows);
    painter.setPen(QPen(isDark ? QColor(0x4c, 0x52, 0x5a) : QColor(0xc8, 0xcc, 0xd0), 0));
    painter.drawLines(strongColumns);
    painter.drawLines(strongRows);
    painter.restore();
}

} // namespace host::app
