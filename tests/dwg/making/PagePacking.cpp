// Pages of R2004 and later, packed with what they repeat: as files of other programs have them.

#include "tests/dwg/making/MadeFile.h"

#include <algorithm>
#include <array>
#include <utility>

namespace host::dwg::test {

namespace {

/// Takes the last place with the same four bytes as what is repeated, without looking for a longer one.
class PagePacker
{
public:
    explicit PagePacker(const FileBytes &bytes) : m_bytes(bytes) {}

    FileBytes run()
    {
        std::size_t plain = 0; // from where on bytes stand as they are
        for (std::size_t at = 0; at + shortestRun <= m_bytes.size();) {
            const std::size_t before = std::exchange(placeOf(at), at);
            const std::size_t length = before < at ? sameBytes(before, at) : 0;
            // A page begins with as many plain bytes as have a code.
            if (length < shortestRun || (m_out.empty() && at < shortestRun)) {
                ++at;
                continue;
            }
            putPlain(plain, at);
            putRun(length, at - before - 1);
            at += length;
            plain = at;
        }
        putPlain(plain, m_bytes.size());
        m_out.insert(m_out.end(), {0x11, 0, 0});
        return m_out;
    }

private:
    static constexpr std::size_t shortestRun = 4;

    std::size_t &placeOf(std::size_t at)
    {
        std::uint32_t bytes = 0;
        for (std::size_t i = 0; i < shortestRun; ++i)
            bytes = bytes << 8 | m_bytes[at + i];
        return m_places[bytes * 0x9e3779b1U >> 20];
    }

    std::size_t sameBytes(std::size_t before, std::size_t at) const
    {
        std::size_t length = 0;
        while (at + length < m_bytes.size() && m_bytes[before + length] == m_bytes[at + length])
            ++length;
        return length;
    }

    void put(std::size_t byte) { m_out.push_back(static_cast<std::uint8_t>(byte)); }

    /// Zeros stand for 255 each.
    void putLong(std::size_t number)
    {
        for (; number > 0xff; number -= 0xff)
            put(0);
        put(number);
    }

    /// Up to three bytes are told in front of them, by the run.
    void putPlain(std::size_t begin, std::size_t end)
    {
        const std::size_t length = end - begin;
        if (length > 18) {
            put(0);
            putLong(length - 18);
        } else if (length > 3) {
            put(length - 3);
        } else if (length > 0) {
            m_out[m_plainBits] = static_cast<std::uint8_t>(m_out[m_plainBits] | length);
        }
        m_out.insert(m_out.end(), m_bytes.begin() + static_cast<std::ptrdiff_t>(begin),
                     m_bytes.begin() + static_cast<std::ptrdiff_t>(end));
    }

    void putRun(std::size_t length, std::size_t back)
    {
        constexpr std::size_t nearBy = 0x3ff;
        constexpr std::size_t far = 0x3fff;
        if (back <= nearBy && length <= 14) {
            m_plainBits = m_out.size();
            put((length + 1) << 4 | (back & 3) << 2);
            return put(back >> 2);
        }
        // Longer runs than the code has room for go on behind it.
        const std::size_t code = back <= far ? 0x20 : 0x10;
        const std::size_t longest = back <= far ? 0x21 : 9;
        put(length <= longest ? code + length - 2 : code);
        if (length > longest)
            putLong(length - longest);
        putDistance(back <= far ? back : back - far);
    }

    void putDistance(std::size_t back)
    {
        m_plainBits = m_out.size();
        put((back & 0x3f) << 2);
        put(back >> 6);
    }

    const FileBytes &m_bytes;
    FileBytes m_out;
    std::size_t m_plainBits = 0; ///< where the run tells how many plain bytes follow
    std::array<std::size_t, 4096> m_places{};
};

} // namespace

FileBytes packedTight(const FileBytes &bytes)
{
    return PagePacker(bytes).run();
}

} // namespace host::dwg::test
