#pragma once

#include "tests/dwg/making/MadeDrawing.h"

namespace bench {

using host::dwg::Release;
using host::dwg::test::FileBytes;

// Large drawings as DWG files, made once for each call. Pages of R2004 and later are packed with what they repeat.

/// Lines and circles with all digits, and texts: a third each.
FileBytes manyEntities(Release release, int count);
/// `count` objects without fields, each in the dictionary of named objects.
FileBytes largeDictionary(Release release, int count);
/// One block, shown `count` times: each insert is in the list of the block.
FileBytes manyInserts(Release release, int count);
/// One polyline of `count` corners.
FileBytes longPolyline(Release release, int count);

} // namespace bench
