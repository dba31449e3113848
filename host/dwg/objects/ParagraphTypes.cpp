#include "host/dwg/objects/ParagraphTypes.h"

#include "host/dwg/objects/TypeTable.h"

namespace host::dwg {

namespace {

enum class Columns
{
    None = 0,
    Static = 1,
    Dynamic = 2
};

void readBackground(Fields &f)
{
    const int kind = f.int32(90, {0});
    constexpr int filled = 1;
    constexpr int framed = 16;
    if ((kind & filled) == 0 && !((kind & framed) != 0 && f.since(Release::R2018)))
        return;
    f.real(45);
    f.colour(63);
    f.int32(441);
}

void readColumnSizes(Fields &f, Columns columns)
{
    const std::size_t count = f.count(2);
    f.note(72, count);
    f.real(44);
    f.real(45);
    const bool isAutomatic = f.flag(73);
    f.flag(74);
    if (isAutomatic || columns != Columns::Dynamic)
        return;
    for (std::size_t i = 0; i < count; ++i)
        f.real(46);
}

/// What R2018 added, for texts that are not annotative: where the text stands, once more, and its columns.
void readColumns(Fields &f)
{
    const std::size_t begin = f.mark();
    const bool isAnnotative = !f.flag();
    if (isAnnotative)
        return;
    f.int16(); // a version and whether it is the usual one
    f.flag();
    f.reference(); // an application
    f.note(101, "Embedded Object");
    f.int32(70);
    f.point(10);
    f.point(11);
    for (int code = 40; code <= 43; ++code)
        f.real(code);
    const auto columns = static_cast<Columns>(f.int16(71));
    if (columns == Columns::None)
        f.drop(begin);
    else
        readColumnSizes(f, columns);
}

TextSize readParagraphs(Fields &f)
{
    const std::size_t begin = f.mark();
    f.point(10);
    const Point extrusion = f.point();
    const Point direction = f.point();
    f.real(41);
    if (f.since(Release::R2007))
        f.real(46);
    f.real(40);
    f.int16(71);
    f.int16(72);
    TextSize size; // which the text form has for leaders alone
    size.height = f.real();
    size.width = f.real();
    const std::string text = f.text();
    f.noteLong(1, 3, text);
    if (f.since(Release::R2000)) {
        f.int16(73);
        f.real(44);
        f.flag();
    }
    if (f.since(Release::R2004))
        readBackground(f);
    if (extrusion != Point{0.0, 0.0, 1.0})
        f.note(210, extrusion);
    if (direction != Point{1.0, 0.0, 0.0})
        f.note(11, direction);
    const std::uint64_t style = f.reference();
    if (f.nameOf(style) != "Standard" && f.nameOf(style) != "STANDARD")
        f.nameUnlessLost(7, style);
    f.arrange(begin,
              {10, 20, 30, 40, 41, 46, 71, 72, 3, 1, 7, 210, 220, 230, 11, 21, 31, 73, 44, 90, 63, 421, 431, 45, 441});
    if (f.since(Release::R2018))
        readColumns(f);
    return size;
}

void readMText(Fields &f)
{
    f.subclass("AcDbMText");
    readParagraphs(f);
}

/// What entities of R2018 have in front of their own fields, handle and extended data left out; none of it is written
/// for a text within an attribute.
void skipEntityHead(Fields &f)
{
    constexpr int fromReference = 3;
    BitReader &values = f.values();
    const bool hasOwner = values.pair() == 0;
    const std::size_t reactors = f.checkedCount(f.int32(), 8, f.references());
    const bool hasDictionary = !f.flag();
    f.flag();
    const int colour = f.int16();
    if ((colour & 0xc000) == 0x8000)
        f.int32();
    if ((colour & 0x2000) != 0)
        f.int32();
    f.real();
    std::size_t further = (colour & 0x4000) != 0 ? 2 : 1; // the layer, and the colour in front of it
    for (int i = 0; i < 3; ++i)
        further += values.pair() == fromReference ? 1 : 0;
    f.small();
    for (int i = 0; i < 3; ++i)
        further += f.flag() ? 1 : 0;
    f.int16();
    f.small();
    const std::size_t references = (hasOwner ? 1 : 0) + reactors + (hasDictionary ? 1 : 0) + further;
    for (std::size_t i = 0; i < references && !f.hasFailed(); ++i)
        f.reference();
}

} // namespace

void readEmbeddedParagraphs(Fields &f)
{
    f.note(101, "Embedded Object");
    skipEntityHead(f);
    readParagraphs(f);
    // What it has for annotation scales.
    const std::size_t size = f.smallCount(8);
    if (size == 0)
        return;
    f.values().rawBytes(size);
    f.reference();
    f.int16();
}

TextSize readParagraphSize(Fields &f)
{
    return readParagraphs(f);
}

std::span<const ObjectType> paragraphTypes()
{
    static constexpr ObjectType rows[] = {{0x2c, "MTEXT", readMText, true}};
    return rows;
}

} // namespace host::dwg
