#pragma once

#include "host/dwg/early/EarlyNames.h"

namespace host::dwg {

/// Adds the section HEADER to `text`: the variables that the file's release has in the text form.
void writeEarlyHeader(const EarlyFile &file, const EarlyNames &names, std::string &text);

} // namespace host::dwg
