#pragma once

#include "host/app/uses/Use.h"

namespace host::app {

// The rows of allUses(), a file a subject.

UseRow windowUse();
UseRow runUse();
UseRow lispUse();
UseRow convertUse();
UseRow diffUse();
UseRow infoUse();
UseRow auditUse();
UseRow namesUse();
UseRow helpUse();
UseRow usesUse();
/// Drafting tools, by their names.
QList<UseRow> toolUses();

} // namespace host::app
