#pragma once

#include "host/dwg/early/EarlyFile.h"

#include <string>
#include <string_view>
#include <vector>

namespace host::dwg::test {

/// Makes files of R9 to R12 of records that a test writes down: values behind each other, with a blank between them.
///
///     1.5 or -2e3   a number of eight bytes       b7     a byte, 0 to 255
///     w-3           two bytes                     l7     four bytes
///     'text         its length and the text       "text  the text alone
///     z12           so many zeros                 h1A2B  bytes as they are
///
/// A `_` in a text stands for a blank.
class EarlyFileMaker
{
public:
    using File = std::vector<std::uint8_t>;

    /// With a layer "0" and the linetype CONTINUOUS.
    explicit EarlyFileMaker(Release release);

    /// Adds a record to a table: its own values behind name and flags.
    void addRecord(EarlyTableKind table, int flags, std::string_view name, std::string_view values);
    /// Adds an entity, on the first layer, and returns its place in its section. `values` are those behind the options:
    /// the head's first.
    std::size_t addEntity(int type, int flags, int options, std::string_view values);
    /// The same on the layer that two bytes (`w1`) say.
    std::size_t addEntityOn(std::string_view layer, int type, int flags, int options, std::string_view values);
    /// The same as addEntity() in the section of blocks, whose table must be made separately, and in the one of further
    /// entities.
    std::size_t addToBlocks(int type, int flags, int options, std::string_view values);
    std::size_t addFurther(int type, int flags, int options, std::string_view values);
    /// Adds what sends the reader to another place; so many bytes from the begin of the section that it counts from.
    void addJump(std::size_t place, std::uint32_t sectionBit);
    void addJumpBack(std::size_t place);
    /// Writes over the header.
    void setHeader(std::size_t at, std::string_view values);

    File file() const;
    /// Where the first entity is in the file.
    std::size_t entitiesBegin() const;

    static constexpr std::uint32_t furtherBit = 0x80000000;
    static constexpr std::uint32_t blocksBit = 0x40000000;

private:
    bool isChecked() const { return m_release >= Release::R12; }
    void add(File &section, int type, int flags, const File &rest);
    std::size_t addTo(File &section, int type, int flags, int options, std::string_view values,
                      std::string_view layer = "w0");
    void addChecksum(File &bytes, std::size_t begin) const;

    Release m_release;
    File m_header;
    File m_entities;
    File m_blocks;
    File m_further;
    struct Table
    {
        File records;
        std::size_t recordSize = 0;
        std::size_t count = 0;
    };
    std::array<Table, static_cast<std::size_t>(EarlyTableKind::Count)> m_tables;
};

} // namespace host::dwg::test
