#include "host/dwg/objects/TypeTable.h"

namespace host::dwg {

namespace {

/// Numbers with their count in front: for each of `each` numbers one is counted.
void readMeshNumbers(Fields &f, int countCode, std::size_t each)
{
    const std::size_t count = f.count(2 * each);
    f.note(countCode, count);
    for (std::size_t i = 0; i < count * each && !f.hasFailed(); ++i)
        f.int32(90);
}

/// A mesh of faces that is smoothed: points, faces (how many corners, and which), edges, and how sharp these are.
void readSubdivisionMesh(Fields &f)
{
    f.subclass("AcDbSubDMesh");
    f.int16(71);
    f.flag(72);
    f.int32(91);
    const std::size_t points = f.count(6);
    f.note(92, points);
    for (std::size_t i = 0; i < points; ++i)
        f.point(10);
    readMeshNumbers(f, 93, 1);
    readMeshNumbers(f, 94, 2);
    const std::size_t creases = f.count(2);
    f.note(95, creases);
    for (std::size_t i = 0; i < creases; ++i)
        f.real(140);
    // What its parts have of their own is not read.
    if (f.int32(90) != 0)
        f.fail();
}

} // namespace

std::span<const ObjectType> meshTypes()
{
    static constexpr ObjectType rows[] = {{0, "MESH", readSubdivisionMesh, true}};
    return rows;
}

} // namespace host::dwg
