#pragma once

#include "host/dwg/container/CorrectedPages.h"

namespace host::dwg {

/// Where one of the two maps of a file of R2007 is. Each has a copy.
struct MapPlace
{
    std::uint64_t place = 0; ///< the number of its page for the map of sections
    std::uint64_t copy = 0;
    std::uint64_t packedSize = 0;
    std::uint64_t size = 0;
    std::uint64_t repeat = 0; ///< how often the bytes stand in the page
    std::uint64_t packedChecksum = 0;
    std::uint64_t checksum = 0;
};

/// The header of a file of R2007.
struct CorrectedHeader
{
    static constexpr std::size_t place = 0x80;
    static constexpr std::size_t blocks = 3;
    static constexpr std::size_t room = 0x400; ///< in the file, where its copy stands at the end

    MapPlace pages;
    MapPlace sections;
    bool checksumFits = false; ///< of both forms, packed and plain
};

/// The header whose blocks' own bytes are `page`. Nothing where they do not unpack.
std::optional<CorrectedHeader> readCorrectedHeader(Bytes page);

} // namespace host::dwg
