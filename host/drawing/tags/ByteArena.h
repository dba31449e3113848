#pragma once

#include <QByteArrayView>

#include <cstring>
#include <memory>
#include <vector>

namespace host::drawing {

/// Keeps the bytes of edited records. Addresses stay; nothing is freed before the arena, as the journal refers to it.
class ByteArena
{
public:
    const char *store(QByteArrayView bytes)
    {
        const auto size = static_cast<size_t>(bytes.size());
        char *place = size > chunkSize / 4 ? addChunk(size) : take(size);
        if (size > 0)
            std::memcpy(place, bytes.data(), size);
        return place;
    }

private:
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

    std::vector<std::unique_ptr<char[]>> m_chunks;
    char *m_free = nullptr;
    size_t m_left = 0;
};

} // namespace host::drawing
