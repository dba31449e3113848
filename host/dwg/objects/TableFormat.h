#pragma once

#include "host/dwg/objects/Fields.h"

#include <array>

namespace host::dwg {

/// What the older form of a table has of the format of a cell's content.
struct ContentFormat
{
    // Bits of `flags`, which says what differs from the style, and of `properties`.
    static constexpr int alignmentBit = 0x10;
    static constexpr int colourBit = 0x20;
    static constexpr int textStyleBit = 0x40;
    static constexpr int heightBit = 0x80;
    static constexpr int automaticScaleBit = 0x100;
    static constexpr int fillBit = 0x200; ///< of a TableFormat alone

    int flags = 0;
    int properties = 0;
    double rotation = 0.0;
    double scale = 1.0;
    int alignment = 0;
    NotedColour colour;
    std::uint64_t textStyle = 0;
    double height = 0.0;
};

/// What the older form of a table style has of a cell's format; the usual values where the file says nothing.
struct TableFormat : ContentFormat
{
    struct Border
    {
        // Bits of `flags`, which says what differs from the style.
        static constexpr int weightBit = 0x2;
        static constexpr int colourBit = 0x8;
        static constexpr int visibilityBit = 0x10;

        int flags = 0;
        int weight = -2;
        bool isVisible = true;
        NotedColour colour;
    };

    /// The lines around a cell: above, inside across, below, left, inside upright, right.
    static constexpr std::size_t borderCount = 6;
    /// The index of `fill` where there is none.
    static constexpr int noFill = 257;

    NotedColour fill;
    int dataKind = 0;
    int unit = 0;
    std::string format;
    double acrossMargin = 0.0;
    double uprightMargin = 0.0;
    std::array<Border, borderCount> borders;
};

// How cells, rows, columns and whole tables look: parts of table styles and of the contents of tables, the same in the
// file and, between their BEGIN and END, in the text form.

/// How the content of a cell looks: its text style, height, colour, alignment. Fills in what `format` has of these.
void readContentFormat(Fields &fields, TableFormat &format);
/// How a cell looks, with its margins and borders; nothing but its kind where it has no format of its own.
TableFormat readTableFormat(Fields &fields);

/// A value with its unit: what cells of tables and fields hold. Ends in ACVALUE_END.
void readCellValue(Fields &fields);

} // namespace host::dwg
