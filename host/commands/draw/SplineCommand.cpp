#include "host/commands/Commands.h"
#include "host/commands/common/ControlSpline.h"
#include "host/commands/common/EntityEdits.h"
#include "host/commands/common/KeptValues.h"
#include "host/commands/common/SplineRecord.h"
#include "host/commands/draw/CurveEntity.h"
#include "host/drawing/math/SplineEdit.h"
#include "host/drawing/records/PolylineFlags.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::FieldList;
using drawing::FitSpacing;
using drawing::RecordId;
using drawing::Spline;
using drawing::Vec3;

/// What a smooth curve is to pass, and how. Tangents have length 1; a closed curve has one, at its seam.
struct SplineFit
{
    std::vector<Vec3> points;
    bool isClosed = false;
    FitSpacing spacing = FitSpacing::Chord;
    std::optional<Vec3> startTangent{};
    std::optional<Vec3> endTangent{};
};

/// The record of a spline. Tangents are written where they were given.
FieldList fittedRecord(const Spline &spline, const SplineFit &fit, double tolerance)
{
    FieldList fields = splineRecord(spline);
    FieldList more = {{44, std::max(tolerance, 1e-10)}};
    if (fit.startTangent)
        more.push_back({12, *fit.startTangent});
    if (fit.endTangent)
        more.push_back({13, *fit.endTangent});
    const auto knots = std::ranges::find(fields, 40, &drawing::Field::code);
    fields.insert(knots, more.begin(), more.end());
    return fields;
}

/// A spline while it is drawn; points are in world coordinates.
struct SplineDraft
{
    SplineFit fit;
    bool isFit = true; ///< its points are passed, not only aimed at
    int degree = 3;
    double tolerance = 0.0;
    bool hasAskedStart = false; ///< the start tangent was given before the points ended
    bool hasAskedEnd = false;
};

FitSpacing spacingNamed(const QString &name)
{
    return name == u"Uniform" ? FitSpacing::Uniform : name == u"Square" ? FitSpacing::SquareRoot : FitSpacing::Chord;
}

/// The curve that a polyline with the smoothing of splines shows; nothing for another.
std::optional<Spline> splineOfPolyline(const drawing::Drawing &drawing, RecordId polyline)
{
    constexpr qint64 splineFit = 4;
    constexpr qint64 quadratic = 5;
    const drawing::TagList tags = drawing.tags(polyline);
    const qint64 flags = tags.integer(70);
    if (!drawing.isType(polyline, "POLYLINE") || (flags & splineFit) == 0 || (flags & drawing::FlagMesh) != 0)
        return {};
    const bool isFlat = (flags & drawing::Flag3d) == 0;
    const drawing::Matrix object =
        isFlat ? drawing::Matrix::fromExtrusion(tags.point(210, {0.0, 0.0, 1.0})) : drawing::Matrix();
    std::vector<Vec3> frame;
    for (const RecordId vertex : drawing.children(polyline)) {
        const drawing::TagList own = drawing.tags(vertex);
        if ((own.integer(70) & drawing::FlagFrameControl) != 0)
            frame.push_back(object.point(own.point(10)));
    }
    const bool isClosed = (flags & drawing::FlagClosed) != 0;
    if (frame.size() < (isClosed ? 3 : 2))
        return {};
    return splineOver(std::move(frame), tags.integer(75) == quadratic ? 2 : 3, isClosed);
}

/// Splines in place of polylines.
Dialogue<bool> convertPolylines(CommandContext &context)
{
    const PromptReply chosen = co_await context.selection();
    std::vector<RecordId> converted;
    for (const RecordId id : editable(context, chosen.entities)) {
        const std::optional<Spline> spline = splineOfPolyline(context.drawing(), id);
        if (!spline)
            continue;
        FieldList fields = splineRecord(*spline);
        const FieldList look = context.drawing().fields(id);
        for (const int code : {8, 6, 62, 48, 370})
            if (const drawing::Field *field = drawing::findField(look, code))
                fields.push_back(*field);
        if (isValid(context.create(fields)))
            converted.push_back(id);
    }
    if (context.document().variables().integer(u"DELOBJ", 1) != 0)
        eraseAll(context, converted);
    if (converted.empty())
        context.print(Commands::tr("\nOnly polylines with the smoothing of splines can be converted."));
    co_return !converted.empty();
}

/// The first point, and what is set in front of it. Nothing when the command is done with that.
Dialogue<std::optional<Vec3>> askFirst(CommandContext &context, SplineDraft &draft)
{
    for (;;) {
        const QString prompt = draft.isFit ? Commands::tr("Specify first point or [Method/Knots/Object]: ")
                                           : Commands::tr("Specify first point or [Method/Degree/Object]: ");
        const PromptReply reply = co_await context.neededPoint(prompt);
        if (reply.isKeyword(u"Object")) {
            co_await convertPolylines(context);
            co_return std::nullopt;
        }
        if (reply.isKeyword(u"Method")) {
            const QString method =
                co_await askUsualOption(context, Commands::tr("Enter spline creation method [Fit/CV]"),
                                        draft.isFit ? u"Fit"_s : u"CV"_s, u"Fit CV,C"_s);
            draft.isFit = method == u"Fit";
            keepValue(context, u"SPLMETHOD", draft.isFit ? 0 : 1);
        } else if (reply.isKeyword(u"Knots")) {
            const QString spacing = co_await askUsualOption(
                context, Commands::tr("Enter knot parameterization [Chord/Square root/Uniform]"), u"Chord"_s);
            draft.fit.spacing = spacingNamed(spacing);
            keepValue(context, u"SPLKNOTS", static_cast<qint32>(draft.fit.spacing));
        } else if (reply.isKeyword(u"Degree")) {
            const PromptReply degree =
                co_await context.integer(Commands::tr("Enter degree of spline <%1>: ").arg(draft.degree), {},
                                         QString::number(draft.degree), NoZero);
            draft.degree = std::clamp(degree.hasValue() ? degree.integer : draft.degree, 1, 10);
            keepValue(context, u"SPLDEGREE", draft.degree);
        } else {
            co_return reply.point;
        }
    }
}

Dialogue<std::optional<Vec3>> askTangent(CommandContext &context, const QString prompt, const Vec3 base)
{
    const PromptReply reply = co_await context.point(prompt, {}, base);
    const bool isDirection = reply.hasValue() && (reply.point - base).length() > 0.0;
    co_return isDirection ? std::optional(drawing::normalized(reply.point - base)) : std::nullopt;
}

/// What is asked behind each point. False when there are enough of them.
Dialogue<bool> askNext(CommandContext &context, SplineDraft &draft)
{
    std::vector<Vec3> &points = draft.fit.points;
    const QString close = points.size() > 2 ? u"Close/"_s : u""_s;
    const QString prompt =
        !draft.isFit ? Commands::tr("Enter next point or [%1Undo]: ").arg(close)
        : points.size() < 2
            ? Commands::tr("Enter next point or [start Tangency/toLerance]: ")
            : Commands::tr("Enter next point or [%1Fit tolerance/Undo/end Tangency] <start tangent>: ").arg(close);
    const QString options =
        u"Close "_s.left(close.size()) + u"Undo"_s + (draft.isFit ? u" Tangency toLerance Fit"_s : u""_s);
    const PromptReply reply = co_await context.point(prompt, options, points.back());
    if (reply.isEmpty())
        co_return false;
    if (reply.isKeyword(u"Close")) {
        draft.fit.isClosed = true;
        co_return false;
    }
    if (reply.isKeyword(u"Undo")) {
        if (points.size() > 1)
            points.pop_back();
        else
            context.print(Commands::tr("\nAll points already undone."));
    } else if (reply.isKeyword(u"Tangency") && points.size() < 2) {
        draft.fit.startTangent = co_await askTangent(context, Commands::tr("Specify start tangent: "), points.front());
        draft.hasAskedStart = true;
    } else if (reply.isKeyword(u"Tangency")) {
        draft.fit.endTangent = co_await askTangent(context, Commands::tr("Specify end tangent: "), points.back());
        draft.hasAskedEnd = true;
        co_return false;
    } else if (reply.kind == ReplyKind::Keyword) {
        draft.tolerance = co_await askUsualLength(context, Commands::tr("Specify fit tolerance"), draft.tolerance);
    } else if ((reply.point - points.back()).length() > 0.0) {
        points.push_back(reply.point);
    }
    co_return true;
}

/// The directions at the ends, which an empty answer leaves to the curve.
Dialogue<bool> askTangents(CommandContext &context, SplineDraft &draft)
{
    const std::vector<Vec3> &points = draft.fit.points;
    if (draft.fit.isClosed) {
        draft.fit.startTangent = co_await askTangent(context, Commands::tr("Specify tangent: "), points.front());
        co_return true;
    }
    // Those who give an end with the points have had the start to give as well.
    if (!draft.hasAskedStart && !draft.hasAskedEnd)
        draft.fit.startTangent = co_await askTangent(context, Commands::tr("Specify start tangent: "), points.front());
    if (!draft.hasAskedEnd)
        draft.fit.endTangent = co_await askTangent(context, Commands::tr("Specify end tangent: "), points.back());
    co_return true;
}

Spline splineThrough(const SplineFit &fit)
{
    std::vector<Vec3> points = fit.points;
    const bool hasSeam = fit.isClosed && fit.startTangent;
    if (fit.isClosed)
        points.push_back(points.front());
    Spline spline = drawing::fittedSpline(points, fit.isClosed && !hasSeam, fit.startTangent,
                                          hasSeam ? fit.startTangent : fit.endTangent, fit.spacing);
    spline.isClosed = fit.isClosed;
    return spline;
}

void createSpline(CommandContext &context, SplineDraft draft)
{
    std::vector<Vec3> &points = draft.fit.points;
    if (draft.fit.isClosed && (points.back() - points.front()).length() == 0.0)
        points.pop_back();
    const Spline spline = draft.isFit ? splineThrough(draft.fit)
                                      : splineOver(points, draft.degree, draft.fit.isClosed && points.size() > 2);
    createCurve(context, draft.isFit ? fittedRecord(spline, draft.fit, draft.tolerance) : splineRecord(spline),
                drawing::splinePath(spline));
}

// Points until an empty answer, then the tangents; or control points; or polylines that have a spline's shape already.
CommandTask spline(CommandContext &context)
{
    const SystemVariables &variables = context.document().variables();
    SplineDraft draft;
    draft.isFit = variables.integer(u"SPLMETHOD") == 0;
    draft.degree = std::clamp(variables.integer(u"SPLDEGREE", 3), 1, 10);
    draft.fit.spacing = static_cast<FitSpacing>(std::clamp(variables.integer(u"SPLKNOTS"), 0, 2));
    const std::optional<Vec3> first = co_await askFirst(context, draft);
    if (!first)
        co_return;
    draft.fit.points = {*first};
    while (co_await askNext(context, draft)) {
    }
    if (draft.fit.points.size() < 2)
        co_return;
    if (draft.isFit)
        co_await askTangents(context, draft);
    createSpline(context, std::move(draft));
}

} // namespace

std::vector<CommandRow> splineCommands()
{
    return {{"SPLINE", spline, "Draws a smooth curve through points or along control points"}};
}

} // namespace host::kernel
