#include "host/drawing/editing/CopyBetweenDrawings.h"

#include "host/drawing/editing/DrawingCopier.h"
#include "host/drawing/file/NewDrawing.h"
#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/Entities.h"
#include "host/drawing/records/HeaderVariables.h"
#include "host/drawing/records/Journal.h"
#include "host/drawing/tags/DrawingTexts.h"

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

/// Writes down what a block's lengths are measured in, where the drawing's version has a place for that.
void setUnits(Drawing &drawing, RecordId block, qint64 units)
{
    const RecordId entry = drawing.blocks().read(block).tableEntry;
    if (!isValid(entry) || drawing.version() < Version::R2007)
        return;
    FieldList fields = drawing.fields(entry);
    setField(fields, 70, units);
    drawing.setFields(entry, fields);
}

} // namespace

CopyResult copyEntities(const Drawing &source, const std::vector<RecordId> &entities, Drawing &target)
{
    const JournalGroup group(target.journal(), u"copy"_s);
    DrawingCopier copier(source, target);
    for (const RecordId entity : entities)
        copier.copyEntity(entity, noRecord);
    return {noRecord, copier.skipped(), {}, {}, copier.converted()};
}

std::unique_ptr<Drawing> newDrawingLike(const Drawing &source)
{
    std::unique_ptr<Drawing> target =
        newDrawing(source.header().integer(u"$MEASUREMENT") != 0 ? Measurement::Metric : Measurement::Imperial);
    for (const QString &name : {u"$INSUNITS"_s, u"$LTSCALE"_s, u"$PDMODE"_s, u"$PDSIZE"_s}) {
        if (const std::optional<Field> value = source.header().get(name))
            target->header().set(name, *value);
    }
    return target;
}

std::unique_ptr<Drawing> wblock(const Drawing &source, const std::vector<RecordId> &entities, const Vec3 &basePoint)
{
    std::unique_ptr<Drawing> target = newDrawingLike(source);
    copyEntities(source, entities, *target);
    if (target->entities().all().empty())
        return nullptr;
    target->header().set(u"$INSBASE", {10, basePoint});
    // Read afresh, so that the new drawing starts without a history.
    return std::move(Drawing::fromBytes(target->toBytes()).drawing);
}

std::unique_ptr<Drawing> wblock(const Drawing &source, RecordId block)
{
    if (!source.isAlive(block) || source.kind(block) != RecordKind::Block)
        return nullptr;
    return wblock(source, source.children(block), source.blocks().read(block).basePoint);
}

CopyResult insertAsBlock(const Drawing &source, Drawing &target, const QString &name)
{
    return insertAsBlock(source, target, name, {});
}

CopyResult insertAsBlock(const Drawing &source, Drawing &target, const QString &name, const CopyRules &rules)
{
    const JournalGroup group(target.journal(), u"insert"_s);
    const RecordId block = target.blocks().create(name, source.header().point(u"$INSBASE"));
    if (!isValid(block))
        return {noRecord, 0, DrawingTexts::tr("\"%1\" cannot be the name of a block").arg(name)};
    DrawingCopier copier(source, target, rules);
    for (const RecordId entity : source.entities().inSpace(Space::Model))
        copier.copyEntity(entity, block);
    setUnits(target, block, source.header().integer(u"$INSUNITS"));
    return {block, copier.skipped(), {}, {}, copier.converted()};
}

CopyResult copyBlock(const Drawing &source, RecordId block, Drawing &target)
{
    if (!source.isAlive(block) || source.kind(block) != RecordKind::Block || source.blocks().read(block).isLayout())
        return {noRecord, 0, DrawingTexts::tr("there is no such block")};
    const JournalGroup group(target.journal(), u"block"_s);
    DrawingCopier copier(source, target);
    const RecordId copied = copier.copyBlock(block);
    if (!isValid(copied))
        return {noRecord, 0, DrawingTexts::tr("\"%1\" cannot be the name of a block").arg(source.blocks().name(block))};
    return {copied, copier.skipped(), {}, copier.kept(), copier.converted()};
}

} // namespace host::drawing
