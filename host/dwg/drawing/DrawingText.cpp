#include "host/dwg/drawing/DrawingText.h"

#include "host/dwg/contents/Contents.h"
#include "host/dwg/contents/HeaderTable.h"
#include "host/dwg/objects/ObjectHead.h"
#include "host/dwg/objects/ProxyTypes.h"
#include "host/dwg/objects/TableTypes.h"
#include "host/dwg/objects/TypeTable.h"

#include <algorithm>
#include <map>
#include <unordered_set>

namespace host::dwg {

namespace {

constexpr int firstClassNumber = 500;

// Viewports' entities as a table, which the text form does not have.
constexpr int viewportEntityTable = 0x46;
constexpr int viewportEntity = 0x47;

/// Puts one drawing together: from the header to the tables, from there to the blocks and what they have, and from the
/// dictionary of named objects to everything else.
class DrawingAssembly
{
public:
    DrawingAssembly(const Container &container, DrawingText &result)
        : m_container(container), m_result(result), m_text(result.text), m_problems(result.problems),
          m_fields(container.release, m_names)
    {
    }

    void run()
    {
        m_classes = readClasses(m_container, m_problems);
        m_map = readObjectMap(m_container.objectMap, m_problems);
        m_result.objectCount = m_map.size();
        m_isWritten.resize(m_map.size());
        readNames();
        writeHeader();
        writeClasses();
        writeTables();
        writeBlocks();
        writeEntities();
        writeObjects();
        m_text += "  0\nEOF\n";
    }

private:
    // Where objects are.

    /// The object's place in the map; the map's size when it is not there.
    std::size_t indexOf(std::uint64_t handle) const
    {
        const auto found = std::ranges::lower_bound(m_map, handle, {}, &MapEntry::handle);
        return found != m_map.end() && found->handle == handle ? static_cast<std::size_t>(found - m_map.begin())
                                                               : m_map.size();
    }

    void readNames()
    {
        constexpr std::array<int, 10> namedTypes = {0x31, 0x33, 0x35, 0x39, 0x3d, 0x3f, 0x41, 0x43, 0x45, 0x49};
        ObjectHead head({});
        for (const MapEntry &entry : m_map) {
            const auto frame = peekAt(m_container.objects, entry.place, m_container.release);
            if (!frame || std::ranges::find(namedTypes, frame->type) == namedTypes.end())
                continue;
            head.read(*frame, false, m_fields);
            m_names[entry.handle] = m_fields.text();
        }
    }

    /// Files have the names of anonymous blocks and of the spaces of layouts without the numbers that tell them apart.
    void numberBlocks(const std::vector<std::uint64_t> &entries)
    {
        int spaces = 0;
        int place = 0;
        for (const std::uint64_t entry : entries) {
            const auto found = m_names.find(entry);
            if (found != m_names.end()) {
                std::string &name = found->second;
                if (isPaperSpace(name) && entry != m_spaces.paper)
                    name += std::to_string(spaces++);
                else if (name.size() == 2 && name[0] == '*')
                    name += std::to_string(place);
            }
            if (entry != m_spaces.paper && entry != m_spaces.model)
                ++place;
        }
    }

    /// The row of the object's type; null for what is not read here.
    const ObjectType *typeOf(int number) const
    {
        if (number < firstClassNumber)
            return typeByNumber(number);
        const ObjectClass *one = classOf(number);
        return one ? typeByClass(one->name) : nullptr;
    }

    const ObjectClass *classOf(int number) const
    {
        const auto found = std::ranges::find(m_classes, number, &ObjectClass::number);
        return found != m_classes.end() ? &*found : nullptr;
    }

    std::string typeNameOf(int number) const
    {
        if (const ObjectType *type = typeOf(number))
            return type->name;
        const ObjectClass *one = classOf(number);
        return one ? one->name : "type " + std::to_string(number);
    }

    void lose(std::uint64_t handle, int type, const char *why)
    {
        m_problems.add({Problem::Kind::Lost, why, typeNameOf(type), handle});
    }

    /// Takes the object, unless it was taken before: each is written once, whoever refers to it.
    std::optional<ObjectFrame> takeFrame(std::uint64_t handle)
    {
        const std::size_t index = indexOf(handle);
        if (index == m_map.size() || m_isWritten[index])
            return std::nullopt;
        m_isWritten[index] = true;
        auto frame = frameAt(m_container.objects, m_map[index].place, m_container.release);
        if (!frame)
            m_problems.add({Problem::Kind::Lost, "There is no object at its place.", {}, handle});
        else if (!frame->isChecked)
            m_problems.add({Problem::Kind::Warning, "The checksum does not fit.", typeNameOf(frame->type), handle});
        return frame;
    }

    bool checkHandle(std::uint64_t handle, int type)
    {
        if (m_fields.relations().handle == handle)
            return true;
        lose(handle, type, "The object at its place has another handle.");
        return false;
    }

    // Records.

    void beginRecord(std::string_view type)
    {
        m_text += "  0\n";
        m_text += type;
        m_text += '\n';
    }

    void beginSection(const char *name)
    {
        beginRecord("SECTION");
        m_text += "  2\n";
        m_text += name;
        m_text += '\n';
    }

    void writeFields(std::string_view type)
    {
        beginRecord(type);
        m_fields.write(m_text);
        noteDictionary();
    }

    void noteDictionary()
    {
        if (m_fields.relations().dictionary != 0)
            m_dictionaries.push_back(m_fields.relations().dictionary);
    }

    /// Writes an object by its type; what it refers to is in relations() then. False when it was not written.
    bool writeObject(std::uint64_t handle)
    {
        const auto frame = takeFrame(handle);
        return frame && writeFrame(handle, *frame);
    }

    bool writeFrame(std::uint64_t handle, const ObjectFrame &frame)
    {
        const ObjectType *type = typeOf(frame.type);
        const ObjectClass *one = classOf(frame.type);
        if (type && writeKnown(handle, frame, *type))
            return true;
        if (one || frame.type == proxyEntityType || frame.type == proxyObjectType)
            return writeProxy(handle, frame, one ? one->isEntity : frame.type == proxyEntityType);
        if (type)
            lose(handle, frame.type, "The object ends before its values do.");
        else if (frame.type != viewportEntityTable && frame.type != viewportEntity)
            lose(handle, frame.type, "Objects of this type are not read.");
        return false;
    }

    bool writeKnown(std::uint64_t handle, const ObjectFrame &frame, const ObjectType &type)
    {
        ObjectHead head(m_spaces);
        m_fields.setTypeName(type.name);
        head.read(frame, type.isEntity, m_fields);
        if (type.read)
            type.read(m_fields);
        return m_fields.relations().handle == handle && finishObject(head);
    }

    bool writeProxy(std::uint64_t handle, const ObjectFrame &frame, bool isEntity)
    {
        ObjectHead head(m_spaces);
        m_fields.setTypeName(isEntity ? "ACAD_PROXY_ENTITY" : "ACAD_PROXY_OBJECT");
        head.read(frame, isEntity, m_fields);
        if (!checkHandle(handle, frame.type))
            return false;
        if (frame.type < firstClassNumber) {
            readProxy(m_fields, isEntity);
        } else {
            noteProxy(m_fields, frame.type, isEntity);
            m_problems.add({Problem::Kind::Warning, "Objects of this class are kept as their bytes.",
                            typeNameOf(frame.type), handle});
        }
        if (finishObject(head))
            return true;
        lose(handle, frame.type, "The object ends before its values do.");
        return false;
    }

    /// Writes what was noted of an object, unless it was damaged.
    bool finishObject(const ObjectHead &head)
    {
        if (m_fields.hasFailed())
            return false;
        head.noteExtendedData(m_fields);
        writeFields(m_fields.typeName());
        return true;
    }

    // Sections.

    void writeHeader()
    {
        m_header = readHeader(m_container, m_fields, m_problems);
        m_spaces = {m_header.modelSpace, m_header.paperSpace};
        std::map<std::string_view, std::string> values;
        std::string *value = nullptr;
        m_fields.forEachTag([&](int code, std::string_view text) {
            if (code == 9) {
                value = &values[text];
                return;
            }
            if (value)
                *value += tagText(code, text);
        });
        for (const auto &[local, universal] : {std::pair{"$TDCREATE", "$TDUCREATE"}, {"$TDUPDATE", "$TDUUPDATE"}}) {
            // Files have the times without a zone alone; which one the writer was in is not known.
            if (m_container.release >= Release::R2000 && values.count(local) != 0)
                values[universal] = values[local];
        }
        if (m_container.release <= Release::R14)
            values["$HANDLING"] = tagText(70, "1");
        const auto measurement = readMeasurement(m_container);
        if (measurement && m_container.release >= Release::R14)
            values["$MEASUREMENT"] = tagText(70, std::to_string(*measurement));
        if (const auto user = readLastSavedBy(m_container))
            values["$LASTSAVEDBY"] = tagText(1, *user);
        values["$ACADVER"] = tagText(1, "AC" + std::to_string(static_cast<int>(m_container.release)));
        if (m_container.release >= Release::R14)
            values["$ACADMAINTVER"] =
                tagText(m_container.release >= Release::R2018 ? 90 : 70, std::to_string(m_container.maintenance));
        values["$DWGCODEPAGE"] = tagText(3, codePageName(m_container.codePage));
        beginSection("HEADER");
        for (const std::string_view name : headerOrder()) {
            if (const auto found = values.find(name); found != values.end())
                m_text += tagText(9, name) + found->second;
        }
        beginRecord("ENDSEC");
    }

    static std::string tagText(int code, std::string_view value)
    {
        std::string text = std::to_string(code);
        text.insert(0, text.size() < 3 ? 3 - text.size() : 0, ' ');
        text += '\n';
        text += value;
        text += '\n';
        return text;
    }

    void writeClasses()
    {
        beginSection("CLASSES");
        for (const ObjectClass &one : m_classes) {
            m_fields.start({}, {}, {});
            m_fields.note(1, one.name);
            m_fields.note(2, one.cppName);
            m_fields.note(3, one.application);
            m_fields.note(90, one.version);
            if (m_container.release >= Release::R2004)
                m_fields.note(91, one.instances);
            m_fields.note(280, one.wasProxy ? 1 : 0);
            m_fields.note(281, one.isEntity ? 1 : 0);
            writeFields("CLASS");
        }
        beginRecord("ENDSEC");
    }

    /// The table of blocks alone, in front of what refers to blocks by their names.
    void readBlockNames()
    {
        const std::size_t index = indexOf(m_header.blockTable);
        const auto frame =
            index != m_map.size() ? peekAt(m_container.objects, m_map[index].place, m_container.release) : std::nullopt;
        if (!frame || frame->type != blockTableType)
            return;
        ObjectHead(m_spaces).read(*frame, false, m_fields);
        std::vector<std::uint64_t> further;
        numberBlocks(readTableEntries(m_fields, frame->type, further));
    }

    void writeTables()
    {
        readBlockNames();
        beginSection("TABLES");
        writeTable("VPORT", m_header.viewportTable);
        writeTable("LTYPE", m_header.linetypeTable);
        writeTable("LAYER", m_header.layerTable);
        writeTable("STYLE", m_header.styleTable);
        writeTable("VIEW", m_header.viewTable);
        writeTable("UCS", m_header.systemTable);
        writeTable("APPID", m_header.applicationTable);
        writeTable("DIMSTYLE", m_header.dimensionStyleTable);
        writeTable("BLOCK_RECORD", m_header.blockTable);
        beginRecord("ENDSEC");
    }

    void writeTable(const char *name, std::uint64_t handle)
    {
        const auto frame = takeFrame(handle);
        if (!frame) {
            m_problems.lose(std::string("The table ") + name + " is missing.");
            return;
        }
        ObjectHead head(m_spaces);
        m_fields.setTypeName("TABLE");
        head.read(*frame, false, m_fields);
        std::vector<std::uint64_t> further;
        const std::vector<std::uint64_t> entries = readTableEntries(m_fields, frame->type, further);
        m_fields.subclass("AcDbSymbolTable");
        const bool hasTwoMore = frame->type == blockTableType || frame->type == linetypeTableType;
        m_fields.note(70, entries.size() - (hasTwoMore ? std::min<std::size_t>(2, entries.size()) : 0));
        if (frame->type == dimensionStyleTableType && m_container.release >= Release::R2000) {
            m_fields.subclass("AcDbDimStyleTable");
            m_fields.note(71, further.size());
            for (const std::uint64_t style : further)
                m_fields.noteHandle(340, style);
        }
        head.noteExtendedData(m_fields);
        beginRecord("TABLE");
        m_text += tagText(2, name);
        m_fields.write(m_text);
        noteDictionary();
        for (const std::uint64_t entry : entries) {
            if (frame->type == blockTableType)
                writeBlockRecord(entry);
            else
                writeObject(entry);
        }
        beginRecord("ENDTAB");
    }

    /// A block with what it has, kept for the sections behind the tables.
    struct Block
    {
        BlockHead head;
        Relations relations;
    };

    void writeBlockRecord(std::uint64_t handle)
    {
        const auto frame = takeFrame(handle);
        if (!frame)
            return;
        if (frame->type != blockType)
            return lose(handle, frame->type, "The table of blocks refers to it.");
        ObjectHead head(m_spaces);
        m_fields.setTypeName("BLOCK_RECORD");
        head.read(*frame, false, m_fields);
        if (!checkHandle(handle, frame->type))
            return;
        BlockHead block = readBlockHead(m_fields);
        block.entry.name = m_names[handle];
        noteBlockRecord(m_fields, block);
        if (m_fields.hasFailed())
            lose(handle, frame->type, "The object ends before its values do.");
        head.noteExtendedData(m_fields);
        writeFields("BLOCK_RECORD");
        m_blocks.push_back({block, m_fields.relations()});
    }

    void writeBlocks()
    {
        beginSection("BLOCKS");
        for (const Block &block : m_blocks) {
            writeBlockBegin(block);
            const std::uint64_t handle = block.relations.handle;
            if (handle != m_spaces.model && handle != m_spaces.paper)
                writeOwned(block.relations);
            writeObject(block.relations.end);
        }
        beginRecord("ENDSEC");
    }

    void writeBlockBegin(const Block &block)
    {
        const auto frame = takeFrame(block.relations.begin);
        if (!frame)
            return;
        ObjectHead head(m_spaces);
        m_fields.setTypeName("BLOCK");
        head.read(*frame, true, m_fields);
        m_fields.subclass("AcDbBlockBegin");
        const BlockHead &one = block.head;
        m_fields.note(2, one.entry.name);
        m_fields.note(70, (one.isAnonymous ? 1 : 0) | (one.hasAttributes ? 2 : 0) | (one.isExternal ? 4 : 0) |
                              (one.isOverlay ? 8 : 0) | one.entry.flags);
        m_fields.note(10, one.base);
        m_fields.note(3, one.entry.name);
        m_fields.note(1, one.path);
        if (!one.description.empty())
            m_fields.note(4, one.description);
        head.noteExtendedData(m_fields);
        writeFields("BLOCK");
    }

    void writeEntities()
    {
        beginSection("ENTITIES");
        for (const std::uint64_t space : {m_spaces.model, m_spaces.paper}) {
            const auto found =
                std::ranges::find(m_blocks, space, [](const Block &block) { return block.relations.handle; });
            if (found != m_blocks.end())
                writeOwned(found->relations);
        }
        beginRecord("ENDSEC");
    }

    /// What a block, a polyline or an insert has.
    void writeOwned(const Relations &relations)
    {
        for (const std::uint64_t handle : relations.owned)
            writeEntity(handle);
        std::uint64_t next = relations.firstOwned;
        // An object is taken once, so a chain that bites its tail ends there.
        while (next != 0 && writeEntity(next) && m_lastHandle != relations.lastOwned)
            next = m_nextHandle;
    }

    /// False when nothing more follows from there.
    bool writeEntity(std::uint64_t handle)
    {
        const auto frame = takeFrame(handle);
        if (!frame)
            return false;
        m_fields.relations() = {};
        const bool isWritten = writeFrame(handle, *frame);
        const Relations relations = m_fields.relations();
        if (isWritten && relations.hasList && m_depth < 4) {
            ++m_depth;
            writeOwned(relations);
            --m_depth;
            writeObject(relations.end);
        }
        m_lastHandle = handle;
        m_nextHandle = relations.next;
        return true;
    }

    void writeObjects()
    {
        beginSection("OBJECTS");
        std::vector<std::uint64_t> row = {m_header.namedObjects};
        row.insert(row.end(), m_dictionaries.begin(), m_dictionaries.end());
        m_dictionaries.clear();
        for (std::size_t i = 0; i < row.size(); ++i) {
            if (!writeObject(row[i]))
                continue;
            const Relations &relations = m_fields.relations();
            row.insert(row.end(), relations.entries.begin(), relations.entries.end());
            if (relations.dictionary != 0)
                row.push_back(relations.dictionary);
        }
        for (std::size_t i = 0; i < m_map.size(); ++i) {
            if (!m_isWritten[i])
                writeObject(m_map[i].handle);
        }
        beginRecord("ENDSEC");
    }

    const Container &m_container;
    DrawingText &m_result;
    std::string &m_text;
    Problems &m_problems;
    Names m_names;
    Fields m_fields;
    std::vector<ObjectClass> m_classes;
    std::vector<MapEntry> m_map;
    std::vector<bool> m_isWritten; ///< for the entries of the map
    Header m_header;
    ObjectHead::Spaces m_spaces;
    std::vector<Block> m_blocks;
    std::vector<std::uint64_t> m_dictionaries; ///< extension dictionaries of what was written
    int m_depth = 0;
    std::uint64_t m_lastHandle = 0;
    std::uint64_t m_nextHandle = 0;
};

} // namespace

DrawingText readDrawing(Bytes file)
{
    DrawingText result;
    const Container container = openContainer(file, result.problems);
    result.release = container.release;
    if (!container.objectMap.empty() && !container.objects.empty())
        DrawingAssembly(container, result).run();
    return result;
}

} // namespace host::dwg
