#include "host/drawing/records/SortTable.h"

#include "host/drawing/records/Dictionaries.h"
#include "host/drawing/records/Journal.h"
#include "host/drawing/records/Structure.h"

#include <algorithm>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

constexpr int entityCode = 331;
const QString sortEntry = u"ACAD_SORTENTS"_s;
const QString sortType = u"SORTENTSTABLE"_s;

/// Each entity is sorted as the handle that is in its place when all are sorted. Those that it is anyway are left out.
FieldList sortPairs(const Drawing &drawing, const std::vector<RecordId> &order)
{
    std::vector<Handle> handles;
    std::ranges::transform(order, std::back_inserter(handles), [&](RecordId id) { return drawing.handle(id); });
    std::vector<Handle> sorted = handles;
    std::ranges::sort(sorted, {}, &Handle::value);
    FieldList pairs;
    for (std::size_t i = 0; i < order.size(); ++i) {
        if (handles[i] == sorted[i])
            continue;
        pairs.push_back({entityCode, handles[i]});
        pairs.push_back({sortHandleCode, sorted[i]});
    }
    return pairs;
}

/// What comes before the pairs in a table that is there already.
FieldList tableHead(const FieldList &fields)
{
    return {fields.begin(), std::ranges::find(fields, entityCode, &Field::code)};
}

} // namespace

bool setDrawOrder(Drawing &drawing, const std::vector<RecordId> &order)
{
    const RecordId block = order.empty() ? noRecord : drawing.find(drawing.owner(order.front()));
    if (!hasOwners(drawing) || !drawing.isAlive(block))
        return false;
    const JournalGroup group(drawing.journal(), {});
    const RecordId dictionary = drawing.dictionaries().ensureExtensionDictionary(block);
    const RecordId table = drawing.dictionaries().find(dictionary, sortEntry);
    const FieldList pairs = sortPairs(drawing, order);
    FieldList fields;
    if (drawing.isAlive(table)) {
        if (!drawing.isType(table, sortType.toLatin1()))
            return false;
        fields = tableHead(drawing.fields(table));
    } else {
        fields = recordHead(drawing, sortType, drawing.handle(dictionary));
        fields.push_back({100, u"AcDbSortentsTable"_s});
        fields.push_back({330, drawing.handle(block)});
    }
    fields.insert(fields.end(), pairs.begin(), pairs.end());
    if (drawing.isAlive(table)) {
        drawing.setFields(table, fields);
        return true;
    }
    const RecordId section = ensureSection(drawing, Section::Objects);
    return drawing.dictionaries().set(dictionary, sortEntry,
                                      drawing.insert(noRecord, section, RecordKind::Object, fields));
}

} // namespace host::drawing
