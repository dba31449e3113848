#include "host/dwg/objects/TableFormat.h"
#include "host/dwg/objects/TypeTable.h"

namespace host::dwg {

namespace {

void readReferences(Fields &f, int countCode, int code)
{
    const std::size_t count = f.checkedCount(f.int32(), 8, f.references());
    f.note(countCode, count);
    for (std::size_t i = 0; i < count; ++i)
        f.reference(code);
}

void readField(Fields &f)
{
    f.subclass("AcDbField");
    f.text(1);
    const std::string code = f.text();
    f.noteLong(2, 3, code);
    readReferences(f, 90, 360);
    readReferences(f, 97, 331);
    if (f.until(Release::R2004))
        f.text(4);
    for (const int state : {91, 92, 94, 95, 96})
        f.int32(state);
    f.text(300);
    const std::size_t cached = f.mark();
    f.note(7, "ACFD_FIELD_VALUE");
    readCellValue(f);
    f.text(301);
    f.int32(98);
    // What the field has beside stands in front in the text form.
    const std::size_t data = f.mark();
    const std::size_t count = f.count(6);
    f.note(93, count);
    for (std::size_t i = 0; i < count && !f.hasFailed(); ++i) {
        f.text(6);
        readCellValue(f);
    }
    f.moveForward(data, cached);
}

void readHandleSet(Fields &f)
{
    f.subclass("AcDbIdSet");
    const std::size_t count = f.checkedCount(f.int32(), 8, f.references());
    f.flag();
    f.note(90, count);
    for (std::size_t i = 0; i < count; ++i)
        f.reference(330);
}

void readFieldList(Fields &f)
{
    readHandleSet(f);
    f.subclass("AcDbFieldList");
}

} // namespace

std::span<const ObjectType> fieldTypes()
{
    static constexpr ObjectType rows[] = {
        {0, "FIELD", readField},
        {0, "FIELDLIST", readFieldList},
    };
    return rows;
}

} // namespace host::dwg
