#include "host/dwg/bits/Checksums.h"
#include "host/dwg/container/Container.h"
#include "host/dwg/container/CorrectedHeader.h"
#include "host/dwg/container/Growth.h"

namespace host::dwg {

namespace {

constexpr std::size_t pagesPlace = CorrectedHeader::place + CorrectedHeader::room;

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
        const std::optional<CorrectedHeader> header = findHeader();
        if (!header)
            return m_problems.lose("The header of the file cannot be read.");
        const auto pages = findMap(header->pages, "The checksum of the map of pages does not fit.",
                                   [](std::uint64_t place) { return std::optional(place); });
        if (!pages)
            return m_problems.lose("The map of the file's pages cannot be read.");
        readPageMap(*pages);
        const auto sections = findMap(header->sections, "The checksum of the map of sections does not fit.",
                                      [this](std::uint64_t number) { return placeOfPage(number); });
        if (!sections)
            return m_problems.lose("The map of the file's sections cannot be read.");
        BitReader reader(*sections);
        while (reader.left() >= 64 * 8 && !reader.hasFailed())
            readSection(reader, container);
        if (m_corrected > 0)
            m_problems.mend(m_corrected == 1 ? std::string("1 damaged byte was put right.")
                                             : std::to_string(m_corrected) + " damaged bytes were put right.");
    }

private:
    /// The header in front, else its copy at the end of the file, else the one of both that can be read at all.
    std::optional<CorrectedHeader> findHeader()
    {
        if (m_file.size() < pagesPlace)
            return std::nullopt;
        const auto header = headerAt(CorrectedHeader::place);
        if (header && header->checksumFits)
            return header;
        const bool hasCopy = m_file.size() >= pagesPlace + CorrectedHeader::room;
        const auto copy = hasCopy ? headerAt(m_file.size() - CorrectedHeader::room) : std::nullopt;
        const char *const copyWasRead = "The header of the file is damaged; its copy was read.";
        if (copy && (copy->checksumFits || !header)) {
            copy->checksumFits ? m_problems.mend(copyWasRead) : m_problems.warn(copyWasRead);
            return copy;
        }
        if (header)
            m_problems.warn("The checksum of the file's header does not fit.");
        return header;
    }

    // Blocks are looked at for damaged bytes only where the checksums tell that there are any.

    std::optional<CorrectedHeader> headerAt(std::size_t place)
    {
        const Bytes bytes = m_file.subspan(place, CorrectedHeader::blocks * correctedBlock);
        if (const auto asItIs = readCorrectedHeader(ownBytesOf(bytes, ErrorCode::Maps)); asItIs && asItIs->checksumFits)
            return asItIs;
        const auto page = correctedPage(bytes, ErrorCode::Maps);
        const auto header = page ? readCorrectedHeader(page->own) : std::nullopt;
        if (header && header->checksumFits)
            m_corrected += page->corrected;
        return header;
    }

    struct CorrectedPage
    {
        PageBytes own;
        std::size_t corrected = 0; ///< bytes; they are right where the checksums fit
    };

    /// The bytes of a page's blocks, put right; nothing where they are damaged beyond that.
    static std::optional<CorrectedPage> correctedPage(Bytes bytes, ErrorCode code)
    {
        PageBytes page(bytes.begin(), bytes.end());
        const Correction correction = correctPage(page, code);
        if (!correction.isWhole)
            return std::nullopt;
        return CorrectedPage{ownBytesOf(page, code), correction.count};
    }

    /// A map where its checksums fit, else its copy, else the one of both that can be read at all, which `doubt`
    /// tells. `placeOf` makes places of what the header has.
    template <typename PlaceOf>
    std::optional<PageBytes> findMap(const MapPlace &map, const char *doubt, PlaceOf placeOf)
    {
        std::optional<PageBytes> found;
        for (const std::uint64_t told : {map.place, map.copy}) {
            const auto place = placeOf(told);
            auto read = place ? mapAt(*place, map) : std::nullopt;
            if (read && read->checksumFits)
                return std::move(read->bytes);
            if (read && !found)
                found = std::move(read->bytes);
        }
        if (found)
            m_problems.warn(doubt);
        return found;
    }

    struct Map
    {
        PageBytes bytes;
        bool checksumFits = false;
    };

    std::optional<Map> mapAt(std::uint64_t place, const MapPlace &map)
    {
        if (map.packedSize > m_file.size() || map.size > largestMap(m_file.size()) || map.repeat > 1000)
            return std::nullopt;
        const Bytes bytes =
            pageAt(place, blocksFor((map.packedSize + 7) / 8 * 8 * map.repeat, ErrorCode::Maps) * correctedBlock);
        if (bytes.empty())
            return std::nullopt;
        if (auto asItIs = unpackedMap(ownBytesOf(bytes, ErrorCode::Maps), map); asItIs && asItIs->checksumFits)
            return asItIs;
        const auto page = correctedPage(bytes, ErrorCode::Maps);
        auto read = page ? unpackedMap(page->own, map) : std::nullopt;
        m_corrected += read && read->checksumFits ? page->corrected : 0;
        return read;
    }

    static std::optional<Map> unpackedMap(const PageBytes &own, const MapPlace &map)
    {
        auto plain = unpacked(own, map.packedSize, map.size);
        if (!plain)
            return std::nullopt;
        const bool fits = packedChecksum2007(Bytes(own).first(map.packedSize)) == map.packedChecksum &&
                          packedChecksum2007(*plain) == map.checksum;
        return Map{std::move(*plain), fits};
    }

    std::optional<std::uint64_t> placeOfPage(std::uint64_t number) const
    {
        const auto found = m_pages.find(static_cast<std::int64_t>(number));
        return found != m_pages.end() ? std::optional(found->second) : std::nullopt;
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
        UnpackedSection &unpacked = container.storage.emplace_back(section.size, pageSize);
        for (std::uint64_t i = 0; i < section.pageCount && !reader.hasFailed(); ++i) {
            if (!readPage(reader, section, unpacked.all()))
                m_problems.lose("A page of the section " + section.name + " cannot be read.");
        }
        assignSection(container, section.name, unpacked.bytes());
    }

    bool readPage(BitReader &reader, const Section2007 &section, std::span<std::uint8_t> bytes)
    {
        constexpr std::uint64_t withCorrection = 4;
        const std::uint64_t start = reader.raw64();
        reader.raw64(); // its size in the file
        const auto place = placeOfPage(reader.raw64());
        const std::uint64_t size = reader.raw64();
        PackedPage packed;
        packed.size = reader.raw64();
        packed.checksum = static_cast<std::uint32_t>(reader.raw64());
        packed.packedChecksum = reader.raw64();
        if (!place || start > bytes.size() || size > bytes.size() - start || packed.size > m_file.size() ||
            !m_work.take(size + packed.size))
            return false;
        packed.place = *place;
        const auto page = bytes.subspan(start, size);
        const PageState state = section.encoding == withCorrection ? readBlocks(packed, page) : readPlain(packed, page);
        if (state == PageState::Doubtful)
            m_problems.warn("The checksum of a page of the section " + section.name + " does not fit.");
        return state != PageState::Damaged;
    }

    /// Where a page stands, and the checksums of its two forms.
    struct PackedPage
    {
        std::uint64_t place = 0;
        std::uint64_t size = 0;
        std::uint32_t checksum = 0; ///< of what it unpacks to
        std::uint64_t packedChecksum = 0;
    };

    enum class PageState
    {
        Whole,
        Doubtful, ///< a checksum does not fit
        Damaged,  ///< only what is in front of the damage was read
    };

    static PageState unpackPage(const PackedPage &packed, Bytes own, std::span<std::uint8_t> page)
    {
        if (!unpackInto(page, own, packed.size))
            return PageState::Damaged;
        const bool fits = pageChecksum2007(page) == packed.checksum &&
                          packedChecksum2007(own.first(packed.size)) == packed.packedChecksum;
        return fits ? PageState::Whole : PageState::Doubtful;
    }

    PageState readPlain(const PackedPage &packed, std::span<std::uint8_t> page) const
    {
        return unpackPage(packed, pageAt(packed.place, packed.size), page);
    }

    PageState readBlocks(const PackedPage &packed, std::span<std::uint8_t> page)
    {
        const Bytes bytes =
            pageAt(packed.place, blocksFor((packed.size + 7) / 8 * 8, ErrorCode::Data) * correctedBlock);
        if (unpackPage(packed, ownBytesOf(bytes, ErrorCode::Data), page) == PageState::Whole)
            return PageState::Whole;
        PageBytes blocks(bytes.begin(), bytes.end());
        const std::size_t corrected = correctPage(blocks, ErrorCode::Data).count;
        const PageState state = unpackPage(packed, ownBytesOf(blocks, ErrorCode::Data), page);
        m_corrected += state == PageState::Whole ? corrected : 0;
        return state;
    }

    Bytes m_file;
    Problems &m_problems;
    std::map<std::int64_t, std::uint64_t> m_pages;
    Growth m_room;               ///< for sections
    Growth m_work;               ///< for pages, which a hostile file has again and again
    std::size_t m_corrected = 0; ///< bytes of what is whole now
};

} // namespace

void openCorrectedContainer(Bytes file, Container &container, Problems &problems)
{
    File2007(file, problems).read(container);
}

} // namespace host::dwg
