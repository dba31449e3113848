#include "host/commands/Commands.h"
#include "host/commands/annotate/DimensionDialogues.h"
#include "host/drawing/annotation/DimensionStyle.h"
#include "host/drawing/annotation/StyleValues.h"
#include "host/drawing/math/Angles.h"
#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/Entities.h"
#include "host/drawing/records/Tables.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"

#include <algorithm>
#include <numbers>

using namespace Qt::StringLiterals;

namespace host::kernel {

using drawing::DimensionData;
using drawing::DimensionKind;
using drawing::FieldList;
using drawing::RecordId;
using drawing::Vec2;
using drawing::Vec3;

namespace {

/// What the next dimension of a chain goes on from, flat in its plane.
struct ChainLink
{
    DimensionData data;
    double height = 0.0;    ///< of the plane: z of object coordinates
    bool isAtFirst = false; ///< the first extension line is the one that goes on
    double spacing = 0.0;   ///< between the lines of a baseline
};

bool isChainable(DimensionKind kind)
{
    return kind == DimensionKind::Linear || kind == DimensionKind::Aligned || kind == DimensionKind::Ordinate ||
           kind == DimensionKind::AngularOfPoints || kind == DimensionKind::AngularOfLines;
}

std::optional<DimensionData> chainableData(const drawing::Drawing &drawing, RecordId entity)
{
    if (!isDimension(drawing, entity))
        return std::nullopt;
    auto data = readDimension(drawing, entity, drawing.tags(entity));
    return data && isChainable(data->kind) ? data : std::nullopt;
}

/// How far apart the lines of a baseline are: DIMDLI as it is now, with the scale of the dimension gone on from.
double lineSpacing(const drawing::Drawing &drawing, RecordId dimension)
{
    const drawing::DimensionVariable &variable = *drawing::dimensionVariable(u"DIMDLI");
    const RecordId style = drawing.tables().find(drawing::TableKind::DimStyle, drawing.tags(dimension).text(3));
    const FieldList fields = isValid(style) ? drawing.fields(style) : FieldList{};
    const double spacing = valueInHeader(drawing, variable).value_or(valueInStyle(drawing, fields, variable)).real();
    return spacing * readDimensionStyle(drawing, drawing.tags(dimension)).scale;
}

ChainLink linkTo(const drawing::Drawing &drawing, RecordId dimension, const DimensionData &data)
{
    const drawing::Matrix axes =
        drawing::Matrix::fromExtrusion(drawing.tags(dimension).point(210, {0.0, 0.0, 1.0})).inverted();
    ChainLink link{.data = data, .height = axes.point(drawing.tags(dimension).point(10)).z};
    link.spacing = lineSpacing(drawing, dimension);
    return link;
}

/// The dimension that was made last in the current space; it counts only where it can be gone on from.
std::optional<ChainLink> lastLink(CommandContext &context)
{
    const drawing::Drawing &drawing = context.drawing();
    const std::vector<RecordId> entities = currentEntities(drawing);
    const auto last =
        std::find_if(entities.rbegin(), entities.rend(), [&](RecordId id) { return isDimension(drawing, id); });
    if (last == entities.rend())
        return std::nullopt;
    const auto data = chainableData(drawing, *last);
    return data ? std::optional(linkTo(drawing, *last, *data)) : std::nullopt;
}

/// Asks for a dimension; the extension line that is nearer to the pick is the one to go on from.
Dialogue<std::optional<ChainLink>> selectLink(CommandContext &context, Chain chain)
{
    const QString prompt = chain == Chain::Continued ? Commands::tr("Select continued dimension: ")
                                                     : Commands::tr("Select base dimension: ");
    for (;;) {
        const PromptReply picked = co_await context.entity(prompt);
        if (picked.isMiss)
            continue;
        if (picked.entities.empty())
            co_return std::nullopt;
        const drawing::Drawing &drawing = context.drawing();
        if (const auto data = chainableData(drawing, picked.entities.front())) {
            ChainLink link = linkTo(drawing, picked.entities.front(), *data);
            const Vec2 at = data->plane.inverted().point(picked.point).xy();
            link.isAtFirst = (at - data->first).length() < (at - data->second).length();
            if (chain == Chain::Baseline)
                link.isAtFirst = !link.isAtFirst;
            co_return link;
        }
        if (context.refuse(Commands::tr("Linear, ordinate, or angular associative dimension required.")))
            co_return std::nullopt;
    }
}

/// The same as an angle by three points, whose first side is the begin.
DimensionData byPoints(const DimensionData &data)
{
    DimensionData result = data;
    const bool isOfLines = data.kind == DimensionKind::AngularOfLines;
    const drawing::AngleSpan span = isOfLines ? angleOfLines(data) : angleOfPoints(data);
    const double radius = ((isOfLines ? data.fourth : data.definition) - span.center).length();
    const auto at = [&](double angle) { return span.center + Vec2{std::cos(angle), std::sin(angle)} * radius; };
    result.kind = DimensionKind::AngularOfPoints;
    result.third = span.center;
    if (isOfLines) {
        result.first = at(span.start);
        result.second = at(span.start + span.sweep);
    }
    result.definition = at(span.start + span.sweep / 2.0);
    return result;
}

DimensionData nextLinear(const ChainLink &link, Chain chain, Vec2 point)
{
    DimensionData next = link.data;
    next.kind = DimensionKind::Linear;
    const Vec2 aside{-std::sin(next.angle), std::cos(next.angle)};
    Vec2 line = next.definition;
    if (chain == Chain::Baseline) {
        const double side = dot(line - link.data.first, aside) < 0.0 ? -1.0 : 1.0;
        line = line + aside * (side * link.spacing);
    }
    const bool begins = chain == Chain::Continued ? !link.isAtFirst : link.isAtFirst;
    next.first = begins ? link.data.second : link.data.first;
    next.second = point;
    next.definition = point + aside * dot(line - point, aside);
    return next;
}

DimensionData nextAngular(const ChainLink &link, Chain chain, Vec2 point)
{
    const DimensionData before = byPoints(link.data);
    DimensionData next = before;
    const bool begins = chain == Chain::Continued ? !link.isAtFirst : link.isAtFirst;
    next.first = begins ? before.second : before.first;
    next.second = point;
    const double radius = (before.definition - before.third).length() + (chain == Chain::Baseline ? link.spacing : 0.0);
    const Vec2 toFirst = next.first - before.third;
    const Vec2 toPoint = point - before.third;
    // Turning on in the direction that the dimension before had.
    double sweep = std::atan2(cross(toFirst, toPoint), dot(toFirst, toPoint));
    const bool isLeft = cross(before.first - before.third, before.definition - before.third) >= 0.0;
    if (isLeft != (sweep >= 0.0))
        sweep += isLeft ? 2.0 * std::numbers::pi : -2.0 * std::numbers::pi;
    const double middle = std::atan2(toFirst.y, toFirst.x) + sweep / 2.0;
    next.definition = before.third + Vec2{std::cos(middle), std::sin(middle)} * radius;
    return next;
}

/// The next feature, its leader ending beside those before.
DimensionData nextOrdinate(const ChainLink &link, Vec2 point)
{
    DimensionData next = link.data;
    const Vec2 level{std::cos(next.horizontal), std::sin(next.horizontal)};
    const Vec2 along = next.isOrdinateX ? turnedLeft(level) : level;
    next.first = point;
    next.second = point + along * dot(link.data.second - point, along);
    return next;
}

DimensionData nextInChain(const ChainLink &link, Chain chain, Vec2 point)
{
    if (link.data.kind == DimensionKind::Ordinate)
        return nextOrdinate(link, point);
    const bool isAngle =
        link.data.kind == DimensionKind::AngularOfLines || link.data.kind == DimensionKind::AngularOfPoints;
    return isAngle ? nextAngular(link, chain, point) : nextLinear(link, chain, point);
}

FieldList chainFields(const DimensionData &data)
{
    const auto world = [&](Vec2 point) { return data.plane.point({point.x, point.y, 0.0}); };
    const qint64 kind = data.kind == DimensionKind::Linear            ? 0
                        : data.kind == DimensionKind::AngularOfPoints ? 5
                                                                      : 6 + (data.isOrdinateX ? 64 : 0);
    FieldList fields = {{0, u"DIMENSION"_s},
                        {10, world(data.definition)},
                        {70, kind},
                        {13, world(data.first)},
                        {14, world(data.second)}};
    if (data.kind == DimensionKind::AngularOfPoints)
        fields.push_back({15, world(data.third)});
    if (data.kind == DimensionKind::Linear)
        fields.push_back({50, plainDegrees(data.angle / drawing::radians)});
    return fields;
}

/// A dimension of the chain that was made, with what the chain went on from before it.
struct ChainStep
{
    RecordId made = drawing::noRecord;
    ChainLink before;
};

/// Makes the dimension to a point and goes on from it; false when it cannot be made.
bool addToChain(CommandContext &context, ChainLink &link, Chain chain, const Vec3 &point, std::vector<ChainStep> &steps)
{
    const Vec2 at = link.data.plane.inverted().point(point).xy();
    const DimensionData next = nextInChain(link, chain, at);
    const RecordId made = createDimension(context, chainFields(next), {});
    if (!isValid(made))
        return false;
    steps.push_back({made, link});
    link.data = next;
    link.isAtFirst = false;
    return true;
}

void undoInChain(CommandContext &context, ChainLink &link, std::vector<ChainStep> &steps)
{
    if (steps.empty())
        return context.print(Commands::tr("\nAll dimensions of the command are undone."));
    const QString block = context.drawing().tags(steps.back().made).text(2);
    context.drawing().setErased(steps.back().made, true);
    if (const RecordId picture = context.drawing().blocks().find(block); isValid(picture))
        context.drawing().blocks().erase(picture);
    link = steps.back().before;
    steps.pop_back();
}

Dialogue<bool> askChain(CommandContext &context, Chain chain)
{
    std::optional<ChainLink> link = lastLink(context);
    if (!link)
        link = co_await selectLink(context, chain);
    std::vector<ChainStep> steps;
    while (link) {
        const bool isOrdinate = link->data.kind == DimensionKind::Ordinate;
        const QString prompt = isOrdinate
                                   ? Commands::tr("Specify feature location or [Select/Undo] <Select>: ")
                                   : Commands::tr("Specify second extension line origin or [Select/Undo] <Select>: ");
        const PromptReply next = co_await context.point(prompt, {}, {}, u"Select"_s);
        if (next.isKeyword(u"Undo"))
            undoInChain(context, *link, steps);
        else if (!next.hasValue())
            link = co_await selectLink(context, chain);
        else if (!addToChain(context, *link, chain, next.point, steps))
            break;
    }
    co_return true;
}

/// What the dimension to a point would show.
QString measuredOn(CommandContext &context, const ChainLink &link, Chain chain, const Vec3 &point)
{
    const DimensionData next = nextInChain(link, chain, link.data.plane.inverted().point(point).xy());
    const bool isAngle = next.kind == DimensionKind::AngularOfPoints;
    return isAngle ? context.shownAngle(next.measured()) : context.shownLength(next.measured());
}

// Second points, one after another, from the last dimension or a selected one, until two empty answers.
CommandTask continuedDimension(CommandContext &context)
{
    co_await askChain(context, Chain::Continued);
}

CommandTask baselineDimension(CommandContext &context)
{
    co_await askChain(context, Chain::Baseline);
}

} // namespace

Dialogue<bool> dimensionOn(CommandContext &context, Chain chain)
{
    std::optional<ChainLink> link = lastLink(context);
    if (!link)
        link = co_await selectLink(context, chain);
    PromptReply next;
    while (link) {
        next = co_await context.point(Commands::tr("Specify a second extension line origin or [Select] <Select>: "), {},
                                      {}, u"Select"_s);
        if (next.hasValue())
            break;
        link = co_await selectLink(context, chain);
    }
    if (!link)
        co_return false;
    DimensionAnswers answers;
    const QString measured = measuredOn(context, *link, chain, next.point);
    co_await askTextBehind(context, TextAsked::Behind, measured, answers);
    const Vec2 at = link->data.plane.inverted().point(next.point).xy();
    co_return isValid(createDimension(context, chainFields(nextInChain(*link, chain, at)), answers));
}

std::vector<CommandRow> dimensionChainCommands()
{
    return {
        {"DIMBASELINE", baselineDimension, "Dimensions further points from the same begin", WhenCancelled::KeepDone},
        {"DIMCONTINUE", continuedDimension, "Dimensions on from the last dimension", WhenCancelled::KeepDone}};
}

} // namespace host::kernel
