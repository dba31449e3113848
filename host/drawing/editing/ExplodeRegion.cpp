#include "host/drawing/editing/ExplodeRegion.h"

#include "host/drawing/curves/Sections.h"
#include "host/drawing/editing/ExplodePolyline.h"
#include "host/drawing/math/Angles.h"
#include "host/drawing/solids/RegionRecord.h"
#include "host/drawing/solids/SolidModel.h"

#include <numbers>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

constexpr double wholeRound = 2.0 * std::numbers::pi;

FieldList roundRecord(const FieldList &entity, const CurvePiece &piece)
{
    EllipseAxes axes = ellipseAxes(piece);
    const bool isWhole = axes.sweep >= wholeRound - 1e-9;
    Vec3 normal = normalized(cross(axes.major, axes.minor));
    if (normal.z < 0.0) { // seen from above as it is drawn as a rule
        normal = normal * -1.0;
        axes.minor = axes.minor * -1.0;
        axes.start = -(axes.start + axes.sweep);
    }
    if (!piece.isCircular()) {
        const double start = isWhole ? 0.0 : std::remainder(axes.start, wholeRound);
        FieldList ellipse = lookOfPiece(entity, u"ELLIPSE"_s);
        ellipse.insert(ellipse.end(), {{10, piece.center()},
                                       {11, axes.major},
                                       {210, normal},
                                       {40, axes.minor.length() / axes.major.length()},
                                       {41, start},
                                       {42, start + axes.sweep}});
        return ellipse;
    }
    const Matrix plane = Matrix::fromExtrusion(normal).inverted();
    const auto degreesAt = [&](double angle) {
        const Vec3 arm = plane.direction(axes.major * std::cos(angle) + axes.minor * std::sin(angle));
        const double degrees = std::atan2(arm.y, arm.x) / radians;
        return degrees < 0.0 ? degrees + 360.0 : degrees;
    };
    FieldList circle = lookOfPiece(entity, isWhole ? u"CIRCLE"_s : u"ARC"_s);
    circle.insert(circle.end(), {{10, plane.point(piece.center())}, {40, axes.major.length()}});
    if (!isWhole)
        circle.insert(circle.end(), {{50, degreesAt(axes.start)}, {51, degreesAt(axes.start + axes.sweep)}});
    if (normal != Vec3{0.0, 0.0, 1.0})
        circle.push_back({210, normal});
    return circle;
}

FieldList splineRecord(const FieldList &entity, const Spline &spline)
{
    constexpr qint64 planarFlag = 8;
    FieldList look = lookOfPiece(entity, u"SPLINE"_s);
    look.push_back({70, planarFlag});
    return withSpline(look, spline);
}

FieldList edgeRecord(const FieldList &entity, const SolidEdge &edge)
{
    const CurvePiece &piece = edge.front();
    if (piece.shape() == CurvePiece::Shape::Round)
        return roundRecord(entity, piece);
    if (piece.shape() == CurvePiece::Shape::Polynomial)
        return splineRecord(entity, splineOfPieces(edge));
    FieldList line = lookOfPiece(entity, u"LINE"_s);
    line.insert(line.end(), {{10, piece.startPoint()}, {11, piece.endPoint()}});
    return line;
}

} // namespace

std::vector<FieldList> regionPieces(const Drawing &drawing, RecordId region)
{
    std::vector<FieldList> pieces;
    if (!drawing.isType(region, "REGION"))
        return pieces;
    const SolidModel model = readSolidModel(drawing.tags(region));
    const FieldList fields = drawing.fields(region);
    for (const SolidEdge &edge : model.edges)
        if (model.isWhole)
            pieces.push_back(edgeRecord(fields, edge));
    return pieces;
}

} // namespace host::drawing
