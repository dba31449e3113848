#pragma once

#include "host/dwg/bits/ErrorCorrection.h"
#include "tests/dwg/making/BitWriter.h"

#include <string>

namespace host::dwg::test {

using FileBytes = std::vector<std::uint8_t>;

/// What a drawing file consists of, before it is put into a container.
struct MadeParts
{
    struct Object
    {
        std::uint64_t handle = 0;
        FileBytes bytes; ///< whole, as ObjectWriter::bytes() gives it
    };

    Release release = Release::R2000;
    int codePage = 30; ///< told up to R2004
    FileBytes header;  ///< the variables, without length, checksum and marks
    FileBytes classes; ///< the same
    std::vector<Object> objects;
};

/// A section of R2004 and later as it is cut into pages.
struct MadeSection
{
    std::string name;
    FileBytes bytes;
    std::uint32_t pageSize = 0x400;
    bool isPacked = true;
    bool isTight = false;          ///< with what repeats told once, as other programs pack
    std::uint64_t claimedSize = 0; ///< what the map says instead of the size, where it is not 0
    std::size_t repeat = 1;        ///< how often the map has each page, in files but those of R2007

    std::uint64_t toldSize() const { return claimedSize != 0 ? claimedSize : bytes.size(); }
};

/// The file with these parts, in the container of their release: a table of sections up to R2000, pages later.
FileBytes madeFile(const MadeParts &parts);

// What containers are made of.

/// A section between its marks, with its length in front and its checksum behind.
FileBytes sectionBetweenMarks(Release release, int mark, const FileBytes &content);
constexpr int headerMark = 0;
constexpr int classesMark = 1;

/// The map of objects: where each of them is. Places rise with the objects.
FileBytes objectMap(const std::vector<MadeParts::Object> &objects, const std::vector<std::size_t> &places);

/// The sections of R2004 and later but R2007, from `parts`.
std::vector<MadeSection> sectionsOf(const MadeParts &parts);
/// A file of R2004 and later but R2007 that has these sections.
FileBytes pagedFile(Release release, const std::vector<MadeSection> &sections);
/// A file of R2007 that has these sections; their pages are not packed.
FileBytes correctedFile(const std::vector<MadeSection> &sections);
/// `bytes` as a page of R2007: in blocks with what would correct them, byte by byte in turn.
FileBytes correctedBlocks(ErrorCode code, FileBytes bytes);

/// `bytes` packed as R2004 packs them, as plain bytes alone; at least 4 bytes.
FileBytes packedPlain(const FileBytes &bytes);
/// The same with runs that stand there before told by their place.
FileBytes packedTight(const FileBytes &bytes);

} // namespace host::dwg::test
