#include "tests/dwg/making/MadeFile.h"

#include "host/dwg/bits/Checksums.h"

#include <algorithm>

namespace host::dwg::test {

namespace {

constexpr std::uint16_t checksumSeed = 0xc0c1;

constexpr std::array<std::array<std::uint8_t, 16>, 2> beginMarks = {{
    {0xcf, 0x7b, 0x1f, 0x23, 0xfd, 0xde, 0x38, 0xa9, 0x5f, 0x7c, 0x68, 0xb8, 0x4e, 0x6d, 0x33, 0x5f},
    {0x8d, 0xa1, 0xc4, 0xb8, 0xc4, 0xa9, 0xf8, 0xc5, 0xc0, 0xdc, 0xf4, 0x5f, 0xe7, 0xcf, 0xb6, 0x8a},
}};
constexpr std::array<std::uint8_t, 16> tableMark = {0x95, 0xa0, 0x4e, 0x28, 0x99, 0x82, 0x1a, 0xe5,
                                                    0x5e, 0x41, 0xe0, 0x5f, 0x9d, 0x3a, 0x4d, 0x00};
constexpr std::array<std::uint8_t, 16> secondHeaderMark = {0xd4, 0x7b, 0x21, 0xce, 0x28, 0x93, 0x9f, 0xbf,
                                                           0x53, 0x24, 0x40, 0x09, 0x12, 0x3c, 0xaa, 0x01};

void appendInverted(BitWriter &out, Bytes mark)
{
    for (const std::uint8_t byte : mark)
        out.byte(~byte);
}

std::string versionOf(Release release)
{
    return "AC" + std::to_string(static_cast<int>(release));
}

/// A section of a file up to R2000, as its table has it.
struct Located
{
    int number = 0;
    std::uint32_t at = 0;
    std::uint32_t size = 0;
};

FileBytes headOf(const MadeParts &parts, const std::vector<Located> &table)
{
    BitWriter out;
    out.rawBytes(versionOf(parts.release));
    out.append(FileBytes(6, 0));
    out.byte(1);
    out.raw32(0); // no preview
    out.raw16(0);
    out.raw16(static_cast<std::uint32_t>(parts.codePage));
    out.raw32(static_cast<std::uint32_t>(table.size()));
    for (const Located &one : table) {
        out.byte(one.number);
        out.raw32(one.at);
        out.raw32(one.size);
    }
    // By the count of records: 3 to 6.
    constexpr std::array<std::uint16_t, 7> seeds = {0, 0, 0, 0xa598, 0x8101, 0x3cc4, 0x8461};
    out.raw16(checksum16(out.bytes(), 0) ^ seeds.at(table.size()));
    out.append(tableMark);
    return out.bytes();
}

/// What tells at the end of the file again where the sections are.
FileBytes secondHeader(const MadeParts &parts, std::uint32_t at, const std::vector<Located> &table)
{
    BitWriter content;
    content.longInteger(static_cast<std::int32_t>(at));
    content.rawBytes(versionOf(parts.release));
    content.append(FileBytes(6, 0));
    content.byte(1);
    content.shortInteger(0x0621);
    content.raw16(static_cast<std::uint32_t>(parts.codePage));
    content.longInteger(static_cast<std::int32_t>(table.size()));
    for (const Located &one : table) {
        content.byte(one.number);
        content.longInteger(static_cast<std::int32_t>(one.at));
        content.longInteger(static_cast<std::int32_t>(one.size));
    }
    content.shortInteger(0); // no handles of tables
    content.align();
    const std::size_t junk = parts.release == Release::R13 ? 0 : 8;
    BitWriter out;
    out.raw32(static_cast<std::uint32_t>(4 + content.bytes().size() + 2 + junk));
    out.append(Bytes(content.bytes()));
    out.raw16(checksum16(out.bytes(), checksumSeed));
    out.append(FileBytes(junk, 0));
    BitWriter whole;
    whole.append(secondHeaderMark);
    whole.append(Bytes(out.bytes()));
    appendInverted(whole, secondHeaderMark);
    return whole.bytes();
}

/// A section that is a table of sections' record, appended to the file.
Located append(FileBytes &file, int number, const FileBytes &bytes)
{
    const Located place{number, static_cast<std::uint32_t>(file.size()), static_cast<std::uint32_t>(bytes.size())};
    file.insert(file.end(), bytes.begin(), bytes.end());
    return place;
}

FileBytes locatorFile(const MadeParts &parts)
{
    // Header, classes and map, a part that nothing is read from, units of patterns, and from R2000 on another one.
    std::vector<Located> table(parts.release >= Release::R2000 ? 6 : 5);
    FileBytes file = headOf(parts, table);
    file.resize(0x100);
    table[0] = append(file, 0, sectionBetweenMarks(parts.release, headerMark, parts.header));
    table[1] = append(file, 1, sectionBetweenMarks(parts.release, classesMark, parts.classes));
    std::vector<std::size_t> places;
    for (const MadeParts::Object &object : parts.objects) {
        places.push_back(file.size());
        file.insert(file.end(), object.bytes.begin(), object.bytes.end());
    }
    table[2] = append(file, 2, objectMap(parts.objects, places));
    table[3] = {3, 0, 0};
    table[4] = append(file, 4, {0, 0, 1, 0});
    if (table.size() > 5)
        table[5] = append(file, 5, FileBytes(123, 0));
    const FileBytes second = secondHeader(parts, static_cast<std::uint32_t>(file.size()), table);
    file.insert(file.end(), second.begin(), second.end());
    const FileBytes head = headOf(parts, table);
    std::copy(head.begin(), head.end(), file.begin());
    return file;
}

} // namespace

FileBytes sectionBetweenMarks(Release release, int mark, const FileBytes &content)
{
    BitWriter inner;
    inner.raw32(static_cast<std::uint32_t>(content.size()));
    if (release >= Release::R2013)
        inner.raw32(0);
    inner.append(Bytes(content));
    inner.raw16(checksum16(inner.bytes(), checksumSeed));
    BitWriter out;
    const auto &begin = beginMarks.at(static_cast<std::size_t>(mark));
    out.append(begin);
    out.append(Bytes(inner.bytes()));
    appendInverted(out, begin);
    return out.bytes();
}

FileBytes objectMap(const std::vector<MadeParts::Object> &objects, const std::vector<std::size_t> &places)
{
    constexpr std::size_t longestRun = 2000;
    BitWriter out;
    const auto writeRun = [&out](const FileBytes &run) {
        const std::size_t begin = out.bytes().size();
        const std::size_t size = run.size() + 2;
        out.byte(static_cast<int>(size >> 8));
        out.byte(static_cast<int>(size));
        out.append(Bytes(run));
        const int sum = checksum16(Bytes(out.bytes()).subspan(begin), checksumSeed);
        out.byte(sum >> 8);
        out.byte(sum);
    };
    BitWriter run;
    std::uint64_t lastHandle = 0;
    std::size_t lastPlace = 0;
    for (std::size_t i = 0; i < objects.size(); ++i) {
        run.modularUnsigned(objects[i].handle - lastHandle);
        run.modularSigned(static_cast<std::int64_t>(places[i]) - static_cast<std::int64_t>(lastPlace));
        lastHandle = objects[i].handle;
        lastPlace = places[i];
        if (run.bytes().size() > longestRun || i + 1 == objects.size()) {
            writeRun(run.bytes());
            run = {};
            lastHandle = 0;
            lastPlace = 0;
        }
    }
    writeRun({});
    return out.bytes();
}

FileBytes madeFile(const MadeParts &parts)
{
    if (parts.release <= Release::R2000)
        return locatorFile(parts);
    if (parts.release == Release::R2007)
        return correctedFile(sectionsOf(parts));
    FileBytes file = pagedFile(parts.release, sectionsOf(parts));
    constexpr std::size_t codePagePlace = 0x13;
    file[codePagePlace] = static_cast<std::uint8_t>(parts.codePage);
    return file;
}

std::vector<MadeSection> sectionsOf(const MadeParts &parts)
{
    FileBytes objects = {0xca, 0x0d, 0, 0};
    std::vector<std::size_t> places;
    for (const MadeParts::Object &object : parts.objects) {
        places.push_back(objects.size());
        objects.insert(objects.end(), object.bytes.begin(), object.bytes.end());
    }
    return {{"AcDb:Header", sectionBetweenMarks(parts.release, headerMark, parts.header)},
            {"AcDb:Classes", sectionBetweenMarks(parts.release, classesMark, parts.classes)},
            {"AcDb:Handles", objectMap(parts.objects, places)},
            {"AcDb:AcDbObjects", std::move(objects)}};
}

} // namespace host::dwg::test
