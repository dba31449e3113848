// Files of R2007: pages in blocks of 255 bytes, some of which would correct the others.

#include "host/dwg/bits/Checksums.h"
#include "host/dwg/bits/ErrorCorrection.h"
#include "tests/dwg/making/MadeFile.h"

#include <algorithm>

namespace host::dwg::test {

namespace {

constexpr std::size_t correctedHeaderPlace = 0x80;
constexpr std::size_t headerRoom = 0x400;
constexpr std::size_t pageUnit = 0x20;

/// The product in the field of 256 elements over the code's polynomial, bit by bit.
std::uint8_t productOf(ErrorCode code, int a, int b)
{
    const int polynomial = code == ErrorCode::Maps ? 0x169 : 0x11d;
    int result = 0;
    for (; b != 0; b >>= 1) {
        result ^= (b & 1) != 0 ? a : 0;
        a <<= 1;
        a ^= a > 0xff ? polynomial : 0;
    }
    return static_cast<std::uint8_t>(result);
}

/// The polynomial that blocks are multiples of, without its highest factor, highest first. Blocks end with their added
/// bytes, so read from there they are 0 at the powers of 2 and read from the front at their inverses.
FileBytes generatorOf(ErrorCode code)
{
    int inverse = 1;
    while (productOf(code, inverse, 2) != 1)
        ++inverse;
    FileBytes generator = {1};
    std::uint8_t root = 1;
    for (std::size_t i = ownBytes(code); i < correctedBlock; ++i) {
        root = productOf(code, root, inverse);
        generator.push_back(0);
        for (std::size_t k = generator.size() - 1; k > 0; --k)
            generator[k] = static_cast<std::uint8_t>(generator[k] ^ productOf(code, generator[k - 1], root));
    }
    generator.erase(generator.begin());
    return generator;
}

/// The block's own bytes and what is left when they are divided by the generator.
FileBytes blockOf(ErrorCode code, FileBytes own, const FileBytes &generator)
{
    FileBytes rest(generator.size());
    for (const std::uint8_t byte : own) {
        const std::uint8_t factor = byte ^ rest.front();
        rest.erase(rest.begin());
        rest.push_back(0);
        for (std::size_t i = 0; i < rest.size(); ++i)
            rest[i] = static_cast<std::uint8_t>(rest[i] ^ productOf(code, factor, generator[i]));
    }
    own.insert(own.end(), rest.begin(), rest.end());
    return own;
}

} // namespace

FileBytes correctedBlocks(ErrorCode code, FileBytes bytes)
{
    const std::size_t own = ownBytes(code);
    const std::size_t blocks = (bytes.size() + own - 1) / own;
    bytes.resize(blocks * own);
    const FileBytes generator = generatorOf(code);
    FileBytes page(blocks * correctedBlock);
    for (std::size_t one = 0; one < blocks; ++one) {
        const auto begin = bytes.begin() + static_cast<std::ptrdiff_t>(one * own);
        const FileBytes block = blockOf(code, FileBytes(begin, begin + static_cast<std::ptrdiff_t>(own)), generator);
        for (std::size_t i = 0; i < block.size(); ++i)
            page[one + i * blocks] = block[i];
    }
    return page;
}

namespace {

class CorrectedFileMaker
{
public:
    FileBytes run(const std::vector<MadeSection> &sections)
    {
        BitWriter descriptions;
        for (const MadeSection &section : sections)
            writeSection(section, descriptions);
        const FileBytes sectionMap = descriptions.bytes();
        const std::size_t sectionPages[] = {addPage(mapPage(sectionMap)), addPage(mapPage(sectionMap))};
        // The map of pages tells of its own two pages too.
        const FileBytes untold = pageMap(0);
        const std::size_t room = paddedSize(mapPage(untold).size());
        const FileBytes pages = pageMap(room);
        const std::size_t pagePlaces[] = {m_pages.size(), m_pages.size() + room};
        addPage(mapPage(pages));
        addPage(mapPage(pages));

        std::array<std::uint64_t, 34> numbers{};
        numbers[0] = 0x70;
        numbers[3] = 1;
        numbers[5] = pagePlaces[1];
        numbers[7] = pagePlaces[0];
        numbers[10] = numbers[11] = pages.size();
        numbers[22] = numbers[25] = sectionMap.size();
        numbers[23] = sectionPages[1];
        numbers[24] = sectionPages[0];
        numbers[27] = 1;
        numbers[2] = numbers[16] = packedChecksum2007(pages);
        numbers[21] = numbers[26] = packedChecksum2007(sectionMap);
        numbers[33] = headerChecksum2007(bytesOf(numbers));
        return wholeFile(headerPage(numbers));
    }

private:
    static std::size_t paddedSize(std::size_t size) { return (size + pageUnit - 1) / pageUnit * pageUnit; }

    static FileBytes mapPage(const FileBytes &content) { return correctedBlocks(ErrorCode::Maps, content); }

    static FileBytes bytesOf(std::span<const std::uint64_t> numbers)
    {
        BitWriter writer;
        for (const std::uint64_t number : numbers)
            writer.raw64(number);
        return writer.bytes();
    }

    static FileBytes headerPage(const std::array<std::uint64_t, 34> &numbers)
    {
        const FileBytes plain = bytesOf(numbers);
        BitWriter header;
        header.append(FileBytes(16, 0));
        header.raw64(headerChecksum2007(plain));
        header.raw32(static_cast<std::uint32_t>(-static_cast<int>(plain.size()))); // not packed
        header.raw32(0);
        header.append(plain);
        FileBytes content = header.bytes();
        content.resize(3 * ownBytes(ErrorCode::Maps));
        FileBytes page = correctedBlocks(ErrorCode::Maps, content);
        page.resize(headerRoom);
        return page;
    }

    FileBytes wholeFile(const FileBytes &header) const
    {
        BitWriter file;
        file.rawBytes("AC1021");
        file.append(FileBytes(0x0d, 0));
        file.raw16(30);
        FileBytes whole = file.bytes();
        whole.resize(correctedHeaderPlace);
        whole[0x28] = correctedHeaderPlace;
        for (const FileBytes *part : {&header, &m_pages, &header})
            whole.insert(whole.end(), part->begin(), part->end());
        return whole;
    }

    void writeSection(const MadeSection &section, BitWriter &description)
    {
        const std::u16string name = wideText(section.name);
        const std::size_t pageCount = (section.bytes.size() + section.pageSize - 1) / section.pageSize;
        constexpr std::uint64_t withCorrection = 4;
        for (const std::uint64_t number :
             {section.toldSize(), std::uint64_t(section.pageSize), std::uint64_t(0), std::uint64_t(0),
              std::uint64_t(2 * name.size() + 2), std::uint64_t(0), withCorrection, std::uint64_t(pageCount)})
            description.raw64(number);
        for (const char16_t unit : name)
            description.raw16(unit);
        description.raw16(0);
        for (std::size_t start = 0; start < section.bytes.size(); start += section.pageSize)
            writePage(section, start, description);
    }

    void writePage(const MadeSection &section, std::size_t start, BitWriter &description)
    {
        const auto begin = section.bytes.begin() + static_cast<std::ptrdiff_t>(start);
        const std::size_t size = std::min<std::size_t>(section.pageSize, section.bytes.size() - start);
        const FileBytes content(begin, begin + static_cast<std::ptrdiff_t>(size));
        const FileBytes page = correctedBlocks(ErrorCode::Data, content);
        description.raw64(start);
        description.raw64(paddedSize(page.size()));
        description.raw64(addPage(page));
        description.raw64(size);
        description.raw64(size); // not packed
        description.raw64(pageChecksum2007(content));
        description.raw64(packedChecksum2007(content));
    }

    std::size_t addPage(FileBytes page)
    {
        page.resize(paddedSize(page.size()));
        m_pages.insert(m_pages.end(), page.begin(), page.end());
        m_sizes.push_back(page.size());
        return m_sizes.size();
    }

    FileBytes pageMap(std::size_t ownSize) const
    {
        std::vector<std::size_t> sizes = m_sizes;
        sizes.insert(sizes.end(), 2, ownSize);
        BitWriter map;
        for (std::size_t i = 0; i < sizes.size(); ++i) {
            map.raw64(sizes[i]);
            map.raw64(i + 1);
        }
        return map.bytes();
    }

    FileBytes m_pages;
    std::vector<std::size_t> m_sizes; ///< page 1 first
};

} // namespace

FileBytes correctedFile(const std::vector<MadeSection> &sections)
{
    return CorrectedFileMaker().run(sections);
}

} // namespace host::dwg::test
