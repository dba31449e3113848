#include "host/dwg/contents/DataStore.h"

#include <algorithm>
#include <array>

namespace host::dwg {

namespace {

constexpr std::size_t segmentHeadSize = 0x30;

// Programs have fewer than half as many of each; more is damage, which could multiply.
constexpr std::size_t mostSchemas = 64;
constexpr std::size_t mostOfASchema = 16; ///< properties, and attributes of each
constexpr std::size_t longestName = 255;

int sizeOfType(int type)
{
    constexpr std::array<int, 16> sizes = {0, 0, 2, 1, 2, 4, 8, 1, 2, 4, 8, 4, 8, 0, 0, 0};
    return type >= 0 && type < static_cast<int>(sizes.size()) ? sizes[static_cast<std::size_t>(type)] : 0;
}

/// The store is made of segments: a table of them, tables of schemas and records, and what these tables tell the places
/// of, by segment and offset.
class DataStoreReader
{
public:
    explicit DataStoreReader(Bytes bytes) : m_bytes(bytes) {}

    /// False where something was damaged; what stands in front of it was read.
    bool read(DataStore &store)
    {
        BitReader head(m_bytes);
        head.skip(8 * 8); // a signature and the size of this head
        store.kind = static_cast<int>(head.raw32());
        store.version = static_cast<int>(head.raw32());
        head.skip(8 * 8);
        const std::uint64_t table = head.raw64();
        const std::uint32_t count = head.raw32();
        const std::uint32_t schemas = head.raw32();
        const std::uint32_t records = head.raw32();
        return !head.hasFailed() && readSegments(table, count) && readSchemas(schemas, store) &&
               readRecords(records, store);
    }

private:
    struct Segment
    {
        Bytes bytes;
        std::size_t names = 0; ///< where its names begin
        std::size_t data = 0;  ///< where the data of its records begin
    };

    bool readSegments(std::uint64_t table, std::uint32_t count)
    {
        if (table >= m_bytes.size() || m_bytes.size() - table < segmentHeadSize)
            return false;
        BitReader reader(m_bytes, (table + segmentHeadSize) * 8, m_bytes.size() * 8);
        for (std::uint32_t i = 0; i < count; ++i) {
            const std::uint64_t offset = reader.raw64();
            const std::uint32_t size = reader.raw32();
            if (reader.hasFailed())
                return false;
            m_segments.push_back(segmentAt(offset, size));
        }
        return true;
    }

    Segment segmentAt(std::uint64_t offset, std::uint32_t size) const
    {
        constexpr std::size_t placesOfAlignments = 0x20;
        constexpr int unit = 16;
        Segment segment;
        if (size < segmentHeadSize || offset >= m_bytes.size() || m_bytes.size() - offset < size)
            return segment;
        segment.bytes = m_bytes.subspan(offset, size);
        BitReader reader(segment.bytes, placesOfAlignments * 8, size * 8);
        segment.names = static_cast<std::size_t>(reader.raw32()) * unit;
        segment.data = static_cast<std::size_t>(reader.raw32()) * unit;
        return segment;
    }

    const Segment &segment(std::uint32_t index) const
    {
        static const Segment none;
        return index < m_segments.size() ? m_segments[index] : none;
    }

    /// From a place behind the head of a segment.
    static BitReader at(const Segment &segment, std::uint64_t offset)
    {
        const std::uint64_t begin = std::min<std::uint64_t>(segmentHeadSize + offset, segment.bytes.size());
        return {segment.bytes, begin * 8, segment.bytes.size() * 8};
    }

    static std::vector<std::string> namesIn(const Segment &segment)
    {
        BitReader reader(segment.bytes, std::min(segment.names, segment.bytes.size()) * 8, segment.bytes.size() * 8);
        std::vector<std::string> names(std::min<std::size_t>(reader.raw32(), reader.left() / 8));
        for (std::string &name : names) {
            for (char c = static_cast<char>(reader.byte()); c != '\0' && !reader.hasFailed();
                 c = static_cast<char>(reader.byte()))
                name += c;
        }
        return names;
    }

    bool readSchemas(std::uint32_t index, DataStore &store)
    {
        const std::vector<std::string> names = namesIn(segment(index));
        BitReader reader = at(segment(index), 0);
        const std::uint64_t count = reader.raw64();
        if (count > mostSchemas)
            return false;
        for (std::uint64_t i = 0; i < count && !reader.hasFailed(); ++i) {
            DataStore::Schema schema;
            schema.number = static_cast<int>(reader.raw32());
            const Segment &place = segment(reader.raw32());
            const std::uint32_t offset = reader.raw32();
            if (reader.hasFailed() || !readSchema(place, offset, schema))
                return false;
            schema.name = i < names.size() && names[i].size() <= longestName ? names[i] : std::string();
            store.schemas.push_back(std::move(schema));
        }
        return readAttributes(reader, store);
    }

    static std::vector<std::size_t> readNumbers(BitReader &reader)
    {
        const std::size_t count = reader.raw16();
        if (count > mostOfASchema)
            reader.fail();
        std::vector<std::size_t> numbers(reader.hasFailed() ? 0 : count);
        for (std::size_t &number : numbers)
            number = reader.raw64();
        return numbers;
    }

    static bool readSchema(const Segment &place, std::uint32_t offset, DataStore::Schema &schema)
    {
        const std::vector<std::string> names = namesIn(place);
        BitReader reader = at(place, offset);
        schema.attributes = readNumbers(reader);
        const std::size_t count = reader.raw16();
        if (count > mostOfASchema)
            return false;
        for (std::size_t i = 0; i < count && !reader.hasFailed(); ++i) {
            constexpr std::uint32_t hasUsual = 8;
            constexpr std::uint32_t known = hasUsual;
            const std::uint32_t flags = reader.raw32();
            const std::uint32_t name = reader.raw32();
            DataStore::Property property;
            property.type = static_cast<int>(reader.raw32());
            property.size = sizeOfType(property.type);
            if ((flags & ~known) != 0 || name >= names.size() || names[name].size() > longestName)
                return false;
            property.name = names[name];
            if ((flags & hasUsual) != 0) {
                property.usual = static_cast<int>(reader.raw32());
                reader.skip(static_cast<std::size_t>(property.size) * 8);
            }
            property.attributes = readNumbers(reader);
            schema.properties.push_back(std::move(property));
        }
        return !reader.hasFailed();
    }

    /// What stands behind the table of schemas: where each attribute is, and of which schema.
    bool readAttributes(BitReader &reader, DataStore &store) const
    {
        constexpr std::uint64_t mark = 0x0af10c;
        if (reader.raw64() != mark)
            return false;
        const std::uint64_t count = reader.raw64();
        for (std::uint64_t i = 0; i < count && !reader.hasFailed(); ++i) {
            const Segment &place = segment(reader.raw32());
            BitReader value = at(place, reader.raw32());
            value.raw32(); // its size
            const bool isSet = (value.raw32() & 1) != 0;
            store.attributes.push_back({static_cast<int>(reader.raw32()), isSet});
        }
        return !reader.hasFailed();
    }

    bool readRecords(std::uint32_t index, DataStore &store)
    {
        BitReader reader = at(segment(index), 0);
        const std::uint64_t count = reader.raw64();
        bool isWhole = true;
        for (std::uint64_t i = 0; i < count && !reader.hasFailed(); ++i) {
            const std::uint32_t place = reader.raw32();
            const std::uint32_t offset = reader.raw32();
            const auto schema = static_cast<int>(reader.raw32());
            // Records that were taken out leave an empty place.
            if (place != 0)
                isWhole = readRecord(segment(place), offset, schema, store) && isWhole;
        }
        return isWhole && !reader.hasFailed();
    }

    bool readRecord(const Segment &place, std::uint32_t offset, int schema, DataStore &store)
    {
        constexpr std::uint32_t headSize = 20;
        BitReader reader = at(place, offset);
        const std::uint32_t size = reader.raw32();
        reader.raw32();
        DataStore::Record record{schema, reader.raw64(), {}};
        const std::uint32_t data = reader.raw32();
        if (reader.hasFailed() || size != headSize || place.data < segmentHeadSize)
            return false;
        BitReader content = at(place, place.data - segmentHeadSize + std::uint64_t(data));
        const std::uint32_t length = content.raw32();
        constexpr std::uint32_t inPages = 0xbb106bb1;
        const bool isRead =
            length == inPages ? readPages(content, record.data) : takeBytes(content, length, record.data);
        if (isRead)
            store.records.push_back(std::move(record));
        return isRead;
    }

    bool takeBytes(BitReader &reader, std::uint64_t count, std::string &data)
    {
        m_taken += count;
        if (count > reader.left() / 8 || m_taken > m_bytes.size())
            return false;
        data += reader.rawBytes(count);
        return true;
    }

    /// Data that do not fit into one segment: a list of those with its parts.
    bool readPages(BitReader &list, std::string &data)
    {
        const std::uint64_t size = list.raw64();
        const std::uint32_t count = list.raw32();
        list.skip(5 * 32); // sizes of pages, which the pages tell themselves
        for (std::uint32_t i = 0; i < count && !list.hasFailed(); ++i) {
            const Segment &page = segment(list.raw32());
            list.raw32();
            BitReader reader = at(page, 0);
            const std::uint64_t all = reader.raw64();
            const std::uint64_t start = reader.raw64();
            reader.skip(64); // which of how many pages it is
            const std::uint64_t length = reader.raw64();
            if (all != size || start != data.size() || !takeBytes(reader, length, data))
                return false;
        }
        return data.size() == size;
    }

    Bytes m_bytes;
    std::vector<Segment> m_segments;
    std::uint64_t m_taken = 0;
};

} // namespace

const DataStore::Schema *DataStore::schemaOf(int number) const
{
    const auto found = std::ranges::find(schemas, number, &Schema::number);
    return found != schemas.end() ? &*found : nullptr;
}

DataStore readDataStore(const Container &container, Problems &problems)
{
    DataStore store;
    if (!container.dataStore.empty() && !DataStoreReader(container.dataStore).read(store))
        problems.lose("Not all can be read of what objects keep outside themselves.");
    return store;
}

} // namespace host::dwg
