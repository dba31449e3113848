// Any bytes: a drawing that reads is written as it was, gives all it holds, and takes an edit back exactly.

#include "fuzz/Require.h"
#include "host/drawing/geometry/EntityGeometry.h"
#include "host/drawing/geometry/TransformEntity.h"
#include "host/drawing/records/Drawing.h"
#include "host/drawing/records/Entities.h"
#include "host/drawing/records/Journal.h"
#include "host/drawing/records/Symbols.h"

using namespace host::drawing;

namespace {

void readEverything(const Drawing &drawing)
{
    for (RecordId id = drawing.first(); isValid(id); id = drawing.next(id)) {
        drawing.fields(id);
        drawing.owner(id);
        const RecordId parent = drawing.parent(id);
        require(!isValid(parent) || drawing.isAlive(parent));
    }
    allLayers(drawing);
    for (const RecordId entity : drawing.entities().all())
        entityBox(drawing, entity);
}

void edit(Drawing &drawing)
{
    const JournalGroup group(drawing.journal(), {});
    for (const RecordId entity : drawing.entities().all()) {
        drawing.entities().modify(entity, drawing.fields(entity));
        transformEntity(drawing, entity, Matrix::rotation(1.0, {1.0, 2.0, 3.0}));
        copyEntity(drawing, entity);
        drawing.setErased(entity, true);
    }
    drawing.entities().create({{0, QStringLiteral("POINT")}, {8, QStringLiteral("A")}, {10, Vec3{}}});
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const ReadResult result = Drawing::fromBytes(bytes);
    if (!result) {
        require(!result.error.text.isEmpty());
        return 0;
    }
    Drawing &drawing = *result.drawing;
    require(drawing.toBytes() == bytes);
    readEverything(drawing);
    edit(drawing);
    require(static_cast<bool>(Drawing::fromBytes(drawing.toBytes())));
    drawing.journal().undo();
    require(drawing.toBytes() == bytes);
    return 0;
}
