// Files of R2004, R2010 and later: a mixed header, data pages, and two maps that tell where they are.

#include "host/dwg/bits/Checksums.h"
#include "tests/dwg/making/MadeFile.h"

#include <algorithm>

namespace host::dwg::test {

namespace {

constexpr std::uint32_t dataPageType = 0x4163043b;
constexpr std::uint32_t pageMapType = 0x41630e3b;
constexpr std::uint32_t sectionMapType = 0x4163003b;
constexpr std::size_t pagesBegin = 0x100;
constexpr std::size_t headerPlace = 0x80;
constexpr std::size_t mixedHeaderSize = 0x6c;

/// The numbers that the header is mixed with.
FileBytes mixture()
{
    FileBytes bytes;
    std::uint32_t number = 1;
    for (int i = 0; i < 0x80; ++i) {
        number = number * 0x343fd + 0x269ec3;
        bytes.push_back(static_cast<std::uint8_t>(number >> 16));
    }
    return bytes;
}

class PagedFileMaker
{
public:
    PagedFileMaker(Release release, const std::vector<MadeSection> &sections) : m_sections(sections)
    {
        BitWriter start;
        start.rawBytes("AC" + std::to_string(static_cast<int>(release)));
        start.append(FileBytes(0x0d, 0));
        start.raw16(30); // the code page
        m_file = start.bytes();
        m_file.resize(pagesBegin);
        m_file[0x28] = 0x80; // where the header is
    }

    FileBytes run()
    {
        BitWriter descriptions;
        descriptions.raw32(static_cast<std::uint32_t>(m_sections.size()));
        for (const std::uint32_t number : {0x02u, 0x7400u, 0u, static_cast<std::uint32_t>(m_sections.size())})
            descriptions.raw32(number);
        for (std::size_t i = 0; i < m_sections.size(); ++i)
            writeSection(m_sections[i], static_cast<std::uint32_t>(i + 1), descriptions);
        const int sectionMap = addPage(systemPage(sectionMapType, descriptions.bytes()));
        writeHeader(addPageMap(), sectionMap);
        return m_file;
    }

private:
    void writeSection(const MadeSection &section, std::uint32_t number, BitWriter &description)
    {
        const std::size_t pageCount = (section.bytes.size() + section.pageSize - 1) / section.pageSize;
        description.raw64(section.toldSize());
        description.raw32(static_cast<std::uint32_t>(pageCount * section.repeat));
        description.raw32(section.pageSize);
        description.raw32(1);
        description.raw32(section.isPacked ? 2 : 1);
        description.raw32(number);
        description.raw32(0); // not encrypted
        std::string name = section.name;
        name.resize(64);
        description.rawBytes(name);
        for (std::size_t start = 0; start < section.bytes.size(); start += section.pageSize) {
            const FileBytes packed = contentOf(section, start);
            const int page = addPage(dataPage(packed, section, number, start));
            for (std::size_t i = 0; i < section.repeat; ++i) {
                description.raw32(static_cast<std::uint32_t>(page));
                description.raw32(static_cast<std::uint32_t>(packed.size()));
                description.raw64(start);
            }
        }
    }

    /// What stands in the page that has the section from `start` on.
    static FileBytes contentOf(const MadeSection &section, std::size_t start)
    {
        const auto begin = section.bytes.begin() + static_cast<std::ptrdiff_t>(start);
        FileBytes content(begin, begin + static_cast<std::ptrdiff_t>(
                                             std::min<std::size_t>(section.pageSize, section.bytes.size() - start)));
        if (!section.isPacked)
            return content;
        content.resize(section.pageSize);
        return section.isTight ? packedTight(content) : packedPlain(content);
    }

    FileBytes dataPage(const FileBytes &packed, const MadeSection &section, std::uint32_t number, std::size_t start)
    {
        std::array<std::uint32_t, 8> head = {dataPageType,
                                             number,
                                             static_cast<std::uint32_t>(packed.size()),
                                             section.pageSize,
                                             static_cast<std::uint32_t>(start),
                                             0,
                                             0,
                                             pageChecksum(packed, 0)};
        BitWriter plain;
        for (const std::uint32_t one : head)
            plain.raw32(one);
        head[6] = pageChecksum(plain.bytes(), head[7]);
        BitWriter page;
        for (const std::uint32_t one : head)
            page.raw32(one ^ 0x4164536b ^ static_cast<std::uint32_t>(m_file.size()));
        page.append(Bytes(packed));
        return page.bytes();
    }

    static FileBytes systemPage(std::uint32_t type, const FileBytes &content)
    {
        const FileBytes packed = packedPlain(content);
        BitWriter head;
        for (const std::size_t number : {std::size_t(type), content.size(), packed.size(), std::size_t(2)})
            head.raw32(static_cast<std::uint32_t>(number));
        const std::size_t place = head.position();
        head.raw32(0);
        head.putRaw32(place, pageChecksum(packed, pageChecksum(head.bytes(), 0)));
        head.append(Bytes(packed));
        return head.bytes();
    }

    /// Appends a page, filled up to whole units of 32 bytes; its number.
    int addPage(FileBytes page)
    {
        page.resize((page.size() + 31) / 32 * 32);
        m_file.insert(m_file.end(), page.begin(), page.end());
        m_pageSizes.push_back(page.size());
        return static_cast<int>(m_pageSizes.size());
    }

    /// The map tells its own size too.
    std::size_t addPageMap()
    {
        const std::size_t at = m_file.size();
        m_pageSizes.push_back(0);
        for (int run = 0; run < 2; ++run) {
            BitWriter map;
            for (std::size_t i = 0; i < m_pageSizes.size(); ++i) {
                map.raw32(static_cast<std::uint32_t>(i + 1));
                map.raw32(static_cast<std::uint32_t>(m_pageSizes[i]));
            }
            FileBytes page = systemPage(pageMapType, map.bytes());
            page.resize((page.size() + 31) / 32 * 32);
            m_pageSizes.back() = page.size();
            m_file.resize(at);
            m_file.insert(m_file.end(), page.begin(), page.end());
        }
        return at;
    }

    void writeHeader(std::size_t pageMap, int sectionMap)
    {
        const std::uint64_t secondHeader = m_file.size();
        const auto pages = static_cast<std::uint32_t>(m_pageSizes.size());
        BitWriter header;
        header.rawBytes(std::string("AcFssFcAJMB\0", 12));
        for (const std::uint32_t number : {0x00u, 0x6cu, 0x04u, 0x00u, 0x00u, 0x00u, 0x01u, pages})
            header.raw32(number);
        header.raw64(m_file.size() - pagesBegin);
        header.raw64(secondHeader);
        for (const std::uint32_t number : {0x00u, pages, 0x20u, 0x80u, 0x40u, pages})
            header.raw32(number);
        header.raw64(pageMap - pagesBegin);
        for (const std::uint32_t number : {static_cast<std::uint32_t>(sectionMap), pages, 0u})
            header.raw32(number);
        const std::size_t place = header.position();
        header.raw32(0);
        header.putRaw32(place, checksum32(header.bytes(), 0));
        FileBytes mixed = mixture();
        for (std::size_t i = 0; i < header.bytes().size(); ++i)
            mixed[i] ^= header.bytes()[i];
        std::copy(mixed.begin(), mixed.end(), m_file.begin() + headerPlace);
        m_file.insert(m_file.end(), mixed.begin(), mixed.begin() + mixedHeaderSize);
    }

    const std::vector<MadeSection> &m_sections;
    FileBytes m_file;
    std::vector<std::size_t> m_pageSizes; ///< page 1 first
};

} // namespace

FileBytes packedPlain(const FileBytes &bytes)
{
    constexpr std::size_t mostOfACode = 18;
    BitWriter out;
    if (bytes.size() <= mostOfACode) {
        out.byte(static_cast<int>(bytes.size()) - 3);
    } else {
        out.byte(0);
        std::size_t more = bytes.size() - mostOfACode;
        for (; more > 0xff; more -= 0xff)
            out.byte(0);
        out.byte(static_cast<int>(more));
    }
    out.append(Bytes(bytes));
    for (const int end : {0x11, 0, 0})
        out.byte(end);
    return out.bytes();
}

FileBytes pagedFile(Release release, const std::vector<MadeSection> &sections)
{
    return PagedFileMaker(release, sections).run();
}

} // namespace host::dwg::test
