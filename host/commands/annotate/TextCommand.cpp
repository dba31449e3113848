#include "host/commands/Commands.h"
#include "host/commands/annotate/Justification.h"
#include "host/commands/common/UserPlane.h"
#include "host/drawing/records/Symbols.h"
#include "host/drawing/records/Tables.h"
#include "host/drawing/selection/Wildcard.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/variables/SystemVariables.h"
#include "host/view/build/TextMeasure.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::FieldList;
using drawing::TableKind;
using drawing::TextStyle;
using drawing::Vec3;

/// Where a text stands and how; points are in world coordinates, the angle is the user's.
struct TextPlace
{
    const Justification *justification = &leftJustification();
    Vec3 first;
    Vec3 second; ///< of a stretched text
    double height = 0.0;
    double angle = 0.0; ///< radians
};

TextStyle currentStyle(CommandContext &context)
{
    const QString name = context.document().variables().text(u"TEXTSTYLE");
    TextStyle style = drawing::findTextStyle(context.drawing(), name).value_or(TextStyle());
    style.name = name;
    return style;
}

void listStyles(CommandContext &context, const QString &pattern)
{
    for (const drawing::RecordId entry : context.drawing().tables().entries(TableKind::Style)) {
        const TextStyle style = drawing::readTextStyle(context.drawing(), entry);
        if (!style.isShapeFile && drawing::matchesWildcard(style.name, pattern))
            context.print(u"\nStyle name: \"%1\"  Font files: %2  Height: %3  Width factor: %4"_s.arg(
                style.name, style.fontFile, context.shownLength(style.fixedHeight),
                context.shownLength(style.widthFactor)));
    }
}

/// Asks for the style that is current from here on. False when the drawing has none of the name.
Dialogue<bool> askStyle(CommandContext &context)
{
    for (;;) {
        const QString current = context.document().variables().text(u"TEXTSTYLE");
        const PromptReply name =
            co_await context.text(u"Enter style name or [?] <%1>: "_s.arg(current), current, u"?"_s);
        if (name.isKeyword(u"?")) {
            const PromptReply pattern = co_await context.text(u"Enter text style(s) to list <*>: "_s, u"*"_s);
            listStyles(context, pattern.hasValue() ? pattern.text.trimmed() : u"*"_s);
            continue;
        }
        const QString wanted = name.hasValue() ? name.text.trimmed() : current;
        const bool isKnown = context.document().variables().set(u"TEXTSTYLE", wanted) == SetOutcome::Done;
        if (!isKnown)
            context.fail(u"Cannot find text style \"%1\"."_s.arg(wanted));
        co_return isKnown;
    }
}

/// Asks where the text starts, with its justification and style. Nothing when the dialogue ended there.
Dialogue<std::optional<TextPlace>> askStart(CommandContext &context)
{
    TextPlace place;
    const QString options = u"Justify Style "_s + justificationOptions();
    PromptReply start;
    for (;;) {
        start = co_await context.neededPoint(u"Specify start point of text or [Justify/Style]: "_s, {}, options);
        if (start.isKeyword(u"Style")) {
            if (!co_await askStyle(context))
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
    const double fixed = currentStyle(context).fixedHeight;
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
    const TextStyle style = currentStyle(context);
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
    const TextPlace place = co_await askSize(context, *start);
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
    return {{"TEXT", text, "Writes one line of text"}, {"-TEXT", text, "Writes one line of text"}};
}

} // namespace host::kernel
