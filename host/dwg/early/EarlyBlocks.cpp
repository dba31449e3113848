#include "host/dwg/early/EarlyRecord.h"

namespace host::dwg {

namespace {

void readEarlyInsert(EarlyRecord &r)
{
    const std::string_view block = r.takeName(EarlyTableKind::Blocks);
    if (block.empty())
        r.setLack("Its block is lost.");
    r.fields().note(2, block);
    r.planePoint(10);
    r.real(0x01, 41);
    r.real(0x02, 42);
    r.angle(0x04, 50);
    r.real(0x08, 43);
    r.number(0x10, 70);
    r.number(0x20, 71);
    r.real(0x40, 44);
    r.real(0x80, 45);
    r.extrusion(0x100);
}

/// What stands before it; the text form says it by order.
void readEarlyEnd(EarlyRecord &r)
{
    r.fields().values().raw32();
}

/// The center has two or three numbers, and the viewport's number may be missing.
void readEarlyPaperViewport(EarlyRecord &r)
{
    constexpr std::size_t sizeOfPoint = 24;
    constexpr std::size_t sizeOfOthers = 18;
    if (r.left() >= sizeOfPoint + sizeOfOthers)
        r.fields().rawPoint(10);
    else
        r.planePoint(10);
    r.real(40);
    r.real(41);
    r.number(68);
    if (r.left() == 2)
        r.number(69);
}

/// Columns and rows of what stands behind REPEAT.
void readEarlyRepetition(EarlyRecord &r)
{
    r.number(70);
    r.number(71);
    r.real(44);
    r.real(45);
}

void readEarlyLoad(EarlyRecord &r)
{
    r.text(1);
}

} // namespace

std::span<const EarlyType> earlyBlockTypes()
{
    static constexpr EarlyType types[] = {
        {5, "REPEAT", nullptr},
        {6, "ENDREP", readEarlyRepetition},
        {10, "LOAD", readEarlyLoad},
        {13, "ENDBLK", nullptr},
        {14, "INSERT", readEarlyInsert},
        {17, "SEQEND", readEarlyEnd},
        {24, "VIEWPORT", readEarlyPaperViewport},
    };
    return types;
}

} // namespace host::dwg
