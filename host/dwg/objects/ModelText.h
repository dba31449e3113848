#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace host::dwg {

/// The text form of a model in binary form, which must be nothing else than the model: lines of head, then a line for
/// each record, and the one that closes it. Numbers have as many digits as give them back.
///
/// Nothing where the model is damaged, or has what no word is known for here: it stays in binary form then, since a
/// word that is guessed makes another model. Costs by the length of the model; lines take up to 12 times as much.
std::optional<std::vector<std::string>> modelLines(std::string_view model);

/// A line as drawings have it, in a disguise: letters as what they lack to 159, but for blanks. Twice gives the line.
std::string disguisedLine(std::string line);

} // namespace host::dwg
