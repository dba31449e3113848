#pragma once

#include "host/dwg/drawing/DrawingObjects.h"

#include <unordered_map>

namespace host::dwg {

/// The two marks around what a block has. They tell it as their owner, so they are what is left of a block whose record
/// cannot be read.
struct BlockMarks
{
    std::string name;        ///< as BLOCK has it: without the number of anonymous blocks; empty without BLOCK
    std::uint64_t begin = 0; ///< BLOCK; 0 where it is lost as well
    std::uint64_t end = 0;   ///< ENDBLK, the same
};

/// The marks of all blocks, by the handles of the blocks. Reads the heads of all marks.
using MarksByBlock = std::unordered_map<std::uint64_t, BlockMarks>;
MarksByBlock findBlockMarks(const DrawingObjects &objects, const ObjectHead::Spaces &spaces);

} // namespace host::dwg
