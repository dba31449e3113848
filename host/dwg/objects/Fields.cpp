#include "host/dwg/objects/Fields.h"

#include "host/dwg/objects/Colours.h"

#include <algorithm>
#include <numbers>

namespace host::dwg {

namespace {

// What a byte of an object may become, and what each object may have: a name of a layer, say.
constexpr std::size_t mostOfByte = 64;
constexpr std::size_t alwaysNoted = 0x40000;

/// Group codes whose tags have two or three parts are noted as their parts.
constexpr int nextPart = 10;

/// No colour.
constexpr int noLimit = -1000;

} // namespace

void Relations::clear()
{
    static_cast<RelatedHandles &>(*this) = {};
    owned.clear();
    entries.clear();
    entryNames.clear();
    parts.clear();
}

void Fields::start(const BitReader &values, const BitReader &texts, const BitReader &references)
{
    m_values = values;
    m_texts = texts;
    m_references = references;
    m_relations.clear();
    // References to long names would make an object larger without end.
    m_tags.clear(alwaysNoted + (values.left() + texts.left() + references.left()) / 8 * mostOfByte);
    m_companion = noCompanion;
    m_doubt = nullptr;
    m_lack = nullptr;
}

void Fields::splitAt(std::size_t bit)
{
    m_references.seek(bit);
    m_values.endAt(bit);
}

bool Fields::hasFailed() const
{
    return m_values.hasFailed() || m_texts.hasFailed() || m_references.hasFailed() || m_tags.isFull();
}

bool Fields::isUsedUp() const
{
    // References fill the last byte up.
    return !hasFailed() && m_values.left() == 0 && m_texts.left() == 0 && m_references.left() < 8;
}

std::string Fields::text()
{
    if (m_textPlaces)
        m_textPlaces->push_back(m_values.position());
    return since(Release::R2007) ? m_texts.text16() : m_values.text8();
}

std::uint64_t Fields::reference(const HandleReference &reference)
{
    const std::uint64_t handle = reference.from(m_relations.handle);
    if (reference.isOwner() && handle != 0)
        m_relations.parts.push_back(handle);
    return handle;
}

std::size_t Fields::checkedCount(std::int64_t count, std::size_t bits, BitReader &reader)
{
    if (count >= 0 && static_cast<std::uint64_t>(count) <= reader.left() / bits)
        return static_cast<std::size_t>(count);
    reader.fail();
    return 0;
}

Point Fields::rawPoint(int code)
{
    return note(code, Point{rawReal(), rawReal(), rawReal()});
}

Point Fields::rawFlatPoint(int code)
{
    const Point point{rawReal(), rawReal(), 0.0};
    noteFlat(code, point);
    return point;
}

double Fields::angle(int code)
{
    const double radians = real();
    noteAngle(code, radians);
    return radians;
}

double Fields::angle(int code, Unless unless)
{
    const double radians = real();
    if (radians != unless.usual)
        noteAngle(code, radians);
    return radians;
}

Point Fields::extrusion()
{
    const Point direction = m_values.extrusion(m_release);
    if (direction != Point{0.0, 0.0, 1.0})
        note(210, direction);
    return direction;
}

double Fields::thickness()
{
    return noteUnless(39, m_values.thickness(m_release), {0.0});
}

void Fields::thicknessInFront(std::size_t front)
{
    const std::size_t mark = m_tags.count();
    if (thickness() != 0.0)
        moveForward(mark, front);
}

std::string Fields::text(int code)
{
    std::string value = text();
    note(code, value);
    return value;
}

std::string Fields::textUnlessEmpty(int code)
{
    std::string value = text();
    if (!value.empty())
        note(code, value);
    return value;
}

std::uint64_t Fields::reference(int code)
{
    const std::uint64_t handle = reference();
    noteHandle(code, handle);
    return handle;
}

std::uint64_t Fields::referenceUnlessNull(int code)
{
    const std::uint64_t handle = reference();
    if (handle != 0)
        noteHandle(code, handle);
    return handle;
}

std::string_view Fields::name(int code)
{
    const std::string_view name = nameOf(reference());
    note(code, name);
    return name;
}

std::string_view Fields::linetypeAt(int place) const
{
    const auto index = static_cast<std::size_t>(place);
    return place >= 0 && index < m_linetypes.size() ? nameOf(m_linetypes[index]) : std::string_view();
}

void Fields::nameUnlessLost(int code, std::uint64_t handle)
{
    const std::string_view name = nameOf(handle);
    if (!name.empty())
        note(code, name);
}

std::string_view Fields::nameOf(std::uint64_t handle) const
{
    const auto found = m_names.find(handle);
    return found != m_names.end() ? std::string_view(found->second) : std::string_view();
}

int Fields::colour(int code)
{
    return colour(code, noLimit);
}

int Fields::colour(int code, int unless)
{
    if (since(Release::R2004))
        return noteLongColour(code, unless);
    const int number = int16();
    if (number != unless)
        note(code, number);
    return number;
}

int Fields::longColour(int code)
{
    return noteLongColour(code, noLimit);
}

NotedColour Fields::colour()
{
    return since(Release::R2004) ? longColour() : NotedColour{int16(), 0, {}};
}

NotedColour Fields::longColour()
{
    NotedColour colour;
    int16(); // an index of old, always 0
    colour.rgb = static_cast<std::uint32_t>(int32());
    colour.index = colourIndex(colour.rgb);
    const int parts = small();
    if ((parts & 1) != 0)
        colour.name = text();
    const std::string book = (parts & 2) != 0 ? text() : std::string();
    if (!book.empty())
        colour.name = book + "$" + colour.name;
    return colour;
}

int Fields::noteLongColour(int code, int unless)
{
    const NotedColour colour = longColour();
    if (colour.index != unless || isTrueColour(colour.rgb) || !colour.name.empty())
        note(code, colour);
    return colour.index;
}

void Fields::wholeColour(int code)
{
    const int number = int16();
    std::uint32_t whole = wholeColourOf(number);
    if (since(Release::R2004)) {
        whole = static_cast<std::uint32_t>(int32());
        const int parts = small();
        if ((parts & 1) != 0)
            text();
        if ((parts & 2) != 0)
            text();
    }
    note(code, static_cast<std::int32_t>(whole));
}

void Fields::noteColour(int code, int index, std::uint32_t rgb, std::string_view name)
{
    note(code, index);
    // 62 goes with 420 and 430, 63 with 421 and 431, and so on up to 69. Other groups are indices alone.
    const int further = code + 358;
    if (further < 420 || further > 427)
        return;
    if (isTrueColour(rgb))
        note(further, static_cast<int>(rgb & 0xffffff));
    if (!name.empty())
        note(further + 10, name);
}

Point Fields::note(int code, Point point)
{
    m_tags.addReal(code, point.x);
    m_tags.addReal(code + nextPart, point.y);
    m_tags.addReal(code + 2 * nextPart, point.z);
    return point;
}

void Fields::noteFlat(int code, Point point)
{
    m_tags.addReal(code, point.x);
    m_tags.addReal(code + nextPart, point.y);
}

void Fields::noteAngle(int code, double radians)
{
    m_tags.addReal(code, radians * 180.0 / std::numbers::pi);
}

void Fields::noteBinary(int code, std::string_view bytes)
{
    constexpr std::size_t mostOfATag = 127;
    for (; !bytes.empty(); bytes.remove_prefix(std::min(mostOfATag, bytes.size())))
        m_tags.addBytes(code, bytes.substr(0, mostOfATag));
}

void Fields::noteLong(int code, int part, std::string_view text)
{
    constexpr std::size_t mostOfATag = 250;
    while (text.size() > mostOfATag) {
        const std::size_t length = since(Release::R2007) ? firstUnits(text, mostOfATag)
                                                         : firstCharacters(text, m_tags.doubleBytes(), mostOfATag);
        if (length == text.size())
            break;
        note(part, text.substr(0, length));
        text.remove_prefix(length);
    }
    note(code, text);
}

} // namespace host::dwg
