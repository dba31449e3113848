#include "host/dwg/bits/Checksums.h"
#include "host/dwg/container/Container.h"
#include "host/dwg/container/Growth.h"
#include "host/dwg/container/PageCompression.h"
#include "host/dwg/container/Pages.h"

#include <algorithm>

namespace host::dwg {

namespace {

constexpr std::size_t headerPlace = 0x80;
constexpr std::size_t headerSize = 0x6c;
using PlainHeader = std::array<std::uint8_t, headerSize>;

constexpr std::string_view signature("AcFssFcAJMB\0", 12);

/// The header without the row of numbers that it is mixed with; mixes one that is plain as well.
PlainHeader mixedHeader(Bytes bytes)
{
    PlainHeader header{};
    std::uint32_t number = 1;
    for (std::size_t i = 0; i < header.size() && i < bytes.size(); ++i) {
        number = number * 0x343fd + 0x269ec3;
        header[i] = bytes[i] ^ static_cast<std::uint8_t>(number >> 16);
    }
    return header;
}

bool isWhole(PlainHeader header)
{
    constexpr std::size_t checksumPlace = 0x68;
    BitReader reader(header);
    reader.seek(checksumPlace * 8);
    const std::uint32_t told = reader.raw32();
    std::fill(header.begin() + checksumPlace, header.end(), std::uint8_t(0));
    return std::equal(signature.begin(), signature.end(), header.begin()) && checksum32(header, 0) == told;
}

struct SectionPage
{
    std::int32_t page = 0;
    std::uint32_t packedSize = 0;
    std::uint64_t start = 0; ///< within the section
};

struct SectionDescription
{
    std::string name;
    std::uint64_t size = 0;
    std::uint32_t number = 0;
    std::uint32_t pageSize = 0; ///< unpacked
    bool isPacked = false;
    std::vector<SectionPage> pages;
};

/// Reads the maps of one file and the sections that they tell of. Where a map, a copy or a page's head is damaged, the
/// pages are looked for: each tells in its head which part of which section it has.
class PagedFile
{
public:
    PagedFile(Bytes file, Problems &problems)
        : m_file(file), m_problems(problems), m_room(file.size()), m_work(file.size())
    {
    }

    void read(Container &container)
    {
        if (m_file.size() < headerPlace + headerSize)
            return m_problems.lose("The file ends within its header.");
        const PlainHeader header = findHeader();
        BitReader reader(header);
        reader.seek(0x54 * 8);
        const std::uint64_t mapPlace = reader.raw64();
        const auto sectionMapPage = static_cast<std::int32_t>(reader.raw32());
        readPageMap(mapPlace);
        for (const SectionDescription &section : readSectionMap(sectionMapPage))
            readSection(section, container);
    }

private:
    /// The number of a section, and where in it a page begins.
    using PagePart = std::pair<std::uint32_t, std::uint64_t>;

    static PagePart partOf(const DataPage &page) { return {page.section, page.start}; }

    /// The header in front, else its copy at the end of the file.
    PlainHeader findHeader()
    {
        const PlainHeader header = mixedHeader(m_file.subspan(headerPlace));
        if (isWhole(header))
            return header;
        PlainHeader begin{};
        std::copy(signature.begin(), signature.end(), begin.begin());
        begin = mixedHeader(begin);
        const auto found =
            std::find_end(m_file.begin() + pagesStart, m_file.end(), begin.begin(), begin.begin() + signature.size());
        const PlainHeader copy = mixedHeader(Bytes(found, m_file.end()));
        if (isWhole(copy)) {
            m_problems.mend("The header of the file is damaged; its copy was read.");
            return copy;
        }
        m_problems.warn("The checksum of the file's header does not fit.");
        return header;
    }

    void readPageMap(std::uint64_t place)
    {
        const auto map = place < m_file.size() ? mapPageAt(m_file, place + pagesStart, MapType::Pages) : std::nullopt;
        if (!map)
            return m_problems.warn("The map of the file's pages cannot be read; pages were looked for.");
        if (!map->isChecked)
            m_problems.warn("The checksum of the map of pages does not fit.");
        BitReader reader(map->bytes);
        std::uint64_t at = pagesStart;
        while (reader.left() >= 64 && at < m_file.size() && m_places.size() <= m_file.size() / pageUnit) {
            const auto number = static_cast<std::int32_t>(reader.raw32());
            const std::uint32_t size = reader.raw32();
            if (number > 0)
                m_places[number] = at;
            else
                reader.skip(std::min<std::size_t>(reader.left(), 16 * 8)); // what a gap has
            at += size;
        }
    }

    std::vector<SectionDescription> readSectionMap(std::int32_t page)
    {
        const auto found = m_places.find(page);
        auto map = found != m_places.end() ? mapPageAt(m_file, found->second, MapType::Sections) : std::nullopt;
        if (!map || !map->isChecked) {
            auto other = findMapPage(m_file, MapType::Sections);
            if (other)
                map = std::move(other);
            else if (map)
                m_problems.warn("The checksum of the map of sections does not fit.");
        }
        if (!map) {
            m_problems.lose("The map of the file's sections cannot be read.");
            return {};
        }
        BitReader reader(map->bytes);
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
        section.number = reader.raw32();
        reader.raw32(); // encryption
        section.name = reader.rawBytes(64);
        section.name.resize(std::min(section.name.size(), section.name.find('\0')));
        for (std::uint32_t i = 0; i < pageCount && !reader.hasFailed(); ++i) {
            SectionPage page;
            page.page = static_cast<std::int32_t>(reader.raw32());
            page.packedSize = reader.raw32();
            page.start = reader.raw64();
            section.pages.push_back(page);
        }
        return section;
    }

    void readSection(const SectionDescription &section, Container &container)
    {
        if (section.name.empty() || section.size == 0)
            return;
        // The last page goes beyond the end of the section.
        if (!m_room.take(section.size) || !m_room.take(section.pageSize))
            return m_problems.lose("The section " + section.name + " is larger than the file can hold.");
        UnpackedSection &unpacked = container.storage.emplace_back(section.size, section.pageSize);
        for (const SectionPage &page : section.pages) {
            if (page.start >= section.size || !readPage(section, page, unpacked.all()))
                m_problems.lose("A page of the section " + section.name + " cannot be read.");
        }
        assignSection(container, section.name, unpacked.bytes());
    }

    bool readPage(const SectionDescription &section, const SectionPage &page, std::span<std::uint8_t> bytes)
    {
        const auto packed = packedPage(section, page);
        if (!packed || !m_work.take(section.pageSize))
            return false;
        const auto place = bytes.subspan(page.start, section.pageSize);
        if (section.isPacked)
            return unpackPage(*packed, place);
        std::copy_n(packed->begin(), std::min(place.size(), packed->size()), place.begin());
        return true;
    }

    /// The page where the map has it; else where its head is found; else where the map has it, whatever its head says.
    std::optional<Bytes> packedPage(const SectionDescription &section, const SectionPage &page)
    {
        const PagePart part(section.number, page.start);
        const auto found = m_places.find(page.page);
        auto data = found != m_places.end() ? dataPageAt(m_file, found->second) : std::nullopt;
        if (!data || !data->isHeadChecked || partOf(*data) != part) {
            const auto other = foundPages().find(part);
            if (other != foundPages().end()) {
                data = other->second;
            } else if (found != m_places.end()) {
                m_problems.warn("The head of a page of the section " + section.name + " is damaged.");
                return bytesBehindHead(found->second, page.packedSize);
            }
        }
        if (!data || !m_work.take(data->packed.size()))
            return std::nullopt;
        if (!data->isChecked())
            m_problems.warn("The checksum of a page of the section " + section.name + " does not fit.");
        return data->packed;
    }

    std::optional<Bytes> bytesBehindHead(std::uint64_t at, std::size_t size) const
    {
        if (at > m_file.size() || m_file.size() - at < dataPageHead || size > m_file.size() - at - dataPageHead)
            return std::nullopt;
        return m_file.subspan(at + dataPageHead, size);
    }

    const std::map<PagePart, DataPage> &foundPages()
    {
        if (!m_found) {
            m_found.emplace();
            for (const DataPage &page : findDataPages(m_file))
                m_found->emplace(partOf(page), page);
        }
        return *m_found;
    }

    Bytes m_file;
    Problems &m_problems;
    std::map<std::int32_t, std::uint64_t> m_places;      ///< of pages, by their numbers
    std::optional<std::map<PagePart, DataPage>> m_found; ///< once they had to be looked for
    Growth m_room;                                       ///< for sections
    Growth m_work;                                       ///< for pages, which a hostile file has again and again
};

} // namespace

void openPagedContainer(Bytes file, Container &container, Problems &problems)
{
    PagedFile(file, problems).read(container);
}

} // namespace host::dwg
