#include "host/drawing/editing/WipeoutFrame.h"

#include "host/drawing/records/Dictionaries.h"
#include "host/drawing/records/Journal.h"
#include "host/drawing/records/Structure.h"

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

const QString wipeoutEntry = u"ACAD_WIPEOUT_VARS"_s;
const QString wipeoutType = u"WIPEOUTVARIABLES"_s;
constexpr int frameCode = 70;
constexpr int shown = 1;

/// What has the object's name in the dictionary, whatever it is.
RecordId named(const Drawing &drawing)
{
    const Dictionaries &dictionaries = drawing.dictionaries();
    return dictionaries.find(dictionaries.root(), wipeoutEntry);
}

bool isSettings(const Drawing &drawing, RecordId record)
{
    return isValid(record) && drawing.isType(record, wipeoutType.toLatin1());
}

bool addSettings(Drawing &drawing, int value)
{
    if (!hasOwners(drawing))
        return false;
    const JournalGroup group(drawing.journal(), {});
    const RecordId root = drawing.dictionaries().ensureRoot();
    ensureClass(drawing, wipeoutType);
    FieldList fields = recordHead(drawing, wipeoutType, drawing.handle(root));
    fields.push_back({100, u"AcDbWipeoutVariables"_s});
    fields.push_back({frameCode, qint64(value)});
    const RecordId record =
        drawing.insert(noRecord, ensureSection(drawing, Section::Objects), RecordKind::Object, fields);
    return drawing.dictionaries().set(root, wipeoutEntry, record);
}

} // namespace

int wipeoutFrame(const Drawing &drawing)
{
    const RecordId record = named(drawing);
    return isSettings(drawing, record) ? static_cast<int>(drawing.tags(record).integer(frameCode, shown)) : shown;
}

bool setWipeoutFrame(Drawing &drawing, int value)
{
    const RecordId record = named(drawing);
    if (!isValid(record))
        return addSettings(drawing, value);
    if (!isSettings(drawing, record))
        return false;
    FieldList fields = drawing.fields(record);
    setField(fields, frameCode, qint64(value));
    drawing.setFields(record, fields);
    return true;
}

} // namespace host::drawing
