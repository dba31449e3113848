#pragma once

#include "host/dwg/early/EarlyNames.h"

namespace host::dwg {

/// Adds the section HEADER to `text`: the variables that the file's release has in the text form. Returns where
/// the code page stands among them, which only texts tell. A variable that names what is lost is left out, and one
/// whose value no drawing has, with a warning.
std::size_t writeEarlyHeader(const EarlyFile &file, const EarlyNames &names, std::string &text, Problems &problems);

} // namespace host::dwg
