#include "host/commands/common/EntityEdits.h"

#include "host/drawing/editing/MirrorEntity.h"
#include "host/drawing/geometry/TransformEntity.h"
#include "host/drawing/records/Dictionaries.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/input/SelectionQuery.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/variables/SystemVariables.h"
#include "host/view/build/TextMeasure.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

using drawing::Matrix;
using drawing::RecordId;

std::vector<RecordId> editable(CommandContext &context, std::vector<RecordId> entities)
{
    const QSet<QString> locked = lockedLayers(context.drawing());
    const auto count = std::erase_if(
        entities, [&](RecordId id) { return !locked.isEmpty() && isOnLayerOf(locked, context.drawing(), id); });
    if (count > 0)
        context.print(count == 1 ? Commands::tr("\n1 was on a locked layer.")
                                 : Commands::tr("\n%1 were on a locked layer.").arg(count));
    return entities;
}

void eraseAll(CommandContext &context, const std::vector<RecordId> &entities)
{
    for (const RecordId id : entities)
        context.drawing().dictionaries().setErasedWithOwned(id, true);
}

void bringBack(CommandContext &context, const std::vector<RecordId> &entities)
{
    for (const RecordId id : entities)
        context.drawing().dictionaries().setErasedWithOwned(id, false);
}

void takeOut(CommandContext &context, const std::vector<RecordId> &entities)
{
    const drawing::Drawing &drawing = context.drawing();
    std::vector<RecordId> objects;
    for (RecordId id = drawing.first(); isValid(id); id = drawing.next(id))
        if (drawing.kind(id) == drawing::RecordKind::Object)
            objects.push_back(id);
    eraseAll(context, entities);
    std::erase_if(objects, [&](RecordId id) { return drawing.isAlive(id); });
    objects.insert(objects.begin(), entities.begin(), entities.end());
    rememberTakenOut(context, std::move(objects));
}

void rememberTakenOut(CommandContext &context, std::vector<RecordId> records)
{
    CommandMemory &memory = context.document().memory();
    memory.takenOut = std::move(records);
    memory.undosBefore = context.document().undoSteps().undoCount();
}

bool mayCopy(CommandContext &context, std::size_t entities, double copies)
{
    constexpr double mostCopies = 100'000.0;
    if (copies * double(entities) > mostCopies)
        context.fail(Commands::tr("That would be %1 entities; at most %2 are made at once.")
                         .arg(copies * double(entities))
                         .arg(mostCopies, 0, 'f', 0));
    return !context.hasFailed();
}

void transformAll(CommandContext &context, const std::vector<RecordId> &entities, const Matrix &matrix)
{
    const Matrix &m = matrix;
    const bool isPossible = std::ranges::all_of(std::array{m.xAxis, m.yAxis, m.zAxis, m.origin}, [](const auto &v) {
        return std::isfinite(v.x) && std::isfinite(v.y) && std::isfinite(v.z);
    });
    if (!isPossible)
        return context.fail(Commands::tr("The numbers are too large."));
    int refused = 0;
    for (RecordId id : entities)
        refused += drawing::transformEntity(context.drawing(), id, matrix) ? 0 : 1;
    if (refused > 0)
        context.print(Commands::tr("\n%1 could not be changed.").arg(refused));
}

void mirrorAll(CommandContext &context, const std::vector<RecordId> &entities, const Matrix &matrix)
{
    const bool isReversed = context.document().variables().integer(u"MIRRTEXT") != 0;
    const auto texts = isReversed ? drawing::MirroredText::Reversed : drawing::MirroredText::Readable;
    const auto lineSize = [&context](const drawing::FieldList &text) {
        const drawing::Box letters = context.document().textMeasure().lineBox(text);
        return drawing::Vec2{letters.isEmpty() ? 0.0 : letters.high.x, drawing::realOf(text, 40)};
    };
    int refused = 0;
    for (const RecordId id : entities)
        refused += drawing::mirrorEntity(context.drawing(), id, matrix, texts, lineSize) ? 0 : 1;
    if (refused > 0)
        context.print(Commands::tr("\n%1 could not be mirrored.").arg(refused));
}

std::vector<RecordId> copyAll(CommandContext &context, const std::vector<RecordId> &entities, const Matrix &matrix)
{
    std::vector<RecordId> copies;
    for (RecordId id : entities)
        if (const RecordId copy = drawing::copyEntity(context.drawing(), id); isValid(copy))
            copies.push_back(copy);
    if (copies.size() != entities.size())
        context.print(Commands::tr("\n%1 could not be copied.").arg(entities.size() - copies.size()));
    transformAll(context, copies, matrix);
    return copies;
}

} // namespace host::kernel
