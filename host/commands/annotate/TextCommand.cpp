#include "host/commands/Commands.h"
#include "host/commands/annotate/Justification.h"
#include "host/commands/annotate/TextStyles.h"
#include "host/commands/common/UserPlane.h"
#include "host/drawing/math/Angles.h"
#include "host/drawing/records/Symbols.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/variables/SystemVariables.h"
#include "host/view/build/TextMeasure.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::FieldList;
using drawing::TextStyle;
using drawing::Vec3;

/// Lines of text that go on below each other are so many heights apart.
constexpr double lineStep = 5.0 / 3.0;

/// Where a text stands and how; points are in world coordinates, the angle is the user's.
struct TextPlace
{
    const Justification *justification = &leftJustification();
    Vec3 first;
    Vec3 second; ///< of a stretched text
    double height = 0.0;
    double angle = 0.0;   ///< radians
    bool isBelow = false; ///< goes on from the text before, with its height and angle
};

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

/// Asks where the text starts, with its justification and style. Nothing when the dialogue ended there.
Dialogue<std::optional<TextPlace>> askStart(CommandContext &context)
{
    TextPlace place;
    const QString options = u"Justify Style "_s + justificationOptions();
    PromptReply start;
    for (;;) {
        start = co_await context.point(u"Specify start point of text or [Justify/Style]: "_s, options);
        if (start.isEmpty()) {
            std::optional<TextPlace> below = placeBelowLast(context);
            if (!below)
                context.fail(u"There is no text to go on below."_s);
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
        start = co_await context.neededPoint(QLatin1String(chosen->pointPrompt));
        break;
    }
    place.first = start.point;
    if (place.justification->isStretched()) {
        const PromptReply end =
            co_await context.neededPoint(u"Specify second endpoint of text baseline: "_s, start.point);
        place.second = end.point;
    }
    co_return place;
}

/// Asks for height and angle where neither the style nor the points say them.
Dialogue<TextPlace> askSize(CommandContext &context, TextPlace place)
{
    const SystemVariables &variables = context.document().variables();
    const double fixed = currentTextStyle(context).fixedHeight;
    place.height = fixed > 0.0 ? fixed : variables.real(u"TEXTSIZE");
    if (!place.justification->isAligned() && !(fixed > 0.0)) {
        const QString usual = context.shownLength(place.height);
        const PromptReply size = co_await context.distance(u"Specify height <%1>: "_s.arg(usual), {}, place.first,
                                                           usual, NoZero | NoNegative);
        place.height = size.hasValue() ? size.real : place.height;
    }
    if (place.justification->isStretched())
        co_return place;
    const PromptReply turn =
        co_await context.orientation(u"Specify rotation angle of text <0>: "_s, {}, place.first, u"0"_s);
    place.angle = turn.hasValue() ? turn.real : 0.0;
    co_return place;
}

void createText(CommandContext &context, const TextPlace &place, const QString &content)
{
    const UserPlane plane(context.document());
    const TextStyle style = currentTextStyle(context);
    const Vec3 first = plane.objectFromWorld(place.first);
    Vec3 second = plane.objectFromWorld(place.second);
    second.z = first.z;
    if (place.justification->isStretched() && (second - first).length() == 0.0)
        return context.fail(u"The two endpoints are one point."_s);
    const double degrees = place.justification->isStretched()
                               ? std::atan2(second.y - first.y, second.x - first.x) * 180.0 / M_PI
                               : plane.objectDegrees(place.angle);
    FieldList fields = {{0, u"TEXT"_s}, {10, first}, {40, place.height}, {1, content}, {50, degrees}, {7, style.name}};
    if (style.widthFactor != 1.0)
        fields.push_back({41, style.widthFactor});
    if (style.obliqueAngle != 0.0)
        fields.push_back({51, style.obliqueAngle});
    if (const qint64 generation = (style.isBackward ? 2 : 0) | (style.isUpsideDown ? 4 : 0); generation != 0)
        fields.push_back({71, generation});
    justify(fields, *place.justification, first, second, context.document().textMeasure().lineBox(fields));
    context.create(plane.placed(std::move(fields)));
}

// Start point or justification and style, height, rotation, text.
CommandTask text(CommandContext &context)
{
    SystemVariables &variables = context.document().variables();
    context.print(u"\nCurrent text style:  \"%1\"  Text height:  %2"_s.arg(
        variables.text(u"TEXTSTYLE"), context.shownLength(variables.real(u"TEXTSIZE"))));
    const std::optional<TextPlace> start = co_await askStart(context);
    if (!start)
        co_return;
    TextPlace place = *start;
    if (!place.isBelow)
        place = co_await askSize(context, place);
    const PromptReply content = co_await context.text(u"Enter text: "_s);
    if (!content.hasValue() || content.text.isEmpty())
        co_return;
    if (!place.justification->isAligned() && variables.real(u"TEXTSIZE") != place.height)
        variables.setInternally(u"TEXTSIZE", place.height);
    createText(context, place, content.text);
}

} // namespace

std::vector<CommandRow> textCommands()
{
    return {{"-TEXT", text, "Writes one line of text"},
            {"DTEXT", text, "Writes one line of text"},
            {"TEXT", text, "Writes one line of text"}};
}

} // namespace host::kernel
