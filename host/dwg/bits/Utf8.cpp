#include "host/dwg/bits/Utf8.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace host::dwg {

namespace {

/// Where the first run of `AtOnce` bytes with one beyond ASCII begins, or the last bytes that are fewer.
template <std::size_t AtOnce>
std::size_t skipAscii(std::string_view text, std::size_t from)
{
    constexpr std::uint64_t highBits = 0x8080'8080'8080'8080;
    for (; text.size() - from >= AtOnce; from += AtOnce) {
        std::uint64_t bits = 0;
        for (std::size_t i = 0; i < AtOnce; i += sizeof bits) {
            std::uint64_t word = 0;
            std::memcpy(&word, text.data() + from + i, sizeof word);
            bits |= word;
        }
        if ((bits & highBits) != 0)
            break;
    }
    return from;
}

/// Where the next byte beyond ASCII is; `text.size()` without one.
std::size_t nextBeyondAscii(std::string_view text, std::size_t from)
{
    from = skipAscii<8>(text, skipAscii<128>(text, from));
    const auto isBeyond = [](char c) { return static_cast<unsigned char>(c) >= 0x80; };
    return static_cast<std::size_t>(
        std::find_if(text.begin() + static_cast<std::ptrdiff_t>(from), text.end(), isBeyond) - text.begin());
}

/// The bytes of the character beyond ASCII that `text` begins with; 0 where there is none.
std::size_t longCharacterSize(std::string_view text)
{
    const auto byte = [text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned first = byte(0);
    const std::size_t size = first >= 0xc2 && first < 0xe0   ? 2
                             : first >= 0xe0 && first < 0xf0 ? 3
                             : first >= 0xf0 && first < 0xf5 ? 4
                                                             : 0;
    if (size == 0 || size > text.size())
        return 0;
    // The second byte tells forms that are too long, halves of pairs, and what is beyond the last character.
    const unsigned least = first == 0xe0 ? 0xa0 : first == 0xf0 ? 0x90 : 0x80;
    const unsigned most = first == 0xed ? 0x9f : first == 0xf4 ? 0x8f : 0xbf;
    if (byte(1) < least || byte(1) > most)
        return 0;
    for (std::size_t i = 2; i < size; ++i) {
        if ((byte(i) & 0xc0) != 0x80)
            return 0;
    }
    return size;
}

} // namespace

std::size_t replaceNoUtf8(std::string &text)
{
    const std::string_view all = text;
    std::string mended;
    std::size_t count = 0;
    std::size_t taken = 0; // what is in `mended`, once there is a byte to be replaced
    for (std::size_t at = nextBeyondAscii(all, 0); at < all.size();) {
        const std::size_t size = longCharacterSize(all.substr(at));
        if (size == 0) {
            mended += all.substr(taken, at - taken);
            mended += "\xef\xbf\xbd";
            taken = at + 1;
            ++count;
        }
        at = nextBeyondAscii(all, at + std::max<std::size_t>(size, 1));
    }
    if (count > 0) {
        mended += all.substr(taken);
        text = std::move(mended);
    }
    return count;
}

} // namespace host::dwg
