#include "host/dwg/container/PageCompression.h"

#include <algorithm>

namespace host::dwg {

namespace {

/// One run over a packed page. A code tells how many bytes are copied from how far back, and how many follow as they
/// are; numbers that are too large for a code go on in bytes behind it.
class PageUnpacker
{
public:
    PageUnpacker(Bytes packed, std::size_t size) : m_packed(packed), m_size(size) { m_unpacked.reserve(size); }

    std::optional<std::vector<std::uint8_t>> run()
    {
        copyPlain(plainLength());
        while (!m_hasFailed && m_unpacked.size() < m_size) {
            const std::uint8_t code = m_code != 0 ? m_code : next();
            m_code = 0;
            if (code == endCode)
                break;
            copyRun(code);
        }
        if (m_hasFailed || m_unpacked.size() > m_size)
            return std::nullopt;
        m_unpacked.resize(m_size);
        return std::move(m_unpacked);
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

    std::size_t plainLengthBehindRun() { return m_unpacked.size() < m_size ? plainLength() : 0; }

    void copyBack(std::size_t length, std::size_t back)
    {
        if (m_hasFailed || back > m_unpacked.size() || length > m_size - m_unpacked.size()) {
            m_hasFailed = true;
            return;
        }
        for (std::size_t from = m_unpacked.size() - back; length > 0; --length)
            m_unpacked.push_back(m_unpacked[from++]);
    }

    void copyPlain(std::size_t length)
    {
        if (m_hasFailed || length > m_packed.size() - m_at || length > m_size - m_unpacked.size()) {
            m_hasFailed = true;
            return;
        }
        const Bytes plain = m_packed.subspan(m_at, length);
        m_unpacked.insert(m_unpacked.end(), plain.begin(), plain.end());
        m_at += length;
    }

    Bytes m_packed;
    std::size_t m_size;
    std::size_t m_at = 0;
    std::uint8_t m_code = 0; ///< read where plain bytes could have been
    bool m_hasFailed = false;
    std::vector<std::uint8_t> m_unpacked;
};

} // namespace

std::optional<std::vector<std::uint8_t>> unpackPage(Bytes packed, std::size_t size)
{
    return PageUnpacker(packed, size).run();
}

} // namespace host::dwg
