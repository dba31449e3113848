#include "host/app/batch/inspecting/RecordCounts.h"

#include "host/drawing/records/Entities.h"
#include "host/drawing/records/Layouts.h"

#include <QByteArray>

namespace host::app {

namespace {

using drawing::Drawing;
using drawing::RecordId;
using drawing::RecordKind;

QString textOfTag(const Drawing &drawing, RecordId id, int code, const char *otherwise)
{
    const auto tag = drawing.findTag(id, code);
    return tag ? drawing.codec().decode(tag->value) : QString::fromLatin1(otherwise);
}

/// Words of few kinds that come very often, as texts.
class Interned
{
public:
    explicit Interned(const Drawing &drawing) : m_drawing(drawing) {}

    qint64 &countOf(QByteArrayView bytes) { return m_counts[QByteArray::fromRawData(bytes.data(), bytes.size())]; }
    QMap<QString, qint64> counts() const
    {
        QMap<QString, qint64> counts;
        for (const auto &[bytes, count] : m_counts.asKeyValueRange())
            counts[m_drawing.codec().decode(bytes)] += count;
        return counts;
    }

private:
    const Drawing &m_drawing;
    QHash<QByteArray, qint64> m_counts; ///< keys are views into the drawing
};

bool hasHandleAsARule(RecordKind kind)
{
    return kind == RecordKind::TableEntry || kind == RecordKind::Block || kind == RecordKind::Entity ||
           kind == RecordKind::Child || kind == RecordKind::Object;
}

void countHandle(RecordCounts &counts, const Drawing &drawing, RecordId id)
{
    const drawing::Handle handle = drawing.handle(id);
    if (handle.isNull()) {
        counts.withoutHandle += hasHandleAsARule(drawing.kind(id)) ? 1 : 0;
        return;
    }
    ++counts.withHandle;
    counts.sameHandle += drawing.find(handle) == id ? 0 : 1;
    counts.highest.value = std::max(counts.highest.value, handle.value);
}

bool isOnSheet(const Drawing &drawing, RecordId container)
{
    return drawing.kind(container) != RecordKind::Block || !drawing.layouts().ofBlock(container).isEmpty();
}

} // namespace

RecordCounts countRecords(const Drawing &drawing)
{
    RecordCounts counts;
    Interned types(drawing);
    Interned layers(drawing);
    Interned blockLayers(drawing);
    RecordId lastContainer = drawing::noRecord;
    bool isSheet = true;
    for (RecordId id = drawing.first(); isValid(id); id = drawing.next(id)) {
        countHandle(counts, drawing, id);
        counts.proxies += drawing.typeName(id).startsWith("ACAD_PROXY_") ? 1 : 0;
        if (drawing.kind(id) != RecordKind::Entity)
            continue;
        const RecordId container = drawing.parent(id);
        if (container != lastContainer)
            isSheet = isOnSheet(drawing, lastContainer = container);
        if (drawing.kind(container) == RecordKind::Block)
            ++counts.byContainer[container];
        const auto layer = drawing.findTag(id, 8);
        const QByteArrayView layerName = layer ? layer->value : QByteArrayView("0");
        if (drawing.isType(id, "INSERT"))
            ++counts.inserts[textOfTag(drawing, id, 2, "").toCaseFolded()];
        if (!isSheet) {
            ++counts.inBlocks;
            ++blockLayers.countOf(layerName);
            continue;
        }
        ++counts.entities;
        ++types.countOf(drawing.typeName(id));
        ++layers.countOf(layerName);
        if (drawing.section(id) == drawing::Section::Entities)
            ++(drawing.entities().space(id) == drawing::Space::Model ? counts.modelSpace : counts.paperSpace);
    }
    counts.byType = types.counts();
    counts.byLayer = layers.counts();
    for (const auto &all : {counts.byLayer, blockLayers.counts()})
        for (const auto &[name, count] : all.asKeyValueRange())
            counts.onLayer[name.toCaseFolded()] += count;
    return counts;
}

} // namespace host::app
