#include "host/view/paint/NearEntities.h"

#include "host/drawing/records/Blocks.h"
#include "host/view/display/ArrayCells.h"
#include "host/view/display/DisplayBoxes.h"

namespace host::view {

namespace {

/// So many units of a cell array's own picture are the reach.
constexpr double cellPixels = 10.0;

Box nearBox(Vec2 point, double reach)
{
    constexpr double endless = std::numeric_limits<double>::infinity();
    return {{point.x - reach, point.y - reach, -endless}, {point.x + reach, point.y + reach, endless}};
}

/// Whether what is upright stays so: then the reach of a point is one in the block too.
bool staysUpright(const Matrix &map)
{
    return map.xAxis.z == 0.0 && map.yAxis.z == 0.0 && map.zAxis.x == 0.0 && map.zAxis.y == 0.0 &&
           map.determinant() != 0.0;
}

class NearSearch
{
public:
    NearSearch(Scene &scene, Vec2 point, double reach, drawing::WorkBudget &work)
        : m_scene(scene), m_reach(nearBox(point, reach)), m_cellScale(cellPixels / reach), m_work(work)
    {
    }

    void search(int block, const Matrix &map)
    {
        m_open.push_back(block);
        const BlockDisplay &display = m_scene.display(block);
        for (const std::uint32_t place : m_scene.recordsIn(block, within(map))) {
            if (!m_work.take(1))
                break;
            const RecordSummary &record = display.records[place];
            if (!record.isEmpty && !record.isGone && !record.isHidden)
                visit(display, record, map);
        }
        m_open.pop_back();
    }

    std::vector<NearEntity> take() { return std::move(m_found); }

private:
    /// Where the block's records have to be.
    Box within(const Matrix &map) const
    {
        constexpr double endless = std::numeric_limits<double>::infinity();
        if (!staysUpright(map))
            return {{-endless, -endless, -endless}, {endless, endless, endless}};
        const Matrix back = map.inverted();
        Box box;
        for (const double x : {m_reach.low.x, m_reach.high.x})
            for (const double y : {m_reach.low.y, m_reach.high.y})
                box.add(back.point({x, y, 0.0}));
        return box;
    }

    void visit(const BlockDisplay &display, const RecordSummary &record, const Matrix &map)
    {
        RecordDisplay made;
        const RecordDisplay &shown = m_scene.shown(display, record, made);
        bool isSeen = false;
        std::vector<const Reference *> references;
        for (const DisplayItem &item : shown.items) {
            const auto *reference = std::get_if<std::unique_ptr<Reference>>(&item.shape);
            const LayerLook &look = m_scene.appearance().layerLook(item.style.layer);
            if (look.isFrozen || (look.isOff && !reference))
                continue;
            isSeen = true;
            if (reference && !(*reference)->isViewport)
                references.push_back(reference->get());
        }
        if (isSeen)
            m_found.push_back({record.record, map, m_open.size() > 1});
        for (const Reference *reference : references)
            enter(*reference, map);
    }

    void enter(const Reference &reference, const Matrix &map)
    {
        const int block = reference.block;
        const bool isOpen = std::ranges::find(m_open, block) != m_open.end();
        if (isOpen || m_open.size() > static_cast<std::size_t>(drawing::deepestNesting))
            return;
        const BlockDisplay &display = m_scene.display(block);
        if (display.external)
            return;
        const Matrix first = map * reference.placement;
        const Vec3 columnStep = map.direction(reference.columnStep);
        const Vec3 rowStep = map.direction(reference.rowStep);
        const Box box = mappedBox(display.box, first);
        const bool isEndless = display.isEndless;
        const auto cellAt = [&](std::int64_t column, std::int64_t row) {
            const Vec3 by = columnStep * static_cast<double>(column) + rowStep * static_cast<double>(row);
            if (isEndless || movedBox(box, by).touchesFlat(m_reach))
                search(block, Matrix::translation(by) * first);
            return m_work.take(1);
        };
        if (reference.columns * reference.rows == 1)
            cellAt(0, 0);
        else
            cells(reference, box, columnStep.xy(), rowStep.xy()).visit(cellAt);
    }

    ArrayCells cells(const Reference &reference, const Box &first, Vec2 columnStep, Vec2 rowStep) const
    {
        const auto rectangle = [this](const Box &box) {
            return QRectF(QPointF(box.low.x, box.low.y) * m_cellScale, QPointF(box.high.x, box.high.y) * m_cellScale);
        };
        return {rectangle(first),  columnStep * m_cellScale, rowStep * m_cellScale,
                reference.columns, reference.rows,           rectangle(m_reach)};
    }

    Scene &m_scene;
    const Box m_reach;
    const double m_cellScale; ///< of the cells' picture
    drawing::WorkBudget &m_work;
    std::vector<int> m_open; ///< blocks that are being looked through, the space first
    std::vector<NearEntity> m_found;
};

} // namespace

std::vector<NearEntity> entitiesNear(Scene &scene, int block, Vec2 point, double reach, drawing::WorkBudget &work)
{
    if (!(reach > 0.0) || !std::isfinite(reach) || !std::isfinite(point.x) || !std::isfinite(point.y))
        return {};
    // With all that it shows, so that nothing moves while it is looked through.
    scene.prepare(block);
    NearSearch search(scene, point, reach, work);
    search.search(block, {});
    return search.take();
}

} // namespace host::view
