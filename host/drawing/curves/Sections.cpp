#include "host/drawing/curves/Sections.h"

#include "host/drawing/curves/PolylineRecord.h"
#include "host/drawing/math/Angles.h"
#include "host/drawing/records/Dictionaries.h"
#include "host/drawing/records/Entities.h"
#include "host/drawing/records/Journal.h"
#include "host/drawing/tags/GroupCodes.h"

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

/// What a part is taken from.
struct SectionSource
{
    const Drawing &drawing;
    RecordId entity;
    EntityCurve curve;
    double from;
    double to;

    FieldList fields() const { return drawing.fields(entity); }
};

using MaybeRecord = std::optional<CurveRecord>;

void setType(FieldList &fields, const QString &type)
{
    fields.front() = {0, type};
}

MaybeRecord sectionOfLine(const SectionSource &source)
{
    FieldList fields = source.fields();
    setType(fields, u"LINE"_s);
    setField(fields, 10, source.curve.point(source.from));
    setField(fields, 11, source.curve.point(source.to));
    return CurveRecord{std::move(fields), {}};
}

MaybeRecord sectionOfEndless(const SectionSource &source)
{
    const bool hasStart = std::isfinite(source.from);
    const bool hasEnd = std::isfinite(source.to);
    if (hasStart && hasEnd)
        return sectionOfLine(source);
    FieldList fields = source.fields();
    if (hasStart || hasEnd) {
        setType(fields, u"RAY"_s);
        setField(fields, 10, source.curve.point(hasStart ? source.from : source.to));
        setField(fields, 11, source.curve.firstDerivative(0.0) * (hasStart ? 1.0 : -1.0));
    }
    return CurveRecord{std::move(fields), {}};
}

/// Degrees from 0 up to, but not including, 360.
double degreesOfAngle(double angle)
{
    const double turned = std::fmod(angle / radians, 360.0);
    return turned < 0.0 ? turned + 360.0 : turned;
}

MaybeRecord sectionOfArc(const SectionSource &source)
{
    FieldList fields = source.fields();
    setType(fields, u"ARC"_s);
    setField(fields, 50, degreesOfAngle(source.from));
    setField(fields, 51, degreesOfAngle(source.to));
    return CurveRecord{std::move(fields), {}};
}

MaybeRecord sectionOfEllipse(const SectionSource &source)
{
    FieldList fields = source.fields();
    const double turns = std::floor(source.from / wholeTurn) * wholeTurn;
    setField(fields, 41, source.from - turns);
    setField(fields, 42, source.to - turns);
    return CurveRecord{std::move(fields), {}};
}

MaybeRecord sectionOfPolyline(const SectionSource &source)
{
    const std::optional<CurveVertices> polyline = polylineVertices(source.drawing, source.entity);
    const CurveVertices part = polyline ? verticesBetween(*polyline, source.from, source.to) : CurveVertices();
    if (part.vertices.size() < 2)
        return {};
    return polylineRecord(source.drawing, source.entity, part);
}

MaybeRecord sectionOfSpline(const SectionSource &source)
{
    if (source.drawing.isType(source.entity, "LEADER"))
        return {};
    const Spline spline = shownSpline(source.drawing.tags(source.entity));
    const auto between = [&](double from, double to) { return splineSection(spline, from, to); };
    const double first = spline.firstParameter();
    const double last = spline.lastParameter();
    if (source.to <= last)
        return CurveRecord{withSpline(source.fields(), between(source.from, source.to)), {}};
    const double rest = source.to - (last - first);
    if (source.from >= last || rest <= first)
        return CurveRecord{
            withSpline(source.fields(), source.from >= last ? between(first, rest) : between(source.from, last)), {}};
    return CurveRecord{withSpline(source.fields(), splineChain(between(source.from, last), between(first, rest))), {}};
}

using SectionFunction = MaybeRecord (*)(const SectionSource &);

SectionFunction sectionFunction(EntityCurve::Kind kind)
{
    using enum EntityCurve::Kind;
    switch (kind) {
    case Line:
        return sectionOfLine;
    case Ray:
    case ConstructionLine:
        return sectionOfEndless;
    case Arc:
    case Circle:
        return sectionOfArc;
    case Ellipse:
        return sectionOfEllipse;
    case LightPolyline:
    case Polyline:
    case Polyline3d:
        return sectionOfPolyline;
    case Spline:
        return sectionOfSpline;
    case Leader:
        break;
    }
    return nullptr;
}

bool isRoundKind(EntityCurve::Kind kind)
{
    return kind == EntityCurve::Kind::Arc || kind == EntityCurve::Kind::Circle || kind == EntityCurve::Kind::Ellipse;
}

/// Brings the range into the form that the functions above take: `to` above `from`, by a round more where the part
/// crosses the start of a closed curve. False when there is no such part.
bool bringInOrder(SectionSource &source)
{
    const EntityCurve &curve = source.curve;
    const double period = curve.endParameter() - curve.startParameter();
    const double slack = std::isfinite(period) ? 1e-12 * period : 0.0;
    if (std::isnan(source.from) || std::isnan(source.to))
        return false;
    if (curve.isClosed() && source.to <= source.from + slack) {
        source.to += period;
        // A circle has no end that it could begin at.
        return !isRoundKind(curve.kind()) || source.to < source.from + period - slack;
    }
    if (curve.kind() == EntityCurve::Kind::Spline) {
        source.from = std::max(source.from, curve.startParameter());
        source.to = std::min(source.to, curve.endParameter());
    }
    return source.to > source.from + slack;
}

CreateResult createIn(Drawing &drawing, RecordId block, const CurveRecord &record)
{
    Entities &entities = drawing.entities();
    return record.children.empty() ? entities.createInBlock(block, record.head)
                                   : entities.createComplexInBlock(block, record.head, record.children);
}

} // namespace

CreateResult CurveRecord::create(Drawing &drawing, Space space) const
{
    Entities &entities = drawing.entities();
    return children.empty() ? entities.create(head, space) : entities.createComplex(head, children, space);
}

std::optional<CurveRecord> curveSection(const Drawing &drawing, RecordId entity, double from, double to)
{
    std::optional<EntityCurve> curve = EntityCurve::ofEntity(drawing, entity);
    if (!curve)
        return {};
    SectionSource source{drawing, entity, std::move(*curve), from, to};
    const SectionFunction function = sectionFunction(source.curve.kind());
    return function && bringInOrder(source) ? function(source) : std::nullopt;
}

RecordId addCurve(Drawing &drawing, RecordId like, const CurveRecord &record)
{
    const RecordId parent = drawing.parent(like);
    if (drawing.kind(parent) == RecordKind::Block)
        return createIn(drawing, parent, record).record;
    return record.create(drawing, drawing.entities().space(like)).record;
}

RecordId replaceCurve(Drawing &drawing, RecordId entity, const CurveRecord &record)
{
    const QString type = record.head.front().text();
    const bool isInPlace = record.children.empty() && drawing.children(entity).empty() &&
                           type == QString::fromLatin1(drawing.typeName(entity));
    if (isInPlace)
        return drawing.entities().modify(entity, record.head).isEmpty() ? entity : noRecord;
    const JournalGroup group(drawing.journal(), {});
    const RecordId made = addCurve(drawing, entity, record);
    if (isValid(made))
        drawing.dictionaries().setErasedWithOwned(entity, true);
    return made;
}

FieldList withSpline(const FieldList &fields, const Spline &spline)
{
    constexpr int replaced[] = {10, 11, 12, 13, 40, 41, 71, 72, 73, 74};
    FieldList made;
    const auto isHelix = [](const Field &field) {
        return field.code == subclassCode && field.text() == "AcDbHelix"_L1;
    };
    const auto end = ownEnd(fields);
    std::copy_if(fields.begin(), std::find_if(fields.begin(), end, isHelix), std::back_inserter(made),
                 [&](const Field &field) { return std::ranges::find(replaced, field.code) == std::end(replaced); });
    setType(made, u"SPLINE"_s);
    constexpr qint64 keptFlags = ~qint64(1 | 2 | 4);
    const Field *flags = findField(made, 70);
    setField(made, 70, ((flags ? flags->integer() : 0) & keptFlags) | (spline.weights.empty() ? 0 : 4));
    made.push_back({71, qint64(spline.degree)});
    made.push_back({72, qint64(spline.knots.size())});
    made.push_back({73, qint64(spline.controlPoints.size())});
    made.push_back({74, qint64(0)});
    for (const double knot : spline.knots)
        made.push_back({40, knot});
    for (const double weight : spline.weights)
        made.push_back({41, weight});
    for (const Vec3 &point : spline.controlPoints)
        made.push_back({10, point});
    made.insert(made.end(), end, fields.end());
    return made;
}

} // namespace host::drawing
