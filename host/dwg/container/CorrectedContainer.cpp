#include "host/dwg/container/Container.h"
#include "host/dwg/container/PageCompression2007.h"

#include <algorithm>

namespace host::dwg {

namespace {

using PageBytes = std::vector<std::uint8_t>;

constexpr std::size_t headerPlace = 0x80;
constexpr std::size_t pagesPlace = 0x480;

/// How many of the 255 bytes of a block are its own; the others would correct it.
constexpr std::size_t systemBlock = 239;
constexpr std::size_t dataBlock = 251;
constexpr std::size_t wholeBlock = 255;

constexpr std::uint64_t mostGrowth2007 = 300;

/// Blocks without what would correct them: byte by byte in turn, as all but a few sections have them.
PageBytes withoutCorrection(Bytes page, std::size_t blocks, std::size_t own, bool inTurn)
{
    PageBytes bytes;
    bytes.reserve(blocks * own);
    for (std::size_t block = 0; block < blocks; ++block) {
        for (std::size_t i = 0; i < own; ++i)
            bytes.push_back(page[inTurn ? block + i * blocks : block * wholeBlock + i]);
    }
    return bytes;
}

std::optional<PageBytes> unpacked(Bytes packed, std::uint64_t packedSize, std::uint64_t size)
{
    if (packedSize > packed.size())
        return std::nullopt;
    if (packedSize < size)
        return unpackPage2007(packed.first(packedSize), size);
    return PageBytes(packed.begin(), packed.begin() + static_cast<std::ptrdiff_t>(std::min(size, packedSize)));
}

struct Maps2007
{
    std::uint64_t pagesRepeat = 0;
    std::uint64_t pagesPlace = 0;
    std::uint64_t pagesPackedSize = 0;
    std::uint64_t pagesSize = 0;
    std::uint64_t sectionsPackedSize = 0;
    std::uint64_t sectionsPage = 0;
    std::uint64_t sectionsSize = 0;
    std::uint64_t sectionsRepeat = 0;
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
    File2007(Bytes file, Problems &problems) : m_file(file), m_problems(problems) {}

    void read(Container &container)
    {
        const std::optional<Maps2007> maps = readHeader();
        if (!maps)
            return m_problems.lose("The header of the file cannot be read.");
        const auto pages = systemPage(maps->pagesPlace, maps->pagesPackedSize, maps->pagesSize, maps->pagesRepeat);
        if (!pages)
            return m_problems.lose("The map of the file's pages cannot be read.");
        readPageMap(*pages);
        const auto found = m_pages.find(static_cast<std::int64_t>(maps->sectionsPage));
        const auto sections = found != m_pages.end() ? systemPage(found->second, maps->sectionsPackedSize,
                                                                  maps->sectionsSize, maps->sectionsRepeat)
                                                     : std::nullopt;
        if (!sections)
            return m_problems.lose("The map of the file's sections cannot be read.");
        BitReader reader(*sections);
        while (reader.left() >= 64 * 8 && !reader.hasFailed())
            readSection(reader, container);
    }

private:
    std::optional<Maps2007> readHeader()
    {
        constexpr std::size_t blocks = 3;
        constexpr std::size_t unpackedSize = 0x110;
        if (m_file.size() < headerPlace + blocks * wholeBlock)
            return std::nullopt;
        const PageBytes page = withoutCorrection(m_file.subspan(headerPlace), blocks, systemBlock, true);
        BitReader head(page);
        head.seek(24 * 8);
        const auto packedSize = static_cast<std::int32_t>(head.raw32());
        const std::uint64_t size = static_cast<std::uint64_t>(packedSize < 0 ? -std::int64_t(packedSize) : packedSize);
        const auto bytes = packedSize < 0 ? unpacked(Bytes(page).subspan(32), size, size)
                                          : unpacked(Bytes(page).subspan(32), size, unpackedSize);
        if (!bytes || bytes->size() < unpackedSize)
            return std::nullopt;
        std::array<std::uint64_t, unpackedSize / 8> numbers{};
        BitReader reader(*bytes);
        for (std::uint64_t &number : numbers)
            number = reader.raw64();
        Maps2007 maps;
        maps.pagesRepeat = numbers[3];
        maps.pagesPlace = numbers[7];
        maps.pagesPackedSize = numbers[10];
        maps.pagesSize = numbers[11];
        maps.sectionsPackedSize = numbers[22];
        maps.sectionsPage = numbers[24];
        maps.sectionsSize = numbers[25];
        maps.sectionsRepeat = numbers[27];
        return maps;
    }

    /// A page of the two maps. `repeat` says how often its bytes are there.
    std::optional<PageBytes> systemPage(std::uint64_t place, std::uint64_t packedSize, std::uint64_t size,
                                        std::uint64_t repeat)
    {
        if (packedSize > m_file.size() || size > m_file.size() * mostGrowth2007 || repeat > 1000)
            return std::nullopt;
        const std::size_t blocks = ((packedSize + 7) / 8 * 8 * repeat + systemBlock - 1) / systemBlock;
        const Bytes page = pageAt(place, blocks);
        if (page.empty())
            return std::nullopt;
        return unpacked(withoutCorrection(page, blocks, systemBlock, true), packedSize, size);
    }

    /// Empty when the file ends before.
    Bytes pageAt(std::uint64_t place, std::size_t blocks) const
    {
        const std::size_t size = blocks * wholeBlock;
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
        reader.raw64(); // the size of its pages
        reader.raw64(); // encryption
        reader.raw64(); // a number made of the name
        const std::uint64_t nameLength = reader.raw64();
        reader.raw64();
        section.encoding = reader.raw64();
        section.pageCount = reader.raw64();
        section.name = reader.utf16(nameLength / 2);
        m_sectionSize += std::min(section.size, m_file.size() * mostGrowth2007 + 1);
        if (m_sectionSize > m_file.size() * mostGrowth2007 || reader.hasFailed()) {
            m_problems.lose("The sections are larger than the file can hold.");
            return reader.fail();
        }
        std::vector<std::uint8_t> &bytes = container.storage.emplace_back(section.size);
        for (std::uint64_t i = 0; i < section.pageCount && !reader.hasFailed(); ++i) {
            if (!readPage(reader, section, bytes))
                m_problems.lose("A page of the section " + section.name + " cannot be read.");
        }
        assignSection(container, section.name, bytes);
    }

    bool readPage(BitReader &reader, const Section2007 &section, std::vector<std::uint8_t> &bytes)
    {
        const std::uint64_t start = reader.raw64();
        reader.raw64(); // its size in the file
        const auto number = static_cast<std::int64_t>(reader.raw64());
        const std::uint64_t size = reader.raw64();
        const std::uint64_t packedSize = reader.raw64();
        reader.raw64(); // checksums
        reader.raw64();
        const auto found = m_pages.find(number);
        if (found == m_pages.end() || start > bytes.size() || packedSize > m_file.size())
            return false;
        m_unpackedSize += size;
        if (size > m_file.size() * mostGrowth2007 || m_unpackedSize > m_file.size() * mostGrowth2007)
            return false;
        constexpr std::uint64_t inTurn = 4;
        const std::size_t blocks = ((packedSize + 7) / 8 * 8 + dataBlock - 1) / dataBlock;
        const Bytes page = pageAt(found->second, blocks);
        if (page.empty() && blocks > 0)
            return false;
        const auto content =
            unpacked(withoutCorrection(page, blocks, dataBlock, section.encoding == inTurn), packedSize, size);
        if (content)
            std::copy_n(content->begin(), std::min<std::size_t>(content->size(), bytes.size() - start),
                        bytes.begin() + static_cast<std::ptrdiff_t>(start));
        return content.has_value();
    }

    Bytes m_file;
    Problems &m_problems;
    std::map<std::int64_t, std::uint64_t> m_pages;
    std::uint64_t m_sectionSize = 0; ///< of all sections so far
    std::uint64_t m_unpackedSize = 0;
};

} // namespace

void openCorrectedContainer(Bytes file, Container &container, Problems &problems)
{
    File2007(file, problems).read(container);
}

} // namespace host::dwg
