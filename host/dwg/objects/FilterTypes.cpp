#include "host/dwg/objects/TypeTable.h"

namespace host::dwg {

namespace {

/// A distance behind a flag that says whether it is there.
void readClip(Fields &f, int flagCode, int code)
{
    if (f.int16(flagCode) != 0)
        f.real(code);
}

/// The clip of an insert.
void readSpatialFilter(Fields &f)
{
    f.subclass("AcDbFilter");
    f.subclass("AcDbSpatialFilter");
    const std::size_t count = f.smallCount(128);
    f.note(70, count);
    for (std::size_t i = 0; i < count; ++i)
        f.rawFlatPoint(10);
    f.point(210);
    f.point(11);
    f.int16(71);
    readClip(f, 72, 40);
    readClip(f, 73, 41);
    // Two matrices of three rows: from the insert to the clip, and from there to the world.
    for (int i = 0; i < 24; ++i)
        f.real(40);
}

void readLayerFilter(Fields &f)
{
    f.subclass("AcDbFilter");
    f.subclass("AcDbLayerFilter");
    const std::size_t count = f.textCount();
    for (std::size_t i = 0; i < count && !f.hasFailed(); ++i)
        f.text(8);
}

/// A day and its milliseconds.
void readIndex(Fields &f)
{
    constexpr double dayLength = 86'400'000.0;
    f.subclass("AcDbIndex");
    const int day = f.int32();
    f.note(40, day + f.int32() / dayLength);
}

void readLayerIndex(Fields &f)
{
    readIndex(f);
    f.subclass("AcDbLayerIndex");
    const std::size_t count = f.count(2);
    for (std::size_t i = 0; i < count && !f.hasFailed(); ++i) {
        const int entries = f.int32();
        f.text(8);
        f.reference(360);
        f.note(90, entries);
    }
}

void readHandleBuffer(Fields &f)
{
    f.subclass("AcDbIdBuffer");
    f.small();
    const std::size_t count = f.checkedCount(f.int32(), 8, f.references());
    for (std::size_t i = 0; i < count; ++i)
        f.reference(330);
}

} // namespace

std::span<const ObjectType> filterTypes()
{
    static constexpr ObjectType rows[] = {
        {0, "SPATIAL_FILTER", readSpatialFilter},
        {0, "LAYER_FILTER", readLayerFilter},
        {0, "LAYER_INDEX", readLayerIndex},
        {0, "IDBUFFER", readHandleBuffer},
    };
    return rows;
}

} // namespace host::dwg
