#include "tests/dwg/making/EarlyFileMaker.h"

#include "host/dwg/bits/Checksums.h"

#include <algorithm>
#include <charconv>

namespace host::dwg::test {

namespace {

using File = EarlyFileMaker::File;

constexpr std::size_t markSize = 16;

void put(File &bytes, std::uint64_t number, int count)
{
    for (int i = 0; i < count; ++i)
        bytes.push_back(static_cast<std::uint8_t>(number >> 8 * i));
}

void putText(File &bytes, std::string_view text)
{
    for (const char c : text)
        bytes.push_back(static_cast<std::uint8_t>(c == '_' ? ' ' : c));
}

void putValue(File &bytes, std::string_view word)
{
    const std::string rest(word.substr(1));
    const auto number = [&rest] { return static_cast<std::uint64_t>(std::stoll(rest)); };
    switch (word[0]) {
    case 'b':
        return put(bytes, number(), 1);
    case 'w':
        return put(bytes, number(), 2);
    case 'l':
        return put(bytes, number(), 4);
    case 'z':
        return void(bytes.resize(bytes.size() + number()));
    case 'h':
        for (std::size_t i = 0; i + 1 < rest.size(); i += 2)
            put(bytes, std::stoull(rest.substr(i, 2), nullptr, 16), 1);
        return;
    case '\'':
        put(bytes, rest.size(), 2);
        return putText(bytes, rest);
    case '"':
        return putText(bytes, rest);
    default:
        put(bytes, std::bit_cast<std::uint64_t>(std::stod(std::string(word))), 8);
    }
}

File valuesOf(std::string_view text)
{
    File bytes;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(' '), text.size());
        if (end != 0)
            putValue(bytes, text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return bytes;
}

void append(File &file, const File &bytes)
{
    file.insert(file.end(), bytes.begin(), bytes.end());
}

/// Where variables end, which the count of variables of each release makes.
std::size_t headerSize(Release release)
{
    if (release >= Release::R12)
        return 0x6bd;
    return release >= Release::R10 ? 0x512 : 0x3ef;
}

} // namespace

EarlyFileMaker::EarlyFileMaker(Release release) : m_release(release), m_header(headerSize(release))
{
    const std::string name = "AC" + std::to_string(static_cast<int>(release));
    std::copy(name.begin(), name.end(), m_header.begin());
    addRecord(EarlyTableKind::Layers, 0, "0", "w7 w0");
    addRecord(EarlyTableKind::Linetypes, 64, "CONTINUOUS", "\"Solid_line z38 b65 b0 z104");
}

void EarlyFileMaker::addChecksum(File &bytes, std::size_t begin) const
{
    constexpr std::uint16_t seed = 0xc0c1;
    if (isChecked())
        put(bytes, checksum16(Bytes(bytes).subspan(begin), seed), 2);
}

void EarlyFileMaker::addRecord(EarlyTableKind kind, int flags, std::string_view name, std::string_view values)
{
    Table &table = m_tables[static_cast<std::size_t>(kind)];
    const std::size_t begin = table.records.size();
    put(table.records, static_cast<std::uint64_t>(flags), 1);
    putText(table.records, name);
    table.records.resize(begin + 33);
    if (isChecked())
        put(table.records, 0xffff, 2);
    append(table.records, valuesOf(values));
    addChecksum(table.records, begin);
    table.recordSize = table.records.size() - begin;
    ++table.count;
}

void EarlyFileMaker::add(File &section, int type, int flags, const File &rest)
{
    const std::size_t begin = section.size();
    put(section, static_cast<std::uint64_t>(type), 1);
    put(section, static_cast<std::uint64_t>(flags), 1);
    put(section, 4 + rest.size() + (isChecked() ? 2 : 0), 2);
    append(section, rest);
    addChecksum(section, begin);
}

std::size_t EarlyFileMaker::addTo(File &section, int type, int flags, int options, std::string_view values,
                                  std::string_view layer)
{
    const std::size_t place = section.size();
    File rest = valuesOf(layer);
    put(rest, static_cast<std::uint64_t>(options), 2);
    append(rest, valuesOf(values));
    add(section, type, flags, rest);
    return place;
}

std::size_t EarlyFileMaker::addEntity(int type, int flags, int options, std::string_view values)
{
    return addTo(m_entities, type, flags, options, values);
}

std::size_t EarlyFileMaker::addEntityOn(std::string_view layer, int type, int flags, int options,
                                        std::string_view values)
{
    return addTo(m_entities, type, flags, options, values, layer);
}

std::size_t EarlyFileMaker::addToBlocks(int type, int flags, int options, std::string_view values)
{
    return addTo(m_blocks, type, flags, options, values);
}

std::size_t EarlyFileMaker::addFurther(int type, int flags, int options, std::string_view values)
{
    return addTo(m_further, type, flags, options, values);
}

void EarlyFileMaker::addJump(std::size_t place, std::uint32_t sectionBit)
{
    File rest;
    put(rest, place | sectionBit, 4);
    add(m_entities, 18, 0, rest);
}

void EarlyFileMaker::addJumpBack(std::size_t place)
{
    File rest;
    put(rest, entitiesBegin() + place, 4);
    add(m_further, 18, 0, rest);
}

void EarlyFileMaker::setHeader(std::size_t at, std::string_view values)
{
    const File bytes = valuesOf(values);
    std::copy(bytes.begin(), bytes.end(), m_header.begin() + static_cast<std::ptrdiff_t>(at));
}

std::size_t EarlyFileMaker::entitiesBegin() const
{
    return m_header.size() + (isChecked() ? 2 + markSize : 0);
}

EarlyFileMaker::File EarlyFileMaker::file() const
{
    File header = m_header;
    const auto set = [&header](std::size_t at, std::uint64_t number, int count) {
        File bytes;
        put(bytes, number, count);
        std::copy(bytes.begin(), bytes.end(), header.begin() + static_cast<std::ptrdiff_t>(at));
    };
    std::size_t place = entitiesBegin();
    set(0x14, place, 4);
    set(0x18, place += m_entities.size(), 4);
    constexpr std::size_t heads[] = {0x2c, 0x36, 0x40, 0x4a, 0x54, 0x3ef, 0x500, 0x512, 0x522};
    File tables;
    for (std::size_t i = 0; i < m_tables.size() && heads[i] < header.size(); ++i) {
        set(heads[i], m_tables[i].recordSize, 2);
        set(heads[i] + 2, m_tables[i].count, 2);
        set(heads[i] + 6, place + tables.size(), 4);
        append(tables, m_tables[i].records);
    }
    set(0x1c, place += tables.size(), 4);
    set(0x20, m_blocks.size() | blocksBit, 4);
    set(0x24, place += m_blocks.size(), 4);
    set(0x28, m_further.size() | furtherBit, 4);
    addChecksum(header, 0);
    header.resize(entitiesBegin());
    for (const File &part : {m_entities, tables, m_blocks, m_further})
        append(header, part);
    return header;
}

} // namespace host::dwg::test
