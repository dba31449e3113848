#include "host/dwg/objects/ObjectHead.h"

#include "host/dwg/bits/Checksums.h"
#include "host/dwg/objects/Colours.h"
#include "host/dwg/objects/ExtendedData.h"

#include <algorithm>
#include <array>

namespace host::dwg {

namespace {

/// An entity's colour, whose parts stand in two runs of bits.
struct EntityColour
{
    int index = 256;
    std::uint32_t rgb = 0;
    std::uint32_t transparency = 0;
    bool isNamed = false; ///< a reference to the name follows
};

EntityColour readEntityColour(Fields &fields, bool hasRgbBesideBook)
{
    EntityColour colour;
    const int number = fields.int16();
    if (!fields.since(Release::R2004)) {
        colour.index = number;
        return colour;
    }
    constexpr int hasRgb = 0x8000;
    constexpr int hasName = 0x4000;
    constexpr int hasTransparency = 0x2000;
    colour.index = number & 0x1ff;
    colour.isNamed = (number & hasName) != 0;
    if ((number & hasRgb) != 0 && (!colour.isNamed || hasRgbBesideBook)) {
        colour.rgb = static_cast<std::uint32_t>(fields.int32());
        colour.index = colourIndex(colour.rgb);
    }
    if ((number & hasTransparency) != 0)
        colour.transparency = static_cast<std::uint32_t>(fields.int32());
    return colour;
}

/// Numbers of two bits in entities: where the linetype, the plot style and the material come from.
constexpr int fromReference = 3;

/// In any case.
bool beginsWith(std::string_view name, std::string_view beginning)
{
    return name.size() >= beginning.size() &&
           std::equal(beginning.begin(), beginning.end(), name.begin(),
                      [](char upper, char c) { return upper == (c >= 'a' && c <= 'z' ? c - 'a' + 'A' : c); });
}

/// What every entity has among its values, and what of it is referred to.
struct EntityValues
{
    std::int32_t reactorCount = 0;
    bool hasNoDictionary = false;
    bool hasNoLinks = false;
    EntityColour colour;
    double scale = 1.0;
    int linetype = 0;
    int plotStyle = 0;
    int material = 0;
    int shadow = 0;
    std::array<bool, 3> hasVisualStyle{};
    int invisible = 0;
    int weight = -1;
    std::uint64_t layer = 0;
    std::uint64_t linetypeReference = 0;
    std::uint64_t colourName = 0;
};

EntityValues readEntityValues(Fields &fields, bool hasRgbBesideBook)
{
    EntityValues entity;
    BitReader &values = fields.values();
    entity.reactorCount = values.longInteger();
    entity.hasNoDictionary = fields.since(Release::R2004) && values.bit();
    if (fields.since(Release::R2013))
        fields.relations().hasStoredData = values.bit();
    const bool isByLayer = fields.until(Release::R14) && values.bit();
    entity.hasNoLinks = fields.until(Release::R2000) && values.bit();
    entity.colour = readEntityColour(fields, hasRgbBesideBook);
    entity.scale = values.real();
    const bool hasFlags = fields.since(Release::R2000);
    entity.linetype = hasFlags ? values.pair() : isByLayer ? 0 : fromReference;
    entity.plotStyle = hasFlags ? values.pair() : 0;
    entity.material = fields.since(Release::R2007) ? values.pair() : 0;
    entity.shadow = fields.since(Release::R2007) ? values.byte() : 0;
    if (fields.since(Release::R2010)) {
        for (bool &has : entity.hasVisualStyle)
            has = values.bit();
    }
    entity.invisible = values.shortInteger();
    entity.weight = hasFlags ? lineWeight(values.byte()) : -1;
    return entity;
}

/// The entity behind one that does not tell it, before R2004.
std::uint64_t nextBehind(const Fields &fields)
{
    return fields.until(Release::R2000) ? fields.relations().handle + 1 : 0;
}

/// Up to R14 the layer stands in front of the neighbours, later behind them and the colour's name.
void readEntityReferences(Fields &fields, EntityValues &entity)
{
    const auto readLayer = [&] {
        entity.layer = fields.reference();
        if (entity.linetype == fromReference)
            entity.linetypeReference = fields.reference();
    };
    const bool isLayerFirst = fields.until(Release::R14);
    if (isLayerFirst)
        readLayer();
    if (fields.until(Release::R2000)) {
        if (!entity.hasNoLinks)
            fields.reference();
        const std::uint64_t next = entity.hasNoLinks ? nextBehind(fields) : fields.reference();
        fields.relations().next = next;
    }
    entity.colourName = entity.colour.isNamed ? fields.reference() : 0;
    if (!isLayerFirst)
        readLayer();
}

/// Notes it, and reads the references that are left: to a material, a plot style and visual styles. Gives the mark that
/// graphics have in front of them: what R2000 and later added stands behind these.
std::size_t noteEntity(Fields &fields, const EntityValues &entity)
{
    // Of a layer that is lost an entity comes to the one that every drawing has, and gets the linetype of its layer for
    // one that is lost.
    const std::string_view layer = fields.nameOf(entity.layer);
    fields.note(8, layer.empty() ? std::string_view("0") : layer);
    const std::string_view linetype = entity.linetype == 1   ? std::string_view("ByBlock")
                                      : entity.linetype == 2 ? std::string_view("Continuous")
                                      : entity.linetype == 0 ? std::string_view()
                                                             : fields.nameOf(entity.linetypeReference);
    if (!linetype.empty())
        fields.note(6, linetype);
    if (entity.material == fromReference)
        fields.reference(347);
    else if (entity.material == 1 || entity.material == 2)
        fields.noteHandle(347, 0);
    const std::uint64_t plotStyle = entity.plotStyle == fromReference ? fields.reference() : 0;
    const EntityColour &colour = entity.colour;
    const auto book = colour.isNamed ? fields.bookColour(entity.colourName) : std::nullopt;
    if (colour.isNamed && !book)
        fields.doubt("The colour of a book that it has is not in the file.");
    if (book)
        fields.note(62, *book);
    else if (colour.index != 256 || colour.rgb != 0 || colour.isNamed)
        fields.noteColour(62, colour.index, colour.rgb, {});
    if (colour.transparency != 0)
        fields.note(440, static_cast<std::int32_t>(colour.transparency));
    fields.noteUnless(48, entity.scale, {1.0});
    fields.noteUnless(60, entity.invisible & 1, {0});
    const std::size_t graphics = fields.mark();
    fields.noteUnless(370, entity.weight, {-1});
    if (plotStyle != 0)
        fields.noteHandle(390, plotStyle);
    fields.noteUnless(284, entity.shadow, {0});
    for (const bool has : entity.hasVisualStyle) {
        if (has)
            fields.reference(348);
    }
    return graphics;
}

} // namespace

bool isPaperSpace(std::string_view name)
{
    return beginsWith(name, "*PAPER_SPACE");
}

bool isModelSpace(std::string_view name)
{
    return beginsWith(name, "*MODEL_SPACE");
}

int lineWeight(int number)
{
    constexpr std::array<int, 24> weights = {0,  5,  9,  13, 15, 18,  20,  25,  30,  35,  40,  50,
                                             53, 60, 70, 80, 90, 100, 106, 120, 140, 158, 200, 211};
    if (number >= 0 && number < static_cast<int>(weights.size()))
        return weights[static_cast<std::size_t>(number)];
    return number == 29 ? -1 : number == 30 ? -2 : -3;
}

std::optional<ObjectFrame> frameAt(Bytes objects, std::uint64_t place, Release release)
{
    if (place >= objects.size())
        return std::nullopt;
    BitReader reader(objects, place * 8, objects.size() * 8);
    const std::size_t size = reader.modularShort();
    const std::uint64_t referenceBits = release >= Release::R2010 ? reader.modularUnsigned() : 0;
    const std::size_t begin = reader.position() / 8;
    if (reader.hasFailed() || size == 0 || size > objects.size() - begin || referenceBits > size * 8)
        return std::nullopt;
    ObjectFrame frame;
    frame.bytes = objects.subspan(begin, size);
    reader.endAt((begin + size) * 8);
    frame.type = reader.objectType(release);
    if (release >= Release::R2000 && release <= Release::R2007)
        frame.referencesStart = reader.raw32();
    else if (release >= Release::R2010)
        frame.referencesStart = size * 8 - referenceBits;
    if (reader.hasFailed() || frame.referencesStart > size * 8)
        return std::nullopt;
    const HandleReference own = reader.handle();
    frame.bodyStart = static_cast<std::uint32_t>(reader.position() - begin * 8);
    const bool isInFront = frame.referencesStart == 0 || frame.bodyStart <= frame.referencesStart;
    frame.handle = own.kind == 0 && isInFront ? own.value : 0;
    return frame;
}

bool hasItsChecksum(Bytes objects, std::uint64_t place, const ObjectFrame &frame)
{
    const Bytes whole = objects.subspan(place, static_cast<std::size_t>(&frame.bytes.back() + 1 - &objects[place]));
    const Bytes told = objects.subspan(place + whole.size());
    return told.size() >= 2 && checksum16(whole, 0xc0c1) == (told[0] | told[1] << 8);
}

BitReader textsOf(Bytes bytes, std::size_t end)
{
    const auto numberAt = [bytes](std::size_t bit) { return BitReader(bytes, bit, bytes.size() * 8).raw16(); };
    // The last bit says whether there are any.
    const std::size_t flag = end - std::min<std::size_t>(end, 1);
    if (end < 17 || (bytes[flag / 8] << flag % 8 & 0x80) == 0)
        return BitReader(bytes, flag, flag);
    std::size_t at = end - 17;
    std::size_t size = numberAt(at);
    if ((size & 0x8000) != 0) {
        if (at < 16)
            return BitReader(bytes, end, end);
        at -= 16;
        size = (size & 0x7fff) | static_cast<std::size_t>(numberAt(at)) << 15;
    }
    return size <= at ? BitReader(bytes, at - size, at) : BitReader(bytes, end, end);
}

void ObjectHead::read(const ObjectFrame &frame, bool isEntity, Fields &fields)
{
    m_extensions.clear();
    m_reactors.clear();
    m_graphics.clear();
    m_space = 0;
    m_hasBookColour = false;
    m_objectEnd = frame.referencesStart;
    const std::size_t all = frame.bytes.size() * 8;
    const bool hasTexts = fields.since(Release::R2007);
    const BitReader texts = hasTexts ? textsOf(frame.bytes, m_objectEnd) : BitReader();
    const std::size_t valuesEnd = hasTexts ? texts.position() : m_objectEnd != 0 ? m_objectEnd : all;
    fields.start(BitReader(frame.bytes, frame.bodyStart, valuesEnd), texts, BitReader(frame.bytes, m_objectEnd, all));
    fields.relations().isEntity = isEntity;
    fields.relations().handle = frame.handle;
    if (isEntity) {
        if (!repeatEntityHead(fields))
            readEntityHead(fields);
        return;
    }
    readExtensions(fields);
    readObjectHead(fields);
}

bool ObjectHead::repeatEntityHead(Fields &fields)
{
    const RepeatedHeads::Head *const head = m_repeated.repeat(fields);
    if (!head)
        return false;
    m_space = head->space;
    Relations &relations = fields.relations();
    relations.owner = head->owner;
    relations.next = nextBehind(fields);
    m_graphicsMark = fields.mark();
    return true;
}

/// Whether the head has nothing that goes by its handle, or is kept elsewhere than among the tags.
bool ObjectHead::mayBeRepeated(const Fields &fields, bool hasNoLinks) const
{
    return fields.since(Release::R2000) && (fields.since(Release::R2004) || hasNoLinks) && !m_hasBookColour &&
           m_extensions.empty() && m_reactors.empty() && m_graphics.empty() && fields.relations().dictionary == 0 &&
           !fields.relations().hasStoredData;
}

void ObjectHead::readExtensions(Fields &fields)
{
    BitReader &values = fields.values();
    while (!values.hasFailed()) {
        const int size = values.shortInteger();
        if (size <= 0)
            break;
        const std::uint64_t application = values.handle().from(fields.relations().handle);
        m_extensions.push_back({application, values.rawBytes(static_cast<std::size_t>(size))});
    }
}

void ObjectHead::readEntityHead(Fields &fields)
{
    BitReader &values = fields.values();
    const std::size_t valuesBegin = values.position();
    const std::size_t referencesBegin = fields.references().position();
    readExtensions(fields);
    if (values.bit()) {
        const std::uint64_t size = fields.since(Release::R2010) ? values.longLong() : values.raw32();
        m_graphics = values.rawBytes(size);
    }
    if (fields.until(Release::R14))
        fields.splitAt(values.raw32());
    m_space = values.pair();
    EntityValues entity = readEntityValues(fields, m_hasRgbBesideBook);
    m_hasBookColour = entity.colour.isNamed;
    readRelations(fields, entity.reactorCount, entity.hasNoDictionary);
    readEntityReferences(fields, entity);
    noteRelations(fields);
    fields.subclass("AcDbEntity");
    if (isInPaperSpace(fields))
        fields.note(67, 1);
    const std::size_t graphics = noteEntity(fields, entity);
    m_graphicsMark = fields.mark();
    // Tables that stand as inserts are drawn by their blocks.
    if (!m_graphics.empty() && fields.typeName() != "INSERT") {
        fields.note(fields.since(Release::R2010) ? 160 : 92, m_graphics.size());
        fields.noteBinary(310, m_graphics);
        // Proxies have them in a part of their own.
        if (fields.typeName() != "ACAD_PROXY_ENTITY")
            fields.moveForward(m_graphicsMark, graphics);
    }
    // The handle is the first tag.
    if (mayBeRepeated(fields, entity.hasNoLinks))
        m_repeated.keep(fields, valuesBegin, referencesBegin, 1, m_space);
}

bool ObjectHead::isInPaperSpace(const Fields &fields)
{
    const std::uint64_t owner = fields.relations().owner;
    if (owner != m_lastOwner) {
        m_lastOwner = owner;
        m_isLastPaper = isPaperSpace(fields.nameOf(owner));
    }
    return m_isLastPaper;
}

void ObjectHead::readObjectHead(Fields &fields)
{
    BitReader &values = fields.values();
    if (fields.until(Release::R14))
        fields.splitAt(values.raw32());
    const std::int32_t reactorCount = values.longInteger();
    const bool hasNoDictionary = fields.since(Release::R2004) && values.bit();
    if (fields.since(Release::R2013))
        values.bit();
    readRelations(fields, reactorCount, hasNoDictionary);
    noteRelations(fields);
    m_graphicsMark = fields.mark();
}

void ObjectHead::readRelations(Fields &fields, std::int32_t reactorCount, bool hasNoDictionary)
{
    Relations &relations = fields.relations();
    relations.owner = m_space == 0 ? fields.reference() : m_space == 1 ? m_spaces.paper : m_spaces.model;
    const std::size_t count = fields.checkedCount(reactorCount, 8, fields.references());
    for (std::size_t i = 0; i < count; ++i)
        m_reactors.push_back(fields.reference());
    if (!hasNoDictionary)
        relations.dictionary = fields.reference();
    if (fields.leftOut().contains(relations.dictionary))
        relations.dictionary = 0;
    if (relations.dictionary != 0 && fields.until(Release::R13))
        fields.extensionDictionaries().insert(relations.dictionary);
}

void ObjectHead::noteRelations(Fields &fields) const
{
    const Relations &relations = fields.relations();
    fields.noteHandle(fields.typeName() == "DIMSTYLE" ? 105 : 5, relations.handle);
    const std::size_t groups = fields.mark();
    if (relations.dictionary != 0) {
        fields.note(102, "{ACAD_XDICTIONARY");
        fields.noteHandle(360, relations.dictionary);
        fields.note(102, "}");
    }
    const std::size_t reactors = fields.mark();
    if (!m_reactors.empty()) {
        fields.note(102, "{ACAD_REACTORS");
        for (const std::uint64_t reactor : m_reactors)
            fields.noteHandle(330, reactor);
        fields.note(102, "}");
        if (fields.until(Release::R14))
            fields.moveForward(reactors, groups);
    }
    fields.noteHandle(330, relations.owner);
}

void ObjectHead::noteExtendedData(Fields &fields) const
{
    for (const Extension &extension : m_extensions) {
        const Bytes bytes(reinterpret_cast<const std::uint8_t *>(extension.bytes.data()), extension.bytes.size());
        const std::string_view application = fields.nameOf(extension.application);
        if (application.empty()) {
            fields.doubt("Extended data of an application that is lost are left out.");
            continue;
        }
        const std::size_t begin = fields.mark();
        fields.note(1001, application);
        const std::size_t empty = fields.mark();
        noteExtension(bytes, fields);
        if (fields.until(Release::R14) && fields.mark() == empty && !bytes.empty())
            fields.drop(begin);
    }
}

} // namespace host::dwg
