#include "host/dwg/early/EarlyDrawing.h"

#include "host/dwg/early/EarlyCodePage.h"
#include "host/dwg/early/EarlyFrames.h"
#include "host/dwg/early/EarlyHeader.h"
#include "host/dwg/early/EarlyRecord.h"
#include "host/dwg/early/EarlyTables.h"

#include <algorithm>

namespace host::dwg {

namespace {

enum EarlyNumber
{
    earlyBlock = 12,
    earlyEndOfBlock = 13,
    earlyAttribute = 16,
    earlyEndOfList = 17,
    earlyVertex = 20
};

bool belongsToEarlyList(int type)
{
    return type == earlyAttribute || type == earlyEndOfList || type == earlyVertex;
}

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
        : m_problems(result.problems), m_file(openEarlyFile(bytes, result.release, m_problems)), m_frames(m_file),
          m_names(m_file), m_forms(earlyForms(result.release)), m_result(result), m_text(result.text),
          m_fields(result.release, m_noNames), m_record(m_fields, m_names)
    {
    }

    void run()
    {
        if (m_file.release < Release::R9)
            m_problems.warn("The file is of a release before R9, and read by the layout of R9.");
        findBlocks();
        const std::size_t variables = writeEarlyHeader(m_file, m_names, m_text, m_problems);
        writeEarlyTables(m_file, m_names, m_text, m_problems);
        beginSection("BLOCKS");
        for (const EarlyBlock &block : m_blocks)
            writeBlock(block);
        writeMark("ENDSEC");
        beginSection("ENTITIES");
        writeRecords(m_file.entities.begin);
        writeMark("ENDSEC");
        writeMark("EOF");
        if (m_hasEntity || m_names.hasFirstLayer())
            return tellCodePage(variables);
        m_text.clear();
        m_problems.lose("Neither header and tables nor entities are those of a drawing.");
    }

private:
    /// Attributes and vertices between the entity that has them and SEQEND.
    enum class List
    {
        None,
        Open,
        Dropped ///< of an entity that is deleted or lost
    };

    /// Puts the variable that names the page to its place, where the texts tell it.
    void tellCodePage(std::size_t place)
    {
        const EarlyCodePage page = earlyCodePageOf(m_text);
        if (page == EarlyCodePage::Any)
            return;
        if (page == EarlyCodePage::Unknown)
            return m_problems.warn("The file does not tell the code page of its texts; they are read as ANSI_1252.");
        const std::string name = page == EarlyCodePage::DosCyrillic ? "dos866" : "dos850";
        m_text.insert(place, "  9\n$DWGCODEPAGE\n  3\n" + name + "\n");
        m_problems.warn("The file does not tell the code page of its texts; by their letters they are read as " + name +
                        ".");
    }

    static constexpr EarlyType beginType = {earlyBlock, "BLOCK", nullptr};

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

    /// Blocks may have each other, so it must be known beforehand which ones there will be.
    void findBlocks()
    {
        m_blocks = readEarlyBlocks(m_file, m_names);
        std::erase_if(m_blocks, [this](const EarlyBlock &block) { return !isThere(block); });
        m_block = nullptr;
        m_names.keepBlocks(m_blocks);
    }

    bool isThere(const EarlyBlock &block)
    {
        const auto first = m_frames.at(m_frames.placeOf(block.address));
        m_block = &block;
        if (block.name.empty())
            lose("BLOCK", "It has no name.");
        else if (!first || first->type != earlyBlock)
            lose("BLOCK", "There is no block at its place: " + block.name + '.');
        else if (!readEntity(*first, beginType))
            lose("BLOCK", "Its values do not fill its record: " + block.name + '.');
        else
            return true;
        return false;
    }

    void writeBlock(const EarlyBlock &block)
    {
        const auto first = m_frames.take(m_frames.placeOf(block.address));
        m_block = &block;
        const bool isWritten = first && writeEntity(*first, beginType);
        m_block = nullptr;
        if (isWritten && !writeRecords(first->next, earlyEndOfBlock))
            writeMark("ENDBLK");
    }

    /// Writes the entities from `place` on to the end of their section. Or to the first one of the type `last`: true
    /// when it was written.
    bool writeRecords(std::size_t place, int last = -1)
    {
        m_list = List::None;
        while (!m_frames.isEnd(place)) {
            const auto frame = m_frames.take(place);
            if (!frame) {
                m_problems.lose("Where an entity should be there is none.");
                const auto next = m_frames.findBehind(place, [this](const auto &other) { return isEntity(other); });
                if (!next)
                    break;
                place = *next;
                continue;
            }
            // Another block, where the end of this one is missing.
            if (frame->type == earlyBlock && last == earlyEndOfBlock)
                break;
            place = frame->next;
            const bool isWritten = !frame->isJump() && writeListed(*frame, last == earlyEndOfBlock);
            if (frame->type == last)
                return isWritten;
        }
        closeList();
        return false;
    }

    bool isEntity(const EarlyFrame &frame)
    {
        const EarlyType *type = earlyType(frame.type);
        return type && readEntity(frame, *type);
    }

    /// Writes an entity so that every list has an owner and an end, and blocks end in blocks alone.
    bool writeListed(const EarlyFrame &frame, bool isInBlock)
    {
        const bool isListed = belongsToEarlyList(frame.type & ~EarlyFrame::deletedNumber);
        if (frame.isDeleted()) {
            if (EarlyRecord::hasList(frame.type & ~EarlyFrame::deletedNumber, frame.flags))
                openList(frame, List::Dropped);
            return false;
        }
        if (isListed && !mayFollow(frame.type))
            lose(earlyType(frame.type)->name, "There is no entity that it belongs to.");
        if (isListed && (m_list != List::Open || !mayFollow(frame.type)))
            return false;
        if (!isListed)
            closeList();
        const bool isWritten = (isInBlock || frame.type != earlyEndOfBlock) && writeEntity(frame);
        if (!isListed)
            openList(frame, isWritten ? List::Open : List::Dropped);
        else if (isWritten && frame.type == earlyEndOfList)
            m_list = List::None;
        return isWritten;
    }

    /// Whether what opened the list, if any did, has entities of the type in it.
    bool mayFollow(int type) const
    {
        const int listed = m_hasAttributes ? earlyAttribute : earlyVertex;
        return m_list != List::None && (type == earlyEndOfList || type == listed);
    }

    void openList(const EarlyFrame &frame, List list)
    {
        closeList();
        const int type = frame.type & ~EarlyFrame::deletedNumber;
        m_list = EarlyRecord::hasList(type, frame.flags) ? list : List::None;
        m_hasAttributes = type == EarlyRecord::insertNumber;
    }

    void closeList()
    {
        if (m_list == List::Open)
            writeMark("SEQEND");
        m_list = List::None;
    }

    bool writeEntity(const EarlyFrame &frame)
    {
        if (const EarlyType *type = earlyType(frame.type))
            return writeEntity(frame, *type);
        lose("type " + std::to_string(frame.type), "Entities of this type are not read.");
        return false;
    }

    bool writeEntity(const EarlyFrame &frame, const EarlyType &type)
    {
        ++m_result.objectCount;
        if (!readEntity(frame, type)) {
            lose(type.name, "Its values do not fill its record.", m_record.handle());
            return false;
        }
        if (m_record.lack()) {
            lose(type.name, m_record.lack(), m_record.handle());
            return false;
        }
        if (!m_frames.fitsChecksum(frame))
            warn(type, "The checksum does not fit.");
        if (m_record.doubt())
            warn(type, m_record.doubt());
        if (!noteEarlyExtendedData(m_record.extendedData(), m_names, m_fields))
            warn(type, "The extended data are left out.");
        m_fields.write(m_text);
        m_hasEntity = m_hasEntity || type.read;
        return true;
    }

    bool readEntity(const EarlyFrame &frame, const EarlyType &type)
    {
        return std::ranges::any_of(m_forms, [&](const EarlyForm &form) { return readEntity(frame, type, form); });
    }

    /// True when the values took the whole record.
    bool readEntity(const EarlyFrame &frame, const EarlyType &type, const EarlyForm &form)
    {
        m_record.begin(type, m_frames.valuesOf(frame), frame.flags, form);
        if (m_block)
            readBlock();
        else if (type.read)
            type.read(m_record);
        return !m_fields.hasFailed() && m_record.left() == 0;
    }

    /// The name and flags stand in the table of blocks. The record has the name as well from R11 on, without the number
    /// of anonymous blocks, and in front of it the path of the drawing that an external reference shows.
    void readBlock()
    {
        m_fields.note(2, m_block->name);
        m_fields.note(70, m_block->flags);
        m_record.planePoint(10);
        const bool hasPath = m_record.has(0x02);
        const std::string path = hasPath ? m_record.takeText() : std::string();
        m_record.text(0x04, 3);
        if (hasPath)
            m_fields.note(1, path);
    }

    void lose(std::string type, std::string why, std::uint64_t handle = 0)
    {
        m_problems.add({Problem::Kind::Lost, std::move(why), std::move(type), handle});
    }

    void warn(const EarlyType &type, const char *what)
    {
        m_problems.add({Problem::Kind::Warning, what, type.name, m_record.handle()});
    }

    Problems &m_problems;
    EarlyFile m_file;
    EarlyFrames m_frames;
    EarlyNames m_names;
    std::vector<EarlyForm> m_forms;
    DrawingText &m_result;
    std::string &m_text;
    Names m_noNames;
    Fields m_fields;
    EarlyRecord m_record;
    std::vector<EarlyBlock> m_blocks;    ///< those that there are
    const EarlyBlock *m_block = nullptr; ///< whose BLOCK is read
    bool m_hasEntity = false;            ///< one whose values say more than its length
    List m_list = List::None;
    bool m_hasAttributes = false; ///< in the list; else vertices
};

} // namespace

void readEarlyDrawing(Bytes bytes, DrawingText &result)
{
    EarlyAssembly(bytes, result).run();
}

} // namespace host::dwg
