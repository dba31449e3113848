#include "host/dwg/objects/TypeTable.h"

namespace host::dwg {

namespace {

void readScale(Fields &f)
{
    f.subclass("AcDbScale");
    f.int16(70);
    f.text(300);
    f.real(140);
    f.real(141);
    f.flag(290);
}

void readLeaderStyle(Fields &f)
{
    f.subclass("AcDbMLeaderStyle");
    if (f.since(Release::R2010))
        f.int16(179);
    f.int16(170);
    f.int16(171);
    f.int16(172);
    f.int32(90);
    f.real(40);
    f.real(41);
    f.int16(173);
    f.wholeColour(91);
    f.reference(340);
    f.int32(92);
    f.flag(290);
    f.real(42);
    f.flag(291);
    f.real(43);
    f.text(3);
    f.referenceUnlessNull(341);
    f.real(44);
    f.text(300);
    f.reference(342);
    f.int16(174);
    f.int16(178);
    f.int16(175);
    f.int16(176);
    f.wholeColour(93);
    f.real(45);
    f.flag(292);
    f.flag(297);
    f.real(46);
    f.referenceUnlessNull(343);
    f.wholeColour(94);
    for (const int code : {47, 49, 140})
        f.real(code);
    f.flag(293);
    f.real(141);
    f.flag(294);
    f.int16(177);
    f.real(142);
    const bool isAnnotative = f.flag();
    f.flag(295);
    f.note(296, isAnnotative ? 1 : 0);
    f.real(143);
    if (f.since(Release::R2010)) {
        f.int16(271);
        f.int16(272);
        f.int16(273);
    }
    if (f.since(Release::R2013))
        f.flag(298);
}

/// Colours of view styles are not written before R2004.
void readViewColour(Fields &f)
{
    const std::size_t mark = f.mark();
    f.colour(62);
    if (!f.since(Release::R2004))
        f.drop(mark);
}

void readViewStyle(Fields &f)
{
    f.subclass("AcDbModelDocViewStyle");
    f.int16(70);
    f.text(3);
    f.flag(290);
    if (f.since(Release::R2018)) {
        f.text(300);
        f.int32(90);
    }
}

/// A text's style, colour and height.
void readViewText(Fields &f)
{
    f.reference(340);
    readViewColour(f);
    f.real(40);
}

void readViewLine(Fields &f)
{
    f.reference(340);
    f.int32(90);
    readViewColour(f);
}

/// Where the label of a view stands: the same in both kinds.
void readViewLabel(Fields &f)
{
    f.note(71, 3);
    readViewText(f);
    f.int32(90);
    f.real(40);
    f.int32(90);
    f.text(300);
}

void readDetailViewStyle(Fields &f)
{
    readViewStyle(f);
    f.subclass("AcDbDetailViewStyle");
    f.int16(70);
    f.note(71, 0);
    f.int32(90);
    f.note(71, 1);
    readViewText(f);
    // The arrow stands behind these in the file.
    const std::size_t mark = f.mark();
    f.text(300);
    f.real(40);
    f.small(280);
    const std::size_t arrow = f.mark();
    readViewText(f);
    f.moveForward(arrow, mark);
    f.note(71, 2);
    readViewLine(f);
    readViewLabel(f);
    f.note(71, 4);
    readViewLine(f);
    readViewLine(f);
    f.small(280);
}

void readSectionHatch(Fields &f)
{
    readViewColour(f);
    readViewColour(f);
    f.text(300);
    f.real(40);
    f.int32(90);
    f.flag(290);
    f.flag(290);
}

void readSectionViewStyle(Fields &f)
{
    readViewStyle(f);
    f.subclass("AcDbSectionViewStyle");
    f.int16(70);
    f.note(71, 0);
    f.int32(90);
    f.note(71, 1);
    readViewText(f);
    f.reference(340);
    readViewText(f);
    f.text(300);
    f.real(40);
    const std::size_t identifiers = f.mark();
    f.note(71, 2);
    readViewLine(f);
    readViewLine(f);
    f.real(40);
    const std::size_t overshoot = f.mark();
    f.real(40);
    readViewLabel(f);
    f.note(71, 4);
    readSectionHatch(f);
    // What the identifiers and the lines have beside, which stands further in front in the text form.
    const std::size_t further = f.mark();
    f.int32(90);
    f.real(40);
    f.int32(90);
    const double length = f.real();
    const std::size_t angles = f.count(2);
    const std::size_t hatch = f.mark();
    f.note(90, angles);
    for (std::size_t i = 0; i < angles; ++i)
        f.real(40);
    f.note(40, length);
    f.moveRange(f.mark() - 1, f.mark(), overshoot);
    f.moveRange(further + 1, hatch + 1, identifiers);
}

/// A colour of a colour book that entities have.
void readBookColour(Fields &f)
{
    f.subclass("AcDbColor");
    f.longColour(62);
}

} // namespace

std::span<const ObjectType> styleTypes()
{
    static constexpr ObjectType rows[] = {
        {0, "SCALE", readScale},
        {0, "DBCOLOR", readBookColour},
        {0, "MLEADERSTYLE", readLeaderStyle},
        {0, "ACDBDETAILVIEWSTYLE", readDetailViewStyle},
        {0, "ACDBSECTIONVIEWSTYLE", readSectionViewStyle},
    };
    return rows;
}

} // namespace host::dwg
