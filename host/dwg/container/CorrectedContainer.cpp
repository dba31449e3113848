#include "host/dwg/bits/Checksums.h"
#include "host/dwg/bits/ErrorCorrection.h"
#include "host/dwg/container/Container.h"
#include "host/dwg/container/Growth.h"
#include "host/dwg/container/PageCompression2007.h"

#include <algorithm>

namespace host::dwg {

namespace {

using PageBytes = std::vector<std::uint8_t>;

constexpr std::size_t headerPlace = 0x80;
constexpr std::size_t pagesPlace = 0x480;

/// The bytes that were put right in a page, and whether there were more.
struct Correction
{
    std::size_t count = 0;
    bool isWhole = true;
};

/// Puts each block of a page right. Their bytes stand in turn: the first of each, then the second of each.
Correction correctPage(PageBytes &page, ErrorCode code)
{
    Correction correction;
    const std::size_t blocks = page.size() / correctedBlock;
    std::array<std::uint8_t, correctedBlock> block{};
    for (std::size_t one = 0; one < blocks; ++one) {
        for (std::size_t i = 0; i < correctedBlock; ++i)
            block[i] = page[one + i * blocks];
        const auto count = correctBlock(code, block);
        correction.count += count.value_or(0);
        correction.isWhole = correction.isWhole && count.has_value();
        for (std::size_t i = 0; count.value_or(0) > 0 && i < correctedBlock; ++i)
            page[one + i * blocks] = block[i];
    }
    return correction;
}

/// The blocks' own bytes, one block behind the other.
PageBytes ownBytesOf(Bytes page, ErrorCode code)
{
    const std::size_t blocks = page.size() / correctedBlock;
    PageBytes bytes(blocks * ownBytes(code));
    auto to = bytes.begin();
    for (std::size_t one = 0; one < blocks; ++one) {
        for (std::size_t i = 0; i < ownBytes(code); ++i)
            *to++ = page[one + i * blocks];
    }
    return bytes;
}

/// A number of bytes as they fill whole blocks.
std::size_t blocksFor(std::uint64_t size, ErrorCode code)
{
    return (size + ownBytes(code) - 1) / ownBytes(code);
}

/// The bytes of a page: unpacked where they take less room than they say to be. False where they are damaged; what is
/// in front of the damage is in `page` then.
bool unpackInto(std::span<std::uint8_t> page, Bytes packed, std::uint64_t packedSize)
{
    if (packedSize > packed.size())
        return false;
    if (packedSize < page.size())
        return unpackPage2007(packed.first(packedSize), page);
    std::copy_n(packed.begin(), page.size(), page.begin());
    return true;
}

std::optional<PageBytes> unpacked(Bytes packed, std::uint64_t packedSize, std::uint64_t size)
{
    if (packedSize > packed.size())
        return std::nullopt;
    PageBytes page(size);
    return unpackInto(page, packed, packedSize) ? std::optional(std::move(page)) : std::nullopt;
}

/// Where one of the two maps is. Each has a copy.
struct MapPlace
{
    std::uint64_t place = 0; ///< the number of its page for the map of sections
    std::uint64_t copy = 0;
    std::uint64_t packedSize = 0;
    std::uint64_t size = 0;
    std::uint64_t repeat = 0; ///< how often the bytes stand in the page
};

struct Maps2007
{
    MapPlace pages;
    MapPlace sections;
};

struct Section2007
{
    std::string name;
    std::uint64_t size = 0;
    std::uint64_t encoding = 0;
    std::uint64_t pageCount = 0;
};

class File2007
{
public:
    File2007(Bytes file, Problems &problems)
        : m_file(file), m_problems(problems), m_room(file.size()), m_work(file.size())
    {
    }

    void read(Container &container)
    {
        const std::optional<Maps2007> maps = findHeader();
        if (!maps)
            return m_problems.lose("The header of the file cannot be read.");
        auto pages = mapAt(maps->pages.place, maps->pages);
        if (!pages)
            pages = mapAt(maps->pages.copy, maps->pages);
        if (!pages)
            return m_problems.lose("The map of the file's pages cannot be read.");
        readPageMap(*pages);
        auto sections = mapOfPage(maps->sections.place, maps->sections);
        if (!sections)
            sections = mapOfPage(maps->sections.copy, maps->sections);
        if (!sections)
            return m_problems.lose("The map of the file's sections cannot be read.");
        BitReader reader(*sections);
        while (reader.left() >= 64 * 8 && !reader.hasFailed())
            readSection(reader, container);
        if (m_corrected > 0)
            m_problems.warn(std::to_string(m_corrected) + " damaged bytes were put right.");
    }

private:
    static constexpr std::size_t headerBlocks = 3;
    static constexpr std::size_t headerRoom = 0x400; ///< in the file

    /// The header in front, else its copy at the end of the file.
    std::optional<Maps2007> findHeader()
    {
        if (m_file.size() < pagesPlace)
            return std::nullopt;
        auto maps = readHeader(m_file.subspan(headerPlace, headerBlocks * correctedBlock));
        if (!maps && m_file.size() >= pagesPlace + headerRoom) {
            maps = readHeader(m_file.last(headerRoom).first(headerBlocks * correctedBlock));
            if (maps)
                m_problems.warn("The header of the file is damaged; its copy was read.");
        }
        return maps;
    }

    std::optional<Maps2007> readHeader(Bytes bytes)
    {
        constexpr std::size_t headSize = 32;
        constexpr std::size_t unpackedSize = 0x110;
        const auto page = correctedPage(bytes, ErrorCode::Maps);
        if (!page)
            return std::nullopt;
        BitReader head(*page);
        head.seek(24 * 8);
        // Below 0 for one that is not packed.
        const auto packedSize = static_cast<std::int32_t>(head.raw32());
        const std::uint64_t size = static_cast<std::uint64_t>(packedSize < 0 ? -std::int64_t(packedSize) : packedSize);
        const Bytes content = Bytes(*page).subspan(headSize);
        const bool isPlain = packedSize < 0;
        const auto plain = !isPlain || size >= unpackedSize ? unpacked(content, size, unpackedSize) : std::nullopt;
        if (!plain)
            return std::nullopt;
        std::array<std::uint64_t, unpackedSize / 8> numbers{};
        BitReader reader(*plain);
        for (std::uint64_t &number : numbers)
            number = reader.raw64();
        return Maps2007{{numbers[7], numbers[5], numbers[10], numbers[11], numbers[3]},
                        {numbers[24], numbers[23], numbers[22], numbers[25], numbers[27]}};
    }

    /// The bytes of a page's blocks, put right; nothing where they are damaged beyond that.
    std::optional<PageBytes> correctedPage(Bytes bytes, ErrorCode code)
    {
        PageBytes page(bytes.begin(), bytes.end());
        const Correction correction = correctPage(page, code);
        if (!correction.isWhole)
            return std::nullopt;
        m_corrected += correction.count;
        return ownBytesOf(page, code);
    }

    std::optional<PageBytes> mapAt(std::uint64_t place, const MapPlace &map)
    {
        if (map.packedSize > m_file.size() || map.size > largestMap(m_file.size()) || map.repeat > 1000)
            return std::nullopt;
        const Bytes bytes =
            pageAt(place, blocksFor((map.packedSize + 7) / 8 * 8 * map.repeat, ErrorCode::Maps) * correctedBlock);
        const auto page = bytes.empty() ? std::nullopt : correctedPage(bytes, ErrorCode::Maps);
        return page ? unpacked(*page, map.packedSize, map.size) : std::nullopt;
    }

    std::optional<PageBytes> mapOfPage(std::uint64_t number, const MapPlace &map)
    {
        const auto found = m_pages.find(static_cast<std::int64_t>(number));
        return found != m_pages.end() ? mapAt(found->second, map) : std::nullopt;
    }

    /// Empty when the file ends before.
    Bytes pageAt(std::uint64_t place, std::size_t size) const
    {
        if (place > m_file.size() || pagesPlace + place > m_file.size() || size > m_file.size() - pagesPlace - place)
            return {};
        return m_file.subspan(pagesPlace + place, size);
    }

    void readPageMap(Bytes map)
    {
        BitReader reader(map);
        std::uint64_t place = 0;
        while (reader.left() >= 128) {
            const std::uint64_t size = reader.raw64();
            const auto number = static_cast<std::int64_t>(reader.raw64());
            if (number > 0)
                m_pages[number] = place;
            place += size;
        }
    }

    void readSection(BitReader &reader, Container &container)
    {
        Section2007 section;
        section.size = reader.raw64();
        const std::uint64_t pageSize = reader.raw64();
        reader.raw64(); // encryption
        reader.raw64(); // a number made of the name
        const std::uint64_t nameLength = reader.raw64();
        reader.raw64();
        section.encoding = reader.raw64();
        section.pageCount = reader.raw64();
        section.name = reader.utf16(nameLength / 2);
        // The last page may go beyond the end of the section.
        if (reader.hasFailed() || !m_room.take(section.size) || !m_room.take(pageSize)) {
            m_problems.lose("The sections are larger than the file can hold.");
            return reader.fail();
        }
        std::vector<std::uint8_t> &bytes = container.storage.emplace_back(section.size + pageSize);
        for (std::uint64_t i = 0; i < section.pageCount && !reader.hasFailed(); ++i) {
            if (!readPage(reader, section, bytes))
                m_problems.lose("A page of the section " + section.name + " cannot be read.");
        }
        assignSection(container, section.name, Bytes(bytes).first(section.size));
    }

    bool readPage(BitReader &reader, const Section2007 &section, std::span<std::uint8_t> bytes)
    {
        constexpr std::uint64_t withCorrection = 4;
        const std::uint64_t start = reader.raw64();
        reader.raw64(); // its size in the file
        const auto number = static_cast<std::int64_t>(reader.raw64());
        const std::uint64_t size = reader.raw64();
        const std::uint64_t packedSize = reader.raw64();
        const auto checksum = static_cast<std::uint32_t>(reader.raw64());
        reader.raw64(); // another one, of 64 bits
        const auto found = m_pages.find(number);
        if (found == m_pages.end() || start > bytes.size() || size > bytes.size() - start ||
            packedSize > m_file.size() || !m_work.take(size + packedSize))
            return false;
        const auto page = bytes.subspan(start, size);
        const bool isUnpacked = section.encoding == withCorrection
                                    ? readBlocks(found->second, packedSize, page, checksum)
                                    : unpackInto(page, pageAt(found->second, packedSize), packedSize);
        if (isUnpacked && pageChecksum2007(page) != checksum)
            m_problems.warn("The checksum of a page of the section " + section.name + " does not fit.");
        return isUnpacked;
    }

    /// Blocks are looked at for damaged bytes only where the checksum tells that there are any.
    bool readBlocks(std::uint64_t place, std::uint64_t packedSize, std::span<std::uint8_t> page, std::uint32_t checksum)
    {
        const Bytes bytes = pageAt(place, blocksFor((packedSize + 7) / 8 * 8, ErrorCode::Data) * correctedBlock);
        if (unpackInto(page, ownBytesOf(bytes, ErrorCode::Data), packedSize) && pageChecksum2007(page) == checksum)
            return true;
        PageBytes blocks(bytes.begin(), bytes.end());
        m_corrected += correctPage(blocks, ErrorCode::Data).count;
        return unpackInto(page, ownBytesOf(blocks, ErrorCode::Data), packedSize);
    }

    Bytes m_file;
    Problems &m_problems;
    std::map<std::int64_t, std::uint64_t> m_pages;
    Growth m_room;               ///< for sections
    Growth m_work;               ///< for pages, which a hostile file has again and again
    std::size_t m_corrected = 0; ///< bytes
};

} // namespace

void openCorrectedContainer(Bytes file, Container &container, Problems &problems)
{
    File2007(file, problems).read(container);
}

} // namespace host::dwg
