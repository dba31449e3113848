#pragma once

#include <cstdint>
#include <string>
#include <unordered_set>

namespace host::dwg {

/// Takes out of the records in `text`, from the one that begins at `begin` on, what names objects that are lost:
/// entries of dictionaries, and extension dictionaries. Records are written in front of what they name. One run over
/// the text, none where nothing is lost.
void leaveOutLostEntries(const std::unordered_set<std::uint64_t> &lost, std::string &text, std::size_t begin);

} // namespace host::dwg
