#include "host/dwg/objects/TypeTable.h"

namespace host::dwg {

namespace {

/// Group codes of one of a material's maps: pictures that say how something changes over the surface.
struct MapCodes
{
    int blend;
    int source;
    int file;
    int projection;
    int tiling;
    int placing;
    int matrix;
    double usualSource = 1.0;
};

constexpr double unitMatrix[16] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};

void readMatrix(Fields &f, int code)
{
    const std::size_t mark = f.mark();
    bool isUnit = true;
    for (const double usual : unitMatrix)
        isUnit &= f.real(code) == usual;
    if (isUnit)
        f.drop(mark);
}

void readMaterialMap(Fields &f, const MapCodes &codes)
{
    const std::size_t mark = f.mark();
    f.real(codes.blend, {1.0});
    // Projections of a plane are not written, from R2000 on those of a box neither.
    const int projection = f.small();
    if (projection != 1 && (projection != 2 || f.until(Release::R14)))
        f.note(codes.projection, projection);
    f.small(codes.tiling, {1});
    f.small(codes.placing, {1});
    readMatrix(f, codes.matrix);
    const int source = f.small(codes.source, {codes.usualSource});
    if (source == 1)
        f.textUnlessEmpty(codes.file);
    else if (source == 2)
        f.fail(); // made by a program, in a form of its own
    f.arrange(mark, {codes.blend, codes.source, codes.file, codes.projection, codes.tiling, codes.placing});
}

void readMaterialColour(Fields &f, int kindCode, int factorCode, int code)
{
    const int kind = f.small(kindCode, {0});
    f.real(factorCode, {1.0});
    if (kind == 1)
        f.int32(code);
}

void readMaterial(Fields &f)
{
    f.subclass("AcDbMaterial");
    f.text(1);
    f.textUnlessEmpty(2);
    readMaterialColour(f, 70, 40, 90);
    readMaterialColour(f, 71, 41, 91);
    readMaterialMap(f, {42, 72, 3, 73, 74, 75, 43});
    const std::size_t specular = f.mark();
    readMaterialColour(f, 76, 45, 92);
    readMaterialMap(f, {46, 77, 4, 78, 79, 170, 47});
    const std::size_t gloss = f.mark();
    f.real(44, {0.5});
    f.moveForward(gloss, specular);
    readMaterialMap(f, {48, 171, 6, 172, 173, 174, 49});
    f.real(140, {1.0});
    readMaterialMap(f, {141, 175, 7, 176, 177, 178, 142});
    readMaterialMap(f, {143, 179, 8, 270, 271, 272, 144});
    f.real(145, {1.0});
    readMaterialMap(f, {146, 273, 9, 274, 275, 276, 147, 0.0});
    if (!f.since(Release::R2007))
        return;
    f.real(148, {0.0});
    f.real(149, {0.0});
    f.real(468, {0.0});
    f.int32(93, {0});
    f.int32(94, {127});
    f.int32(282, {0});
}

} // namespace

std::span<const ObjectType> materialTypes()
{
    static constexpr ObjectType rows[] = {{0, "MATERIAL", readMaterial}};
    return rows;
}

} // namespace host::dwg
