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

/// How often a block is shown.
struct InsertRows
{
    int columns = 1;
    int rows = 1;
    double columnDistance = 0.0;
    double rowDistance = 0.0;
};

InsertRows readInsertRows(Fields &f)
{
    InsertRows rows;
    rows.columns = f.int16();
    rows.rows = f.int16();
    rows.columnDistance = f.real();
    rows.rowDistance = f.real();
    return rows;
}

/// The attributes that follow, `count` of them where the file tells it (from R2004 on).
void readAttributeList(Fields &f, std::size_t count)
{
    Relations &relations = f.relations();
    if (f.until(Release::R2000)) {
        relations.firstOwned = f.reference();
        relations.lastOwned = f.reference();
    }
    for (std::size_t i = 0; i < count; ++i)
        relations.owned.push_back(f.reference());
    relations.end = f.reference();
}

} // namespace

void readInsertBody(Fields &f, bool isArray)
{
    Relations &relations = f.relations();
    const Point place = f.point();
    const Point factors = readFactors(f);
    const double rotation = f.real();
    const Point extrusion = f.point();
    relations.hasList = f.flag();
    const std::size_t count =
        relations.hasList && f.since(Release::R2004) ? f.checkedCount(f.int32(), 8, f.references()) : 0;
    const InsertRows rows = isArray ? readInsertRows(f) : InsertRows();
    const std::uint64_t block = f.reference();
    if (relations.hasList)
        readAttributeList(f, count);
    const std::string_view name = f.nameOf(block);
    if (name.empty())
        f.lack("Its block is lost.");

    f.subclass(isArray ? "AcDbMInsertBlock" : "AcDbBlockReference");
    if (relations.hasList)
        f.note(66, 1);
    f.note(2, name);
    f.note(10, place);
    f.noteUnless(41, factors.x, {1.0});
    f.noteUnless(42, factors.y, {1.0});
    f.noteUnless(43, factors.z, {1.0});
    if (rotation != 0.0)
        f.noteAngle(50, rotation);
    f.noteUnless(70, rows.columns, {1});
    f.noteUnless(71, rows.rows, {1});
    f.noteUnless(44, rows.columnDistance, {0.0});
    f.noteUnless(45, rows.rowDistance, {0.0});
    if (extrusion != Point{0.0, 0.0, 1.0})
        f.note(210, extrusion);
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
