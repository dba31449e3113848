#include "host/commands/Commands.h"
#include "host/commands/annotate/DimensionDialogues.h"
#include "host/commands/annotate/MeasuredObject.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"

#include <numbers>

using namespace Qt::StringLiterals;

namespace host::kernel {

using drawing::Vec2;
using drawing::Vec3;

namespace {

/// What a linear dimension measures, in user coordinates.
struct MeasuredSpan
{
    Vec3 first{};
    Vec3 second{};
    std::optional<Vec3> center{}; ///< of a circle, which is measured along the line
    double radius = 0.0;
};

MeasuredSpan spanOf(const MeasuredObject &object, const Vec3 &pickedAt, const UserPlane &plane)
{
    MeasuredSpan span{.first = plane.userFromWorld(object.first), .second = plane.userFromWorld(object.second)};
    if (!object.isCircle)
        return span;
    span.center = plane.userFromWorld(object.center);
    span.radius = object.radius;
    const Vec3 away = plane.userFromWorld(pickedAt) - *span.center;
    const double length = away.xy().length();
    const Vec2 out = length > 0.0 ? away.xy() * (object.radius / length) : Vec2{object.radius, 0.0};
    span.first = *span.center + Vec3{out.x, out.y, 0.0};
    span.second = *span.center - Vec3{out.x, out.y, 0.0};
    return span;
}

/// A circle is measured where the line's direction leaves it.
void turnSpan(MeasuredSpan &span, double angle)
{
    if (!span.center)
        return;
    const Vec3 out{span.radius * std::cos(angle), span.radius * std::sin(angle), 0.0};
    span.first = *span.center - out;
    span.second = *span.center + out;
}

/// Two points, or an entity behind an empty answer.
Dialogue<std::optional<MeasuredSpan>> askSpan(CommandContext &context)
{
    const UserPlane plane(context.document());
    const PromptReply first =
        co_await context.point(Commands::tr("Specify first extension line origin or <select object>: "), {}, {});
    if (first.hasValue()) {
        const PromptReply second =
            co_await context.neededPoint(Commands::tr("Specify second extension line origin: "), first.point);
        co_return MeasuredSpan{.first = plane.userFromWorld(first.point), .second = plane.userFromWorld(second.point)};
    }
    for (;;) {
        const PromptReply picked = co_await context.entity(Commands::tr("Select object to dimension: "));
        if (picked.entities.empty()) {
            if (!picked.isMiss)
                co_return std::nullopt;
            continue;
        }
        if (const auto object = measuredObject(context.drawing(), picked.entities.front(), picked.point))
            co_return spanOf(*object, picked.point, plane);
        if (context.refuse(Commands::tr("Object selected is not a line, arc, circle or piece of a polyline.")))
            co_return std::nullopt;
    }
}

/// Along x where the line is above or below what it measures, along y beside it.
double angleByPlace(const MeasuredSpan &span, Vec2 place)
{
    const auto outside = [](double at, double a, double b) {
        return std::max(std::min(a, b) - at, at - std::max(a, b));
    };
    const Vec2 reach = span.center ? Vec2{span.radius, span.radius} : Vec2{};
    const Vec2 a = span.center ? span.center->xy() - reach : span.first.xy();
    const Vec2 b = span.center ? span.center->xy() + reach : span.second.xy();
    const bool isBeside = outside(place.x, a.x, b.x) > outside(place.y, a.y, b.y);
    return isBeside ? std::numbers::pi / 2.0 : 0.0;
}

double spanAlong(const MeasuredSpan &span, double angle)
{
    return std::abs(dot(span.second.xy() - span.first.xy(), Vec2{std::cos(angle), std::sin(angle)}));
}

/// Where the second extension line meets a dimension line through `place`.
Vec3 footOnLine(const MeasuredSpan &span, double angle, Vec2 place)
{
    const Vec2 aside{-std::sin(angle), std::cos(angle)};
    const Vec2 foot = span.second.xy() + aside * dot(place - span.second.xy(), aside);
    return {foot.x, foot.y, span.second.z};
}

drawing::FieldList linearFields(const UserPlane &plane, const MeasuredSpan &span, double angle, Vec2 place, int kind)
{
    drawing::FieldList fields = {{0, u"DIMENSION"_s},
                                 {10, plane.worldFromUser(footOnLine(span, angle, place))},
                                 {70, qint64(kind)},
                                 {13, plane.worldFromUser(span.first)},
                                 {14, plane.worldFromUser(span.second)}};
    if (kind == 0)
        fields.push_back({50, plane.objectDegrees(angle)});
    return fields;
}

Dialogue<double> askLineAngle(CommandContext &context)
{
    const PromptReply turn =
        co_await context.orientation(Commands::tr("Specify angle of dimension line <0>: "), {}, {}, u"0"_s);
    co_return turn.hasValue() ? turn.real : 0.0;
}

/// The direction that is known before the place is asked for.
Dialogue<std::optional<double>> askFixedAngle(CommandContext &context, LengthForm form)
{
    if (form == LengthForm::Rotated)
        co_return co_await askLineAngle(context);
    if (form == LengthForm::ByPlace || form == LengthForm::Aligned)
        co_return std::nullopt;
    co_return form == LengthForm::Vertical ? std::numbers::pi / 2.0 : 0.0;
}

/// Where the line goes; Horizontal, Vertical and Rotated fix its direction.
Dialogue<PromptReply> askLinePlace(CommandContext &context, MeasuredSpan span, std::optional<double> &angle,
                                   DimensionAnswers &answers)
{
    const UserPlane plane(context.document());
    QString options = angle ? u"Mtext/Text/Angle"_s : u"Mtext/Text/Angle/Horizontal/Vertical/Rotated"_s;
    for (;;) {
        const LineQuestion question{Commands::tr("Specify dimension line location or [%1]: ").arg(options),
                                    plane.worldFromUser(span.second),
                                    context.shownLength(spanAlong(span, angle.value_or(0.0)))};
        const PromptReply place = co_await askDimensionLine(context, question, answers);
        if (place.hasValue())
            co_return place;
        if (place.isKeyword(u"Rotated")) {
            angle = co_await askLineAngle(context);
            continue;
        }
        angle = place.isKeyword(u"Vertical") ? std::numbers::pi / 2.0 : 0.0;
        options = u"Mtext/Text/Angle"_s;
    }
}

/// The line goes from the one point to the other.
Dialogue<bool> dimensionAligned(CommandContext &context, MeasuredSpan span, TextAsked asked)
{
    const UserPlane plane(context.document());
    const Vec2 along = span.second.xy() - span.first.xy();
    if (along == Vec2{}) {
        context.fail(Commands::tr("The two points are one."));
        co_return false;
    }
    DimensionAnswers answers;
    const QString measured = context.shownLength(along.length());
    const LineQuestion question{Commands::tr("Specify dimension line location or [Mtext/Text/Angle]: "),
                                plane.worldFromUser(span.second), measured};
    const PromptReply place = co_await askDimensionLine(context, question, answers);
    co_await askTextBehind(context, asked, measured, answers);
    const Vec2 at = plane.userFromWorld(place.point).xy();
    co_return isValid(
        createDimension(context, linearFields(plane, span, std::atan2(along.y, along.x), at, 1), answers));
}

/// Whether an ordinate is measured along x, by where its leader goes.
bool isOrdinateX(Vec2 leader)
{
    return std::abs(leader.y) > std::abs(leader.x);
}

// Two points or an entity, then where the line goes.
CommandTask linearDimension(CommandContext &context)
{
    co_await dimensionLength(context, LengthForm::ByPlace, TextAsked::AsOption);
}

CommandTask alignedDimension(CommandContext &context)
{
    co_await dimensionLength(context, LengthForm::Aligned, TextAsked::AsOption);
}

CommandTask ordinateDimension(CommandContext &context)
{
    co_await dimensionOrdinate(context, TextAsked::AsOption);
}

} // namespace

Dialogue<bool> dimensionLength(CommandContext &context, LengthForm form, TextAsked asked)
{
    std::optional<double> angle = co_await askFixedAngle(context, form);
    std::optional<MeasuredSpan> span = co_await askSpan(context);
    if (!span)
        co_return false;
    if (form == LengthForm::Aligned)
        co_return co_await dimensionAligned(context, *span, asked);
    const UserPlane plane(context.document());
    DimensionAnswers answers;
    const PromptReply place = co_await askLinePlace(context, *span, angle, answers);
    const Vec2 at = plane.userFromWorld(place.point).xy();
    const double along = angle.value_or(angleByPlace(*span, at));
    turnSpan(*span, along);
    co_await askTextBehind(context, asked, context.shownLength(spanAlong(*span, along)), answers);
    co_return isValid(createDimension(context, linearFields(plane, *span, along, at, 0), answers));
}

// The feature, then where its leader ends; which ordinate it is follows from that, or from an option.
Dialogue<bool> dimensionOrdinate(CommandContext &context, TextAsked asked)
{
    constexpr int ordinateKind = 6;
    constexpr int alongX = 64;
    const UserPlane plane(context.document());
    const PromptReply feature = co_await context.neededPoint(Commands::tr("Specify feature location: "));
    const Vec2 at = plane.userFromWorld(feature.point).xy();
    std::optional<bool> isX;
    const auto measured = [&] { return context.shownLength(std::abs(isX.value_or(true) ? at.x : at.y)); };
    DimensionAnswers answers;
    PromptReply end;
    for (;;) {
        const LineQuestion question{Commands::tr("Specify leader endpoint or [Xdatum/Ydatum/Mtext/Text/Angle]: "),
                                    feature.point, measured()};
        end = co_await askDimensionLine(context, question, answers);
        if (end.hasValue())
            break;
        isX = end.isKeyword(u"Xdatum");
    }
    isX = isX.value_or(isOrdinateX(plane.userFromWorld(end.point).xy() - at));
    co_await askTextBehind(context, asked, measured(), answers);
    const int kind = ordinateKind | (*isX ? alongX : 0);
    co_return isValid(createDimension(
        context,
        {{0, u"DIMENSION"_s}, {10, plane.worldFromUser({})}, {70, qint64(kind)}, {13, feature.point}, {14, end.point}},
        answers));
}

std::vector<CommandRow> linearDimensionCommands()
{
    return {{"DIMALIGNED", alignedDimension, "Dimensions a distance along itself"},
            {"DIMLINEAR", linearDimension, "Dimensions a distance along x, y or another direction"},
            {"DIMORDINATE", ordinateDimension, "Dimensions the x or y coordinate of a point"}};
}

} // namespace host::kernel
