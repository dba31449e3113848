#include "host/dwg/objects/TypeTable.h"

namespace host::dwg {

namespace {

/// Objects that an action has, or refers to alone.
void readParts(Fields &f)
{
    const std::size_t count = f.count(1);
    f.note(90, count);
    for (std::size_t i = 0; i < count && !f.hasFailed(); ++i) {
        const bool isOwned = f.flag();
        f.reference(isOwned ? 360 : 330);
    }
}

void readReferenceList(Fields &f, int code)
{
    const std::size_t count = f.checkedCount(f.int32(), 8, f.references());
    f.note(90, count);
    for (std::size_t i = 0; i < count; ++i)
        f.reference(code);
}

void readAction(Fields &f)
{
    f.subclass("AcDbAssocAction");
    const int version = f.int32(90);
    f.int32(90);
    f.reference(330);
    f.reference(360);
    f.int32(90);
    f.int32(90);
    readParts(f);
    if (version < 2)
        return;
    readReferenceList(f, 360);
    // The form of values that an action has is not known.
    if (f.int32(90) != 0)
        f.fail();
}

void readNetwork(Fields &f)
{
    readAction(f);
    f.subclass("AcDbAssocNetwork");
    f.int32(90);
    f.int32(90);
    readParts(f);
    readReferenceList(f, 330);
}

void readDependency(Fields &f)
{
    f.subclass("AcDbAssocDependency");
    f.int32(90);
    f.int32(90);
    for (int i = 0; i < 4; ++i)
        f.flag(290);
    f.int32(90);
    f.reference(330);
    if (f.flag(290))
        f.text(1);
    f.reference(330);
    f.reference(330);
    f.reference(360);
    f.int32(90);
}

} // namespace

std::span<const ObjectType> associativeTypes()
{
    static constexpr ObjectType rows[] = {
        {0, "ACDBASSOCACTION", readAction},
        {0, "ACDBASSOCNETWORK", readNetwork},
        {0, "ACDBASSOCDEPENDENCY", readDependency},
    };
    return rows;
}

} // namespace host::dwg
