#include "host/view/paint/SceneWalker.h"

#include "host/drawing/records/Blocks.h"
#include "host/view/build/Scene.h"
#include "host/view/display/ArrayCells.h"

namespace host::view {

namespace {

constexpr double smallest = 0.8; ///< pixels

constexpr std::int64_t recordsOfUnit = 16;
/// Going through so few costs less than asking which of them are seen.
constexpr std::size_t fewRecords = 256;

QRectF flatReach(const Box &box, const Matrix &map)
{
    const Vec3 middle = (box.low + box.high) * 0.5;
    const Vec3 half = (box.high - box.low) * 0.5;
    const QPointF center = flat(map, middle);
    const double dx = std::abs(map.xAxis.x) * half.x + std::abs(map.yAxis.x) * half.y + std::abs(map.zAxis.x) * half.z;
    const double dy = std::abs(map.xAxis.y) * half.x + std::abs(map.yAxis.y) * half.y + std::abs(map.zAxis.y) * half.z;
    return {center.x() - dx, center.y() - dy, 2.0 * dx, 2.0 * dy};
}

bool touches(const QRectF &a, const QRectF &b)
{
    return a.left() <= b.right() && b.left() <= a.right() && a.top() <= b.bottom() && b.top() <= a.bottom();
}

} // namespace

SceneWalker::SceneWalker(Scene &scene, const WalkOptions &options, DisplaySink &sink, drawing::WorkBudget &work)
    : m_scene(scene), m_options(options), m_sink(sink), m_work(work), m_refusalsBefore(work.refusals()),
      m_cost(m_options.view, options.isRaster), m_isShown(scene.blockCount(), 0)
{
}

/// Whether what comes next may be shown.
bool SceneWalker::mayGoOn(const Context &context, std::int64_t units)
{
    return !context.isRepeated || m_work.take(units);
}

void SceneWalker::walk(int block, const Matrix &toScreen)
{
    begin(block, toScreen);
    goOn();
}

void SceneWalker::begin(int block, const Matrix &toScreen)
{
    m_isOpen.assign(m_scene.blockCount(), 0);
    m_isOpen[static_cast<std::size_t>(block)] = 1;
    m_walked = &m_scene.display(block);
    m_toScreen = toScreen;
    m_places = seenPlaces(*m_walked, toScreen);
    m_next = 0;
    m_effort = {};
}

bool SceneWalker::goOn(const std::function<bool()> &mayGoOn)
{
    constexpr std::size_t recordsOfQuestion = 100;
    const std::size_t count = m_places ? m_places->size() : m_walked->records.size();
    for (; m_next < count; ++m_next) {
        if (mayGoOn && m_next % recordsOfQuestion == 0 && !mayGoOn())
            return false;
        const RecordSummary &record = m_walked->records[m_places ? (*m_places)[m_next] : m_next];
        if (record.isEmpty || (!record.isEndless && seenPart() && isOutside(record.box, m_toScreen, nullptr)))
            continue;
        if (!m_sink.beginRecord(record.record))
            continue;
        const std::int64_t before = m_pieces - m_work.left();
        walkDisplay(*m_walked, record, {.map = m_toScreen});
        const std::int64_t units = m_pieces - m_work.left() - before + 1;
        m_effort.units += units;
        m_effort.records += 1;
        m_effort.heaviest = std::max(m_effort.heaviest, units);
    }
    return true;
}

void SceneWalker::walkRecord(const BlockDisplay &block, const RecordSummary &record, const Matrix &toScreen)
{
    m_isOpen.assign(m_scene.blockCount(), 0);
    // Records are looked at one by one, and many may show the same block.
    m_isShown.assign(m_scene.blockCount(), 1);
    if (m_sink.beginRecord(record.record))
        walkDisplay(block, record, {.map = toScreen});
}

/// Only where the map keeps heights out of sight can be told what part of the block the view is.
std::optional<std::vector<std::uint32_t>> SceneWalker::seenPlaces(const BlockDisplay &block, const Matrix &map) const
{
    const double area = map.xAxis.x * map.yAxis.y - map.xAxis.y * map.yAxis.x;
    if (!seenPart() || block.records.size() < fewRecords || map.zAxis.x != 0.0 || map.zAxis.y != 0.0 ||
        !std::isnormal(area)) {
        return std::nullopt;
    }
    Box seen;
    for (const QPointF &corner :
         {seenPart()->topLeft(), seenPart()->topRight(), seenPart()->bottomLeft(), seenPart()->bottomRight()}) {
        const double x = corner.x() - map.origin.x;
        const double y = corner.y() - map.origin.y;
        seen.add(Vec3{(x * map.yAxis.y - y * map.yAxis.x) / area, (y * map.xAxis.x - x * map.xAxis.y) / area, 0.0});
    }
    // What lies on the edge must not be lost to rounding.
    const Vec3 slack{(seen.high.x - seen.low.x) * 1e-3, (seen.high.y - seen.low.y) * 1e-3, 0.0};
    seen = {seen.low - slack, seen.high + slack};
    const Vec3 all = block.box.high - block.box.low;
    const bool isMost = seen.high.x - seen.low.x > all.x * 0.7 && seen.high.y - seen.low.y > all.y * 0.7;
    return isMost ? std::nullopt : std::optional(m_scene.recordsIn(block.number, seen));
}

bool SceneWalker::isOutside(const Box &box, const Matrix &map, QRectF *reach) const
{
    if (box.isEmpty())
        return true;
    const QRectF flatBox = flatReach(box, map);
    if (reach)
        *reach = flatBox;
    return seenPart() && !touches(flatBox, *seenPart());
}

void SceneWalker::walkBlock(const BlockDisplay &block, const Context &context)
{
    if (!mayGoOn(context, static_cast<std::int64_t>(block.records.size()) / recordsOfUnit))
        return;
    if (block.external && block.external->scene)
        walkExternal(*block.external, context);
    // Some time, so that a block of many records out of sight ends as well.
    const auto show = [&](const RecordSummary &record) {
        if (context.isRepeated && m_work.left() <= 0)
            return false;
        walkDisplay(block, record, context);
        return true;
    };
    bool isDone = true;
    if (const auto places = seenPlaces(block, context.map))
        isDone = std::ranges::all_of(*places, [&](std::uint32_t place) { return show(block.records[place]); });
    else
        isDone = std::ranges::all_of(block.records, show);
    if (!isDone)
        m_work.refuse();
}

void SceneWalker::walkExternal(const ExternalView &external, const Context &context)
{
    const BlockDisplay &model = external.scene->display(Scene::modelSpace);
    SceneWalker within(*external.scene, m_options, m_sink, m_work);
    within.m_isOpen.assign(external.scene->blockCount(), 0);
    within.m_isOpen[Scene::modelSpace] = 1;
    Context inner = context;
    inner.map = context.map * external.placement;
    within.walkBlock(model, inner);
    m_isTooDeep |= within.m_isTooDeep;
}

void SceneWalker::walkDisplay(const BlockDisplay &block, const RecordSummary &record, const Context &context)
{
    QRectF reach;
    if (record.isEmpty || (!record.isEndless && isOutside(record.box, context.map, &reach)))
        return;
    const bool isSmall =
        m_options.collapseSmall && !record.isEndless && reach.width() < smallest && reach.height() < smallest;
    if (isSmall && showAsDot(record, reach.center(), context))
        return;
    RecordDisplay made;
    walkItems(m_scene.shown(block, record, made).items, context,
              isSmall ? std::optional(reach.center()) : std::nullopt);
}

bool SceneWalker::showAsDot(const RecordSummary &record, QPointF at, const Context &context)
{
    if (!record.hasOneStyle || record.isKept || record.hasMarks)
        return false;
    const ResolvedStyle style = m_scene.appearance().resolve(m_scene.styleOf(record), context.insert, m_options.ground);
    if (!isHidden(style, false, context) && mayGoOn(context, 1))
        m_sink.dot(at, style);
    return true;
}

/// With `dot` given all shows as a dot there, in the style of the first that is seen.
void SceneWalker::walkItems(const std::vector<DisplayItem> &items, const Context &context, std::optional<QPointF> dot)
{
    for (const DisplayItem &item : items) {
        const ResolvedStyle style = m_scene.appearance().resolve(item.style, context.insert, m_options.ground);
        const Appearance &appearance = m_scene.appearance();
        const bool isHiddenFrame = (item.isMaskFrame && !appearance.showsMaskFrames(m_options.plottedOnly)) ||
                                   (item.isImageFrame && !appearance.showsImageFrames(m_options.plottedOnly));
        const auto *reference = std::get_if<std::unique_ptr<Reference>>(&item.shape);
        // On the layer of a viewport lies its frame alone: people hide that and see through it all the same.
        const bool isView = reference && (*reference)->isViewport;
        if (isHiddenFrame || (!isView && isHidden(style, reference != nullptr, context)))
            continue;
        if (!mayGoOn(context, 1))
            return;
        // A point mark has its size on the screen, whatever the size of its box.
        if (dot && !std::holds_alternative<PointMark>(item.shape)) {
            m_sink.dot(*dot, style);
            return;
        }
        std::visit([&](const auto &shape) { show(shape, style, context); }, item.shape);
    }
}

/// A layer that is off hides what lies on it but not what inserts on it bring from other layers; a frozen one hides
/// both.
bool SceneWalker::isHidden(const ResolvedStyle &style, bool isReference, const Context &context) const
{
    const LayerLook &look = m_scene.appearance().layerLook(style.layer);
    if (look.isFrozen || (look.isOff && !isReference) || (m_options.plottedOnly && !look.isPlotted))
        return true;
    return context.hiddenLayers && std::ranges::binary_search(*context.hiddenLayers, style.layer);
}

void SceneWalker::show(const std::unique_ptr<Reference> &reference, const ResolvedStyle &style, const Context &context)
{
    const auto index = static_cast<std::size_t>(reference->block);
    if (m_isOpen[index])
        return;
    const BlockDisplay &block = m_scene.display(reference->block);
    if (block.box.isEmpty() && !block.isEndless && reference->beside.empty())
        return;
    m_isTooDeep |= context.depth >= drawing::deepestNesting;
    if (context.depth >= drawing::deepestNesting)
        return;
    m_isOpen[index] = 1;
    showArray(*reference, block, style, context);
    m_isOpen[index] = 0;
}

void SceneWalker::showArray(const Reference &reference, const BlockDisplay &block, const ResolvedStyle &style,
                            const Context &context)
{
    const Matrix first = context.map * reference.placement;
    if (reference.columns == 1 && reference.rows == 1) {
        Context inner = context;
        inner.map = first;
        showCell(reference, block, style, inner);
        return;
    }
    const Vec3 columnStep = context.map.direction(reference.columnStep);
    const Vec3 rowStep = context.map.direction(reference.rowStep);
    QRectF cell = flatReach(block.box, first);
    if (!reference.beside.empty())
        cell |= flatReach(reference.besideBox, context.map);
    const ArrayCells cells(cell, columnStep.xy(), rowStep.xy(), reference.columns, reference.rows, seenPart());
    bool isRepeated = context.isRepeated;
    cells.visit([&](std::int64_t column, std::int64_t row) {
        if (isRepeated && !m_work.take(1))
            return false;
        const Vec3 offset = columnStep * static_cast<double>(column) + rowStep * static_cast<double>(row);
        Context inner = context;
        inner.isRepeated = std::exchange(isRepeated, true);
        inner.map = first;
        inner.map.origin = first.origin + offset;
        showCell(reference, block, style, inner);
        inner.map = context.map;
        inner.map.origin = context.map.origin + offset;
        walkItems(reference.beside, inner, std::nullopt);
        return true;
    });
}

void SceneWalker::showCell(const Reference &reference, const BlockDisplay &block, const ResolvedStyle &style,
                           const Context &context)
{
    QRectF reach;
    if (!block.isEndless && isOutside(block.box, context.map, &reach))
        return;
    if (m_options.collapseSmall && !block.isEndless && reach.width() < smallest && reach.height() < smallest) {
        m_sink.dot(reach.center(), style);
        return;
    }
    Context inner = context;
    inner.depth = context.depth + 1;
    inner.isRepeated |= std::exchange(m_isShown[static_cast<std::size_t>(block.number)], 1) != 0;
    if (!reference.isViewport)
        inner.insert = &style;
    if (!reference.hiddenLayers.empty())
        inner.hiddenLayers = &reference.hiddenLayers;
    if (reference.clip.empty()) {
        walkBlock(block, inner);
        return;
    }
    Track edge;
    for (const Vec3 &corner : reference.clip)
        edge.points.push_back(flat(context.map, corner));
    // Its edges are sorted as those of an area are, and that takes long in what stands only once as well.
    FillCost cost(m_cost);
    cost.add(edge);
    const auto corners = static_cast<std::int64_t>(edge.points.size());
    if (!mayGoOn(inner, corners) || !m_work.take(cost.units()))
        return;
    m_sink.beginClip(QPolygonF(QList<QPointF>(edge.points.begin(), edge.points.end())));
    walkBlock(block, inner);
    m_sink.endClip();
}

} // namespace host::view
