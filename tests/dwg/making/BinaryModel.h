#pragma once

#include "tests/dwg/making/ObjectWriter.h"

#include <string>
#include <string_view>

namespace host::dwg::test {

/// The form of a made model.
struct ModelForm
{
    int version = 21800;
    const char *writer = "ASM 1.0";      ///< the version of the program that wrote it
    bool isWide = false;                 ///< whole numbers of 64 bits
    const char *end = "End-of-ASM-data"; ///< null for none
};

/// A model in binary form, as drawings of R2007 and R2010 have it. `records` name its values, a record a line:
///
///     plane-surface $-1 -1 $-1 (0 0 5) (0 0 1) (1 0 0) F T 0.5 F F F #
///
/// The first word is the record's name, its parts joined by -; then $n is a reference, T and F are logical values, (x y
/// z) is a position, "abc" a text, 'abc' a literal one, e2 an enumeration, =name a word; other words are whole numbers,
/// or where they have a point or an exponent, numbers.
std::string binaryModel(std::string_view records, ModelForm form = {});

/// A plane with a triangle in it, of 4 by 3, moved to (1, 2), as regions have it.
std::string triangleModel();
/// The same with what has no text: a curve of a spline.
std::string splineModel();

/// Writes the fields of a 3DSOLID, or else of a REGION or BODY, of R2007 or R2010 with nothing drawn of the model.
void writeSolid(ObjectWriter &o, std::string_view model, bool isSolid);

} // namespace host::dwg::test
