#include "host/commands/annotate/BoundarySearch.h"

#include "host/commands/common/BoundaryCurve.h"
#include "host/drawing/geometry/EntityGeometry.h"
#include "host/drawing/records/Symbols.h"
#include "host/kernel/input/Picker.h"
#include "host/view/build/EntityExtents.h"

#include <QSet>

#include <algorithm>

namespace host::kernel {

using drawing::Box;
using drawing::CurvePiece;
using drawing::EntityCurve;
using drawing::FlatPiece;
using drawing::Matrix;
using drawing::PlaneGraph;
using drawing::RecordId;
using drawing::Vec2;
using drawing::Vec3;

namespace {

constexpr std::int64_t searchWork = 4'000'000; ///< of one search, through all its windows

bool isText(QByteArrayView type)
{
    return type == "TEXT" || type == "MTEXT" || type == "ATTRIB" || type == "ATTDEF";
}

/// World coordinates to the plane's object coordinates, without height.
Matrix flatMap(const UserPlane &plane)
{
    const auto flat = [&](const Vec3 &world) {
        const Vec3 at = plane.objectFromWorld(world);
        return Vec3{at.x, at.y, 0.0};
    };
    const Vec3 origin = flat({});
    return {flat({1.0, 0.0, 0.0}) - origin, flat({0.0, 1.0, 0.0}) - origin, flat({0.0, 0.0, 1.0}) - origin, origin};
}

/// What of an endless line lies about a window.
CurvePiece finitePiece(const CurvePiece &piece, const Box &window)
{
    if (!piece.isEndless())
        return piece;
    const Vec3 middle = (window.low + window.high) * 0.5;
    const double reach = (window.high - window.low).length() + 1.0;
    const double speed = piece.firstDerivative(std::isfinite(piece.start()) ? piece.start() : 0.0).length();
    const double at = piece.closest({middle.x, middle.y, 0.0});
    const double half = speed > 0.0 ? reach / speed : 0.0;
    return piece.part(std::max(piece.start(), at - half), std::min(piece.end(), at + half));
}

PlaneGraph::Loop rectangleLoop(const Box &box)
{
    const Vec3 corners[] = {{box.low.x, box.low.y, 0.0},
                            {box.high.x, box.low.y, 0.0},
                            {box.high.x, box.high.y, 0.0},
                            {box.low.x, box.high.y, 0.0}};
    PlaneGraph::Loop loop;
    for (std::size_t i = 0; i < 4; ++i)
        loop.stretches.push_back(
            {CurvePiece::straight(corners[i], corners[(i + 1) % 4], 0.0, 1.0), false, PlaneGraph::noSource});
    loop.box.add(corners[0]);
    loop.box.add(corners[2]);
    loop.area = (box.high.x - box.low.x) * (box.high.y - box.low.y);
    return loop;
}

Box squareRound(Vec2 point, double half)
{
    const Vec3 at{point.x, point.y, 0.0};
    const Vec3 reach{half, half, half};
    return {at - reach, at + reach};
}

} // namespace

BoundarySearch::BoundarySearch(Document &document, BoundaryOptions options)
    : m_document(document), m_options(std::move(options)), m_plane(document), m_toPlane(flatMap(m_plane))
{
}

void BoundarySearch::gatherText(Gathered &gathered, const Box &box)
{
    if (box.isEmpty())
        return;
    Box flat;
    for (const double x : {box.low.x, box.high.x})
        for (const double y : {box.low.y, box.high.y})
            for (const double z : {box.low.z, box.high.z})
                flat.add(m_toPlane.point({x, y, z}));
    // Letters keep a little clear of the lines of the hatch.
    const double margin = 0.2 * std::min(flat.high.x - flat.low.x, flat.high.y - flat.low.y);
    const Vec3 all{margin, margin, 0.0};
    gathered.texts.push_back(rectangleLoop({flat.low - all, flat.high + all}));
}

void BoundarySearch::gatherEntity(Gathered &gathered, RecordId entity, RecordId source, const Matrix &transform,
                                  const Box &window)
{
    const auto curve = boundaryCurve(m_document.drawing(), entity);
    if (!curve)
        return;
    const auto number = static_cast<quint32>(gathered.sources.size());
    gathered.sources.push_back(source);
    for (const CurvePiece &piece : curve->pieces()) {
        const CurvePiece flat = finitePiece(piece.transformed(m_toPlane * transform), window);
        const Box box = flat.box();
        const double size = (box.high - box.low).xy().length();
        if (size > 0.0 && std::isfinite(size) && box.touchesFlat(window))
            gathered.pieces.push_back({flat, number});
    }
}

void BoundarySearch::gatherReference(Gathered &gathered, RecordId reference, const Box &window)
{
    const QSet<QString> hidden = hiddenLayerNames(m_document.drawing());
    drawing::WorkBudget work(drawing::outlineWork);
    visitInserted(m_document.drawing(), reference, work, [&](const drawing::VisitedEntity &visited) {
        const drawing::TagList tags = m_document.drawing().tags(visited.entity);
        const QByteArrayView type = m_document.drawing().typeName(visited.entity);
        const bool isHidden = tags.integer(60) != 0 || hidden.contains(tags.text(8, QStringLiteral("0")).toUpper());
        if (isHidden)
            return true;
        if (isText(type)) {
            const drawing::Outline outline =
                drawing::entityOutline(m_document.drawing(), visited.entity, {}, visited.transform);
            gatherText(gathered, drawing::outlineBox(outline));
        } else {
            gatherEntity(gathered, visited.entity, drawing::noRecord, visited.transform, window);
        }
        return true;
    });
}

BoundarySearch::Gathered BoundarySearch::gather(const std::vector<RecordId> &entities, const Box &window)
{
    Gathered gathered;
    for (const RecordId entity : entities) {
        const QByteArrayView type = m_document.drawing().typeName(entity);
        if (type == "INSERT" || type.endsWith("DIMENSION"))
            gatherReference(gathered, entity, window);
        else if (isText(type))
            gatherText(gathered, m_document.entityExtents().of(entity));
        else
            gatherEntity(gathered, entity, entity, {}, window);
    }
    return gathered;
}

BoundaryLoop BoundarySearch::finished(const PlaneGraph::Loop &loop, int depth, const Gathered &gathered) const
{
    BoundaryLoop result{.loop = loop, .depth = depth};
    for (const PlaneGraph::Stretch &stretch : loop.stretches) {
        const RecordId source =
            stretch.source < gathered.sources.size() ? gathered.sources[stretch.source] : drawing::noRecord;
        if (isValid(source) && std::ranges::find(result.sources, source) == result.sources.end())
            result.sources.push_back(source);
    }
    return result;
}

/// Texts that stand in the area as islands of their own; those in other islands are left out with them.
void BoundarySearch::addTexts(Boundary &boundary, const std::vector<PlaneGraph::Loop> &texts, Vec2 point,
                              double tolerance)
{
    const PlaneGraph area = PlaneGraph::ofLoop(boundary.front().loop, tolerance);
    const Boundary loops = boundary;
    for (const PlaneGraph::Loop &text : texts) {
        const bool isInIsland = std::ranges::any_of(
            loops, [&](const BoundaryLoop &loop) { return loop.depth == 1 && loop.loop.box.containsFlat(text.box); });
        const bool isAround = text.box.touchesFlat(squareRound(point, 0.0));
        if (!isInIsland && !isAround && loops.front().loop.box.containsFlat(text.box) && area.encloses(text.box))
            boundary.push_back({.loop = text, .depth = 1, .isText = true});
    }
}

/// Nothing when the area reaches out of the window, so that there may be more about it.
std::optional<Boundary> BoundarySearch::within(const std::vector<RecordId> &entities, Vec2 point, const Box &window,
                                               drawing::WorkBudget &work)
{
    const Gathered gathered = gather(entities, window);
    const double reach = std::max((window.high - window.low).length(), point.length());
    const PlaneGraph graph(gathered.pieces, std::max(1e-9, 1e-9 * reach), m_options.gap, work);
    m_wasTooMuch = !graph.isComplete();
    if (m_wasTooMuch)
        return Boundary{};
    const auto region = graph.regionAt(point);
    if (!region || !window.containsFlat(region->outer.box))
        return std::nullopt;
    Boundary boundary = {finished(region->outer, 0, gathered)};
    if (m_options.islands == IslandStyle::Ignore)
        return boundary;
    for (const PlaneGraph::Region::Island &island : region->islands)
        if (m_options.islands == IslandStyle::Normal || island.depth == 0)
            boundary.push_back(finished(island.loop, island.depth + 1, gathered));
    addTexts(boundary, gathered.texts, point, 1e-9 * reach);
    return boundary;
}

Boundary BoundarySearch::at(const Vec3 &point)
{
    const std::vector<RecordId> all =
        m_options.candidates.empty() ? Picker(m_document).visible() : m_options.candidates;
    const Vec3 flat = m_toPlane.point(point);
    Box extent = squareRound(flat.xy(), 0.0);
    for (const RecordId entity : all)
        extent.add(m_document.boxes().box(entity));
    const double farthest = (extent.high - extent.low).length() + 1.0;
    // Windows are taken in the world seen from above; in a tilted plane all of it is looked at.
    const bool isLevel = m_toPlane.zAxis.xy().length() <= 1e-9;
    double half = isLevel ? std::min(farthest, std::max(m_document.view().height / 8.0, 1e-6)) : farthest;
    // Behind so many rounds, what there is lies farther off than anything that was drawn to be looked at together.
    constexpr int patientRounds = 8;
    double growth = 4.0;
    drawing::WorkBudget work(searchWork);
    for (int round = 0;; ++round) {
        const Box near = squareRound(point.xy(), half);
        const bool isAll = half >= farthest;
        const Box window = squareRound(flat.xy(), isAll ? 4.0 * half : half);
        if (auto boundary = within(isAll ? all : m_document.boxes().touching(all, near), flat.xy(), window, work))
            return *boundary;
        if (isAll)
            return {};
        if (round >= patientRounds)
            growth *= growth;
        half = std::min(growth * half, farthest);
    }
}

Boundary BoundarySearch::of(const std::vector<RecordId> &entities)
{
    const Box everywhere = squareRound({}, 1e12);
    Boundary boundary;
    std::vector<RecordId> open;
    for (const RecordId entity : entities) {
        const auto curve = boundaryCurve(m_document.drawing(), entity);
        if (!curve || !curve->isClosed() || curve->isEndless()) {
            open.push_back(entity);
            continue;
        }
        const Gathered gathered = gather({entity}, everywhere);
        PlaneGraph::Loop loop;
        for (const FlatPiece &flat : gathered.pieces) {
            loop.stretches.push_back({flat.piece, false, flat.source});
            loop.box.add(flat.piece.box());
        }
        if (!loop.stretches.empty())
            boundary.push_back(finished(loop, 0, gathered));
    }
    const Gathered gathered = gather(open, everywhere);
    Box box;
    for (const FlatPiece &flat : gathered.pieces)
        box.add(flat.piece.box());
    drawing::WorkBudget work(searchWork);
    const double reach = box.isEmpty() ? 1.0 : std::max(box.low.length(), box.high.length());
    const PlaneGraph graph(gathered.pieces, std::max(1e-9, 1e-9 * reach), m_options.gap, work);
    m_wasTooMuch = !graph.isComplete();
    for (const PlaneGraph::Loop &loop : graph.outlines())
        boundary.push_back(finished(loop, 0, gathered));
    for (const PlaneGraph::Loop &text : gathered.texts)
        boundary.push_back({.loop = text, .depth = 1, .isText = true});
    return boundary;
}

} // namespace host::kernel
