#pragma once

#include "host/dwg/bits/BitReader.h"

#include <span>
#include <string>

namespace host::dwg::test {

/// An object of a class, bit by bit, and what is read of it.
struct ClassRow
{
    const char *name = nullptr;
    std::string fields; ///< as FieldWords.h has them
    std::string tags;   ///< behind the head; for entities behind the layer
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
