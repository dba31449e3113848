#pragma once

namespace host::drawing {

/// The predefined hatch patterns as text: a line "*NAME, description", then a line a family of lines: its angle in
/// degrees, a point of one of them, the step to the next (along and across), then dashes (negative: gaps, 0: dots).
/// Those whose names begin with ACAD_ISO are made for millimetres, the others for inches.
const char *patternTable();

} // namespace host::drawing
