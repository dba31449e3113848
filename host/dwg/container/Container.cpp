#include "host/dwg/container/Container.h"

#include "host/dwg/bits/Checksums.h"
#include "host/dwg/container/Growth.h"

#include <algorithm>

namespace host::dwg {

namespace {

constexpr std::size_t markLength = 16;

/// Each section's first mark; the last one has the same bytes inverted.
constexpr std::array<std::array<std::uint8_t, markLength>, 3> marks = {{
    {0xcf, 0x7b, 0x1f, 0x23, 0xfd, 0xde, 0x38, 0xa9, 0x5f, 0x7c, 0x68, 0xb8, 0x4e, 0x6d, 0x33, 0x5f}, // header
    {0x8d, 0xa1, 0xc4, 0xb8, 0xc4, 0xa9, 0xf8, 0xc5, 0xc0, 0xdc, 0xf4, 0x5f, 0xe7, 0xcf, 0xb6, 0x8a}, // classes
    {0x1f, 0x25, 0x6d, 0x07, 0xd4, 0x36, 0x28, 0x28, 0x9d, 0x57, 0xca, 0x3f, 0x9d, 0x44, 0x10, 0x2b}, // preview
}};

/// The bytes behind the mark in front, once the checksum and the mark behind are looked at; all of them where there is
/// no mark.
Bytes checkedSection(const Container &container, Bytes section, SectionMark mark, const std::string &name,
                     Problems &problems)
{
    const Bytes begin = markBytes(mark);
    if (section.empty())
        return section;
    if (section.size() < begin.size() || !std::equal(begin.begin(), begin.end(), section.begin())) {
        problems.warn("The mark in front of " + name + " is missing.");
        return section;
    }
    const Bytes content = section.subspan(begin.size());
    BitReader reader(content);
    const std::size_t size = reader.raw32();
    if (hasLongSizes(container))
        reader.raw32();
    reader.skip(std::min(size, content.size()) * 8);
    const Bytes checked = content.first(reader.position() / 8);
    if (reader.raw16() != checksum16(checked, 0xc0c1) || reader.hasFailed())
        problems.warn("The checksum of " + name + " does not fit.");
    // From R2004 on other bytes stand in front of it.
    const Bytes behind = content.subspan(reader.position() / 8);
    const auto isInverted = [](std::uint8_t a, std::uint8_t b) { return a == 0xff - b; };
    const bool isClosed =
        container.release >= Release::R2004 ||
        std::equal(begin.begin(), begin.end(), behind.begin(),
                   behind.begin() + static_cast<std::ptrdiff_t>(std::min(behind.size(), begin.size())), isInverted);
    if (!isClosed)
        problems.warn("The mark behind " + name + " is missing.");
    return content;
}

} // namespace

Bytes markBytes(SectionMark mark)
{
    return marks[static_cast<std::size_t>(mark)];
}

bool hasLongSizes(const Container &container)
{
    return container.release >= Release::R2013 || (container.release == Release::R2010 && container.maintenance > 3);
}

Release releaseOf(Bytes file)
{
    if (file.size() < 0x80 || file[0] != 'A' || file[1] != 'C')
        return Release::None;
    int number = 0;
    for (std::size_t i = 2; i < 6; ++i)
        number = number * 10 + (file[i] >= '0' && file[i] <= '9' ? file[i] - '0' : 1000);
    for (const Release release :
         {Release::R25, Release::R26, Release::R9, Release::R10, Release::R12, Release::R13, Release::R14,
          Release::R2000, Release::R2004, Release::R2007, Release::R2010, Release::R2013, Release::R2018}) {
        if (number == static_cast<int>(release))
            return release;
    }
    return Release::None;
}

namespace {

std::uint32_t numberAt(Bytes file, std::size_t place)
{
    return BitReader(file, place * 8, file.size() * 8).raw32();
}

/// What follows the mark of the preview, which all releases have at a place that the file's first bytes tell; else
/// where the mark is. Empty without either, as in files that tell none.
Bytes findPreview(Bytes file, Problems &problems)
{
    const std::size_t place = numberAt(file, 0x0d);
    const Bytes mark = markBytes(SectionMark::Preview);
    const Bytes told = file.subspan(std::min(place, file.size()));
    if (place == 0)
        return {};
    if (told.size() >= mark.size() && std::equal(mark.begin(), mark.end(), told.begin()))
        return told.subspan(mark.size());
    const auto found = std::search(file.begin(), file.end(), mark.begin(), mark.end());
    if (found != file.end()) {
        problems.warn("The preview is not where the file tells; it was found by its mark.");
        return Bytes(found, file.end()).subspan(mark.size());
    }
    problems.lose("The preview cannot be found.");
    return {};
}

/// The places of the preview's pictures count from the begin of the file, as they do in text files.
Bytes previewOf(Bytes file, Problems &problems)
{
    const Bytes content = findPreview(file, problems);
    if (content.empty())
        return content;
    BitReader reader(content);
    const std::size_t size = reader.raw32();
    constexpr std::size_t sizeLength = 4;
    const bool hasPictures = reader.byte() != 0;
    if (!reader.hasFailed() && size <= content.size() - sizeLength)
        return hasPictures ? content.first(sizeLength + size) : Bytes();
    problems.lose("The preview ends before its pictures do.");
    return {};
}

/// Whether the file's first bytes can be believed where they tell that its data are encrypted.
bool tellsProtection(Bytes file, Release release)
{
    constexpr std::uint32_t isDataEncrypted = 0x01;
    constexpr std::uint32_t known = isDataEncrypted | 0x02 | 0x10 | 0x20; // properties, a signature, the time of that
    constexpr std::uint32_t firstPage = 0x80;
    const std::uint32_t flags = numberAt(file, 0x18);
    return release >= Release::R2004 && (flags & isDataEncrypted) != 0 && (flags & ~known) == 0 &&
           numberAt(file, 0x28) == firstPage;
}

} // namespace

Container openContainer(Bytes file, Problems &problems)
{
    Container container;
    container.release = releaseOf(file);
    if (container.release < Release::R13) {
        problems.lose("The file is of a release that is not read.");
        return container;
    }
    container.maintenance = file[0x0b];
    container.codePage = file[0x13] | file[0x14] << 8;
    const std::size_t lostBefore = problems.lostCount();
    if (container.release <= Release::R2000)
        openLocatorContainer(file, container, problems);
    else if (container.release == Release::R2007)
        openCorrectedContainer(file, container, problems);
    else
        openPagedContainer(file, container, problems);
    // What can be read is not encrypted, whatever is told.
    const bool isRead = problems.lostCount() == lostBefore && !container.objects.empty();
    if (!isRead && tellsProtection(file, container.release))
        problems.lose("The file is protected by a password.");
    container.preview = previewOf(file, problems);
    container.mostText = largestText(file.size(), container.objects.size());
    container.headerVariables =
        checkedSection(container, container.headerVariables, SectionMark::Header, "the header's variables", problems);
    container.classes = checkedSection(container, container.classes, SectionMark::Classes, "the classes", problems);
    if (container.objectMap.empty())
        problems.warn("The file has no map of its objects.");
    if (container.objects.empty())
        problems.lose("The file has no objects.");
    return container;
}

void assignSection(Container &container, std::string_view name, Bytes bytes)
{
    if (name == "AcDb:Header")
        container.headerVariables = bytes;
    else if (name == "AcDb:Classes")
        container.classes = bytes;
    else if (name == "AcDb:Handles")
        container.objectMap = bytes;
    else if (name == "AcDb:AcDbObjects")
        container.objects = bytes;
    else if (name == "AcDb:SummaryInfo")
        container.summary = bytes;
    else if (name == "AcDb:Template")
        container.measurement = bytes;
    else if (name == "AcDb:AcDsPrototype_1b")
        container.dataStore = bytes;
}

} // namespace host::dwg
