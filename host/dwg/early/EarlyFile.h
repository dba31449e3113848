#pragma once

#include "host/dwg/Problem.h"
#include "host/dwg/bits/BitReader.h"

namespace host::dwg {

/// Bytes of a file, from the first to before the last.
struct EarlySection
{
    std::size_t begin = 0;
    std::size_t end = 0;

    bool has(std::size_t place) const { return place >= begin && place < end; }
};

/// Tables of names, in the order in which this enumeration counts them.
enum class EarlyTableKind
{
    Blocks,
    Layers,
    Styles,
    Linetypes,
    Views,
    Systems,         ///< from R10 on
    Viewports,       ///< from R10 on
    Applications,    ///< from R11 on
    DimensionStyles, ///< from R11 on
    Count
};

/// Where the records of a table are. A table that is not in the file, or not wholly, has no records.
struct EarlyTable
{
    bool isThere = false;
    std::size_t at = 0;
    std::size_t recordSize = 0;
    std::size_t count = 0;
};

/// The parts of a file of 2.5 to R12: bytes in records of plain numbers, the lowest byte first. In front a header of
/// fixed places, then the entities, the tables, the entities of blocks, and the further ones: what became longer since
/// the last saving, with a jump there from where it was.
struct EarlyFile
{
    Release release = Release::None;
    Bytes bytes;
    EarlySection entities;
    EarlySection blocks;
    EarlySection further;
    std::size_t variablesEnd = 0; ///< what stands behind it in the header is no variable
    std::array<EarlyTable, static_cast<std::size_t>(EarlyTableKind::Count)> tables;

    /// From R11 on records have two bytes more behind their names, and a checksum at their end.
    bool isChecked() const { return release >= Release::R12; }
    const EarlyTable &table(EarlyTableKind kind) const { return tables[static_cast<std::size_t>(kind)]; }
};

/// True where the release has plain records: 2.5 to R12.
bool hasPlainRecords(Release release);

/// Finds the parts of a file of such a release. What lies outside of the file is cut off, and told.
EarlyFile openEarlyFile(Bytes bytes, Release release, Problems &problems);

/// The checksum that records and the header of R11 and R12 end with.
bool fitsEarlyChecksum(Bytes bytes, std::size_t begin, std::size_t end);

} // namespace host::dwg
