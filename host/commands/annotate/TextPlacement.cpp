#include "host/commands/annotate/TextPlacement.h"

#include "host/commands/annotate/TextStyles.h"
#include "host/commands/common/UserPlane.h"
#include "host/drawing/math/Angles.h"
#include "host/drawing/records/Symbols.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/variables/SystemVariables.h"
#include "host/view/build/TextMeasure.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace host::kernel {

using drawing::FieldList;
using drawing::TextStyle;
using drawing::Vec3;

namespace {

/// Lines of text that go on below each other are so many heights apart.
constexpr double lineStep = 5.0 / 3.0;

/// A line below the text that was written last, and like it. Nothing when there is none, or when it is stretched.
/// Looks at every entity.
std::optional<TextPlace> placeBelowLast(CommandContext &context)
{
    const std::vector<drawing::RecordId> entities = currentEntities(context.drawing());
    const auto isText = [&](drawing::RecordId id) { return context.drawing().isType(id, "TEXT"); };
    const auto last = std::find_if(entities.rbegin(), entities.rend(), isText);
    if (last == entities.rend())
        return {};
    const drawing::TagList tags = context.drawing().tags(*last);
    TextPlace place;
    place.justification = justificationOf(int(tags.integer(72)), int(tags.integer(73)));
    if (!place.justification || place.justification->isStretched())
        return {};
    const drawing::Matrix object = drawing::Matrix::fromExtrusion(tags.point(210, {0.0, 0.0, 1.0}));
    const double turn = tags.real(50) * drawing::radians;
    place.height = tags.real(40);
    const Vec3 down = Vec3{std::sin(turn), -std::cos(turn), 0.0} * (place.height * lineStep);
    place.first = object.point(tags.point(place.justification->isLeft() ? 10 : 11) + down);
    const UserPlane plane(context.document());
    const Vec3 along = plane.userFromWorld(place.first + object.direction({std::cos(turn), std::sin(turn), 0.0})) -
                       plane.userFromWorld(place.first);
    place.angle = std::atan2(along.y, along.x);
    place.isBelow = true;
    return place;
}

} // namespace

Dialogue<std::optional<TextPlace>> askTextStart(CommandContext &context)
{
    TextPlace place;
    const QString options = u"Justify Style "_s + justificationOptions();
    PromptReply start;
    for (;;) {
        start = co_await context.point(Commands::tr("Specify start point of text or [Justify/Style]: "), options);
        if (start.isEmpty()) {
            std::optional<TextPlace> below = placeBelowLast(context);
            if (!below)
                context.fail(Commands::tr("There is no text to go on below."));
            co_return below;
        }
        if (start.isKeyword(u"Style")) {
            if (!co_await askTextStyle(context))
                co_return std::nullopt;
            continue;
        }
        if (start.kind != ReplyKind::Keyword)
            break;
        const Justification *chosen = justificationOf(start.text);
        if (start.isKeyword(u"Justify"))
            chosen = co_await askJustification(context);
        if (!chosen)
            continue;
        place.justification = chosen;
        start = co_await context.neededPoint(Commands::tr(chosen->pointPrompt));
        break;
    }
    place.first = start.point;
    if (place.justification->isStretched()) {
        const PromptReply end =
            co_await context.neededPoint(Commands::tr("Specify second endpoint of text baseline: "), start.point);
        place.second = end.point;
    }
    co_return place;
}

Dialogue<TextPlace> askTextSize(CommandContext &context, TextPlace place)
{
    const SystemVariables &variables = context.document().variables();
    const double fixed = currentTextStyle(context).fixedHeight;
    place.height = fixed > 0.0 ? fixed : variables.real(u"TEXTSIZE");
    if (!place.justification->isAligned() && !(fixed > 0.0)) {
        const QString usual = context.shownLength(place.height);
        const PromptReply size = co_await context.distance(Commands::tr("Specify height <%1>: ").arg(usual), {},
                                                           place.first, usual, NoZero | NoNegative);
        place.height = size.hasValue() ? size.real : place.height;
    }
    if (place.justification->isStretched())
        co_return place;
    const PromptReply turn =
        co_await context.orientation(Commands::tr("Specify rotation angle of text <0>: "), {}, place.first, u"0"_s);
    place.angle = turn.hasValue() ? turn.real : 0.0;
    co_return place;
}

FieldList placedText(CommandContext &context, FieldList fields, const TextPlace &place)
{
    const UserPlane plane(context.document());
    const TextStyle style = currentTextStyle(context);
    const Vec3 first = plane.objectFromWorld(place.first);
    Vec3 second = plane.objectFromWorld(place.second);
    second.z = first.z;
    if (place.justification->isStretched() && (second - first).length() == 0.0) {
        context.fail(Commands::tr("The two endpoints are one point."));
        return {};
    }
    const double degrees = place.justification->isStretched()
                               ? std::atan2(second.y - first.y, second.x - first.x) * 180.0 / M_PI
                               : plane.objectDegrees(place.angle);
    fields.insert(fields.begin() + 1, {{10, first}, {40, place.height}});
    fields.insert(fields.end(), {{50, degrees}, {7, style.name}});
    if (style.widthFactor != 1.0)
        fields.push_back({41, style.widthFactor});
    if (style.obliqueAngle != 0.0)
        fields.push_back({51, style.obliqueAngle});
    if (const qint64 generation = (style.isBackward ? 2 : 0) | (style.isUpsideDown ? 4 : 0); generation != 0)
        fields.push_back({71, generation});
    justify(fields, *place.justification, first, second, context.document().textMeasure().lineBox(fields));
    // An attribute has its rows elsewhere: its group 73 is the length of a field.
    if (drawing::Field *row = drawing::findField(fields, 73); row && fields.front().text() == u"ATTDEF")
        row->code = 74;
    return plane.placed(std::move(fields));
}

void keepTextSize(CommandContext &context, const TextPlace &place)
{
    SystemVariables &variables = context.document().variables();
    if (!place.justification->isAligned() && variables.real(u"TEXTSIZE") != place.height)
        variables.setInternally(u"TEXTSIZE", place.height);
}

} // namespace host::kernel
