#include "host/drawing/geometry/SnapPoints.h"

#include "host/drawing/curves/Crossings.h"
#include "host/drawing/math/Angles.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace host::drawing {

namespace {

using Shape = CurvePiece::Shape;

const Vec3 viewDirection{0.0, 0.0, 1.0};
/// Pieces that crossings are looked for among, and points that a tangent of a spline's piece begins its search from.
constexpr std::size_t mostCrossed = 100;
constexpr int tangentProbes = 16;

/// A stretch of a curve that comes within reach.
struct NearPiece
{
    const EntityCurve *curve = nullptr;
    const CurvePiece *piece = nullptr;
    bool isInBlock = false;
};

double flatAway(const Vec3 &a, const Vec3 &b)
{
    return (a - b).xy().length();
}

class SnapSearch
{
public:
    SnapSearch(const std::vector<SnapTarget> &targets, const SnapQuestion &question) : m_question(question)
    {
        m_flatPoint = {question.point.x, question.point.y, 0.0};
        m_window.add(question.point - Vec3{question.reach, question.reach, 0.0});
        m_window.add(question.point + Vec3{question.reach, question.reach, 0.0});
        for (const SnapTarget &target : targets)
            addTarget(target);
    }

    std::optional<SnapPoint> best()
    {
        for (const NearPiece &near : m_near) {
            addPlaces(near);
            addRound(near);
            addFromBase(near);
        }
        addCrossings();
        return m_best;
    }

private:
    bool wants(int kinds) const { return (m_question.kinds & kinds) != 0; }

    void addTarget(const SnapTarget &target)
    {
        if (wants(SnapInsertion))
            for (const Vec3 &point : target.insertions)
                offer(point, SnapInsertion);
        if (wants(SnapNode))
            for (const Vec3 &point : target.nodes)
                if (flatAway(point, m_question.point) <= m_question.reach)
                    offer(point, SnapNode);
        for (const EntityCurve &curve : target.curves) {
            for (const CurvePiece &piece : curve.pieces())
                if (comesNear(piece))
                    m_near.push_back({&curve, &piece, target.isInBlock});
            if (wants(SnapExtension))
                addExtension(curve);
        }
    }

    bool comesNear(const CurvePiece &piece) const
    {
        if (!piece.isEndless() && !piece.box().touchesFlat(m_window))
            return false;
        const CurvePiece flat = piece.transformed(flattening(viewDirection));
        return flatAway(flat.point(flat.closest(m_flatPoint)), m_question.point) <= m_question.reach;
    }

    /// Takes a point when it is better than the best so far.
    void offer(const Vec3 &point, SnapKind kind)
    {
        const double away = flatAway(point, m_question.point);
        if (!std::isfinite(away) || !std::isfinite(point.z))
            return;
        const bool isOutside = away > m_question.reach;
        const std::tuple rank(isOutside, kind == SnapNearest || kind == SnapExtension, away);
        if (m_best && rank >= m_rank)
            return;
        m_rank = rank;
        m_best = SnapPoint{point, kind};
    }

    void offerNearest(const NearPiece &near, SnapKind kind)
    {
        const CurvePiece flat = near.piece->transformed(flattening(viewDirection));
        offer(near.piece->point(flat.closest(m_flatPoint)), kind);
    }

    /// Ends, middles, and the nearest point.
    void addPlaces(const NearPiece &near)
    {
        const bool isWhole =
            near.curve->kind() == EntityCurve::Kind::Spline || near.curve->kind() == EntityCurve::Kind::Ellipse;
        if (wants(SnapNearest))
            offerNearest(near, SnapNearest);
        if (near.curve->isPeriodic())
            return;
        if (wants(SnapEndPoint)) {
            offerEnd(isWhole ? near.curve->startParameter() : near.piece->start(), near);
            offerEnd(isWhole ? near.curve->endParameter() : near.piece->end(), near);
        }
        if (wants(SnapMidPoint) && !near.curve->isEndless())
            offerMiddle(near, isWhole);
    }

    void offerEnd(double parameter, const NearPiece &near)
    {
        if (std::isfinite(parameter))
            offer(near.curve->point(parameter), SnapEndPoint);
    }

    void offerMiddle(const NearPiece &near, bool isWhole)
    {
        if (!isWhole) {
            offer(near.piece->point((near.piece->start() + near.piece->end()) / 2.0), SnapMidPoint);
            return;
        }
        if (const std::optional<double> half = near.curve->parameterAtDistance(near.curve->length() / 2.0))
            offer(near.curve->point(*half), SnapMidPoint);
    }

    /// Centres and quadrants.
    void addRound(const NearPiece &near)
    {
        if (near.piece->shape() != Shape::Round)
            return;
        if (wants(SnapCentre))
            offer(near.piece->center(), SnapCentre);
        if (!wants(SnapQuadrant))
            return;
        const double first = quadrantAngle(near);
        for (int quarter = 0; quarter < 4; ++quarter) {
            const double parameter = near.piece->parameterOfAngle(first + quarter * std::numbers::pi / 2.0);
            if (near.piece->covers(parameter, near.curve->tolerance()))
                offer(near.piece->point(parameter), SnapQuadrant);
        }
    }

    /// Of circles that stand in the space itself quadrants lie along the user's axes.
    double quadrantAngle(const NearPiece &near) const
    {
        if (near.isInBlock || !near.piece->isCircular())
            return 0.0;
        const Vec3 &along = m_question.userAxes.xAxis;
        const double x = dot(along, near.piece->xAxis());
        const double y = dot(along, near.piece->yAxis());
        return std::hypot(x, y) > 0.0 ? std::atan2(y, x) : 0.0;
    }

    /// Perpendiculars and tangents.
    void addFromBase(const NearPiece &near)
    {
        for (const SnapKind kind : {SnapPerpendicular, SnapTangent}) {
            if (!wants(kind) || (kind == SnapTangent && near.piece->shape() == Shape::Straight))
                continue;
            if (!m_question.base)
                offerNearest(near, kind);
            else if (kind == SnapPerpendicular)
                addFeet(*near.piece);
            else
                addTangents(*near.piece);
        }
    }

    void addFeet(const CurvePiece &piece)
    {
        const Vec3 &base = *m_question.base;
        if (piece.shape() == Shape::Straight) {
            // Its foot may lie beyond the ends.
            const Vec3 along = piece.firstDerivative(std::isfinite(piece.start()) ? piece.start() : 0.0);
            const Vec3 on = piece.point(std::isfinite(piece.start()) ? piece.start() : 0.0);
            if (const double size = dot(along, along); size > 0.0)
                offer(on + along * (dot(base - on, along) / size), SnapPerpendicular);
        } else {
            addZeros(piece, SnapPerpendicular, [&piece, &base](double parameter) {
                return dot(piece.point(parameter) - base, piece.firstDerivative(parameter));
            });
        }
    }

    void addTangents(const CurvePiece &piece)
    {
        const Vec3 &base = *m_question.base;
        if (piece.shape() != Shape::Round) {
            addZeros(piece, SnapTangent, [&piece, &base](double parameter) {
                return cross((piece.point(parameter) - base).xy(), piece.firstDerivative(parameter).xy());
            });
            return;
        }
        // Where its axes are of length 1 it is a circle, and lines that touch it stay such.
        const Matrix axes{piece.xAxis(), piece.yAxis(), cross(piece.xAxis(), piece.yAxis()), piece.center()};
        const Vec2 seen = axes.inverted().point(base).xy();
        if (seen.length() <= 1.0)
            return;
        const double opening = std::acos(1.0 / seen.length());
        for (const double angle : {std::atan2(seen.y, seen.x) - opening, std::atan2(seen.y, seen.x) + opening}) {
            const double parameter = piece.parameterOfAngle(angle);
            if (piece.covers(parameter))
                offer(piece.point(parameter), SnapTangent);
        }
    }

    /// The points of a piece where `value` changes its sign.
    template <typename Value>
    void addZeros(const CurvePiece &piece, SnapKind kind, const Value &value)
    {
        const double step = (piece.end() - piece.start()) / tangentProbes;
        for (int probe = 0; probe < tangentProbes; ++probe) {
            double low = piece.start() + probe * step;
            double high = low + step;
            const bool rises = value(low) <= 0.0;
            if (rises == (value(high) <= 0.0))
                continue;
            constexpr int halvings = 60;
            for (int i = 0; i < halvings; ++i) {
                const double middle = (low + high) / 2.0;
                ((value(middle) <= 0.0) == rises ? low : high) = middle;
            }
            offer(piece.point((low + high) / 2.0), kind);
        }
    }

    /// How the curve would go on, near its ends.
    void addExtension(const EntityCurve &curve)
    {
        if (curve.isClosed() || curve.isEndless())
            return;
        const double on = curve.closestProjected(m_question.point, viewDirection, Extension::Both);
        const Vec3 point = curve.point(on);
        if ((on < curve.startParameter() || on > curve.endParameter()) &&
            flatAway(point, m_question.point) <= m_question.reach)
            offer(point, SnapExtension);
    }

    void addCrossings()
    {
        if (!wants(SnapIntersection | SnapApparentIntersection))
            return;
        const std::size_t count = std::min(m_near.size(), mostCrossed);
        for (std::size_t i = 0; i < count; ++i)
            for (std::size_t j = i + 1; j < count; ++j)
                addCrossings(m_near[i], m_near[j]);
    }

    void addCrossings(const NearPiece &first, const NearPiece &second)
    {
        std::vector<CurveCrossing> found;
        const double tolerance = std::max(first.curve->tolerance(), second.curve->tolerance());
        SnapKind kind = SnapIntersection;
        if (wants(SnapIntersection))
            appendCrossings(found, *first.piece, *second.piece, tolerance);
        if (found.empty() && wants(SnapApparentIntersection)) {
            kind = SnapApparentIntersection;
            const Matrix flat = flattening(viewDirection);
            appendCrossings(found, first.piece->transformed(flat), second.piece->transformed(flat), tolerance);
        }
        for (const CurveCrossing &crossing : found) {
            const Vec3 point = first.piece->point(crossing.first);
            if (flatAway(point, m_question.point) <= m_question.reach)
                offer(point, kind);
        }
    }

    const SnapQuestion &m_question;
    Vec3 m_flatPoint; ///< of the question, at height 0
    Box m_window;
    std::vector<NearPiece> m_near;
    std::optional<SnapPoint> m_best;
    std::tuple<bool, bool, double> m_rank;
};

} // namespace

std::optional<SnapPoint> findSnap(const std::vector<SnapTarget> &targets, const SnapQuestion &question)
{
    return SnapSearch(targets, question).best();
}

} // namespace host::drawing
