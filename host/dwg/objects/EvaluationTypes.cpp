#include "host/dwg/objects/TypeTable.h"

namespace host::dwg {

namespace {

/// Four numbers of edges of a node, or those of a node's neighbours.
void readLinks(Fields &f, int count)
{
    for (int i = 0; i < count; ++i)
        f.int32(92);
}

/// What a block or a solid is worked out from, step by step.
void readEvaluationGraph(Fields &f)
{
    f.subclass("AcDbEvalGraph");
    f.int32(96);
    f.int32(97);
    const std::size_t nodes = f.count(14);
    for (std::size_t i = 0; i < nodes && !f.hasFailed(); ++i) {
        f.int32(91);
        f.int32(93);
        f.int32(95);
        f.reference(360);
        readLinks(f, 4);
    }
    const std::size_t edges = f.count(20);
    for (std::size_t i = 0; i < edges && !f.hasFailed(); ++i) {
        f.int32(92);
        f.int32(93);
        f.int32(94);
        f.int32(91);
        f.int32(91);
        readLinks(f, 5);
    }
}

/// A version of two numbers that each class of a solid's history has.
void readVersion(Fields &f)
{
    f.int32(90);
    f.int32(91);
}

void readHistory(Fields &f)
{
    f.subclass("AcDbShHistory");
    readVersion(f);
    f.reference(360);
    f.int32(92);
    f.flag(280);
    f.flag(281);
}

/// A step of a graph. What it comes to is not known in the text form, but that it has no value yet.
void readEvaluation(Fields &f)
{
    constexpr int noValue = -9999;
    f.subclass("AcDbEvalExpr");
    const std::size_t begin = f.mark();
    f.int32();
    f.int32(98);
    f.int32(99);
    if (f.int16() != noValue)
        f.fail();
    f.int32(90);
    f.arrange(begin, {90});
}

/// Where a step stands, what it looks like. The matrix goes through the codes of angles, and is turned into degrees
/// there as these are.
void readHistoryNode(Fields &f)
{
    constexpr int firstAngle = 50;
    readEvaluation(f);
    f.subclass("AcDbShHistoryNode");
    readVersion(f);
    for (int code = 40; code < 40 + 16; ++code) {
        if (code < firstAngle)
            f.real(code);
        else
            f.angle(code);
    }
    f.colour(62);
    f.int32(92);
    f.reference(347);
}

/// A solid that was made at one go: lengths and radii under 40 and what follows.
void readPrimitive(Fields &f, const char *subclass, int sizes)
{
    readHistoryNode(f);
    f.subclass("AcDbShPrimitive");
    f.subclass(subclass);
    readVersion(f);
    for (int i = 0; i < sizes; ++i)
        f.real(40 + i);
}

/// Parts of solids that are told apart whatever changes: numbers alone, as many as there are.
void readNumbers(Fields &f, std::size_t left)
{
    while (f.values().left() > left && !f.hasFailed())
        f.int32(90);
}

void readPartNumbers(Fields &f)
{
    f.subclass("AcDbPersSubentManager");
    readNumbers(f, 0);
}

void readAssociativePartNumbers(Fields &f)
{
    f.subclass("AcDbAssocPersSubentManager");
    readNumbers(f, 1);
    f.flag(290);
}

/// Which dynamic block an insert of an anonymous one stands for.
void readRepresentation(Fields &f)
{
    f.subclass("AcDbBlockRepresentationData");
    f.int16(70);
    f.reference(340);
}

} // namespace

std::span<const ObjectType> evaluationTypes()
{
    static constexpr ObjectType rows[] = {
        {0, "ACAD_EVALUATION_GRAPH", readEvaluationGraph},
        {0, "ACDB_BLOCKREPRESENTATION_DATA", readRepresentation},
        {0, "ACSH_HISTORY_CLASS", readHistory},
        {0, "ACSH_BOX_CLASS", [](Fields &f) { readPrimitive(f, "AcDbShBox", 3); }},
        {0, "ACSH_WEDGE_CLASS", [](Fields &f) { readPrimitive(f, "AcDbShWedge", 3); }},
        {0, "ACSH_SPHERE_CLASS", [](Fields &f) { readPrimitive(f, "AcDbShSphere", 1); }},
        {0, "ACSH_TORUS_CLASS", [](Fields &f) { readPrimitive(f, "AcDbShTorus", 2); }},
        {0, "ACSH_CYLINDER_CLASS", [](Fields &f) { readPrimitive(f, "AcDbShCylinder", 4); }},
        {0, "ACSH_CONE_CLASS", [](Fields &f) { readPrimitive(f, "AcDbShCone", 4); }},
        {0, "ACDBPERSSUBENTMANAGER", readPartNumbers},
        {0, "ACDBASSOCPERSSUBENTMANAGER", readAssociativePartNumbers},
    };
    return rows;
}

} // namespace host::dwg
