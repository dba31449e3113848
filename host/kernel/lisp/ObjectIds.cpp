#include "host/kernel/lisp/ObjectIds.h"

#include "host/kernel/lisp/LispConversion.h"

#include <QSet>

#include <algorithm>

namespace host::kernel {

using drawing::RecordId;

OdDbObjectId objectId(RecordId record)
{
    return isValid(record) ? OdDbObjectId(quint64(record)) : OdDbObjectId();
}

OdDbObjectIdArray objectIds(const std::vector<RecordId> &records)
{
    OdDbObjectIdArray objects(records.size());
    std::ranges::transform(records, objects.begin(), objectId);
    return objects;
}

RecordId recordFrom(const Document &document, const OdDbObjectId &object)
{
    return recordFrom(document, std::uint64_t(object.number()));
}

std::vector<RecordId> recordsFrom(const Document &document, const OdDbObjectIdArray &objects)
{
    std::vector<RecordId> records;
    QSet<quint32> known;
    for (const OdDbObjectId &object : objects) {
        const RecordId record = recordFrom(document, object);
        if (!isValid(record) || known.contains(quint32(record)))
            continue;
        known.insert(quint32(record));
        records.push_back(record);
    }
    return records;
}

} // namespace host::kernel
