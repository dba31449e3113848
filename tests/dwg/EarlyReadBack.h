#pragma once

#include "host/dwg/drawing/DrawingText.h"
#include "tests/dwg/TextTree.h"
#include "tests/dwg/making/EarlyFileMaker.h"

namespace host::dwg::test {

constexpr auto r9 = Release::R9;
constexpr auto r10 = Release::R10;
constexpr auto r12 = Release::R12;

/// The records of a section or a table, one a line; vertices and attributes behind what has them. `at` is the node that
/// it is looked for in.
std::string earlyRecordsOf(const TextTree &tree, std::string_view name, std::size_t at = 0);

/// All problems that were told, a line each.
std::string earlyProblemsOf(const DrawingText &drawing);

/// A file with one record of each table; the block is TREE.
EarlyFileMaker earlyMakerWithTables(Release release);

} // namespace host::dwg::test
