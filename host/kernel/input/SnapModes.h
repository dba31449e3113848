#pragma once

#include "host/drawing/geometry/SnapPoints.h"

#include <QString>

#include <optional>

namespace host::kernel {

/// The kinds of snap (drawing::SnapKind) that words such as "end", "_midp" or "_end,_int" mean: at least the three
/// letters that tell them apart, in any letter case, several with commas between. 0 for "none". Nothing when one of
/// them is no such word.
std::optional<int> parseSnapModes(const QString &words);

/// What the kind that stands for the lowest of the bits is called in messages and at the pointer: "endpoint". Empty for
/// none.
QString snapModeName(int kinds);

/// The words of the kinds, with commas: "End,Int". "None" for none.
QString snapModeWords(int kinds);

} // namespace host::kernel
