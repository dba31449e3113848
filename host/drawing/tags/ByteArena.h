#pragma once

#include <QByteArrayView>

#include <cstring>
#include <memory>
#include <vector>

namespace host::drawing {

/// Keeps the bytes of edited records. Addresses stay; nothing is freed before the arena, as the journal refers to it:
/// a drawing grows by every edit until it is closed.
class ByteArena
{
public:
    /// Where the copy is, without a zero behind it. No address is given twice, but for no bytes at all.
    const char *store(QByteArrayView bytes)
    {
        const auto size = static_cast<size_t>(bytes.size());
        char *place = size > chunkSize / 4 ? addChunk(size) : take(size);
        if (size > 0)
            std::memcpy(place, bytes.data(), size);
        return place;
    }

private:
    // What is larger than a quarter of a chunk gets one of its own, so that no more than that is ever left unused.
    static constexpr size_t chunkSize = 64 * 1024;

    char *addChunk(size_t size) { return m_chunks.emplace_back(std::make_unique<char[]>(size)).get(); }
    char *take(size_t size)
    {
        if (!m_free || size > m_left) {
            m_free = addChunk(chunkSize);
            m_left = chunkSize;
        }
        char *place = m_free;
        m_free += size;
        m_left -= size;
        return place;
    }

    std::vector<std::unique_ptr<char[]>> m_chunks; ///< in the order in which they were needed
    char *m_free = nullptr;                        ///< behind what was taken of the chunk in use
    size_t m_left = 0;                             ///< bytes from there to its end
};

} // namespace host::drawing
