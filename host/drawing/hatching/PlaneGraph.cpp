#include "host/drawing/hatching/PlaneGraph.h"

#include "host/drawing/curves/Crossings.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <numbers>
#include <numeric>

namespace host::drawing {

namespace {

constexpr quint32 noNumber = ~quint32(0);
/// What the stretches that a crossing makes cost until their faces are known, in units of a budget.
constexpr int crossingWork = 16;

Box grownFlat(const CurvePiece &piece, double by)
{
    const Box box = piece.box();
    const Vec3 all{by, by, by};
    return {box.low - all, box.high + all};
}

/// Gives points numbers, near ones the same.
class NodeNumbers
{
public:
    explicit NodeNumbers(double tolerance) : m_tolerance(tolerance) {}

    quint32 number(Vec2 point, std::vector<Vec2> &nodes)
    {
        // Beyond this all is in one cell, as numbers so large are damage.
        constexpr double farthest = 4e18;
        const auto cell = [&](double at) {
            const double number = std::floor(at / (4.0 * m_tolerance));
            return std::isnan(number) ? 0 : static_cast<qint64>(std::clamp(number, -farthest, farthest));
        };
        const qint64 x = cell(point.x);
        const qint64 y = cell(point.y);
        for (qint64 i = x - 1; i <= x + 1; ++i) {
            for (qint64 k = y - 1; k <= y + 1; ++k) {
                for (auto found = m_cells.constFind({i, k});
                     found != m_cells.constEnd() && found.key() == std::pair(i, k); ++found)
                    if ((nodes[*found] - point).length() <= m_tolerance)
                        return *found;
            }
        }
        nodes.push_back(point);
        m_cells.insert({x, y}, static_cast<quint32>(nodes.size() - 1));
        return static_cast<quint32>(nodes.size() - 1);
    }

private:
    double m_tolerance;
    QMultiHash<std::pair<qint64, qint64>, quint32> m_cells;
};

/// Where an end of the one piece lies on the other.
void addEndCuts(std::vector<double> &cuts, const CurvePiece &piece, const CurvePiece &other, double tolerance)
{
    for (const Vec3 &end : {other.startPoint(), other.endPoint()}) {
        const double at = piece.closest(end);
        if ((piece.point(at) - end).length() <= tolerance)
            cuts.push_back(at);
    }
}

} // namespace

PlaneGraph::PlaneGraph(std::vector<FlatPiece> pieces, double tolerance, double gap, WorkBudget &work)
    : m_pieces(std::move(pieces)), m_tolerance(tolerance)
{
    for (const FlatPiece &flat : m_pieces)
        m_box.add(flat.piece.box());
    std::vector<std::vector<double>> cuts(m_pieces.size());
    cutPieces(tolerance, work, cuts);
    // Faces of what is not cut everywhere would be wrong, and dear.
    if (!m_isComplete)
        return;
    addEdges(cuts, tolerance);
    dropDoubles(tolerance);
    if (gap > tolerance)
        bridgeGaps(tolerance, gap, work);
    findFaces();
    dropBridges();
    findFaces();
    numberComponents();
}

void PlaneGraph::cutPieces(double tolerance, WorkBudget &work, std::vector<std::vector<double>> &cuts)
{
    std::vector<Box> boxes;
    boxes.reserve(m_pieces.size());
    for (const FlatPiece &flat : m_pieces)
        boxes.push_back(grownFlat(flat.piece, tolerance));
    const BoxIndex index(boxes);
    std::vector<CurveCrossing> found;
    for (std::size_t i = 0; i < m_pieces.size() && m_isComplete; ++i) {
        index.touching(boxes[i], [&](std::size_t k) {
            if (k <= i || !m_isComplete)
                return;
            const CurvePiece &first = m_pieces[i].piece;
            const CurvePiece &second = m_pieces[k].piece;
            found.clear();
            const int halvings = appendCrossings(found, first, second, tolerance);
            m_isComplete = work.take(halvings + crossingWork * static_cast<std::int64_t>(found.size()));
            for (const CurveCrossing &crossing : found) {
                cuts[i].push_back(crossing.first);
                cuts[k].push_back(crossing.second);
            }
            addEndCuts(cuts[i], first, second, tolerance);
            addEndCuts(cuts[k], second, first, tolerance);
        });
    }
}

void PlaneGraph::addEdges(const std::vector<std::vector<double>> &cuts, double tolerance)
{
    NodeNumbers numbers(tolerance);
    for (std::size_t i = 0; i < m_pieces.size(); ++i) {
        const CurvePiece &piece = m_pieces[i].piece;
        std::vector<double> stops = cuts[i];
        stops.push_back(piece.start());
        stops.push_back(piece.end());
        std::ranges::sort(stops);
        double from = piece.start();
        quint32 begin = numbers.number(piece.startPoint().xy(), m_nodes);
        for (const double at : stops) {
            const double to = std::clamp(at, piece.start(), piece.end());
            const quint32 end = numbers.number(piece.point(to).xy(), m_nodes);
            // What begins and ends in one point is a whole round or nothing.
            const Vec2 middle = piece.point((from + to) / 2.0).xy();
            if (end == begin && (middle - m_nodes[begin]).length() <= 2.0 * tolerance)
                continue;
            m_edges.push_back({static_cast<quint32>(i), from, to, {begin, end}});
            from = to;
            begin = end;
        }
    }
}

/// Of curves that run along each other one stays.
void PlaneGraph::dropDoubles(double tolerance)
{
    struct Key
    {
        quint32 low;
        quint32 high;
        std::size_t edge;
    };
    std::vector<Key> keys;
    for (std::size_t i = 0; i < m_edges.size(); ++i) {
        const auto [low, high] = std::minmax(m_edges[i].nodes[0], m_edges[i].nodes[1]);
        keys.push_back({low, high, i});
    }
    std::ranges::sort(keys, [](const Key &a, const Key &b) {
        return std::tie(a.low, a.high, a.edge) < std::tie(b.low, b.high, b.edge);
    });
    std::vector<bool> isDouble(m_edges.size());
    const auto middle = [&](const Edge &edge) { return m_pieces[edge.piece].piece.point((edge.from + edge.to) / 2.0); };
    for (std::size_t i = 0; i < keys.size(); ++i) {
        for (std::size_t k = i + 1; k < keys.size() && keys[k].low == keys[i].low && keys[k].high == keys[i].high;
             ++k) {
            const Edge &other = m_edges[keys[k].edge];
            const CurvePiece piece = pieceOf(m_edges[keys[i].edge]);
            if ((piece.point(piece.closest(middle(other))) - middle(other)).length() <= 2.0 * tolerance)
                isDouble[keys[k].edge] = true;
        }
    }
    std::size_t number = 0;
    m_hasDropped |= std::erase_if(m_edges, [&](const Edge &) { return isDouble[number++]; }) > 0;
}

/// Joins loose ends, the nearest pairs first.
void PlaneGraph::bridgeGaps(double tolerance, double gap, WorkBudget &work)
{
    std::vector<int> degree(m_nodes.size());
    for (const Edge &edge : m_edges)
        for (const quint32 node : edge.nodes)
            ++degree[node];
    std::vector<quint32> loose;
    std::vector<Box> boxes;
    for (quint32 node = 0; node < m_nodes.size(); ++node) {
        if (degree[node] != 1)
            continue;
        loose.push_back(node);
        const Vec3 at{m_nodes[node].x, m_nodes[node].y, 0.0};
        boxes.push_back({at - Vec3{gap, gap, gap}, at + Vec3{gap, gap, gap}});
    }
    struct Pair
    {
        double distance;
        quint32 first;
        quint32 second;
    };
    std::vector<Pair> pairs;
    const BoxIndex index(boxes);
    for (std::size_t i = 0; i < loose.size() && m_isComplete; ++i) {
        const Vec3 at{m_nodes[loose[i]].x, m_nodes[loose[i]].y, 0.0};
        index.touching({at, at}, [&](std::size_t k) {
            const double distance = (m_nodes[loose[i]] - m_nodes[loose[k]]).length();
            m_isComplete = m_isComplete && (k <= i || work.take(1));
            if (k > i && m_isComplete && distance <= gap && distance > tolerance)
                pairs.push_back({distance, loose[i], loose[k]});
        });
    }
    std::ranges::stable_sort(pairs, {}, &Pair::distance);
    for (const Pair &pair : pairs) {
        if (degree[pair.first] != 1 || degree[pair.second] != 1)
            continue;
        const Vec2 from = m_nodes[pair.first];
        const Vec2 to = m_nodes[pair.second];
        m_pieces.push_back({CurvePiece::straight({from.x, from.y, 0.0}, {to.x, to.y, 0.0}, 0.0, 1.0), noSource});
        m_edges.push_back({static_cast<quint32>(m_pieces.size() - 1), 0.0, 1.0, {pair.first, pair.second}});
        ++degree[pair.first];
        ++degree[pair.second];
    }
}

CurvePiece PlaneGraph::pieceOf(const Edge &edge) const
{
    const CurvePiece &piece = m_pieces[edge.piece].piece;
    return edge.from == piece.start() && edge.to == piece.end() ? piece : piece.part(edge.from, edge.to);
}

double PlaneGraph::roughLength(const Edge &edge) const
{
    constexpr int steps = 8;
    const CurvePiece &piece = m_pieces[edge.piece].piece;
    double length = 0.0;
    Vec3 last = piece.point(edge.from);
    for (int i = 1; i <= steps; ++i) {
        const Vec3 next = piece.point(edge.from + (edge.to - edge.from) * i / steps);
        length += (next - last).length();
        last = next;
    }
    return length;
}

/// A point of the stretch about that far from where the half begins.
Vec2 PlaneGraph::pointNear(quint32 half, double distance) const
{
    const Edge &edge = m_edges[half / 2];
    const CurvePiece &piece = m_pieces[edge.piece].piece;
    const bool isForward = (half & 1) == 0;
    const double begin = isForward ? edge.from : edge.to;
    const double other = isForward ? edge.to : edge.from;
    const double speed = piece.firstDerivative(begin).length();
    const double share = speed > 0.0 ? distance / (speed * std::abs(other - begin)) : 0.1;
    return piece.point(begin + (other - begin) * std::min(share, 0.4)).xy();
}

void PlaneGraph::findFaces()
{
    const std::size_t halves = 2 * m_edges.size();
    std::vector<std::vector<quint32>> rings(m_nodes.size());
    std::vector<double> reach(m_nodes.size(), std::numeric_limits<double>::infinity());
    for (quint32 half = 0; half < halves; ++half) {
        rings[origin(half)].push_back(half);
        reach[origin(half)] = std::min(reach[origin(half)], 0.05 * roughLength(m_edges[half / 2]));
    }
    m_next.assign(halves, noNumber);
    for (quint32 node = 0; node < rings.size(); ++node) {
        std::vector<std::pair<double, quint32>> ring;
        for (const quint32 half : rings[node]) {
            const Vec2 away = pointNear(half, reach[node]) - m_nodes[node];
            ring.emplace_back(std::atan2(away.y, away.x), half);
        }
        std::ranges::sort(ring);
        // Who comes back along a half goes on along the one to its right, so that the face stays to the left.
        for (std::size_t i = 0; i < ring.size(); ++i)
            m_next[ring[i].second ^ 1] = ring[(i + ring.size() - 1) % ring.size()].second;
    }
    walkFaces();
}

void PlaneGraph::walkFaces()
{
    m_face.assign(m_next.size(), noNumber);
    m_firstHalf.clear();
    m_area.clear();
    for (quint32 first = 0; first < m_next.size(); ++first) {
        if (m_face[first] != noNumber)
            continue;
        const auto face = static_cast<quint32>(m_firstHalf.size());
        const Vec2 center = m_nodes[origin(first)];
        double area = 0.0;
        for (quint32 half = first; m_face[half] == noNumber; half = m_next[half]) {
            m_face[half] = face;
            const double swept = pieceOf(m_edges[half / 2]).sweptArea({center.x, center.y, 0.0}).z / 2.0;
            area += (half & 1) == 0 ? swept : -swept;
        }
        m_firstHalf.push_back(first);
        m_area.push_back(area);
    }
}

/// What has the same face on both sides encloses nothing.
void PlaneGraph::dropBridges()
{
    std::size_t number = 0;
    const auto dropped = std::erase_if(m_edges, [&](const Edge &) {
        const std::size_t edge = number++;
        return m_face[2 * edge] == m_face[2 * edge + 1];
    });
    m_hasDropped |= dropped > 0;
}

void PlaneGraph::numberComponents()
{
    m_component.resize(m_nodes.size());
    std::iota(m_component.begin(), m_component.end(), quint32(0));
    const auto top = [&](quint32 node) {
        while (m_component[node] != node)
            node = m_component[node] = m_component[m_component[node]];
        return node;
    };
    for (const Edge &edge : m_edges)
        m_component[top(edge.nodes[0])] = top(edge.nodes[1]);
    for (quint32 node = 0; node < m_component.size(); ++node)
        m_component[node] = top(node);
}

std::vector<quint32> PlaneGraph::halvesOf(quint32 face) const
{
    std::vector<quint32> halves = {m_firstHalf[face]};
    for (quint32 half = m_next[halves.front()]; half != halves.front(); half = m_next[half])
        halves.push_back(half);
    return halves;
}

/// What a ray meets of some halves' stretches, the nearest first; nothing when it touches a curve or meets an end, so
/// that its sides are not clear.
std::optional<std::vector<PlaneGraph::Hit>> PlaneGraph::hitsAlong(std::span<const quint32> halves, Vec2 point,
                                                                  double direction) const
{
    const Vec2 along{std::cos(direction), std::sin(direction)};
    const double length = 2.0 * (m_box.high - m_box.low).xy().length() + 1.0;
    const Vec3 from{point.x, point.y, 0.0};
    const CurvePiece ray =
        CurvePiece::straight(from, from + Vec3{along.x * length, along.y * length, 0.0}, 0.0, length);
    const Box rayBox = ray.box();
    std::vector<Hit> hits;
    std::vector<CurveCrossing> found;
    for (const quint32 half : halves) {
        const Edge &edge = m_edges[half / 2];
        const CurvePiece &whole = m_pieces[edge.piece].piece;
        if (!rayBox.touchesFlat(grownFlat(whole, m_tolerance)))
            continue;
        found.clear();
        appendCrossings(found, pieceOf(edge), ray, m_tolerance);
        for (const CurveCrossing &crossing : found) {
            const Vec2 tangent = whole.firstDerivative(crossing.first).xy();
            const double side = cross(along, tangent);
            const Vec2 at = crossing.point.xy();
            const bool isEnd = (at - m_nodes[edge.nodes[0]]).length() <= 4.0 * m_tolerance ||
                               (at - m_nodes[edge.nodes[1]]).length() <= 4.0 * m_tolerance;
            if (isEnd || std::abs(side) <= 1e-6 * tangent.length() || crossing.second <= m_tolerance)
                return std::nullopt;
            hits.push_back({crossing.second, (half & ~1u) + (side > 0.0 ? 0u : 1u)});
        }
    }
    std::ranges::sort(hits, {}, &Hit::distance);
    return hits;
}

std::optional<std::vector<PlaneGraph::Hit>> PlaneGraph::clearHits(std::span<const quint32> halves, Vec2 point) const
{
    constexpr int attempts = 12;
    for (int attempt = 0; attempt < attempts; ++attempt)
        if (auto hits = hitsAlong(halves, point, 0.1234 + 0.5113 * attempt))
            return hits;
    return std::nullopt;
}

bool PlaneGraph::isWithin(std::span<const quint32> loop, Vec2 point) const
{
    const auto hits = clearHits(loop, point);
    return hits && hits->size() % 2 == 1;
}

/// Makes one part of two where the second goes on from the first along the same piece, round the seam of a circle too.
bool PlaneGraph::joinParts(Part &first, const Part &second) const
{
    if (first.piece != second.piece || first.isReversed != second.isReversed)
        return false;
    const CurvePiece &piece = m_pieces[first.piece].piece;
    const bool isRound =
        piece.shape() == CurvePiece::Shape::Round &&
        std::abs(std::abs(piece.turn()) - (piece.end() - piece.start())) <= 1e-9 * std::abs(piece.turn());
    const double length = second.to - second.from;
    const double end = first.isReversed ? first.from : first.to;
    const bool goesOn = end == (first.isReversed ? second.to : second.from);
    const bool isAtSeam = isRound && (first.isReversed ? end == piece.start() && second.to == piece.end()
                                                       : end == piece.end() && second.from == piece.start());
    if (goesOn || isAtSeam)
        (first.isReversed ? first.from : first.to) += first.isReversed ? -length : length;
    return goesOn || isAtSeam;
}

PlaneGraph::Loop PlaneGraph::loopOf(quint32 face) const
{
    Loop loop;
    loop.area = std::abs(m_area[face]);
    std::vector<Part> parts;
    const auto add = [&](const Part &part) {
        if (parts.empty() || !joinParts(parts.back(), part))
            parts.push_back(part);
    };
    for (const quint32 half : halvesOf(face)) {
        const Edge &edge = m_edges[half / 2];
        add({edge.piece, edge.from, edge.to, (half & 1) != 0});
    }
    if (parts.size() > 1 && joinParts(parts.back(), parts.front()))
        parts.erase(parts.begin());
    for (const Part &part : parts) {
        const FlatPiece &flat = m_pieces[part.piece];
        loop.stretches.push_back({flat.piece.part(part.from, part.to), part.isReversed, flat.source});
        loop.box.add(loop.stretches.back().piece.box());
    }
    return loop;
}

/// The face round a point: of the curves that a ray meets the first which does not show the outside of what it hangs
/// together with. What does is beside the point, and all of it is passed by.
std::optional<quint32> PlaneGraph::faceAt(Vec2 point) const
{
    std::vector<quint32> halves(m_edges.size());
    for (quint32 edge = 0; edge < halves.size(); ++edge)
        halves[edge] = 2 * edge;
    const auto hits = clearHits(halves, point);
    if (!hits)
        return std::nullopt;
    QSet<quint32> passed;
    for (const Hit &hit : *hits) {
        const quint32 component = m_component[origin(hit.half)];
        if (passed.contains(component))
            continue;
        if (m_area[m_face[hit.half]] > 0.0)
            return m_face[hit.half];
        passed.insert(component);
    }
    return std::nullopt;
}

std::vector<PlaneGraph::Outside> PlaneGraph::outsidesWithin(quint32 outer, const Box &box) const
{
    const std::vector<quint32> outerHalves = halvesOf(outer);
    std::vector<Outside> within;
    for (quint32 face = 0; face < m_firstHalf.size(); ++face) {
        const quint32 node = origin(m_firstHalf[face]);
        if (m_area[face] >= 0.0 || m_component[node] == m_component[origin(m_firstHalf[outer])])
            continue;
        const Vec3 at{m_nodes[node].x, m_nodes[node].y, 0.0};
        if (!box.touchesFlat({at, at}) || !isWithin(outerHalves, m_nodes[node]))
            continue;
        Outside outside{face, halvesOf(face), {}};
        for (const quint32 half : outside.halves)
            outside.box.add(m_pieces[m_edges[half / 2].piece].piece.box());
        within.push_back(std::move(outside));
    }
    // Areas of outsides are negative: the largest first.
    std::ranges::stable_sort(within, {}, [&](const Outside &outside) { return m_area[outside.face]; });
    return within;
}

std::vector<PlaneGraph::Loop> PlaneGraph::outlines() const
{
    std::vector<Loop> loops;
    for (quint32 face = 0; face < m_firstHalf.size(); ++face)
        if (m_area[face] < 0.0)
            loops.push_back(loopOf(face));
    return loops;
}

PlaneGraph PlaneGraph::ofLoop(const Loop &loop, double tolerance)
{
    std::vector<FlatPiece> pieces;
    for (const Stretch &stretch : loop.stretches)
        pieces.push_back({stretch.piece, stretch.source});
    WorkBudget work(outlineWork);
    return {std::move(pieces), tolerance, 0.0, work};
}

bool PlaneGraph::encloses(const Box &box) const
{
    const Vec2 corners[] = {box.low.xy(), box.high.xy(), {box.low.x, box.high.y}, {box.high.x, box.low.y}};
    return std::ranges::all_of(corners, [&](Vec2 corner) { return faceAt(corner).has_value(); });
}

std::optional<PlaneGraph::Region> PlaneGraph::regionAt(Vec2 point) const
{
    const auto outer = faceAt(point);
    if (!outer)
        return std::nullopt;
    Region region{loopOf(*outer), {}};
    const std::vector<Outside> within = outsidesWithin(*outer, region.outer.box);
    for (std::size_t i = 0; i < within.size(); ++i) {
        int depth = 0;
        for (std::size_t k = 0; k < i; ++k)
            if (within[k].box.containsFlat(within[i].box) &&
                isWithin(within[k].halves, m_nodes[origin(m_firstHalf[within[i].face])]))
                depth = std::max(depth, region.islands[k].depth + 1);
        region.islands.push_back({loopOf(within[i].face), depth});
    }
    return region;
}

} // namespace host::drawing
