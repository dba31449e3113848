#include "tests/dwg/making/MadeDrawing.h"

#include "host/dwg/contents/HeaderTable.h"
#include "host/dwg/objects/TableTypes.h"
#include "tests/dwg/making/TypeNumbers.h"

namespace host::dwg::test {

namespace {

constexpr int firstClassNumber = 500;

struct TableRow
{
    int type;
    std::uint64_t handle;
    int entryType;
};

constexpr TableRow tables[] = {
    {blockTableType, MadeHandles::BlockTable, blockType},
    {layerTableType, MadeHandles::LayerTable, LayerType},
    {styleTableType, MadeHandles::StyleTable, StyleType},
    {linetypeTableType, MadeHandles::LinetypeTable, LinetypeType},
    {viewTableType, MadeHandles::ViewTable, 0x3d},
    {coordinateSystemTableType, MadeHandles::SystemTable, 0x3f},
    {viewportTableType, MadeHandles::ViewportTable, 0x41},
    {applicationTableType, MadeHandles::ApplicationTable, ApplicationType},
    {dimensionStyleTableType, MadeHandles::DimensionStyleTable, dimensionStyleType},
};

std::uint64_t tableFor(int entryType)
{
    for (const TableRow &row : tables) {
        if (row.entryType == entryType)
            return row.handle;
    }
    return 0;
}

void writeTextStyle(ObjectWriter &o)
{
    o.entryHead("Standard");
    o.flag(false);
    o.flag(false);
    o.real(0.0);
    o.real(1.0);
    o.real(0.0);
    o.small(0);
    o.real(2.5);
    o.text("txt");
    o.text("");
    o.reference(0);
}

void writeLinetype(ObjectWriter &o, const char *name)
{
    o.entryHead(name);
    o.text("");
    o.real(0.0);
    o.small('A');
    o.small(0);
    if (o.until(Release::R2004))
        o.values().rawBytes(std::string(256, '\0'));
    o.reference(0);
}

void writeApplication(ObjectWriter &o)
{
    o.entryHead("ACAD");
    o.small(0);
    o.reference(0);
}

/// What the header refers to, by the kind of the row or the variable's name.
std::uint64_t rootOf(const HeaderRow &row)
{
    switch (row.kind) {
    case HeaderKind::BlockTable:
        return MadeHandles::BlockTable;
    case HeaderKind::LayerTable:
        return MadeHandles::LayerTable;
    case HeaderKind::StyleTable:
        return MadeHandles::StyleTable;
    case HeaderKind::LinetypeTable:
        return MadeHandles::LinetypeTable;
    case HeaderKind::ViewTable:
        return MadeHandles::ViewTable;
    case HeaderKind::SystemTable:
        return MadeHandles::SystemTable;
    case HeaderKind::ViewportTable:
        return MadeHandles::ViewportTable;
    case HeaderKind::ApplicationTable:
        return MadeHandles::ApplicationTable;
    case HeaderKind::DimensionStyleTable:
        return MadeHandles::DimensionStyleTable;
    case HeaderKind::NamedObjects:
        return MadeHandles::NamedObjects;
    case HeaderKind::PaperSpace:
        return MadeHandles::PaperSpace;
    case HeaderKind::ModelSpace:
        return MadeHandles::ModelSpace;
    default:
        return row.name == "$CLAYER"      ? MadeHandles::LayerZero
               : row.name == "$CELTYPE"   ? MadeHandles::ByLayer
               : row.name == "$TEXTSTYLE" ? MadeHandles::TextStyle
                                          : std::uint64_t(0);
    }
}

void writeHeaderValue(ObjectWriter &o, const HeaderRow &row, double number)
{
    const auto whole = static_cast<std::int32_t>(number);
    switch (row.kind) {
    case HeaderKind::Flag:
        return o.flag(whole != 0);
    case HeaderKind::Byte:
    case HeaderKind::IsOne:
        return o.small(whole);
    case HeaderKind::Int16:
    case HeaderKind::StyleKind:
        return o.int16(whole);
    case HeaderKind::Int32:
    case HeaderKind::Bits:
        return o.int32(whole);
    case HeaderKind::LongLong:
        return o.values().longLong(static_cast<std::uint64_t>(number));
    case HeaderKind::Real:
    case HeaderKind::Angle:
        return o.real(number);
    case HeaderKind::Point:
        return o.point({number, number, number});
    case HeaderKind::RawPoint:
        return o.rawFlatPoint(number, number);
    case HeaderKind::Text:
        return o.text("");
    case HeaderKind::Colour:
        return o.colour(256);
    case HeaderKind::Date:
    case HeaderKind::Span:
        o.int32(whole);
        return o.int32(0);
    case HeaderKind::OwnHandle:
        return o.values().handle(0, static_cast<std::uint64_t>(number));
    default:
        // Before R2007 references stand among the values.
        BitWriter &out = o.since(Release::R2007) ? o.references() : o.values();
        return out.handle(HandleReference::HardPointer,
                          number != 0.0 ? static_cast<std::uint64_t>(number) : rootOf(row));
    }
}

} // namespace

MadeDrawing::Write layerWriter(std::string name, bool isOn, MadeDrawing::Write colour)
{
    return [name = std::move(name), isOn, colour = std::move(colour)](ObjectWriter &o) {
        o.entryHead(name);
        if (o.since(Release::R2000)) {
            o.int16(isOn ? 0x3b0 : 0x3b2); // plotted, usual line weight
        } else {
            for (const bool flag : {false, !isOn, false, false})
                o.flag(flag);
        }
        colour(o);
        o.reference(0);
        if (o.since(Release::R2000))
            o.reference(0);
        if (o.since(Release::R2007))
            o.reference(0);
        o.reference(MadeHandles::Continuous);
        if (o.since(Release::R2013))
            o.reference(0);
    };
}

MadeDrawing::MadeDrawing(Release release) : m_release(release)
{
    addTables();
    addSpace(MadeHandles::PaperSpace, "*PAPER_SPACE", true);
    addSpace(MadeHandles::ModelSpace, "*MODEL_SPACE", false);
    m_header["$HANDSEED"] = 0x1000;
}

MadeDrawing::Object &MadeDrawing::add(const Type &type, bool isEntity, std::uint64_t handle, std::uint64_t owner,
                                      Write write)
{
    Object &object = m_objects[handle];
    object.head.type = numberOf(type, isEntity);
    object.head.isEntity = isEntity;
    object.head.handle = handle;
    object.head.owner = owner;
    object.head.layer = MadeHandles::LayerZero;
    object.write = std::move(write);
    return object;
}

void MadeDrawing::addTables()
{
    for (const TableRow &row : tables)
        add(row.type, false, row.handle, 0, [this, row](ObjectWriter &o) { writeTable(o, row.type, row.handle); });
    add(DictionaryType, false, MadeHandles::NamedObjects, 0, [this](ObjectWriter &o) { writeNamedObjects(o); });
    const auto entry = [this](int type, std::uint64_t handle, Write write) {
        add(type, false, handle, tableFor(type), std::move(write));
    };
    entry(LayerType, MadeHandles::LayerZero, layerWriter("0", true, [](ObjectWriter &o) { o.colour(7); }));
    entry(StyleType, MadeHandles::TextStyle, writeTextStyle);
    entry(ApplicationType, MadeHandles::Application, writeApplication);
    entry(LinetypeType, MadeHandles::ByBlock, [](ObjectWriter &o) { writeLinetype(o, "ByBlock"); });
    entry(LinetypeType, MadeHandles::ByLayer, [](ObjectWriter &o) { writeLinetype(o, "ByLayer"); });
    entry(LinetypeType, MadeHandles::Continuous, [](ObjectWriter &o) { writeLinetype(o, "Continuous"); });
    m_entries[MadeHandles::LayerTable] = {MadeHandles::LayerZero};
    m_entries[MadeHandles::StyleTable] = {MadeHandles::TextStyle};
    m_entries[MadeHandles::ApplicationTable] = {MadeHandles::Application};
    m_entries[MadeHandles::LinetypeTable] = {MadeHandles::Continuous};
}

void MadeDrawing::addSpace(std::uint64_t handle, const char *name, bool isPaper)
{
    add(blockType, false, handle, MadeHandles::BlockTable,
        [this, name, handle, isPaper](ObjectWriter &o) { writeBlock(o, name, handle, isPaper); });
    const int space = isPaper ? 1 : 2;
    add(BeginType, true, handle + 1, handle, [name](ObjectWriter &o) { o.text(name); }).head.space = space;
    add(EndType, true, handle + 2, handle, nullptr).head.space = space;
}

std::uint64_t MadeDrawing::addEntity(const Type &type, Write write)
{
    add(type, true, m_nextHandle, 0, std::move(write)).head.space = 2;
    m_entities.push_back(m_nextHandle);
    return m_nextHandle++;
}

std::uint64_t MadeDrawing::addPart(const Type &type, std::uint64_t owner, Write write)
{
    add(type, true, m_nextHandle, owner, std::move(write));
    return m_nextHandle++;
}

std::uint64_t MadeDrawing::addObject(const Type &type, const std::string &name, Write write)
{
    m_named.push_back({name, m_nextHandle});
    return addOwned(type, MadeHandles::NamedObjects, std::move(write));
}

std::uint64_t MadeDrawing::addOwned(const Type &type, std::uint64_t owner, Write write)
{
    add(type, false, m_nextHandle, owner, std::move(write));
    return m_nextHandle++;
}

std::uint64_t MadeDrawing::addText(const std::string &name, const std::string &text)
{
    return addObject(XrecordType, name, [this, text](ObjectWriter &o) {
        o.int32(static_cast<std::int32_t>(2 + 2 + 1 + text.size()));
        o.values().raw16(1);
        o.values().raw16(static_cast<std::uint32_t>(text.size()));
        o.values().byte(m_codePage);
        o.values().rawBytes(text);
        if (o.since(Release::R2000))
            o.int16(1);
    });
}

std::uint64_t MadeDrawing::addEntry(int type, Write write)
{
    const std::uint64_t table = tableFor(type);
    m_entries[table].push_back(m_nextHandle);
    return addOwned(type, table, std::move(write));
}

MadeHead &MadeDrawing::head(std::uint64_t handle)
{
    return m_objects.at(handle).head;
}

int MadeDrawing::numberOf(const Type &type, bool isEntity)
{
    if (type.className.empty())
        return type.number;
    std::size_t i = 0;
    while (i < m_classes.size() && m_classes[i].name != type.className)
        ++i;
    if (i == m_classes.size())
        m_classes.push_back({type.className, isEntity});
    return firstClassNumber + static_cast<int>(i);
}

void MadeDrawing::writeTable(ObjectWriter &o, int type, std::uint64_t handle) const
{
    const auto found = m_entries.find(handle);
    std::vector<std::uint64_t> entries = found != m_entries.end() ? found->second : std::vector<std::uint64_t>();
    o.int32(static_cast<std::int32_t>(entries.size()));
    if (type == dimensionStyleTableType && o.since(Release::R2000))
        o.small(0);
    // Two that every drawing has are not counted.
    if (type == blockTableType)
        entries.insert(entries.end(), {MadeHandles::ModelSpace, MadeHandles::PaperSpace});
    if (type == linetypeTableType)
        entries.insert(entries.end(), {MadeHandles::ByLayer, MadeHandles::ByBlock});
    for (const std::uint64_t entry : entries)
        o.reference(entry, HandleReference::SoftOwner);
}

void MadeDrawing::writeBlock(ObjectWriter &o, const char *name, std::uint64_t handle, bool isPaper) const
{
    const std::vector<std::uint64_t> owned = isPaper ? std::vector<std::uint64_t>() : m_entities;
    o.entryHead(name);
    for (int i = 0; i < 4; ++i)
        o.flag(false); // anonymous, with attributes, external, overlay
    if (o.since(Release::R2000))
        o.flag(false);
    if (o.since(Release::R2004))
        o.int32(static_cast<std::int32_t>(owned.size()));
    o.point({0.0, 0.0, 0.0});
    o.text("");
    if (o.since(Release::R2000)) {
        o.small(0); // no inserts
        o.text("");
        o.int32(0); // no preview
    }
    if (o.since(Release::R2007)) {
        o.int16(0);
        o.flag(true);
        o.small(0);
    }
    o.reference(0);
    o.reference(handle + 1, HandleReference::HardOwner);
    if (o.until(Release::R2000)) {
        o.reference(owned.empty() ? 0 : owned.front(), HandleReference::SoftPointer);
        o.reference(owned.empty() ? 0 : owned.back(), HandleReference::SoftPointer);
    } else {
        for (const std::uint64_t entity : owned)
            o.reference(entity, HandleReference::HardOwner);
    }
    o.reference(handle + 2, HandleReference::HardOwner);
    if (o.since(Release::R2000))
        o.reference(0);
}

void MadeDrawing::writeNamedObjects(ObjectWriter &o) const
{
    o.int32(static_cast<std::int32_t>(m_named.size()));
    if (o.release() == Release::R14)
        o.small(0);
    if (o.since(Release::R2000)) {
        o.int16(1);
        o.small(0);
    }
    for (const auto &[name, handle] : m_named) {
        o.text(name);
        o.reference(handle, HandleReference::SoftOwner);
    }
}

FileBytes MadeDrawing::headerBytes() const
{
    ObjectWriter o(m_release);
    for (const HeaderRow &row : headerRows()) {
        if (m_release < row.first || m_release > row.last)
            continue;
        const auto found = m_header.find(std::string(row.name));
        if (row.kind != HeaderKind::StyleReference || found != m_header.end())
            writeHeaderValue(o, row, found != m_header.end() ? found->second : 0.0);
    }
    return o.run();
}

FileBytes MadeDrawing::classesBytes() const
{
    ObjectWriter o(m_release);
    if (o.since(Release::R2004)) {
        o.int32(firstClassNumber + static_cast<int>(m_classes.size()) - 1);
        o.flag(true);
    }
    for (std::size_t i = 0; i < m_classes.size(); ++i) {
        o.int16(firstClassNumber + static_cast<int>(i));
        o.int16(0);
        o.text("ObjectDBX Classes");
        o.text("AcDb" + m_classes[i].name);
        o.text(m_classes[i].name);
        o.flag(false);
        o.int16(m_classes[i].isEntity ? 0x1f2 : 0x1f3);
        if (o.since(Release::R2004)) {
            o.int32(1);
            for (int k = 0; k < 4; ++k)
                o.int32(0);
        }
    }
    return o.run();
}

std::vector<MadeDrawing::Object> MadeDrawing::linkedObjects() const
{
    std::map<std::uint64_t, Object> objects = m_objects;
    for (std::size_t i = 0; i < m_entities.size(); ++i) {
        MadeHead &head = objects[m_entities[i]].head;
        head.previous = i > 0 ? m_entities[i - 1] : 0;
        head.next = i + 1 < m_entities.size() ? m_entities[i + 1] : 0;
    }
    std::vector<Object> result;
    for (auto &[handle, object] : objects)
        result.push_back(std::move(object));
    return result;
}

MadeParts MadeDrawing::parts() const
{
    MadeParts parts{m_release, m_codePage, headerBytes(), classesBytes(), {}};
    for (const Object &object : linkedObjects()) {
        ObjectWriter o(m_release, object.head);
        if (object.write)
            object.write(o);
        parts.objects.push_back({object.head.handle, o.bytes()});
    }
    return parts;
}

} // namespace host::dwg::test
