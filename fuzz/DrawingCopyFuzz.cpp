// Any blocks and entities, copied into drawings of the oldest and of the newest version: what came of it reads again as
// it was written, what was copied is all there, and one undo takes it back to the byte.

#include "fuzz/FuzzedDrawing.h"
#include "fuzz/Require.h"
#include "host/drawing/editing/CopyBetweenDrawings.h"
#include "host/drawing/file/NewDrawing.h"
#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/Entities.h"
#include "host/drawing/records/Journal.h"

using namespace host::drawing;

namespace {

std::unique_ptr<Drawing> emptyDrawing(const QByteArray &version)
{
    static const QByteArray newest = newDrawing()->toBytes();
    ReadResult read = Drawing::fromBytes(version == "AC1032" ? newest : FuzzedDrawing({}).text(version));
    require(static_cast<bool>(read));
    return std::move(read.drawing);
}

void checkReadsAgain(const Drawing &drawing)
{
    const QByteArray bytes = drawing.toBytes();
    const ReadResult read = Drawing::fromBytes(bytes);
    require(static_cast<bool>(read));
    require(read.drawing->toBytes() == bytes);
    require(read.drawing->entities().all().size() == drawing.entities().all().size());
    require(read.drawing->blocks().all().size() == drawing.blocks().all().size());
}

void checkCopy(const Drawing &source, const std::vector<RecordId> &entities, Drawing &target)
{
    const QByteArray before = target.toBytes();
    CopyResult result;
    {
        const JournalGroup group(target.journal(), {});
        result = copyEntities(source, entities, target);
    }
    const std::size_t made = target.entities().all().size();
    require(result || made == 0);
    require(!result || result.skipped > 0 || made >= entities.size());
    for (const RecordId entity : target.entities().all())
        require(!target.isType(entity, "INSERT") || isValid(target.blocks().find(target.tags(entity).text(2))));
    checkReadsAgain(target);
    while (target.journal().undo()) {
    }
    require(target.toBytes() == before);
}

void checkBlocks(const Drawing &source, Drawing &target)
{
    for (const RecordId block : source.blocks().all()) {
        const CopyResult result = copyBlock(source, block, target);
        require(!result || isValid(result.record));
        if (const std::unique_ptr<Drawing> own = wblock(source, block))
            checkReadsAgain(*own);
    }
    insertAsBlock(source, target, QStringLiteral("whole"));
    checkReadsAgain(target);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const FuzzedDrawing fuzzed(QByteArray(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)));
    static const QByteArrayList versions{"AC1009", "AC1015", "AC1032"};
    const QByteArray bytes = fuzzed.text(versions[qsizetype(size % 3)]);
    const ReadResult source = Drawing::fromBytes(bytes);
    if (!source)
        return 0;
    const std::unique_ptr<Drawing> target = emptyDrawing(size % 2 == 0 ? "AC1009" : "AC1032");
    checkCopy(*source.drawing, source.drawing->entities().all(), *target);
    checkBlocks(*source.drawing, *target);
    require(source.drawing->toBytes() == bytes);
    return 0;
}
