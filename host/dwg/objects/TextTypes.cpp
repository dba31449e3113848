#include "host/dwg/objects/TypeTable.h"

namespace host::dwg {

namespace {

/// What a text leaves out from R2000 on, by the bits of its first number.
struct TextParts
{
    static constexpr int height = 1;
    static constexpr int alignment = 2;
    static constexpr int oblique = 4;
    static constexpr int rotation = 8;
    static constexpr int width = 16;
    static constexpr int generation = 32;
    static constexpr int horizontal = 64;
    static constexpr int vertical = 128;
};

struct TextValues
{
    double height = 0.0;
    Point place;
    Point alignment;
    double oblique = 0.0;
    double rotation = 0.0;
    double size = 0.0;
    double width = 1.0;
    int generation = 0;
    int horizontal = 0;
    int vertical = 0;
    Point extrusion;
    double thickness = 0.0;
    std::string text;
    std::uint64_t style = 0;
};

void readCompactText(Fields &f, TextValues &text)
{
    const int missing = f.small();
    const auto has = [missing](int part) { return (missing & part) == 0; };
    if (has(TextParts::height))
        text.height = f.rawReal();
    text.place = {f.rawReal(), f.rawReal(), text.height};
    if (has(TextParts::alignment)) {
        const double x = f.values().realNear(text.place.x);
        text.alignment = {x, f.values().realNear(text.place.y), text.height};
    }
    text.extrusion = f.values().extrusion(f.release());
    text.thickness = f.values().thickness(f.release());
    if (has(TextParts::oblique))
        text.oblique = f.rawReal();
    if (has(TextParts::rotation))
        text.rotation = f.rawReal();
    text.size = f.rawReal();
    if (has(TextParts::width))
        text.width = f.rawReal();
    text.text = f.text();
    if (has(TextParts::generation))
        text.generation = f.int16();
    if (has(TextParts::horizontal))
        text.horizontal = f.int16();
    if (has(TextParts::vertical))
        text.vertical = f.int16();
}

void readPlainText(Fields &f, TextValues &text)
{
    text.height = f.real();
    text.place = {f.rawReal(), f.rawReal(), text.height};
    text.alignment = {f.rawReal(), f.rawReal(), text.height};
    text.extrusion = f.point();
    text.thickness = f.real();
    text.oblique = f.real();
    text.rotation = f.real();
    text.size = f.real();
    text.width = f.real();
    text.text = f.text();
    text.generation = f.int16();
    text.horizontal = f.int16();
    text.vertical = f.int16();
}

/// The fields that texts and attributes have; the vertical alignment is returned, as it stands further on.
TextValues readTextValues(Fields &f)
{
    TextValues text;
    if (f.since(Release::R2000))
        readCompactText(f, text);
    else
        readPlainText(f, text);
    text.style = f.reference();
    return text;
}

void noteText(Fields &f, const TextValues &text)
{
    f.subclass("AcDbText");
    f.noteUnless(39, text.thickness, {0.0});
    f.note(10, text.place);
    f.note(40, text.size);
    f.note(1, text.text);
    if (text.rotation != 0.0)
        f.noteAngle(50, text.rotation);
    f.noteUnless(41, text.width, {1.0});
    if (text.oblique != 0.0)
        f.noteAngle(51, text.oblique);
    const std::string_view style = f.nameOf(text.style);
    if (style != "Standard" && style != "STANDARD")
        f.note(7, style);
    f.noteUnless(71, text.generation, {0});
    f.noteUnless(72, text.horizontal, {0});
    if (text.horizontal != 0 || text.vertical != 0)
        f.note(11, text.alignment);
    if (text.extrusion != Point{0.0, 0.0, 1.0})
        f.note(210, text.extrusion);
}

void readText(Fields &f)
{
    const TextValues text = readTextValues(f);
    noteText(f, text);
    f.subclass("AcDbText");
    f.noteUnless(73, text.vertical, {0});
}

/// Whether an attribute has a paragraph text, which stands within it from R2018 on.
bool isParagraph(Fields &f)
{
    if (f.since(Release::R2010))
        f.small(); // a version, always 0
    if (!f.since(Release::R2018))
        return false;
    const int kind = f.small();
    return kind == 2 || kind == 4;
}

/// The tag of an attribute and what goes with it.
void readTag(Fields &f, const TextValues &text)
{
    f.text(2);
    const int length = f.int16();
    f.small(70);
    f.noteUnless(73, length, {0});
    f.noteUnless(74, text.vertical, {0});
    if (f.since(Release::R2007))
        f.flag(280);
}

void readAttribute(Fields &f)
{
    const TextValues text = readTextValues(f);
    noteText(f, text);
    f.subclass("AcDbAttribute");
    if (isParagraph(f))
        return f.fail();
    readTag(f, text);
}

void readAttributeDefinition(Fields &f)
{
    const TextValues text = readTextValues(f);
    noteText(f, text);
    f.subclass("AcDbAttributeDefinition");
    const std::size_t begin = f.mark();
    if (isParagraph(f))
        return f.fail();
    readTag(f, text);
    if (f.since(Release::R2010))
        f.small();
    f.text(3);
    f.arrange(begin, {3, 2, 70});
}

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

void readMText(Fields &f)
{
    f.subclass("AcDbMText");
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
    f.real(); // its extents, which are worked out again
    f.real();
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
    const std::string_view style = f.nameOf(f.reference());
    if (style != "Standard" && style != "STANDARD")
        f.note(7, style);
    f.arrange(begin,
              {10, 20, 30, 40, 41, 46, 71, 72, 3, 1, 7, 210, 220, 230, 11, 21, 31, 73, 44, 90, 63, 421, 431, 45, 441});
}

void readTolerance(Fields &f)
{
    f.subclass("AcDbFcf");
    const std::size_t begin = f.mark();
    if (f.until(Release::R14)) {
        f.int16();
        f.real();
        f.real();
    }
    f.point(10);
    const Point direction = f.point();
    const Point extrusion = f.point();
    f.text(1);
    f.name(3);
    if (extrusion != Point{0.0, 0.0, 1.0})
        f.note(210, extrusion);
    if (direction != Point{1.0, 0.0, 0.0})
        f.note(11, direction);
    f.arrange(begin, {3});
}

void readShape(Fields &f)
{
    f.subclass("AcDbShape");
    const std::size_t begin = f.mark();
    f.point(10);
    f.real(40);
    f.angle(50, {0.0});
    f.real(41, {1.0});
    f.angle(51, {0.0});
    f.real(39, {0.0});
    f.int16(2); // its number in the shape file, which alone knows the name
    const Point extrusion = f.point();
    if (extrusion != Point{0.0, 0.0, 1.0})
        f.note(210, extrusion);
    f.reference();
    f.arrange(begin, {39, 10, 20, 30, 40, 2, 50});
}

} // namespace

std::span<const ObjectType> textTypes()
{
    static constexpr ObjectType rows[] = {
        {0x01, "TEXT", readText, true},
        {0x02, "ATTRIB", readAttribute, true},
        {0x03, "ATTDEF", readAttributeDefinition, true},
        {0x21, "SHAPE", readShape, true},
        {0x2c, "MTEXT", readMText, true},
        {0x2e, "TOLERANCE", readTolerance, true},
    };
    return rows;
}

} // namespace host::dwg
