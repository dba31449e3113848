#pragma once

#include "host/dwg/objects/Fields.h"

namespace host::dwg {

// How cells, rows, columns and whole tables look: parts of table styles and of the contents of tables, the same in the
// file and, between their BEGIN and END, in the text form.

/// How the content of a cell looks: its text style, height, colour, alignment.
void readContentFormat(Fields &fields);
/// How a cell looks, with its margins and borders; nothing but its kind where it has no format of its own.
void readTableFormat(Fields &fields);

/// A value with its unit: what cells of tables and fields hold. Ends in ACVALUE_END.
void readCellValue(Fields &fields);

} // namespace host::dwg
