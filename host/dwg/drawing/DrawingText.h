#pragma once

#include "host/dwg/Problem.h"
#include "host/dwg/bits/BitReader.h"

namespace host::dwg {

/// A drawing as the text form (DXF) has it.
struct DrawingText
{
    Release release = Release::None; ///< that of the file; None where it is no drawing of 2.5 to R2018
    std::string text; ///< a whole file of the same release, lines ended by line feeds; empty where nothing can be had
    std::size_t objectCount = 0; ///< in the file's map
    Problems problems;           ///< what is not in `text`, what is doubtful, what was made up for
};

/// Reads a drawing file of 2.5 to R2018 as if its twin in text form had been opened: the same records with the same
/// handles, owners and numbers. Texts before R2007 keep the bytes of their code page, later ones are UTF-8.
///
/// Anything may be in `file`. What cannot be read is left out and told with its type and handle; objects of classes
/// that are not known here become proxies with their bytes. Time and memory stay within a multiple of the file: each
/// object is read once.
DrawingText readDrawing(Bytes file);

} // namespace host::dwg
