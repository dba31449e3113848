#include "host/drawing/curves/Crossings.h"
#include "host/drawing/math/Angles.h"

namespace host::drawing {

namespace {

/// Two pieces and what is known of where they meet.
class PiecePair
{
public:
    PiecePair(const CurvePiece &first, const CurvePiece &second, double tolerance, std::vector<CurveCrossing> &found)
        : m_first(first), m_second(second), m_tolerance(tolerance), m_found(found)
    {
    }

    void cross()
    {
        using enum CurvePiece::Shape;
        if (m_first.shape() == Straight && m_second.shape() == Straight)
            return crossLines();
        if (m_first.shape() == Straight && isFlatRound(m_second))
            return crossLineAndRound(m_first, m_second, false);
        if (m_second.shape() == Straight && isFlatRound(m_first))
            return crossLineAndRound(m_second, m_first, true);
        if (areCirclesOfOnePlane())
            return crossCircles();
        if (areOfOneCurve())
            return offerSharedEnds();
        crossByHalves();
    }
    int halvings() const { return mostHalvings - m_work; }

private:
    static constexpr int mostHalvings = 4000; ///< after which the pieces count as running along each other

    /// Whether it spans a plane: seen from its side it does not.
    static bool isFlatRound(const CurvePiece &piece)
    {
        const double size = piece.xAxis().length() * piece.yAxis().length();
        return piece.shape() == CurvePiece::Shape::Round && cross2(piece).length() > 1e-9 * size;
    }
    static Vec3 cross2(const CurvePiece &round) { return drawing::cross(round.xAxis(), round.yAxis()); }

    void offer(double first, double second)
    {
        const auto held = [&](const CurvePiece &piece, double parameter) {
            return std::clamp(parameter, piece.start(), piece.end());
        };
        const CurveCrossing crossing{held(m_first, first), held(m_second, second), {}};
        const Vec3 point = m_first.point(crossing.first);
        if ((point - m_second.point(crossing.second)).length() <= m_tolerance)
            m_found.push_back({crossing.first, crossing.second, point});
    }

    /// Where pieces run along each other: an end that they share and do not both go on from.
    void offerSharedEnds()
    {
        if (goesRound(m_first) || goesRound(m_second))
            return;
        for (const double first : {m_first.start(), m_first.end()}) {
            for (const double second : {m_second.start(), m_second.end()}) {
                if (!std::isfinite(first) || !std::isfinite(second))
                    continue;
                const Vec3 here = inward(m_first, first);
                const Vec3 there = inward(m_second, second);
                if (dot(here, there) < 0.0)
                    offer(first, second);
            }
        }
    }
    static bool goesRound(const CurvePiece &piece)
    {
        return piece.shape() == CurvePiece::Shape::Round && piece.end() - piece.start() >= piece.turn() * (1.0 - 1e-12);
    }
    static Vec3 inward(const CurvePiece &piece, double end)
    {
        return piece.firstDerivative(end) * (end == piece.start() ? 1.0 : -1.0);
    }

    void crossLines()
    {
        const Vec3 &along = m_first.xAxis();
        const Vec3 &other = m_second.xAxis();
        const Vec3 up = drawing::cross(along, other);
        const double square = dot(up, up);
        if (square <= 1e-20 * dot(along, along) * dot(other, other))
            return offerSharedEnds();
        const Vec3 between = m_second.point(0.0) - m_first.point(0.0);
        offer(dot(drawing::cross(between, other), up) / square, dot(drawing::cross(between, along), up) / square);
    }

    void offerAngle(double along, const CurvePiece &round, double angle, bool isSwapped)
    {
        const double parameter = round.parameterOfAngle(angle);
        if (isSwapped)
            offer(parameter, along);
        else
            offer(along, parameter);
    }

    // In coordinates of its axes the round piece is of the circle with radius 1 about the origin.
    void crossLineAndRound(const CurvePiece &line, const CurvePiece &round, bool isSwapped)
    {
        const Vec3 up = cross2(round);
        const double square = dot(up, up);
        const auto local = [&](const Vec3 &v) {
            return Vec2{dot(drawing::cross(v, round.yAxis()), up) / square,
                        dot(drawing::cross(round.xAxis(), v), up) / square};
        };
        const Vec3 &direction = line.xAxis();
        const Vec3 from = line.point(0.0) - round.center();
        const double climb = dot(direction, up);
        if (std::abs(climb) > 1e-9 * direction.length() * up.length()) {
            const double along = -dot(from, up) / climb;
            const Vec2 hit = local(from + direction * along);
            return offerAngle(along, round, std::atan2(hit.y, hit.x), isSwapped);
        }
        const Vec2 origin = local(from);
        const Vec2 way = local(direction);
        const double speed = dot(way, way);
        if (!(speed > 0.0))
            return;
        const double nearest = -dot(origin, way) / speed;
        const double height = drawing::cross(origin, way) / std::sqrt(speed);
        const double half = std::sqrt(std::max(0.0, (1.0 - height) * (1.0 + height)) / speed);
        for (const double along : {nearest - half, nearest + half}) {
            const Vec2 hit = origin + way * along;
            offerAngle(along, round, std::atan2(hit.y, hit.x), isSwapped);
        }
    }

    bool areCirclesOfOnePlane() const
    {
        if (!m_first.isCircular() || !m_second.isCircular())
            return false;
        const Vec3 up = normalized(cross2(m_first));
        return drawing::cross(up, normalized(cross2(m_second))).length() <= 1e-9 &&
               std::abs(dot(up, m_second.center() - m_first.center())) <= m_tolerance;
    }

    /// Copies that lie upon each other run along each other, which needs no search.
    bool areOfOneCurve() const
    {
        const auto isSame = [&](auto part) { return std::invoke(part, m_first) == std::invoke(part, m_second); };
        return isSame(&CurvePiece::shape) && isSame(&CurvePiece::center) && isSame(&CurvePiece::xAxis) &&
               isSame(&CurvePiece::yAxis) && m_first.span().points == m_second.span().points &&
               m_first.span().weights == m_second.span().weights;
    }

    void crossCircles()
    {
        const double radius = m_first.xAxis().length();
        const double other = m_second.xAxis().length();
        const Vec3 way = m_second.center() - m_first.center();
        const double distance = way.length();
        if (distance <= m_tolerance && std::abs(radius - other) <= m_tolerance)
            return offerSharedEnds();
        if (distance == 0.0)
            return;
        const double along = (distance * distance + (radius - other) * (radius + other)) / (2.0 * distance);
        const double aside = std::sqrt(std::max(0.0, (radius - along) * (radius + along)));
        const Vec3 ahead = way * (1.0 / distance);
        const Vec3 left = drawing::cross(normalized(cross2(m_first)), ahead);
        const auto angle = [](const CurvePiece &round, const Vec3 &point) {
            const Vec3 out = point - round.center();
            return round.parameterOfAngle(std::atan2(dot(out, round.yAxis()), dot(out, round.xAxis())));
        };
        for (const double side : {aside, -aside}) {
            const Vec3 point = m_first.center() + ahead * std::clamp(along, -radius, radius) + left * side;
            offer(angle(m_first, point), angle(m_second, point));
        }
    }

    void crossByHalves();
    void halve(const CurvePiece &first, const CurvePiece &second, int depth);
    void descend(const CurvePiece &first, const CurvePiece &second);

    const CurvePiece &m_first;
    const CurvePiece &m_second;
    const double m_tolerance;
    std::vector<CurveCrossing> &m_found;
    int m_work = mostHalvings; ///< what is left of them
    double m_nearness = 0.0;   ///< how near parts have to come to be looked at
};

/// An endless line as far as it can meet what is in the box.
CurvePiece clippedTo(const CurvePiece &line, const Box &box)
{
    const Vec3 center = (box.low + box.high) * 0.5;
    const double reach = (box.high - box.low).length() + 1.0;
    const double speed = line.xAxis().length();
    const double middle = dot(center - line.point(0.0), line.xAxis()) / (speed * speed);
    return line.part(std::max(line.start(), std::min(line.end(), middle - reach / speed)),
                     std::min(line.end(), std::max(line.start(), middle + reach / speed)));
}

/// The shortest way between two straight pieces, by trying ends against the other piece and both within.
double gapBetween(const Vec3 &a, const Vec3 &b, const Vec3 &c, const Vec3 &d)
{
    const auto toPiece = [](const Vec3 &point, const Vec3 &from, const Vec3 &to) {
        return (from + (to - from) * shareAlong(from, to, point) - point).length();
    };
    double gap = std::min({toPiece(a, c, d), toPiece(b, c, d), toPiece(c, a, b), toPiece(d, a, b)});
    const Vec3 up = cross(b - a, d - c);
    const double square = dot(up, up);
    if (square > 0.0) {
        const double first = dot(cross(c - a, d - c), up) / square;
        const double second = dot(cross(c - a, b - a), up) / square;
        if (first >= 0.0 && first <= 1.0 && second >= 0.0 && second <= 1.0)
            gap = std::min(gap, std::abs(dot(c - a, up)) / std::sqrt(square));
    }
    return gap;
}

double angleTo(const Vec3 &chord, const Vec3 &way)
{
    return way == Vec3{} ? 0.0 : std::atan2(cross(chord, way).length(), dot(chord, way));
}

/// By how much directions within a piece differ from its chord, at most.
double turnFromChord(const CurvePiece &piece)
{
    if (piece.shape() == CurvePiece::Shape::Straight)
        return 0.0;
    const Vec3 chord = piece.endPoint() - piece.startPoint();
    if (piece.shape() == CurvePiece::Shape::Round) {
        const double sweep = std::abs(piece.angleAt(piece.end()) - piece.angleAt(piece.start()));
        if (sweep > wholeTurn / 4.0)
            return wholeTurn;
        return std::max(angleTo(chord, piece.firstDerivative(piece.start())),
                        angleTo(chord, piece.firstDerivative(piece.end())));
    }
    double turn = 0.0;
    const std::vector<Vec3> &points = piece.span().points;
    for (size_t i = 0; i + 1 < points.size(); ++i)
        turn = std::max(turn, angleTo(chord, points[i + 1] - points[i]));
    return turn;
}

void PiecePair::crossByHalves()
{
    const Box firstBox = m_first.box();
    const Box secondBox = m_second.box();
    const CurvePiece first = m_first.isEndless() ? clippedTo(m_first, secondBox) : m_first;
    const CurvePiece second = m_second.isEndless() ? clippedTo(m_second, firstBox) : m_second;
    m_nearness = m_tolerance * 1e-3;
    const size_t before = m_found.size();
    halve(first, second, 0);
    if (m_work <= 0) {
        m_found.resize(before);
        return offerSharedEnds();
    }
    // Where the pieces touch, they stay within tolerance of each other for a while.
    std::sort(m_found.begin() + static_cast<std::ptrdiff_t>(before), m_found.end(),
              [](const CurveCrossing &a, const CurveCrossing &b) { return a.first < b.first; });
    size_t last = before;
    for (size_t i = before, from = before; i < m_found.size(); ++i) {
        const double s = (m_found[from].first + m_found[i].first) / 2.0;
        const double t = (m_found[from].second + m_found[i].second) / 2.0;
        const bool isOne = (m_first.point(s) - m_second.point(t)).length() <= m_tolerance;
        last += isOne ? 0 : 1;
        from = isOne ? from : i;
        m_found[last] = isOne ? CurveCrossing{s, t, m_first.point(s)} : m_found[i];
    }
    m_found.resize(std::min(m_found.size(), last + 1));
}

void PiecePair::halve(const CurvePiece &first, const CurvePiece &second, int depth)
{
    // Behind so many halvings of both, nothing is left of them; about 0 numbers go on being halved a thousand times.
    constexpr int deepest = 128;
    const Vec3 a = first.startPoint();
    const Vec3 b = first.endPoint();
    const Vec3 c = second.startPoint();
    const Vec3 d = second.endPoint();
    const double firstDeviation = first.deviation();
    const double secondDeviation = second.deviation();
    if (--m_work <= 0 || gapBetween(a, b, c, d) > firstDeviation + secondDeviation + m_nearness)
        return;
    const double between = angleTo(b - a, d - c);
    const double acute = std::min(between, wholeTurn / 2.0 - between);
    const double firstTurn = turnFromChord(first);
    const double secondTurn = turnFromChord(second);
    const double size = std::max((b - a).length() + firstDeviation, (d - c).length() + secondDeviation);
    if (firstTurn + secondTurn < 0.9 * acute || size < m_tolerance)
        return descend(first, second);
    // The one that is farther from being straight is halved.
    const bool isFirst = firstTurn > secondTurn || (firstTurn == secondTurn && firstDeviation >= secondDeviation);
    const CurvePiece &longer = isFirst ? first : second;
    const double middle = (longer.start() + longer.end()) / 2.0;
    if (depth >= deepest || middle <= longer.start() || middle >= longer.end())
        return descend(first, second); // no number lies between
    for (const CurvePiece &half : {longer.part(longer.start(), middle), longer.part(middle, longer.end())})
        halve(isFirst ? half : first, isFirst ? second : half, depth + 1);
}

void PiecePair::descend(const CurvePiece &first, const CurvePiece &second)
{
    double s = (first.start() + first.end()) / 2.0;
    double t = (second.start() + second.end()) / 2.0;
    for (int i = 0; i < 40; ++i) {
        const Vec3 way = first.point(s) - second.point(t);
        const Vec3 along = first.firstDerivative(s);
        const Vec3 other = second.firstDerivative(t);
        const double mixed = dot(along, other);
        const double determinant = dot(along, along) * dot(other, other) - mixed * mixed;
        const double onFirst = dot(way, along);
        const double onSecond = dot(way, other);
        const double byFirst = (mixed * onSecond - onFirst * dot(other, other)) / determinant;
        const double bySecond = (dot(along, along) * onSecond - mixed * onFirst) / determinant;
        if (!std::isfinite(byFirst) || !std::isfinite(bySecond))
            break;
        const double nextFirst = std::clamp(s + byFirst, first.start(), first.end());
        const double nextSecond = std::clamp(t + bySecond, second.start(), second.end());
        const bool isThere = std::abs(nextFirst - s) <= 1e-15 * (1.0 + std::abs(s)) &&
                             std::abs(nextSecond - t) <= 1e-15 * (1.0 + std::abs(t));
        s = nextFirst;
        t = nextSecond;
        if (isThere)
            break;
    }
    offer(s, t);
}

} // namespace

int appendCrossings(std::vector<CurveCrossing> &found, const CurvePiece &first, const CurvePiece &second,
                    double tolerance)
{
    const auto hasExtent = [](const CurvePiece &piece) {
        return piece.shape() != CurvePiece::Shape::Straight || piece.xAxis() != Vec3{};
    };
    if (!hasExtent(first) || !hasExtent(second))
        return 1;
    PiecePair pair(first, second, tolerance, found);
    pair.cross();
    return 1 + pair.halvings();
}

} // namespace host::drawing
