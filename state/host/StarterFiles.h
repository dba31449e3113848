#pragma once

#include <QString>

namespace ortakit {

/// Brings the drawings that a new user finds into `folder`, which is made where it is missing: those of the set
/// "BreakLine" (break symbols) or "Template" (title blocks). A folder with a drawing in it is left as it is; nothing
/// happens either where `folder` is no absolute path or cannot be written.
void putStarterFiles(const QString &folder, const QString &set);

} // namespace ortakit
