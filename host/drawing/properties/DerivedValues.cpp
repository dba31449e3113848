#include "host/drawing/properties/DerivedValues.h"

#include "host/drawing/curves/CurveVertices.h"
#include "host/drawing/editing/TextContent.h"
#include "host/drawing/math/Angles.h"
#include "host/drawing/records/Dictionaries.h"
#include "host/drawing/records/HeaderVariables.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace host::drawing {

namespace {

using Derived = std::optional<FieldValue>;

/// Degrees, 0 up to 360.
double wholeDegrees(double degrees)
{
    const double rest = std::fmod(degrees, 360.0);
    return rest < 0.0 ? rest + 360.0 : rest;
}

Derived endOfCurve(const Drawing &drawing, RecordId entity, Vec3 (EntityCurve::*end)() const)
{
    const std::optional<EntityCurve> curve = EntityCurve::ofEntity(drawing, entity);
    return curve && !curve->isEndless() && !curve->isClosed() ? Derived((*curve.*end)()) : Derived();
}

/// The name that the drawing's plot styles have for a handle.
Derived styleOfHandle(const Drawing &drawing, Handle style)
{
    const Dictionaries &dictionaries = drawing.dictionaries();
    const RecordId styles = dictionaries.find(dictionaries.root(), u"ACAD_PLOTSTYLENAME");
    for (const Dictionaries::Entry &entry : dictionaries.entries(styles))
        if (entry.handle == style)
            return FieldValue(entry.name);
    return {};
}

} // namespace

Derived curveLength(const Drawing &drawing, RecordId entity)
{
    const std::optional<EntityCurve> curve = EntityCurve::ofEntity(drawing, entity);
    return curve && !curve->isEndless() ? Derived(curve->length()) : Derived();
}

Derived curveArea(const Drawing &drawing, RecordId entity)
{
    const std::optional<EntityCurve> curve = EntityCurve::ofEntity(drawing, entity);
    return curve && !curve->isEndless() && curve->isPlanar() ? Derived(curve->area()) : Derived();
}

Derived curveStart(const Drawing &drawing, RecordId entity)
{
    return endOfCurve(drawing, entity, &EntityCurve::startPoint);
}

Derived curveEnd(const Drawing &drawing, RecordId entity)
{
    return endOfCurve(drawing, entity, &EntityCurve::endPoint);
}

Derived vertexCount(const Drawing &drawing, RecordId entity)
{
    const std::optional<CurveVertices> polyline = polylineVertices(drawing, entity);
    return polyline ? Derived(qint64(polyline->vertices.size())) : Derived();
}

Derived circleDiameter(const Drawing &drawing, RecordId entity)
{
    return FieldValue(2.0 * drawing.tags(entity).real(40));
}

Derived arcAngle(const Drawing &drawing, RecordId entity)
{
    const TagList tags = drawing.tags(entity);
    return FieldValue(wholeDegrees(tags.real(51) - tags.real(50)));
}

Derived lineDelta(const Drawing &drawing, RecordId entity)
{
    const TagList tags = drawing.tags(entity);
    return FieldValue(tags.point(11) - tags.point(10));
}

Derived lineAngle(const Drawing &drawing, RecordId entity)
{
    const TagList tags = drawing.tags(entity);
    const Vec3 along = tags.point(11) - tags.point(10);
    return FieldValue(wholeDegrees(std::atan2(along.y, along.x) / radians));
}

Derived wholeContent(const Drawing &drawing, RecordId entity)
{
    return FieldValue(contentOf(drawing, entity));
}

Derived plotStyleName(const Drawing &drawing, RecordId entity)
{
    if (drawing.version() < Version::R2000)
        return {};
    if (drawing.header().integer(u"$PSTYLEMODE", 1) != 0)
        return FieldValue(u"ByColor"_s);
    enum Way
    {
        ByLayer,
        ByBlock,
        Usual
    };
    const TagList tags = drawing.tags(entity);
    switch (tags.integer(380)) {
    case ByBlock:
        return FieldValue(u"ByBlock"_s);
    case Usual:
        return FieldValue(u"Normal"_s);
    default:
        return tags.find(390) ? styleOfHandle(drawing, tags.handle(390)) : Derived(FieldValue(u"ByLayer"_s));
    }
}

} // namespace host::drawing
