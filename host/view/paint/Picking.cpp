#include "host/view/paint/Picking.h"

#include "host/drawing/geometry/EntityGeometry.h"
#include "host/view/paint/SceneWalker.h"

#include <QPainterPath>

#include <array>

namespace host::view {

using drawing::Outline;

namespace {

/// Pixels that the aperture or the window is taken to have: what curves are traced by.
constexpr double aperturePixels = 20.0;
constexpr double windowPixels = 2000.0;

/// Collects what is seen of one record. Inside an area is told apart from near its edge.
class OutlineSink final : public DisplaySink
{
public:
    explicit OutlineSink(QPointF probe = {}) : m_probe(probe) {}

    void line(std::span<const QPointF> points, const ResolvedStyle &) override { add(points); }
    void dot(QPointF point, const ResolvedStyle &) override { add(std::array{point}); }

    void fill(const QPainterPath &area, FillKind kind, const ResolvedStyle &) override
    {
        if (m_ignoring > 0)
            return;
        m_isInside |= kind != FillKind::Mask && area.contains(m_probe);
        for (const QPolygonF &polygon : area.toSubpathPolygons())
            add(std::span(polygon.constData(), static_cast<std::size_t>(polygon.size())));
    }

    void text(const TextRun &run, const Matrix &toScreen, const ResolvedStyle &) override
    {
        std::vector<QPointF> box;
        for (const Vec3 corner : {Vec3{0, 0, 0}, Vec3{run.width, 0, 0}, Vec3{run.width, 1, 0}, Vec3{0, 1, 0}, Vec3{}})
            box.push_back(flat(toScreen, corner));
        add(box, true);
    }

    void beginClip(const QPolygonF &polygon) override
    {
        m_ignoring += m_ignoring > 0 || !polygon.containsPoint(m_probe, Qt::OddEvenFill) ? 1 : 0;
        m_clips.push_back(m_ignoring > 0);
    }
    void endClip() override
    {
        m_ignoring -= m_clips.back() ? 1 : 0;
        m_clips.pop_back();
    }

    const Outline &outline() const { return m_outline; }
    bool isInside() const { return m_isInside; }

private:
    void add(std::span<const QPointF> points, bool isFilled = false)
    {
        if (m_ignoring > 0)
            return;
        Outline::Piece piece{.points = {}, .isFilled = isFilled};
        for (const QPointF p : points)
            piece.points.push_back({p.x(), p.y(), 0.0});
        m_outline.pieces.push_back(std::move(piece));
    }

    const QPointF m_probe;
    Outline m_outline;
    bool m_isInside = false;
    int m_ignoring = 0;
    std::vector<char> m_clips;
};

Matrix enlarged(Vec2 origin, double factor)
{
    return Matrix::scaling({factor, factor, factor}) * Matrix::translation({-origin.x, -origin.y, 0.0});
}

QRectF around(QPointF point, double reach)
{
    return {point.x() - reach, point.y() - reach, 2.0 * reach, 2.0 * reach};
}

/// How far the record is from the origin of the map, in its pixels; infinite when it is not seen there.
double distance(Scene &scene, const BlockDisplay &block, const RecordSummary &record, const Matrix &map,
                drawing::WorkBudget &work)
{
    OutlineSink sink;
    SceneWalker walker(
        scene, {.view = around({}, 2.0 * aperturePixels), .withLinetypes = false, .collapseSmall = false}, sink, work);
    walker.walkRecord(block, record, map);
    double best = drawing::flatDistance(sink.outline(), {});
    if (sink.isInside())
        best = std::min(best, aperturePixels * 0.99);
    return best;
}

/// Whether the box of a record with these shapes may be larger than what it shows.
bool isBoxLoose(const RecordDisplay &record)
{
    return record.hasReferences || std::ranges::any_of(record.items, [](const DisplayItem &item) {
               return std::holds_alternative<std::unique_ptr<TextRun>>(item.shape);
           });
}

/// Of what inserts bring from other layers only frozen ones take anything away.
bool isShown(const Scene &scene, const Style &style, bool isReference)
{
    const LayerLook &look = scene.appearance().layerLook(style.layer);
    return !look.isFrozen && (!look.isOff || isReference);
}

/// Whether layers show any of the record.
bool isAnyShown(Scene &scene, const BlockDisplay &block, const RecordSummary &record)
{
    if (record.hasOneStyle && !record.isKept)
        return isShown(scene, scene.styleOf(record), false);
    RecordDisplay made;
    return std::ranges::any_of(scene.shown(block, record, made).items, [&scene](const DisplayItem &item) {
        return isShown(scene, item.style, std::holds_alternative<std::unique_ptr<Reference>>(item.shape));
    });
}

bool isPicked(Scene &scene, const BlockDisplay &block, const RecordSummary &record, const Box &window, PickMode mode,
              drawing::WorkBudget &work)
{
    if (!record.isEndless && !record.box.isEmpty() && window.containsFlat(record.box))
        return isAnyShown(scene, block, record);
    RecordDisplay made;
    if (mode == PickMode::Window && (record.isEndless || !isBoxLoose(scene.shown(block, record, made))))
        return false;
    const double size = std::max(window.high.x - window.low.x, window.high.y - window.low.y);
    const double factor = size > 0.0 ? windowPixels / size : 1.0;
    const QRectF seen(0.0, 0.0, (window.high.x - window.low.x) * factor, (window.high.y - window.low.y) * factor);
    const QPointF middle = seen.center();
    OutlineSink sink(middle);
    WalkOptions options{.withLinetypes = false, .collapseSmall = false};
    if (mode == PickMode::Crossing)
        options.view = seen;
    SceneWalker walker(scene, options, sink, work);
    walker.walkRecord(block, record, enlarged(window.low.xy(), factor));
    const Box scaled{{0.0, 0.0, 0.0}, {seen.width(), seen.height(), 0.0}};
    return mode == PickMode::Crossing ? sink.isInside() || drawing::crosses(sink.outline(), scaled)
                                      : drawing::liesWithin(sink.outline(), scaled);
}

} // namespace

std::vector<RecordId> pickAllAt(Scene &scene, int block, Vec2 point, double aperture, std::size_t most)
{
    scene.prepare(block);
    std::vector<RecordId> picked;
    if (!(aperture > 0.0) || !std::isfinite(aperture) || !std::isfinite(point.x) || !std::isfinite(point.y))
        return picked;
    const Box reach{{point.x - aperture, point.y - aperture, 0.0}, {point.x + aperture, point.y + aperture, 0.0}};
    const Matrix map = enlarged(point, aperturePixels / aperture);
    drawing::WorkBudget work(drawing::pickWork);
    std::vector<std::pair<double, RecordId>> found;
    const BlockDisplay &shown = scene.display(block);
    for (const std::uint32_t place : scene.recordsIn(block, reach, most)) {
        const RecordSummary &record = shown.records[place];
        if (record.isEmpty)
            continue;
        if (const double away = distance(scene, shown, record, map, work); away <= aperturePixels)
            found.emplace_back(away, record.record);
    }
    std::ranges::reverse(found);
    std::ranges::stable_sort(found, {}, &std::pair<double, RecordId>::first);
    std::ranges::transform(found, std::back_inserter(picked), &std::pair<double, RecordId>::second);
    return picked;
}

RecordId pickAt(Scene &scene, int block, Vec2 point, double aperture)
{
    const std::vector<RecordId> picked = pickAllAt(scene, block, point, aperture);
    return picked.empty() ? noRecord : picked.front();
}

std::vector<RecordId> pickRectangle(Scene &scene, int block, Vec2 corner, Vec2 opposite, PickMode mode)
{
    scene.prepare(block);
    std::vector<RecordId> picked;
    if (!std::isfinite(corner.x) || !std::isfinite(corner.y) || !std::isfinite(opposite.x) ||
        !std::isfinite(opposite.y)) {
        return picked;
    }
    Box window;
    window.add(Vec3{corner.x, corner.y, 0.0});
    window.add(Vec3{opposite.x, opposite.y, 0.0});
    drawing::WorkBudget work(drawing::pickWork);
    const BlockDisplay &shown = scene.display(block);
    for (const std::uint32_t place : scene.recordsIn(block, window)) {
        const RecordSummary &record = shown.records[place];
        if (!record.isEmpty && isPicked(scene, shown, record, window, mode, work))
            picked.push_back(record.record);
    }
    return picked;
}

} // namespace host::view
