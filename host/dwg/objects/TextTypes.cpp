#include "host/dwg/objects/ParagraphTypes.h"
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
        f.nameUnlessLost(7, text.style);
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

/// How the text of an attribute is kept from R2018 on.
enum class AttributeKind
{
    SingleLine = 1,
    Paragraphs = 2,
    DefinedParagraphs = 4
};

/// From R2010 on attributes have a version; from R2018 on they may have a paragraph text, which stands within them here
/// and at the end of the text form. What is noted of it begins at the mark that is returned.
std::size_t readAttributeText(Fields &f, AttributeKind &kind)
{
    if (f.since(Release::R2010))
        f.small(280);
    if (f.since(Release::R2018))
        kind = static_cast<AttributeKind>(f.small());
    const std::size_t begin = f.mark();
    if (kind == AttributeKind::Paragraphs || kind == AttributeKind::DefinedParagraphs)
        readEmbeddedParagraphs(f);
    return begin;
}

/// Moves what was noted of the paragraphs, between the marks, behind everything else, with what leads to it.
void noteParagraphsLast(Fields &f, const TextValues &text, AttributeKind kind, std::size_t begin, std::size_t end)
{
    if (begin == end)
        return;
    f.note(71, static_cast<int>(kind));
    f.note(72, 0);
    f.note(11, text.alignment);
    f.moveForward(end, begin);
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
    AttributeKind kind = AttributeKind::SingleLine;
    const std::size_t paragraphs = readAttributeText(f, kind);
    const std::size_t tag = f.mark();
    readTag(f, text);
    noteParagraphsLast(f, text, kind, paragraphs, tag);
}

void readAttributeDefinition(Fields &f)
{
    const TextValues text = readTextValues(f);
    noteText(f, text);
    f.subclass("AcDbAttributeDefinition");
    AttributeKind kind = AttributeKind::SingleLine;
    const std::size_t paragraphs = readAttributeText(f, kind);
    const std::size_t tag = f.mark();
    readTag(f, text);
    if (f.since(Release::R2010))
        f.small();
    f.text(3);
    f.arrange(tag, {3, 2, 70});
    noteParagraphsLast(f, text, kind, paragraphs, tag);
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
    f.nameUnlessLost(3, f.reference());
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
        {0x2e, "TOLERANCE", readTolerance, true},
    };
    return rows;
}

} // namespace host::dwg
