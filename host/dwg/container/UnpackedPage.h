#pragma once

#include "host/dwg/bits/BitReader.h"

#include <cstring>
#include <span>

namespace host::dwg {

/// A page while it is unpacked: bytes come from the packed ones and from those that are there already. Writes nothing
/// beyond what is asked for; what does not fit is refused.
class UnpackedPage
{
public:
    explicit UnpackedPage(std::span<std::uint8_t> bytes) : m_bytes(bytes) {}

    std::size_t room() const { return m_bytes.size() - m_used; }

    /// Adds the first `length` bytes of `from`. False, and nothing added, where they are not there or have no room.
    bool add(Bytes from, std::size_t length)
    {
        if (length > from.size() || length > room())
            return false;
        copy(from.data(), length);
        return true;
    }

    /// Repeats `length` bytes from `back` bytes before the end on, which may go on with what they add. False where
    /// there is nothing as far back, or no room.
    bool repeat(std::size_t length, std::size_t back)
    {
        if (back == 0 || back > m_used || length > room())
            return false;
        // A run that goes on with itself doubles what there is of it with each step.
        const std::uint8_t *const from = m_bytes.data() + m_used - back;
        for (std::size_t there = back; length > 0;) {
            const std::size_t step = std::min(length, there);
            copy(from, step);
            length -= step;
            there += step;
        }
        return true;
    }

private:
    /// Most runs are short, and are copied as two words that may overlap.
    void copy(const std::uint8_t *from, std::size_t length)
    {
        std::uint8_t *const to = m_bytes.data() + m_used;
        m_used += length;
        if (length >= 8 && length <= 16)
            copyEnds<std::uint64_t>(from, to, length);
        else if (length >= 4 && length < 8)
            copyEnds<std::uint32_t>(from, to, length);
        else if (length > 16)
            std::memcpy(to, from, length);
        else
            for (std::size_t i = 0; i < length; ++i)
                to[i] = from[i];
    }

    template <typename Word>
    static void copyEnds(const std::uint8_t *from, std::uint8_t *to, std::size_t length)
    {
        Word first;
        Word last;
        std::memcpy(&first, from, sizeof first);
        std::memcpy(&last, from + length - sizeof last, sizeof last);
        std::memcpy(to, &first, sizeof first);
        std::memcpy(to + length - sizeof last, &last, sizeof last);
    }

    std::span<std::uint8_t> m_bytes;
    std::size_t m_used = 0;
};

} // namespace host::dwg
