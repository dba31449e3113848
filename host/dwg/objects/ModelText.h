#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace host::dwg {

/// Gives `take` the lines of the text form of a model in binary form, which must be nothing else than the model: the
/// head, then a line for each record, and the one that closes it. Numbers have as many digits as give them back.
///
/// False where the model is damaged, or has what no word is known for here; some lines may have been taken then. It
/// stays in binary form, since a word that is guessed makes another model. Costs by the length of the model; lines take
/// up to 12 times as much, one at a time.
bool takeModelLines(std::string_view model, const std::function<void(const std::string &)> &take);

/// A line as drawings have it, in a disguise: letters as what they lack to 159, but for blanks. Twice gives the line.
std::string disguisedLine(std::string line);

} // namespace host::dwg
