#pragma once

#include "host/dwg/bits/BitReader.h"

#include <span>
#include <string>

namespace host::dwg::test {

/// An object of a class, bit by bit, and what is read of it.
struct ClassRow
{
    const char *name = nullptr;
    /// The fields in the order of the file, with blanks between them: a letter and a value. b flag, c small, s int16,
    /// l int32, d real, r raw real, w raw int16, p point, f flat raw point (x,y), t text ("_" a blank), h reference
    /// (hexadecimal), C colour, K long colour.
    std::string fields;
    std::string tags; ///< behind the head; for entities behind the layer
    bool isEntity = false;
    Release first = Release::R2000;
    Release last = Release::R2018;
};

/// All rows; those of tables with cells and their contents stand in a file of their own.
std::span<const ClassRow> classRows();
std::span<const ClassRow> tableRows();

/// How a dimension of R2010 and later that measures 5 begins, as fields and as tags.
extern const std::string dimensionHead;

} // namespace host::dwg::test
