#pragma once

#include "host/dwg/bits/BitReader.h"

#include <span>
#include <string_view>

namespace host::dwg {

/// How a header variable is coded.
enum class HeaderKind
{
    Flag,
    Byte,
    IsOne, ///< a byte, of which the text form says whether it is 1
    Int16,
    Int32,
    LongLong,
    Real,
    Angle,
    Point,
    RawPoint, ///< of two raw numbers
    Text,
    Colour,
    Date,      ///< days and milliseconds
    Span,      ///< the same, as a time that passed
    OwnHandle, ///< a handle that stands among the values
    Name,      ///< a reference to what the text form has by name
    BlockName, ///< the same, of a block
    Reference,
    Bits,      ///< several variables in one number
    StyleKind, ///< a number that says whether the reference behind it is there
    StyleReference,
    // References that the drawing is found from.
    BlockTable,
    LayerTable,
    StyleTable,
    LinetypeTable,
    ViewTable,
    SystemTable,
    ViewportTable,
    ApplicationTable,
    DimensionStyleTable,
    NamedObjects,
    PaperSpace,
    ModelSpace
};

/// One value of the header in the order of files: what it is, its group code and its name in the text form (empty for
/// what is not written there), and the releases that have it.
struct HeaderRow
{
    HeaderKind kind;
    int code;
    std::string_view name;
    Release first;
    Release last;
};

std::span<const HeaderRow> headerRows();

/// The variables' names in the order of the text form.
std::span<const std::string_view> headerOrder();
/// The place of a name in that order; behind the last one for what the text form does not have.
std::size_t headerPlace(std::string_view name);
/// The places of the rows' names, in the order of the rows.
std::span<const std::size_t> headerPlaces();

} // namespace host::dwg
