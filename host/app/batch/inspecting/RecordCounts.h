#pragma once

#include "host/drawing/records/Drawing.h"

#include <QHash>
#include <QMap>

namespace host::app {

/// How many records of which kind a drawing has.
struct RecordCounts
{
    qint64 entities = 0; ///< in model space and on sheets; vertices and attributes count with what they belong to
    qint64 inBlocks = 0;
    QMap<QString, qint64> byType;                 ///< of `entities`
    QMap<QString, qint64> byLayer;                ///< likewise, by names as entities spell them
    QMap<QString, qint64> onLayer;                ///< all entities, by names in folded case
    QHash<drawing::RecordId, qint64> byContainer; ///< by BLOCK records
    QHash<QString, qint64> inserts;               ///< by names of blocks in folded case
    qint64 modelSpace = 0;
    qint64 paperSpace = 0; ///< of the sheet in use
    qint64 proxies = 0;
    qint64 withHandle = 0;
    qint64 withoutHandle = 0; ///< of what has one as a rule
    qint64 sameHandle = 0;    ///< records that have the handle of another one
    drawing::Handle highest{};
};

/// Costs one pass over the records.
RecordCounts countRecords(const drawing::Drawing &drawing);

} // namespace host::app
