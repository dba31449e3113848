#pragma once

#include "host/dwg/drawing/DrawingText.h"
#include "tests/dwg/TextTree.h"
#include "tests/dwg/making/MadeDrawing.h"

namespace host::dwg::test {

/// What the reader makes of a file, in forms that tests compare.
struct ReadBack
{
    DrawingText drawing;
    TextTree tree;

    /// The record with the handle as one line: "0 LINE|5 40|330 1D|100 AcDbEntity|..."; empty where there is none.
    std::string record(std::uint64_t handle) const;
    /// Only what follows the last subclass marker in it: "10 1.0|20 2.0|".
    std::string lastPart(std::uint64_t handle) const;
    /// The record of a header variable, "9 $LTSCALE|40 1.0|".
    std::string variable(const std::string &name) const;
    /// All problems that were told, a line each.
    std::string problems() const;
};

ReadBack readBack(const FileBytes &file);
ReadBack readBack(const MadeDrawing &drawing);

} // namespace host::dwg::test
