#include "host/drawing/curves/Crossings.h"
#include "host/drawing/curves/Offset.h"
#include "host/drawing/math/Angles.h"

namespace host::drawing {

namespace {

const Vec3 offsetUp{0, 0, 1};

/// A piece of the way at the distance, with the stretch of the polyline that it comes from.
struct OffsetPiece
{
    CurvePiece piece;
    const CurveVertex *origin;

    Vec3 start() const { return piece.startPoint(); }
    Vec3 end() const { return piece.endPoint(); }
};

CurvePiece arcAbout(const Vec3 &center, const Vec3 &from, const Vec3 &to, bool isLeft)
{
    const Vec3 out = from - center;
    const double radius = out.length();
    const double start = std::atan2(out.y, out.x);
    double sweep = std::remainder(std::atan2(to.y - center.y, to.x - center.x) - start, wholeTurn);
    if (isLeft != (sweep > 0.0))
        sweep += isLeft ? wholeTurn : -wholeTurn;
    return CurvePiece::round(center, {radius, 0, 0}, {0, radius, 0}, start, start + sweep, 0.0, 1.0);
}

/// Makes the way at a distance, with all its loops, and takes those out that come too near.
class PolylineOffset
{
public:
    PolylineOffset(const CurveVertices &polyline, double distance, OffsetGap gap)
        : m_polyline(polyline), m_distance(distance), m_gap(gap)
    {
        const std::vector<CurveVertex> &vertices = polyline.vertices;
        const size_t count = polyline.isClosed ? vertices.size() : vertices.size() - 1;
        for (size_t i = 0; i < count; ++i) {
            const Vec3 &to = vertices[(i + 1) % vertices.size()].point;
            if ((to - vertices[i].point).length() > 0.0)
                m_own.push_back({bulgedPiece(vertices[i].point, to, vertices[i].bulge, 0.0), &vertices[i]});
        }
    }

    std::vector<CurveVertices> make()
    {
        for (const OffsetPiece &own : m_own)
            appendMoved(own);
        join();
        return m_way.empty() ? std::vector<CurveVertices>() : chains();
    }

private:
    static Vec3 toRight(const CurvePiece &piece, double parameter)
    {
        return normalized(cross(piece.firstDerivative(parameter), offsetUp));
    }

    void appendMoved(const OffsetPiece &own)
    {
        const CurvePiece &piece = own.piece;
        const Vec3 from = piece.startPoint() + toRight(piece, piece.start()) * m_distance;
        const Vec3 to = piece.endPoint() + toRight(piece, piece.end()) * m_distance;
        const double sweep = piece.angleAt(piece.end()) - piece.angleAt(piece.start());
        const double radius = piece.xAxis().length() + (sweep > 0.0 ? m_distance : -m_distance);
        if (piece.shape() == CurvePiece::Shape::Round && radius > 0.0)
            m_raw.push_back({CurvePiece::round(piece.center(), {radius, 0, 0}, {0, radius, 0},
                                               piece.angleAt(piece.start()), piece.angleAt(piece.end()), 0.0, 1.0),
                             own.origin});
        else // an arc that vanishes leaves a way that is too near
            m_raw.push_back({CurvePiece::straight(from, to, 0.0, 1.0), own.origin});
    }

    /// Puts the moved pieces one behind the other, with what closes the gaps between them.
    void join()
    {
        m_bridges.resize(m_raw.size());
        for (size_t i = 0; i + (m_polyline.isClosed ? 0 : 1) < m_raw.size(); ++i)
            bridge(i, (i + 1) % m_raw.size());
        for (size_t i = 0; i < m_raw.size(); ++i) {
            append(m_raw[i]);
            if (m_bridges[i])
                append(*m_bridges[i]);
        }
    }

    void append(OffsetPiece piece)
    {
        const auto number = static_cast<double>(m_way.size());
        if ((piece.end() - piece.start()).length() <= 1e-12 * std::abs(m_distance) &&
            piece.piece.shape() == CurvePiece::Shape::Straight)
            return;
        piece.piece = renumbered(piece.piece, number);
        m_way.push_back(piece);
    }

    static CurvePiece renumbered(const CurvePiece &piece, double number)
    {
        if (piece.shape() == CurvePiece::Shape::Straight)
            return CurvePiece::straight(piece.startPoint(), piece.endPoint(), number, number + 1.0);
        return CurvePiece::round(piece.center(), piece.xAxis(), piece.yAxis(), piece.angleAt(piece.start()),
                                 piece.angleAt(piece.end()), number, number + 1.0);
    }

    void bridge(size_t before, size_t behind)
    {
        OffsetPiece &first = m_raw[before];
        OffsetPiece &second = m_raw[behind];
        const Vec3 from = first.end();
        const Vec3 to = second.start();
        if ((to - from).length() <= 1e-9 * std::abs(m_distance))
            return;
        const CurvePiece &own = m_own[before].piece;
        const CurvePiece &next = m_own[behind].piece;
        const double turn = cross(own.firstDerivative(own.end()), next.firstDerivative(next.start())).z * m_distance;
        const double ahead = dot(own.firstDerivative(own.end()), next.firstDerivative(next.start()));
        const bool isOutside = turn > 0.0 || (turn == 0.0 && ahead < 0.0);
        const CurvePiece straight = CurvePiece::straight(from, to, 0.0, 1.0);
        if (isOutside && m_gap == OffsetGap::Extended && extendToMeet(first, second, own.endPoint()))
            return;
        const bool isRounded = isOutside && m_gap != OffsetGap::Straight;
        m_bridges[before] = {isRounded ? arcAbout(own.endPoint(), from, to, m_distance > 0.0) : straight, first.origin};
    }

    /// Two pieces go on until they meet, when they do so not too far from the corner.
    bool extendToMeet(OffsetPiece &first, OffsetPiece &second, const Vec3 &corner) const
    {
        const EntityCurve ahead = goingOn(first.piece, Extension::End);
        const EntityCurve back = goingOn(second.piece, Extension::Start);
        const CurveCrossing *nearest = nullptr;
        const std::vector<CurveCrossing> met = crossings(ahead, back);
        for (const CurveCrossing &crossing : met) {
            const bool isBeyond = crossing.first > 1.0 && crossing.second < 0.0;
            const bool isNearer = !nearest || (crossing.point - corner).length() < (nearest->point - corner).length();
            if (isBeyond && isNearer)
                nearest = &crossing;
        }
        constexpr double longestTip = 1000.0; // times the distance
        if (!nearest || (nearest->point - corner).length() > longestTip * std::abs(m_distance))
            return false;
        first.piece = renumbered(first.piece.part(0.0, nearest->first), 0.0);
        second.piece = renumbered(second.piece.part(nearest->second, 1.0), 0.0);
        return true;
    }
    static EntityCurve goingOn(const CurvePiece &piece, Extension extension)
    {
        return EntityCurve(EntityCurve::Kind::Arc, {piece}, false, offsetUp).extended(extension);
    }

    /// The parts of the way that are as far as they should be, put together.
    std::vector<CurveVertices> chains();
    std::vector<OffsetPiece> farParts() const;
    void appendOverlaps(std::vector<double> &cuts) const;
    CurveVertices toVertices(const std::vector<OffsetPiece> &chain) const;

    const CurveVertices &m_polyline;
    const double m_distance;
    const OffsetGap m_gap;
    std::vector<OffsetPiece> m_own;                    ///< of the polyline
    std::vector<OffsetPiece> m_raw;                    ///< moved, one each
    std::vector<std::optional<OffsetPiece>> m_bridges; ///< what follows each of those
    std::vector<OffsetPiece> m_way;
};

/// Where straight pieces begin and end upon others, as walls do on both sides of a passage that closes.
void PolylineOffset::appendOverlaps(std::vector<double> &cuts) const
{
    const double same = std::max(1e-6, 1e-9 * std::abs(m_distance));
    std::vector<Box> boxes;
    for (const OffsetPiece &piece : m_way)
        boxes.push_back(piece.piece.box());
    const BoxIndex index(boxes);
    for (size_t i = 0; i < m_way.size(); ++i) {
        const CurvePiece &piece = m_way[i].piece;
        index.touching(boxes[i], [&](size_t k) {
            const CurvePiece &other = m_way[k].piece;
            const Vec3 across = cross(normalized(piece.xAxis()), normalized(other.xAxis()));
            const bool areParallel = piece.shape() == CurvePiece::Shape::Straight &&
                                     other.shape() == CurvePiece::Shape::Straight && across.length() <= 1e-9;
            if (k == i || !areParallel)
                return;
            for (const Vec3 &end : {other.startPoint(), other.endPoint()}) {
                const double parameter = piece.closest(end);
                if ((piece.point(parameter) - end).length() <= same)
                    cuts.push_back(parameter);
            }
        });
    }
}

std::vector<OffsetPiece> PolylineOffset::farParts() const
{
    std::vector<CurvePiece> pieces;
    for (const OffsetPiece &piece : m_way)
        pieces.push_back(piece.piece);
    const EntityCurve way(EntityCurve::Kind::LightPolyline, std::move(pieces), m_polyline.isClosed, offsetUp);
    std::vector<double> cuts;
    for (const CurveCrossing &crossing : selfCrossings(way)) {
        cuts.push_back(crossing.first);
        cuts.push_back(crossing.second);
    }
    appendOverlaps(cuts);
    std::ranges::sort(cuts);
    std::vector<Box> boxes;
    for (const OffsetPiece &own : m_own)
        boxes.push_back(own.piece.box());
    const BoxIndex index(boxes);
    const double least = std::abs(m_distance) * (1.0 - 1e-6) - 1e-9;
    const auto isFar = [&](const Vec3 &point) {
        const Vec3 all{least, least, least};
        bool isNear = false;
        index.touching({point - all, point + all}, [&](size_t i) {
            const CurvePiece &own = m_own[i].piece;
            isNear = isNear || (own.point(own.closest(point)) - point).length() < least;
        });
        return !isNear;
    };
    std::vector<OffsetPiece> parts;
    auto cut = cuts.begin();
    for (const OffsetPiece &piece : m_way) {
        double from = piece.piece.start();
        while (from < piece.piece.end()) {
            while (cut != cuts.end() && *cut <= from + 1e-9)
                ++cut;
            const bool isInside = cut != cuts.end() && *cut < piece.piece.end() - 1e-9;
            const double to = isInside ? *cut : piece.piece.end();
            if (isFar(piece.piece.point((from + to) / 2.0)))
                parts.push_back({piece.piece.part(from, to), piece.origin});
            from = to;
        }
    }
    return parts;
}

std::vector<CurveVertices> PolylineOffset::chains()
{
    const std::vector<OffsetPiece> parts = farParts();
    const double same = std::max(1e-6, 1e-9 * std::abs(m_distance));
    const auto isTwin = [&](const OffsetPiece &a, const OffsetPiece &b) {
        const auto middle = [](const CurvePiece &piece) { return piece.point((piece.start() + piece.end()) / 2.0); };
        return (a.start() - b.start()).length() <= same && (a.end() - b.end()).length() <= same &&
               (middle(a.piece) - middle(b.piece)).length() <= same;
    };
    std::vector<Box> starts;
    for (const OffsetPiece &part : parts) {
        starts.emplace_back().add(part.start() - Vec3{same, same, same});
        starts.back().add(part.start() + Vec3{same, same, same});
    }
    const BoxIndex index(starts);
    std::vector<bool> isUsed(parts.size());
    std::vector<std::vector<OffsetPiece>> found;
    const auto follow = [&](size_t first) {
        std::vector<OffsetPiece> chain;
        for (size_t at = first; at < parts.size();) {
            isUsed[at] = true;
            chain.push_back(parts[at]);
            Box begin;
            begin.add(parts[at].start());
            index.touching(begin, [&](size_t i) { isUsed[i] = isUsed[i] || isTwin(parts[i], parts[at]); });
            Box here;
            here.add(parts[at].end());
            const size_t along = at + 1;
            at = parts.size();
            index.touching(here, [&](size_t i) {
                if (!isUsed[i] && (at == parts.size() || i == along))
                    at = i;
            });
        }
        return chain;
    };
    for (size_t i = 0; i < parts.size(); ++i) {
        if (!isUsed[i])
            found.push_back(follow(i));
    }
    // The first one may go on from the last one, across the start of a closed polyline.
    if (found.size() > 1 && (found.back().back().end() - found.front().front().start()).length() <= same) {
        found.back().insert(found.back().end(), found.front().begin(), found.front().end());
        found.erase(found.begin());
    }
    std::vector<CurveVertices> made;
    for (const std::vector<OffsetPiece> &chain : found)
        made.push_back(toVertices(chain));
    std::erase_if(made, [](const CurveVertices &polyline) { return polyline.vertices.size() < 2; });
    return made;
}

CurveVertices PolylineOffset::toVertices(const std::vector<OffsetPiece> &chain) const
{
    CurveVertices polyline = m_polyline;
    polyline.vertices.clear();
    const double same = std::max(1e-6, 1e-9 * std::abs(m_distance));
    for (const OffsetPiece &part : chain) {
        const CurvePiece &piece = part.piece;
        const double sweep =
            piece.shape() == CurvePiece::Shape::Round ? piece.angleAt(piece.end()) - piece.angleAt(piece.start()) : 0.0;
        if ((part.end() - part.start()).length() > same)
            polyline.vertices.push_back(
                {part.start(), std::tan(sweep / 4.0), part.origin->startWidth, part.origin->endWidth});
    }
    if (polyline.vertices.empty())
        return polyline;
    polyline.isClosed = (chain.back().end() - chain.front().start()).length() <= same;
    if (!polyline.isClosed)
        polyline.vertices.push_back(
            {chain.back().end(), 0.0, chain.back().origin->endWidth, chain.back().origin->endWidth});
    return polyline;
}

} // namespace

std::vector<CurveVertices> offsetPolyline(const CurveVertices &polyline, double distance, OffsetGap gap)
{
    if (polyline.isSpatial || polyline.vertices.size() < 2 || distance == 0.0)
        return {};
    return PolylineOffset(polyline, distance, gap).make();
}

} // namespace host::drawing
