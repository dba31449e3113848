#include "host/dwg/early/EarlyDrawing.h"

#include "host/dwg/early/EarlyHeader.h"
#include "host/dwg/early/EarlyRecord.h"

#include <algorithm>

namespace host::dwg {

namespace {

constexpr int blockNumber = 12;
constexpr int endOfBlockNumber = 13;
constexpr int jumpNumber = 18;
/// Types of deleted entities are as much higher.
constexpr int deletedEntity = 0x80;
/// Type, flags and length.
constexpr std::size_t recordHeadSize = 4;
/// What all records have, jumps as well.
constexpr std::size_t leastRecordSize = 8;

/// A record of an entity where it stands in the file.
struct EarlyFrame
{
    int type = 0;
    int flags = 0;
    std::size_t begin = 0;
    std::size_t next = 0; ///< where the next one is
};

/// The ways in which records of the release may be coded, the likeliest first.
std::vector<EarlyForm> earlyForms(Release release)
{
    if (release != Release::R10)
        return {{release > Release::R10, release > Release::R10}};
    return {{false, true}, {false, false}, {true, true}, {true, false}};
}

class EarlyAssembly
{
public:
    EarlyAssembly(Bytes bytes, DrawingText &result)
        : m_problems(result.problems), m_file(openEarlyFile(bytes, result.release, m_problems)), m_names(m_file),
          m_forms(earlyForms(result.release)), m_result(result), m_text(result.text),
          m_fields(result.release, m_noNames), m_record(m_fields, m_names), m_bytesLeft(bytes.size())
    {
    }

    void run()
    {
        if (m_file.release < Release::R9)
            m_problems.warn("The file is of a release before R9, and read by the layout of R9.");
        writeEarlyHeader(m_file, m_names, m_text);
        writeEarlyTables(m_file, m_names, m_text, m_problems);
        beginSection("BLOCKS");
        for (const EarlyBlock &block : readEarlyBlocks(m_file, m_names))
            writeBlock(block);
        writeMark("ENDSEC");
        beginSection("ENTITIES");
        writeRecords(m_file.entities.begin);
        writeMark("ENDSEC");
        writeMark("EOF");
    }

private:
    void writeMark(const char *type)
    {
        m_fields.start({}, {}, {});
        m_fields.note(0, type);
        m_fields.write(m_text);
    }

    void beginSection(const char *name)
    {
        m_fields.start({}, {}, {});
        m_fields.note(0, "SECTION");
        m_fields.note(2, name);
        m_fields.write(m_text);
    }

    // Where records are.

    /// The two highest bits say what the others count from.
    std::size_t placeOf(std::uint32_t address) const
    {
        constexpr std::uint32_t furtherBit = 0x80000000;
        constexpr std::uint32_t blocksBit = 0x40000000;
        const std::size_t rest = address & ~(furtherBit | blocksBit);
        if ((address & furtherBit) != 0)
            return m_file.further.begin + rest;
        return (address & blocksBit) != 0 ? m_file.blocks.begin + rest : rest;
    }

    const EarlySection *sectionOf(std::size_t place) const
    {
        for (const EarlySection *section : {&m_file.entities, &m_file.blocks, &m_file.further}) {
            if (section->has(place))
                return section;
        }
        return nullptr;
    }

    /// Behind the last record of a section, where none follows.
    bool isEnd(std::size_t place) const
    {
        const bool isBehind = place == m_file.entities.end || place == m_file.blocks.end || place == m_file.further.end;
        return isBehind && !sectionOf(place);
    }

    std::optional<EarlyFrame> takeFrame(std::size_t place)
    {
        const EarlySection *section = sectionOf(place);
        if (!section)
            return std::nullopt;
        BitReader reader(m_file.bytes, place * 8, section->end * 8);
        EarlyFrame frame;
        frame.begin = place;
        frame.type = reader.byte();
        frame.flags = reader.byte();
        const std::size_t length = reader.raw16();
        frame.next = place + length;
        // Where more is read than the file has, records stand in others, or in a ring.
        if (length < leastRecordSize || frame.next > section->end || length > m_bytesLeft)
            return std::nullopt;
        m_bytesLeft -= length;
        if (frame.type == jumpNumber)
            frame.next = placeOf(reader.raw32());
        return frame;
    }

    BitReader valuesOf(const EarlyFrame &frame) const
    {
        const std::size_t end = frame.next - (m_file.isChecked() ? 2 : 0);
        return {m_file.bytes, (frame.begin + recordHeadSize) * 8, end * 8};
    }

    // Entities.

    void writeBlock(const EarlyBlock &block)
    {
        const std::size_t place = placeOf(block.address);
        const auto first = takeFrame(place);
        if (!first || first->type != blockNumber)
            return lose("BLOCK", "There is no block at its place: " + block.name + '.');
        const EarlyType type{blockNumber, "BLOCK", nullptr};
        m_block = &block;
        writeEntity(*first, type);
        m_block = nullptr;
        if (!writeRecords(first->next, endOfBlockNumber))
            writeMark("ENDBLK");
    }

    /// Writes the entities from `place` on to the end of their section. Or to the first one of the type `last`: true
    /// when it was there.
    bool writeRecords(std::size_t place, int last = -1)
    {
        while (!isEnd(place)) {
            const auto frame = takeFrame(place);
            if (!frame) {
                m_problems.lose("A record of an entity has no length that can be; what follows it is not read.");
                return false;
            }
            place = frame->next;
            if (frame->type < deletedEntity && frame->type != jumpNumber)
                writeEntity(*frame);
            if (frame->type == last)
                return true;
        }
        return false;
    }

    void writeEntity(const EarlyFrame &frame)
    {
        const EarlyType *type = earlyType(frame.type);
        if (type)
            writeEntity(frame, *type);
        else
            lose("type " + std::to_string(frame.type), "Entities of this type are not read.");
    }

    void writeEntity(const EarlyFrame &frame, const EarlyType &type)
    {
        ++m_result.objectCount;
        const bool isRead =
            std::ranges::any_of(m_forms, [&](const EarlyForm &form) { return readEntity(frame, type, form); });
        if (!isRead)
            return lose(type.name, "Its values do not fill its record.");
        if (m_file.isChecked() && !fitsEarlyChecksum(m_file.bytes, frame.begin, frame.next))
            warn(type, "The checksum does not fit.");
        if (m_record.doubt())
            warn(type, m_record.doubt());
        if (!noteEarlyExtendedData(m_record.extendedData(), m_names, m_fields))
            warn(type, "The extended data are left out.");
        m_fields.write(m_text);
    }

    /// True when the values took the whole record.
    bool readEntity(const EarlyFrame &frame, const EarlyType &type, const EarlyForm &form)
    {
        m_record.begin(type, valuesOf(frame), frame.flags, form);
        if (m_block)
            readBlock();
        else if (type.read)
            type.read(m_record);
        return !m_fields.hasFailed() && m_record.left() == 0;
    }

    /// The name and flags stand in the table of blocks. The record has the name as well from R11 on, without the number
    /// of anonymous blocks, and the path of the drawing that an external reference shows.
    void readBlock()
    {
        m_fields.note(2, m_block->name);
        m_fields.note(70, m_block->flags);
        m_record.planePoint(10);
        const std::string path = m_record.has(0x02) ? m_record.takeText() : std::string();
        m_record.text(0x04, 3);
        if (m_record.has(0x02))
            m_fields.note(1, path);
    }

    void lose(std::string type, std::string why)
    {
        m_problems.add({Problem::Kind::Lost, std::move(why), std::move(type), m_record.handle()});
    }

    void warn(const EarlyType &type, const char *what)
    {
        m_problems.add({Problem::Kind::Warning, what, type.name, m_record.handle()});
    }

    Problems &m_problems;
    EarlyFile m_file;
    EarlyNames m_names;
    std::vector<EarlyForm> m_forms;
    DrawingText &m_result;
    std::string &m_text;
    Names m_noNames;
    Fields m_fields;
    EarlyRecord m_record;
    std::size_t m_bytesLeft;             ///< of the file that no record had yet
    const EarlyBlock *m_block = nullptr; ///< whose BLOCK is read
};

} // namespace

void readEarlyDrawing(Bytes bytes, DrawingText &result)
{
    EarlyAssembly(bytes, result).run();
}

} // namespace host::dwg
