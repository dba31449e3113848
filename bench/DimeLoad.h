#pragma once

namespace bench {

/// Reads a DXF file with the library libdime. Whether it could.
bool loadWithDime(const char *path);

} // namespace bench
