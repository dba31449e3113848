#include "host/dwg/container/PageCompression2007.h"

#include "host/dwg/container/UnpackedPage.h"

#include <string_view>

namespace host::dwg {

namespace {

/// How a run of plain bytes of up to 31 is ordered: pieces of so many bytes, the last ones first. Pieces of 2 and 3 are
/// turned around, the two halves of 16 change places.
constexpr std::array<std::string_view, 32> pieceOrders = {
    "",  "1",   "2",   "3",  "4",  "14",  "141", "241", "8",  "18",  "181",  "281",  "48",  "148",  "1481", "2481",
    "G", "818", "1G1", "3G", "4G", "14G", "24G", "34G", "8G", "81G", "181G", "281G", "48G", "148G", "248G", "148G2",
};

class PageUnpacker2007
{
public:
    PageUnpacker2007(Bytes packed, std::span<std::uint8_t> page) : m_packed(packed), m_page(page) {}

    bool run()
    {
        m_code = next();
        std::size_t plain = 0;
        if (m_code >> 4 == 2) {
            next();
            next();
            plain = next() & 7;
        }
        while (hasMore()) {
            copyPlain(plain != 0 ? plain : plainLength());
            plain = hasMore() ? copyRuns() : 0;
        }
        return !m_hasFailed && m_page.room() == 0;
    }

private:
    bool hasMore() const { return !m_hasFailed && m_at < m_packed.size() && m_page.room() > 0; }

    std::uint8_t next()
    {
        if (m_at < m_packed.size())
            return m_packed[m_at++];
        m_hasFailed = true;
        return 0;
    }

    std::size_t next16()
    {
        const std::size_t low = next();
        return low | static_cast<std::size_t>(next()) << 8;
    }

    /// How many plain bytes the code asks for; numbers too large for it go on behind it.
    std::size_t plainLength()
    {
        std::size_t length = m_code + std::size_t(8);
        if (length != 0x17)
            return length;
        std::size_t more = next();
        length += more;
        if (more != 0xff)
            return length;
        do {
            more = next16();
            length += more;
        } while (more == 0xffff && !m_hasFailed);
        return length;
    }

    /// Copies runs that were there before, as long as they follow each other. How many plain bytes come then; 0 when
    /// the code tells it.
    std::size_t copyRuns()
    {
        m_code = next();
        while (!m_hasFailed) {
            readRun();
            copyBack();
            const std::size_t plain = m_code & 7;
            if (plain != 0 || !hasMore())
                return plain;
            m_code = next();
            if (m_code >> 4 == 0)
                return 0;
            if (m_code >> 4 == 15)
                m_code &= 15;
        }
        return 0;
    }

    void readRun()
    {
        switch (m_code >> 4) {
        case 0:
            m_length = (m_code & 0xfu) + 0x13u;
            m_back = next();
            m_code = next();
            m_length += m_code >> 3 & 0x10u;
            m_back += ((m_code & 0x78u) << 5) + 1;
            return;
        case 1:
            m_length = (m_code & 0xfu) + 3u;
            m_back = next();
            m_code = next();
            m_back += ((m_code & 0xf8u) << 5) + 1;
            return;
        case 2:
            return readLongRun();
        default:
            m_length = m_code >> 4;
            m_back = m_code & 15u;
            m_code = next();
            m_back += ((m_code & 0xf8u) << 1) + 1;
        }
    }

    void readLongRun()
    {
        m_back = next16();
        m_length = m_code & 7u;
        if ((m_code & 8) == 0) {
            m_code = next();
            m_length += m_code & 0xf8u;
            return;
        }
        ++m_back;
        m_length += static_cast<std::size_t>(next()) << 3;
        m_code = next();
        m_length += ((m_code & 0xf8u) << 8) + 0x100u;
    }

    void copyBack() { m_hasFailed = m_hasFailed || !m_page.repeat(m_length, m_back); }

    void copyPlain(std::size_t length)
    {
        if (m_hasFailed || length > m_packed.size() - m_at || length > m_page.room()) {
            m_hasFailed = true;
            return;
        }
        for (; length >= 32; length -= 32) {
            copyPiece(m_at + 16, 16);
            copyPiece(m_at, 16);
            m_at += 32;
        }
        std::size_t end = m_at + length;
        for (const char letter : pieceOrders[length]) {
            const std::size_t size = letter == 'G' ? 16 : static_cast<std::size_t>(letter - '0');
            end -= size;
            copyPiece(end, size);
        }
        m_at += length;
    }

    /// The bytes are there, and so is their room.
    void copyPiece(std::size_t from, std::size_t size)
    {
        const auto copy = [this](std::size_t begin, std::size_t count) { m_page.add(m_packed.subspan(begin), count); };
        if (size == 16) {
            copy(from + 8, 8);
            copy(from, 8);
        } else if (size == 2 || size == 3) {
            while (size > 0)
                copy(from + --size, 1);
        } else {
            copy(from, size);
        }
    }

    Bytes m_packed;
    UnpackedPage m_page;
    std::size_t m_at = 0; ///< in the packed bytes
    std::uint8_t m_code = 0;
    std::size_t m_length = 0; ///< of the run that is copied
    std::size_t m_back = 0;   ///< from how far back
    bool m_hasFailed = false;
};

} // namespace

bool unpackPage2007(Bytes packed, std::span<std::uint8_t> page)
{
    return PageUnpacker2007(packed, page).run();
}

} // namespace host::dwg
