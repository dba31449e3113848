#include "host/kernel/input/SelectionQuery.h"

#include "host/drawing/records/Entities.h"
#include "host/drawing/records/Layouts.h"
#include "host/drawing/records/Symbols.h"
#include "host/drawing/selection/FilterMatcher.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/input/SelectionBuilder.h"
#include "host/kernel/input/UserInput.h"
#include "host/kernel/variables/SystemVariables.h"

#include <algorithm>

namespace host::kernel {

namespace {

using drawing::RecordId;

std::vector<RecordId> newestFirst(std::vector<RecordId> entities)
{
    std::reverse(entities.begin(), entities.end());
    return entities;
}

template <ShapeKind kind>
std::vector<RecordId> inShape(Document &document, const SelectionQuery &query)
{
    return newestFirst(Picker(document).inShape(kind, query.points));
}

/// Of the layouts that are not in use as well.
std::vector<RecordId> wholeDrawing(Document &document, const SelectionQuery &)
{
    const drawing::Drawing &drawing = document.drawing();
    std::vector<RecordId> all = drawing.entities().all();
    for (const RecordId block : drawing.layouts().blocks()) {
        const std::vector<RecordId> entities = drawing.children(block);
        all.insert(all.end(), entities.begin(), entities.end());
    }
    return newestFirst(std::move(all));
}

std::vector<RecordId> currentSpaceWhole(Document &document, const SelectionQuery &)
{
    return newestFirst(Picker(document).thawed());
}

std::vector<RecordId> previous(Document &document, const SelectionQuery &)
{
    return document.previousSelection();
}

std::vector<RecordId> implied(Document &document, const SelectionQuery &)
{
    return document.impliedSelection();
}

std::vector<RecordId> last(Document &document, const SelectionQuery &)
{
    const std::vector<RecordId> all = Picker(document).visible();
    return all.empty() ? all : std::vector<RecordId>{all.back()};
}

/// A way of choosing that asks nobody.
struct Method
{
    QLatin1StringView name;
    std::size_t corners; ///< at least so many points belong to it
    std::vector<RecordId> (*choose)(Document &document, const SelectionQuery &query);
    std::optional<ShapeKind> shape = {};
};

constexpr Method methods[] = {
    {QLatin1StringView("X"), 0, wholeDrawing},
    {QLatin1StringView("A"), 0, currentSpaceWhole},
    {QLatin1StringView("P"), 0, previous},
    {QLatin1StringView("I"), 0, implied},
    {QLatin1StringView("L"), 0, last},
    {QLatin1StringView("W"), 2, inShape<ShapeKind::Window>, ShapeKind::Window},
    {QLatin1StringView("C"), 2, inShape<ShapeKind::Crossing>, ShapeKind::Crossing},
    {QLatin1StringView("WP"), 3, inShape<ShapeKind::WindowPolygon>, ShapeKind::WindowPolygon},
    {QLatin1StringView("CP"), 3, inShape<ShapeKind::CrossingPolygon>, ShapeKind::CrossingPolygon},
    {QLatin1StringView("F"), 2, inShape<ShapeKind::Fence>, ShapeKind::Fence},
};

const Method *findMethod(const QString &name)
{
    const auto *found = std::ranges::find_if(methods, [&](const Method &method) { return name == method.name; });
    return found == std::end(methods) ? nullptr : found;
}

/// Says of an entity whether filter and flags let it in.
std::function<bool(RecordId)> acceptance(const Document &document, const SelectionQuery &query)
{
    const drawing::Drawing &drawing = document.drawing();
    const QSet<QString> locked = query.flags.contains(QStringLiteral("L")) ? lockedLayers(drawing) : QSet<QString>();
    using Matcher = drawing::SelectionFilter::Matcher;
    const auto matcher = query.filter ? std::make_shared<Matcher>(*query.filter, drawing) : nullptr;
    return [&drawing, locked, matcher](RecordId id) {
        if (!locked.isEmpty() && isOnLayerOf(locked, drawing, id))
            return false;
        return !matcher || matcher->matches(id);
    };
}

SelectionOutcome chosenByUser(Document &document, const SelectionQuery &query)
{
    const bool isSingle = query.flags.contains(QStringLiteral("S"));
    const SelectionSize single = query.picksOnly ? SelectionSize::OnePicking : SelectionSize::OneStep;
    SelectionBuilder builder(document, isSingle ? single : SelectionSize::Many, acceptance(document, query));
    if (!query.prompt.isEmpty())
        builder.setPrompt(query.prompt);
    PromptReply reply;
    while (!builder.isDone())
        builder.add(reply = document.prompts().ask(builder.request()));
    if (isSingle && builder.entities().empty())
        document.variables().setInternally(u"ERRNO", reply.isEmpty() ? emptyAnswer : pickMissed);
    return {builder.isCancelled(), builder.entities(), builder.steps()};
}

SelectionOutcome chosenAtPoint(Document &document, const SelectionQuery &query)
{
    const RecordId entity = Picker(document).entityAt(query.points.front());
    if (!isValid(entity))
        return {};
    return {false, {entity}, {{SelectionStep::Way::Pick, {query.points.front()}, {entity}}}};
}

SelectionOutcome choose(Document &document, const SelectionQuery &query)
{
    if (query.asksUser())
        return chosenByUser(document, query);
    if (query.method.isEmpty())
        return chosenAtPoint(document, query);
    const Method &method = *findMethod(query.method);
    SelectionOutcome outcome{false, method.choose(document, query)};
    if (method.shape) {
        outcome.steps.push_back(shapeStep(document, *method.shape, query.points));
        outcome.steps.back().entities = outcome.entities;
        outcome.steps.back().found = outcome.entities;
    }
    return outcome;
}

} // namespace

void SelectionQuery::setMode(const QString &mode)
{
    QString whole = mode.toUpper().remove(u'_');
    picksOnly = whole.contains(u'.');
    const QStringList parts = whole.remove(u'+').remove(u'.').split(u':');
    method = parts.front();
    flags = parts.mid(1);
}

QueryFault SelectionQuery::fault() const
{
    if (method.isEmpty())
        return points.size() > 1 ? QueryFault::TooManyPoints : QueryFault::None;
    const Method *known = findMethod(method);
    if (!known)
        return QueryFault::UnknownMethod;
    return points.size() < known->corners ? QueryFault::TooFewPoints : QueryFault::None;
}

SelectionOutcome select(Document &document, const SelectionQuery &query)
{
    SelectionOutcome outcome = choose(document, query);
    if (outcome.isCancelled)
        return {true, {}};
    const auto accepts = acceptance(document, query);
    std::erase_if(outcome.entities, [&](RecordId id) { return !document.drawing().isAlive(id) || !accepts(id); });
    const bool isRemembered = query.method != QStringLiteral("X") && query.method != QStringLiteral("P");
    if (isRemembered && !outcome.entities.empty())
        document.setPreviousSelection(outcome.entities);
    return outcome;
}

QSet<QString> lockedLayers(const drawing::Drawing &drawing)
{
    QSet<QString> names;
    for (const drawing::Layer &layer : drawing::allLayers(drawing))
        if (layer.isLocked)
            names.insert(layer.name.toUpper());
    return names;
}

bool isOnLayerOf(const QSet<QString> &layers, const drawing::Drawing &drawing, RecordId entity)
{
    const std::optional<drawing::Tag> layer = drawing.findTag(entity, 8);
    return layers.contains(layer ? drawing.codec().decode(layer->value).toUpper() : QStringLiteral("0"));
}

} // namespace host::kernel
