#pragma once

#include "host/drawing/references/LinetypeSource.h"

namespace host::drawing {

/// Which of the two sources that come with the program: they have the same linetypes, but for millimetres dashes are
/// 25.4 times as long. Those whose names begin with ACAD_ISO are made for millimetres and the same in both.
enum class LinetypeUnit
{
    Inch,
    Millimetre
};

/// The linetypes that every drawing can load without a file: simple dashes, each also at half ("2") and at double size
/// ("X2"), and those of the ISO. Made anew by each call.
std::vector<LinetypeDefinition> predefinedLinetypes(LinetypeUnit unit);

} // namespace host::drawing
