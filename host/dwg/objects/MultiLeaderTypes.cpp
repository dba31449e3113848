#include "host/dwg/objects/MultiLeaderTypes.h"

#include "host/dwg/objects/TypeTable.h"

namespace host::dwg {

namespace {

/// A line of a leader; from R2010 on with what it has beside its style.
void readLeaderLine(Fields &f)
{
    f.note(304, "LEADER_LINE{");
    const std::size_t points = f.count(6);
    for (std::size_t i = 0; i < points; ++i)
        f.point(10);
    const std::size_t breaks = f.count(4);
    for (std::size_t i = 0; i < breaks && !f.hasFailed(); ++i) {
        f.int32(90);
        const std::size_t gaps = f.count(12);
        for (std::size_t gap = 0; gap < gaps; ++gap) {
            f.point(11);
            f.point(12);
        }
    }
    f.int32(91);
    if (f.since(Release::R2010)) {
        const std::size_t mark = f.mark();
        f.int16(170);
        f.wholeColour(92);
        f.reference(340);
        f.int32(171);
        f.real(40);
        f.reference(341);
        // Written where one of them is not that of the style, as these bits say.
        if (f.int32(93) == 0)
            f.drop(mark);
    }
    f.note(305, "}");
}

void readLeaderRoot(Fields &f)
{
    f.note(302, "LEADER{");
    f.flag(290);
    f.flag(291);
    f.point(10);
    f.point(11);
    const std::size_t breaks = f.count(12);
    for (std::size_t i = 0; i < breaks; ++i) {
        f.point(12);
        f.point(13);
    }
    f.int32(90);
    f.real(40);
    const std::size_t lines = f.count(4);
    for (std::size_t i = 0; i < lines && !f.hasFailed(); ++i)
        readLeaderLine(f);
    if (f.since(Release::R2010))
        f.int16(271);
    f.note(303, "}");
}

void readLeaderText(Fields &f)
{
    f.text(304);
    f.point(11);
    f.reference(340);
    f.point(12);
    f.point(13);
    for (const int code : {42, 43, 44, 45})
        f.real(code);
    f.int16(170);
    f.wholeColour(90);
    f.int16(171);
    f.int16(172);
    f.wholeColour(91);
    f.real(141);
    f.int32(92);
    f.flag(291);
    f.flag(292);
    f.int16(173);
    f.flag(293);
    f.real(142);
    f.real(143);
    f.flag(294);
    const std::size_t columns = f.count(2);
    for (std::size_t i = 0; i < columns; ++i)
        f.real(144);
    f.flag(295);
    f.flag();
}

void readLeaderBlock(Fields &f)
{
    f.reference(341);
    f.point(14);
    f.point(15);
    f.point(16);
    f.real(46);
    f.wholeColour(93);
    for (int i = 0; i < 16; ++i)
        f.real(47);
}

} // namespace

/// What the leader shows and where: its content, and the lines that lead to it, which stand first in the file.
void readMultiLeaderContext(Fields &f)
{
    f.note(300, "CONTEXT_DATA{");
    const std::size_t begin = f.mark();
    const std::size_t roots = f.count(8);
    for (std::size_t i = 0; i < roots && !f.hasFailed(); ++i)
        readLeaderRoot(f);
    const std::size_t content = f.mark();
    f.real(40);
    f.point(10);
    for (const int code : {41, 140, 145})
        f.real(code);
    for (const int code : {174, 175, 176, 177})
        f.int16(code);
    const bool hasText = f.flag(290);
    if (hasText)
        readLeaderText(f);
    const bool hasBlock = hasText ? f.note(296, false) : f.flag(296);
    if (hasBlock)
        readLeaderBlock(f);
    for (const int code : {110, 111, 112})
        f.point(code);
    f.flag(297);
    f.moveForward(content, begin);
    if (f.since(Release::R2010)) {
        f.int16(272);
        f.int16(273);
    }
    f.note(301, "}");
}

namespace {

void readLeaderParts(Fields &f)
{
    if (!f.since(Release::R2010)) {
        const std::size_t arrows = f.count(2);
        for (std::size_t i = 0; i < arrows; ++i) {
            f.int32(94);
            f.reference(345);
        }
    }
    const std::size_t labels = f.count(4);
    for (std::size_t i = 0; i < labels && !f.hasFailed(); ++i) {
        f.reference(330);
        f.text(302);
        f.int16(177);
        f.real(44);
    }
}

void readMultiLeader(Fields &f)
{
    f.subclass("AcDbMLeader");
    if (f.since(Release::R2010))
        f.int16(270);
    readMultiLeaderContext(f);
    f.reference(340);
    f.int32(90);
    f.int16(170);
    f.wholeColour(91);
    f.reference(341);
    f.int32(171);
    f.flag(290);
    f.flag(291);
    f.real(41);
    f.referenceUnlessNull(342);
    f.real(42);
    f.int16(172);
    f.reference(343);
    f.int16(173);
    f.int16(95);
    f.int16(174);
    f.int16(175);
    f.wholeColour(92);
    f.flag(292);
    f.referenceUnlessNull(344);
    f.wholeColour(93);
    f.point(10);
    f.real(43);
    f.int16(176);
    f.flag(293);
    readLeaderParts(f);
    f.flag(294);
    f.int16(178);
    f.int16(179);
    f.real(45);
    if (!f.since(Release::R2010))
        return;
    f.int16(271);
    f.int16(272);
    f.int16(273);
    if (f.since(Release::R2013))
        f.flag(295);
}

} // namespace

std::span<const ObjectType> multiLeaderTypes()
{
    static constexpr ObjectType rows[] = {{0, "MULTILEADER", readMultiLeader, true}};
    return rows;
}

} // namespace host::dwg
