#include "host/dwg/bits/Checksums.h"
#include "host/dwg/container/Container.h"
#include "host/dwg/container/PageCompression.h"

#include <algorithm>

namespace host::dwg {

namespace {

constexpr std::uint32_t pageMapType = 0x41630e3b;
constexpr std::uint32_t sectionMapType = 0x4163003b;
constexpr std::uint32_t dataPageType = 0x4163043b;
constexpr std::size_t pagesStart = 0x100; ///< what the places of pages are counted from

/// Unpacked sizes are taken at their word up to this multiple of the file.
constexpr std::uint64_t mostGrowth = 300;

/// The header at 0x80, which is mixed with a row of numbers.
std::array<std::uint8_t, 0x6c> plainHeader(Bytes file)
{
    std::array<std::uint8_t, 0x6c> header{};
    std::uint32_t number = 1;
    for (std::size_t i = 0; i < header.size(); ++i) {
        number = number * 0x343fd + 0x269ec3;
        header[i] = file[0x80 + i] ^ static_cast<std::uint8_t>(number >> 16);
    }
    return header;
}

struct PagePlace
{
    std::size_t at = 0;
    std::size_t size = 0;
};

struct SectionPage
{
    std::int32_t page = 0;
    std::uint64_t start = 0; ///< within the section
};

struct SectionDescription
{
    std::string name;
    std::uint64_t size = 0;
    std::uint32_t pageSize = 0; ///< unpacked
    bool isPacked = false;
    std::vector<SectionPage> pages;
};

/// Reads the maps of one file and the sections that they tell of.
class PagedFile
{
public:
    PagedFile(Bytes file, Problems &problems) : m_file(file), m_problems(problems) {}

    void read(Container &container)
    {
        if (m_file.size() < 0x80 + 0x6c)
            return m_problems.lose("The file ends within its header.");
        auto header = plainHeader(m_file);
        BitReader reader(header);
        reader.seek(0x50 * 8);
        reader.raw32();
        const std::uint64_t mapPlace = reader.raw64();
        const auto sectionMapPage = static_cast<std::int32_t>(reader.raw32());
        checkHeader(header);
        readPageMap(mapPlace);
        for (const SectionDescription &section : readSectionMap(sectionMapPage))
            readSection(section, container);
    }

private:
    void checkHeader(std::array<std::uint8_t, 0x6c> header)
    {
        BitReader reader(header);
        reader.seek(0x68 * 8);
        const std::uint32_t told = reader.raw32();
        std::fill(header.begin() + 0x68, header.end(), std::uint8_t(0));
        if (checksum32(header, 0) != told)
            m_problems.warn("The checksum of the file's header does not fit.");
    }

    /// A page of the two maps, unpacked.
    std::optional<std::vector<std::uint8_t>> mapPage(std::size_t at, std::uint32_t type)
    {
        constexpr std::size_t headSize = 0x14;
        if (at > m_file.size() || m_file.size() - at < headSize)
            return std::nullopt;
        BitReader reader(m_file, at * 8, m_file.size() * 8);
        const bool isRightType = reader.raw32() == type;
        const std::uint32_t size = reader.raw32();
        const std::uint32_t packedSize = reader.raw32();
        const std::uint32_t packing = reader.raw32();
        const std::uint32_t told = reader.raw32();
        if (!isRightType || packedSize > m_file.size() - at - headSize || size > m_file.size() * mostGrowth)
            return std::nullopt;
        std::vector<std::uint8_t> head(m_file.begin() + static_cast<std::ptrdiff_t>(at),
                                       m_file.begin() + static_cast<std::ptrdiff_t>(at + headSize));
        std::fill(head.end() - 4, head.end(), std::uint8_t(0));
        const Bytes packed = m_file.subspan(at + headSize, packedSize);
        if (pageChecksum(packed, pageChecksum(head, 0)) != told)
            m_problems.warn("The checksum of a map of the file does not fit.");
        if (packing == 2)
            return unpackPage(packed, size);
        return std::vector<std::uint8_t>(packed.begin(), packed.end());
    }

    void readPageMap(std::uint64_t place)
    {
        const auto map = place < m_file.size() ? mapPage(place + pagesStart, pageMapType) : std::nullopt;
        if (!map)
            return m_problems.lose("The map of the file's pages cannot be read.");
        BitReader reader(*map);
        std::size_t at = pagesStart;
        while (reader.left() >= 64) {
            const auto number = static_cast<std::int32_t>(reader.raw32());
            const std::size_t size = reader.raw32();
            if (number > 0)
                m_pages[number] = {at, size};
            else
                reader.skip(std::min<std::size_t>(reader.left(), 16 * 8)); // what a gap has
            at += size;
        }
    }

    std::vector<SectionDescription> readSectionMap(std::int32_t page)
    {
        const auto found = m_pages.find(page);
        const auto map = found != m_pages.end() ? mapPage(found->second.at, sectionMapType) : std::nullopt;
        if (!map) {
            m_problems.lose("The map of the file's sections cannot be read.");
            return {};
        }
        BitReader reader(*map);
        const std::uint32_t count = reader.raw32();
        reader.skip(16 * 8);
        std::vector<SectionDescription> sections;
        for (std::uint32_t i = 0; i < count && !reader.hasFailed(); ++i)
            sections.push_back(readDescription(reader));
        return sections;
    }

    static SectionDescription readDescription(BitReader &reader)
    {
        SectionDescription section;
        section.size = reader.raw64();
        const std::uint32_t pageCount = reader.raw32();
        section.pageSize = reader.raw32();
        reader.raw32();
        section.isPacked = reader.raw32() == 2;
        reader.skip(64); // number and encryption
        section.name = reader.rawBytes(64);
        section.name.resize(std::min(section.name.size(), section.name.find('\0')));
        for (std::uint32_t i = 0; i < pageCount && !reader.hasFailed(); ++i) {
            const auto number = static_cast<std::int32_t>(reader.raw32());
            reader.raw32();
            section.pages.push_back({number, reader.raw64()});
        }
        return section;
    }

    void readSection(const SectionDescription &section, Container &container)
    {
        if (section.name.empty() || section.size == 0)
            return;
        m_sectionSize += std::min(section.size, m_file.size() * mostGrowth + 1);
        if (m_sectionSize > m_file.size() * mostGrowth || section.pageSize > m_file.size() * mostGrowth)
            return m_problems.lose("The section " + section.name + " is larger than the file can hold.");
        std::vector<std::uint8_t> &bytes = container.storage.emplace_back(section.size);
        for (const SectionPage &page : section.pages) {
            if (!readPage(section, page, bytes))
                m_problems.lose("A page of the section " + section.name + " cannot be read.");
        }
        assignSection(container, section.name, bytes);
    }

    bool readPage(const SectionDescription &section, const SectionPage &page, std::vector<std::uint8_t> &bytes)
    {
        constexpr std::size_t headSize = 32;
        const auto found = m_pages.find(page.page);
        if (found == m_pages.end() || found->second.at > m_file.size() || m_file.size() - found->second.at < headSize ||
            page.start > bytes.size())
            return false;
        const std::size_t at = found->second.at;
        std::array<std::uint32_t, 8> head{};
        BitReader reader(m_file, at * 8, m_file.size() * 8);
        for (std::uint32_t &number : head)
            number = reader.raw32() ^ 0x4164536b ^ static_cast<std::uint32_t>(at);
        const std::uint32_t packedSize = head[2];
        if (head[0] != dataPageType || packedSize > m_file.size() - at - headSize)
            return false;
        const Bytes packed = m_file.subspan(at + headSize, packedSize);
        checkPage(head, packed);
        const std::size_t room = bytes.size() - page.start;
        const auto place = bytes.begin() + static_cast<std::ptrdiff_t>(page.start);
        if (!section.isPacked) {
            std::copy_n(packed.begin(), std::min(room, packed.size()), place);
            return true;
        }
        m_unpackedSize += section.pageSize;
        if (m_unpackedSize > m_file.size() * mostGrowth)
            return false;
        const auto unpacked = unpackPage(packed, section.pageSize);
        if (unpacked)
            std::copy_n(unpacked->begin(), std::min(room, unpacked->size()), place);
        return unpacked.has_value();
    }

    void checkPage(const std::array<std::uint32_t, 8> &head, Bytes packed)
    {
        if (pageChecksum(packed, 0) != head[7])
            m_problems.warn("The checksum of a page does not fit.");
    }

    Bytes m_file;
    Problems &m_problems;
    std::map<std::int32_t, PagePlace> m_pages;
    std::uint64_t m_sectionSize = 0; ///< of all sections so far
    std::uint64_t m_unpackedSize = 0;
};

} // namespace

void openPagedContainer(Bytes file, Container &container, Problems &problems)
{
    PagedFile(file, problems).read(container);
}

} // namespace host::dwg
