#include "host/drawing/curves/CurveSpline.h"

#include <numbers>

namespace host::drawing {

namespace {

/// Parts of at most a quarter turn: the point between is where the tangents of both ends meet.
void appendRound(std::vector<BezierSpan> &spans, const CurvePiece &piece)
{
    const double from = piece.angleAt(piece.start());
    const double sweep = piece.angleAt(piece.end()) - from;
    const int parts = std::max(1, static_cast<int>(std::ceil(std::abs(sweep) / (std::numbers::pi / 2.0) - 1e-9)));
    const auto at = [&](double angle, double weight) {
        return piece.center() + (piece.xAxis() * std::cos(angle) + piece.yAxis() * std::sin(angle)) * (1.0 / weight);
    };
    const double step = sweep / parts;
    const double width = (piece.end() - piece.start()) / parts;
    const double weight = std::cos(step / 2.0);
    for (int i = 0; i < parts; ++i) {
        const double begin = from + step * i;
        spans.push_back({piece.start() + width * i,
                         i + 1 < parts ? piece.start() + width * (i + 1) : piece.end(),
                         {at(begin, 1.0), at(begin + step / 2.0, weight), at(begin + step, 1.0)},
                         {1.0, weight, 1.0}});
    }
}

Spline chainOf(std::span<const Spline> splines)
{
    if (splines.size() == 1)
        return splines.front();
    const std::size_t half = splines.size() / 2;
    return splineChain(chainOf(splines.first(half)), chainOf(splines.subspan(half)));
}

} // namespace

Spline exactSpline(const EntityCurve &curve)
{
    std::vector<BezierSpan> spans;
    for (const CurvePiece &piece : curve.pieces()) {
        if (piece.length() <= 0.0)
            continue;
        if (piece.shape() == CurvePiece::Shape::Round)
            appendRound(spans, piece);
        else if (piece.shape() == CurvePiece::Shape::Polynomial)
            spans.push_back(piece.span());
        else
            spans.push_back({piece.start(), piece.end(), {piece.startPoint(), piece.endPoint()}, {}});
    }
    if (spans.empty())
        return {};
    std::size_t degree = 1;
    for (const BezierSpan &span : spans)
        degree = std::max(degree, span.points.size() - 1);
    for (BezierSpan &span : spans)
        span = elevatedSpan(span, degree);
    return splineOfSpans(spans);
}

Spline splineChain(const std::vector<Spline> &splines)
{
    int degree = 1;
    for (const Spline &spline : splines)
        degree = std::max(degree, spline.degree);
    std::vector<Spline> raised;
    for (const Spline &spline : splines)
        raised.push_back(elevatedSpline(spline, degree));
    return chainOf(raised);
}

} // namespace host::drawing
