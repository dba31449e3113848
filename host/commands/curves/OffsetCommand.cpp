#include "host/commands/Commands.h"
#include "host/commands/common/EntityEdits.h"
#include "host/commands/common/KeptValues.h"
#include "host/commands/common/SplineRecord.h"
#include "host/commands/common/UserPlane.h"
#include "host/commands/curves/EditedPolyline.h"
#include "host/commands/curves/OffsetShape.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/documents/Document.h"

#include <QSet>

#include <cmath>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::EntityCurve;
using drawing::FieldList;
using drawing::RecordId;
using drawing::Vec3;

struct OffsetSettings
{
    double distance = 0.0;
    bool isThrough = false; ///< a point decides on the distance
    bool erasesSource = false;
    bool onCurrentLayer = false;
    OffsetGap gap = OffsetGap::Extend;
};

Vec3 offsetNormal(CommandContext &context, const EntityCurve &curve)
{
    const UserPlane plane(context.document());
    const Vec3 user = plane.worldFromUser({0.0, 0.0, 1.0}) - plane.worldFromUser({});
    return curve.normal().value_or(user);
}

/// How far a point lies to the left of a curve, as its normal sees it; the nearest point of the curve counts.
double signedDistance(const EntityCurve &curve, const Vec3 &normal, const Vec3 &point)
{
    const bool isStraight =
        curve.pieces().size() == 1 && curve.pieces().front().shape() == drawing::CurvePiece::Shape::Straight;
    const double at =
        curve.closestProjected(point, normal, isStraight ? drawing::Extension::Both : drawing::Extension::None);
    const Vec3 way = point - curve.point(at);
    const Vec3 flat = way - normal * dot(way, normal);
    // Beyond a corner both of its sides are to be asked: the one that the point is farther aside of is right.
    double side = 0.0;
    for (const drawing::CurvePiece &piece : curve.pieces()) {
        if (!piece.covers(at, 1e-9))
            continue;
        const double inside = std::clamp(at, piece.start(), piece.end());
        const double aside = dot(cross(drawing::normalized(piece.firstDerivative(inside)), flat), normal);
        side = std::abs(aside) > std::abs(side) ? aside : side;
    }
    return std::copysign(flat.length(), side);
}

/// The source's look, on its layer or the current one.
FieldList lookOfOffset(CommandContext &context, RecordId source, const OffsetSettings &settings)
{
    FieldList fields = context.drawing().fields(source);
    static const QSet<int> ofRecord = {5, 100, 102, 330, 360};
    std::erase_if(fields, [](const drawing::Field &field) { return ofRecord.contains(field.code); });
    fields.erase(drawing::ownEnd(fields), fields.end());
    if (settings.onCurrentLayer)
        drawing::setField(fields, 8, context.document().variables().text(u"CLAYER"));
    return fields;
}

RecordId createOffset(CommandContext &context, const FieldList &fields)
{
    const drawing::CreateResult made = createOnCurrent(context.drawing(), fields);
    if (!made)
        context.print(u'\n' + made.error);
    return made.record;
}

std::vector<RecordId> offsetOfPolyline(CommandContext &context, EditedPolyline polyline, double distance,
                                       const OffsetSettings &settings, const FieldList &look)
{
    drawing::CurveVertices vertices = *drawing::polylineVertices(context.drawing(), polyline.record);
    std::vector<RecordId> made;
    for (const drawing::CurveVertices &chain : offsetPolyline(vertices, distance, settings.gap)) {
        EditedPolyline result = polyline;
        result.record = drawing::noRecord;
        result.smoothing = Smoothing::None;
        result.isClosed = chain.isClosed;
        result.vertices.clear();
        for (const drawing::CurveVertex &vertex : chain.vertices)
            result.vertices.push_back({vertex});
        if (const drawing::Field *layer = drawing::findField(look, 8))
            drawing::setField(result.look, 8, layer->text());
        if (const StoredPolyline stored = storePolyline(context, result); isValid(stored.record))
            made.push_back(stored.record);
    }
    return made;
}

/// The parallel curve at a distance to the left; none where there is no room for one.
std::vector<RecordId> createParallel(CommandContext &context, RecordId source, const EntityCurve &curve,
                                     double distance, const OffsetSettings &settings)
{
    const drawing::Drawing &drawing = context.drawing();
    const Vec3 normal = offsetNormal(context, curve);
    FieldList fields = lookOfOffset(context, source, settings);
    const auto single = [](RecordId id) { return isValid(id) ? std::vector{id} : std::vector<RecordId>(); };
    if (std::optional<EditedPolyline> polyline = readPolyline(drawing, source)) {
        if (polyline->isSpatial)
            return {};
        return offsetOfPolyline(context, std::move(*polyline), distance, settings, fields);
    }
    if (drawing.isType(source, "CIRCLE") || drawing.isType(source, "ARC")) {
        const double radius = drawing::realOf(fields, 40) - distance;
        drawing::setField(fields, 40, radius);
        return radius > 1e-9 ? single(createOffset(context, fields)) : std::vector<RecordId>();
    }
    if (curve.pieces().front().shape() == drawing::CurvePiece::Shape::Straight) {
        const Vec3 along = drawing::normalized(curve.pieces().front().firstDerivative(0.0));
        const Vec3 by = drawing::normalized(cross(normal, along)) * distance;
        for (const int code : {10, 11})
            if (code == 10 || drawing.isType(source, "LINE"))
                drawing::setField(fields, code, drawing::findField(fields, code)->point() + by);
        return single(createOffset(context, fields));
    }
    const std::optional<drawing::Spline> spline =
        curve.isPlanar() ? offsetSpline(curve, normal, distance) : std::nullopt;
    if (!spline)
        return {};
    FieldList made = splineRecord(*spline);
    for (const int code : {8, 6, 62, 48, 370})
        if (const drawing::Field *field = drawing::findField(fields, code))
            made.push_back(*field);
    return single(createOffset(context, made));
}

/// What was made and erased for one point, to be taken back.
struct OffsetStep
{
    std::vector<RecordId> made;
    RecordId erased = drawing::noRecord;
};

Dialogue<bool> askOffsetSettings(CommandContext &context, OffsetSettings &settings)
{
    const double kept = context.document().variables().real(u"OFFSETDIST", -1.0);
    for (;;) {
        const QString usual = kept > 0.0 ? context.shownLength(kept) : u"Through"_s;
        const PromptReply reply =
            co_await context.distance(u"Specify offset distance or [Through/Erase/Layer] <%1>: "_s.arg(usual), {}, {},
                                      usual, NoNegative | NoZero);
        if (reply.isKeyword(u"Erase")) {
            settings.erasesSource =
                co_await askYesNo(context, u"Erase source object after offsetting?"_s, settings.erasesSource);
        } else if (reply.isKeyword(u"Layer")) {
            const QString layer =
                co_await askUsualOption(context, u"Enter layer option for offset objects [Current/Source]"_s,
                                        settings.onCurrentLayer ? u"Current"_s : u"Source"_s);
            settings.onCurrentLayer = layer == u"Current";
        } else {
            settings.isThrough = reply.isKeyword(u"Through") || (reply.isEmpty() && kept <= 0.0);
            settings.distance = reply.hasValue() ? reply.real : kept;
            keepValue(context, u"OFFSETDIST", settings.isThrough ? -1.0 : settings.distance);
            co_return true;
        }
    }
}

void takeOffsetBack(CommandContext &context, std::vector<OffsetStep> &steps)
{
    if (steps.empty())
        return context.print(u"\nNothing to undo"_s);
    eraseAll(context, steps.back().made);
    if (isValid(steps.back().erased))
        bringBack(context, {steps.back().erased});
    steps.pop_back();
}

/// What the points for one object lead to.
enum class OffsetNext
{
    NextObject,
    Exit,
    Abandon
};

Dialogue<OffsetNext> askSides(CommandContext &context, OffsetSettings settings, RecordId source,
                              std::vector<OffsetStep> &steps)
{
    bool isMultiple = false;
    for (;;) {
        const QString first = settings.isThrough ? u"Specify through point"_s : u"Specify point on side to offset"_s;
        const QString rest = isMultiple ? u" or [Exit/Undo] <next object>: "_s : u" or [Exit/Multiple/Undo] <Exit>: "_s;
        const PromptReply reply = co_await context.point(first + rest, {}, {}, isMultiple ? u""_s : u"Exit"_s);
        if (reply.isEmpty())
            co_return isMultiple ? OffsetNext::NextObject : OffsetNext::Exit;
        if (reply.isKeyword(u"Exit"))
            co_return OffsetNext::Exit;
        if (reply.isKeyword(u"Multiple")) {
            isMultiple = true;
            continue;
        }
        if (reply.isKeyword(u"Undo")) {
            takeOffsetBack(context, steps);
            continue;
        }
        const std::optional<EntityCurve> curve = EntityCurve::ofEntity(context.drawing(), source);
        const Vec3 normal = offsetNormal(context, *curve);
        const double aside = signedDistance(*curve, normal, reply.point);
        const double distance = settings.isThrough ? aside : std::copysign(settings.distance, aside);
        OffsetStep step{createParallel(context, source, *curve, distance, settings)};
        if (step.made.empty()) {
            if (context.refuse(u"Cannot offset that object so far."_s))
                co_return OffsetNext::Abandon;
            continue;
        }
        if (settings.erasesSource) {
            step.erased = source;
            eraseAll(context, {source});
        }
        steps.push_back(step);
        if (!isMultiple)
            co_return OffsetNext::NextObject;
        source = step.made.front();
    }
}

// A distance, then entities and points that say on which side; or points that the parallels go through.
CommandTask offset(CommandContext &context)
{
    OffsetSettings settings;
    settings.gap = static_cast<OffsetGap>(std::clamp(context.document().variables().integer(u"OFFSETGAPTYPE"), 0, 2));
    co_await askOffsetSettings(context, settings);
    std::vector<OffsetStep> steps;
    for (;;) {
        PromptRequest request;
        request.kind = PromptKind::Entity;
        request.prompt = u"\nSelect object to offset or [Exit/Undo] <Exit>: "_s;
        request.keywords = {u"Exit"_s, u"Undo"_s};
        const PromptReply picked = co_await context.ask(request);
        if (picked.isKeyword(u"Undo")) {
            takeOffsetBack(context, steps);
            continue;
        }
        if (picked.isMiss)
            continue;
        if (picked.entities.empty())
            co_return;
        const RecordId source = picked.entities.front();
        const bool isCurve = EntityCurve::ofEntity(context.drawing(), source).has_value();
        if (!isCurve || context.drawing().isType(source, "LEADER")) {
            if (context.refuse(u"Cannot offset that object."_s))
                co_return;
            continue;
        }
        // A locked source can be followed as long as it stays.
        if (settings.erasesSource && editable(context, {source}).empty())
            continue;
        if (co_await askSides(context, settings, source, steps) != OffsetNext::NextObject)
            co_return;
    }
}

} // namespace

std::vector<CommandRow> offsetCommands()
{
    return {{"OFFSET", offset, "Draws parallel curves", WhenCancelled::KeepDone}};
}

} // namespace host::kernel
