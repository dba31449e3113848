#include "host/dwg/objects/InsertTypes.h"

#include "host/dwg/objects/TypeTable.h"

namespace host::dwg {

namespace {

void readBlock(Fields &f)
{
    f.subclass("AcDbBlockBegin");
    f.text(2);
}

void readEndOfBlock(Fields &f)
{
    f.subclass("AcDbBlockEnd");
}

/// The factors of size; from R2000 on two bits say which of them are 1.
Point readFactors(Fields &f)
{
    if (!f.since(Release::R2000))
        return f.point();
    switch (f.values().pair()) {
    case 0: {
        const double x = f.rawReal();
        const double y = f.values().realNear(x);
        return {x, y, f.values().realNear(x)};
    }
    case 1: {
        const double y = f.values().realNear(1.0);
        return {1.0, y, f.values().realNear(1.0)};
    }
    case 2: {
        const double all = f.rawReal();
        return {all, all, all};
    }
    default:
        return {1.0, 1.0, 1.0};
    }
}

} // namespace

void readInsertBody(Fields &f, bool isArray)
{
    f.subclass(isArray ? "AcDbMInsertBlock" : "AcDbBlockReference");
    const std::size_t begin = f.mark();
    Relations &relations = f.relations();
    f.point(10);
    const Point factors = readFactors(f);
    f.noteUnless(41, factors.x, {1.0});
    f.noteUnless(42, factors.y, {1.0});
    f.noteUnless(43, factors.z, {1.0});
    f.angle(50, {0.0});
    const Point extrusion = f.point();
    if (extrusion != Point{0.0, 0.0, 1.0})
        f.note(210, extrusion);
    relations.hasList = f.flag();
    const std::size_t count =
        relations.hasList && f.since(Release::R2004) ? f.checkedCount(f.int32(), 8, f.references()) : 0;
    if (isArray) {
        f.int16(70, {1});
        f.int16(71, {1});
        f.real(44, {0.0});
        f.real(45, {0.0});
    }
    f.name(2);
    if (relations.hasList) {
        f.note(66, 1);
        if (f.until(Release::R2000)) {
            relations.firstOwned = f.reference();
            relations.lastOwned = f.reference();
        }
        for (std::size_t i = 0; i < count; ++i)
            relations.owned.push_back(f.reference());
        relations.end = f.reference();
    }
    f.arrange(begin, {66, 2, 10, 20, 30, 41, 42, 43, 50, 70, 71, 44, 45});
}

namespace {

void readInsert(Fields &f)
{
    readInsertBody(f, false);
}

void readArrayInsert(Fields &f)
{
    readInsertBody(f, true);
}

} // namespace

std::span<const ObjectType> insertTypes()
{
    static constexpr ObjectType rows[] = {
        {0x04, "BLOCK", readBlock, true},   {0x05, "ENDBLK", readEndOfBlock, true},  {0x06, "SEQEND", nullptr, true},
        {0x07, "INSERT", readInsert, true}, {0x08, "INSERT", readArrayInsert, true},
    };
    return rows;
}

} // namespace host::dwg
