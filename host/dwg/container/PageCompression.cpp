#include "host/dwg/container/PageCompression.h"

#include "host/dwg/container/UnpackedPage.h"

namespace host::dwg {

namespace {

/// One run over a packed page. A code tells how many bytes are copied from how far back, and how many follow as they
/// are; numbers that are too large for a code go on in bytes behind it.
class PageUnpacker
{
public:
    PageUnpacker(Bytes packed, std::span<std::uint8_t> page) : m_packed(packed), m_page(page) {}

    bool run()
    {
        copyPlain(plainLength());
        while (!m_hasFailed && m_page.room() > 0) {
            const std::uint8_t code = m_code != 0 ? m_code : next();
            m_code = 0;
            if (code == endCode)
                break;
            copyRun(code);
        }
        return !m_hasFailed;
    }

private:
    static constexpr std::uint8_t endCode = 0x11;

    std::uint8_t next()
    {
        if (m_at < m_packed.size())
            return m_packed[m_at++];
        m_hasFailed = true;
        return 0;
    }

    /// Zeros stand for 255 each, the first other byte ends the number.
    std::size_t longNumber()
    {
        std::size_t number = 0;
        std::uint8_t byte = next();
        while (byte == 0 && !m_hasFailed) {
            number += 0xff;
            byte = next();
        }
        return number + byte;
    }

    /// How many bytes stand there as they are; none where the next byte is a code, which is kept then.
    std::size_t plainLength()
    {
        const std::uint8_t byte = next();
        if (byte > 0x0f) {
            m_code = byte;
            return 0;
        }
        return byte == 0 ? longNumber() + 0x0f + 3 : byte + std::size_t(3);
    }

    /// A distance of 14 bits; the other two bits are the number of plain bytes.
    std::size_t distance(std::size_t &plain)
    {
        const std::uint8_t low = next();
        plain = low & 3;
        return static_cast<std::size_t>(low >> 2 | next() << 6);
    }

    void copyRun(std::uint8_t code)
    {
        std::size_t length = 0;
        std::size_t back = 0;
        std::size_t plain = 0;
        if (code >= 0x40) {
            length = static_cast<std::size_t>((code >> 4) - 1);
            back = static_cast<std::size_t>(next() << 2 | (code >> 2 & 3));
            plain = code & 3;
        } else if (code >= 0x20) {
            length = code == 0x20 ? longNumber() + 0x21 : static_cast<std::size_t>(code - 0x1e);
            back = distance(plain);
        } else if (code >= 0x10) {
            length = code == 0x10 ? longNumber() + 9 : static_cast<std::size_t>(code & 0x0f) + 2;
            back = distance(plain) + 0x3fff;
        } else {
            m_hasFailed = true;
        }
        copyBack(length, back + 1);
        copyPlain(plain != 0 || m_hasFailed ? plain : plainLengthBehindRun());
    }

    std::size_t plainLengthBehindRun() { return m_page.room() > 0 ? plainLength() : 0; }

    void copyBack(std::size_t length, std::size_t back) { m_hasFailed = m_hasFailed || !m_page.repeat(length, back); }

    void copyPlain(std::size_t length)
    {
        m_hasFailed = m_hasFailed || !m_page.add(m_packed.subspan(m_at), length);
        m_at += m_hasFailed ? 0 : length;
    }

    Bytes m_packed;
    UnpackedPage m_page;
    std::size_t m_at = 0;    ///< in the packed bytes
    std::uint8_t m_code = 0; ///< read where plain bytes could have been
    bool m_hasFailed = false;
};

} // namespace

bool unpackPage(Bytes packed, std::span<std::uint8_t> page)
{
    return PageUnpacker(packed, page).run();
}

} // namespace host::dwg
