#pragma once

#include "host/dwg/bits/BitReader.h"

#include <optional>
#include <vector>

namespace host::dwg {

/// A page of R2004 and later that has a part of a section.
struct DataPage
{
    std::uint32_t section = 0; ///< its number
    std::uint64_t start = 0;   ///< within the section
    Bytes packed;
    bool isHeadChecked = false; ///< the checksum of its head fits
    std::uint32_t checksum = 0; ///< what that of `packed` should be

    /// Looks at each byte.
    bool isChecked() const;
};

/// A page that tells where pages or sections are, unpacked.
struct MapPage
{
    std::vector<std::uint8_t> bytes;
    bool isChecked = false; ///< its checksum fits
};

enum class MapType : std::uint32_t
{
    Pages = 0x41630e3b,
    Sections = 0x4163003b
};

// Pages begin behind the headers, at whole units.
constexpr std::size_t pagesStart = 0x100;
constexpr std::size_t pageUnit = 0x20;
constexpr std::size_t dataPageHead = 0x20;

/// The page at this place of the file; nothing where none of its kind can be.
std::optional<DataPage> dataPageAt(Bytes file, std::uint64_t at);
std::optional<MapPage> mapPageAt(Bytes file, std::uint64_t at, MapType type);

// Pages as they are found without a map, by looking at each place where one can be. Costs a look at each unit, and at
// each byte of a few pages.

/// Those whose heads are whole.
std::vector<DataPage> findDataPages(Bytes file);
/// The last one of the kind whose checksum fits.
std::optional<MapPage> findMapPage(Bytes file, MapType type);

} // namespace host::dwg
