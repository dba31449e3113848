#pragma once

#include "host/dwg/early/EarlyNames.h"

namespace host::dwg {

/// Adds the section TABLES to `text`: all tables that the release has, in the order of the text form. Deleted records
/// are counted in a table's head, and no more; records whose values do not fill them are lost, with a problem.
void writeEarlyTables(const EarlyFile &file, const EarlyNames &names, std::string &text, Problems &problems);

} // namespace host::dwg
