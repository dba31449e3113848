#pragma once

#include "tests/dwg/making/MadeDrawing.h"

#include <string>
#include <string_view>
#include <vector>

namespace host::dwg::test {

std::vector<std::string> wordsOf(std::string_view text, char separator);

/// Writes an object's fields in the order of the file, as words with blanks between them: a letter and a value. b flag,
/// c small, s int16, l int32, d real, r raw real, w raw int16, p point, f flat raw point (x,y), t text ("_" a blank),
/// h reference (hexadecimal), C colour, K long colour (or all 32 bits of one, "#c2ff0000"), n head of an entry with its
/// name.
MadeDrawing::Write writerOf(const std::string &fields);

} // namespace host::dwg::test
