#pragma once

#include "host/drawing/records/Drawing.h"
#include "host/view/display/Display.h"

#include <array>
#include <optional>

namespace host::view {

/// How the lines of a side of cells are drawn.
struct TableLine
{
    bool isVisible = true;
    Colour colour{.kind = Colour::Kind::ByBlock};
    int lineweight = Style::byBlock;
};

/// What a table style says for one of its three kinds of rows.
struct TableRowStyle
{
    enum Side : std::size_t
    {
        Top,
        InsideAcross, ///< between two rows of the kind
        Bottom,
        Left,
        InsideDown, ///< between two columns
        Right
    };
    QString textStyle{};
    double height = 0.18;
    int alignment = 1; ///< 1 to 9: three rows of three from the top left
    Colour text{.kind = Colour::Kind::ByBlock};
    Colour fill{};
    bool isFilled = false;
    std::array<TableLine, 6> lines{};
};

/// A cell; what it does not say itself is its row's.
struct TableCell
{
    enum Edge : std::size_t
    {
        TopEdge,
        RightEdge,
        BottomEdge,
        LeftEdge
    };
    struct Attribute
    {
        const drawing::Tag *definition = nullptr;
        const drawing::Tag *text = nullptr;
    };
    bool isBlock = false;
    bool isHidden = false; ///< covered by a merged cell
    std::size_t columns = 1;
    std::size_t rows = 1;
    double rotation = 0.0; ///< radians
    QString text{};
    const drawing::Tag *block = nullptr;
    double blockScale = 1.0; ///< 0: as large as fits
    bool fitsBlock = true;
    std::vector<Attribute> attributes{};
    QString textStyle{};
    std::optional<double> height{};
    std::optional<int> alignment{};
    std::optional<Colour> textColour{};
    std::optional<Colour> fill{};
    std::optional<bool> isFilled{};
    std::array<std::optional<bool>, 4> visible{};
    std::array<std::optional<Colour>, 4> colours{};
    std::array<std::optional<int>, 4> lineweights{};
};

/// A table as its record and its style have it. Tags point into the list it was read from.
struct TableData
{
    std::vector<double> heights{}; ///< of rows, positive
    std::vector<double> widths{};
    std::vector<TableCell> cells{}; ///< row by row; the last ones may be missing
    TableRowStyle data{};
    TableRowStyle title{};
    TableRowStyle header{};
    bool hasTitle = true;
    bool hasHeader = true;
    bool growsUp = false;
    double horizontalMargin = 0.06;
    double verticalMargin = 0.06;

    const TableCell *cell(std::size_t row, std::size_t column) const;
    const TableRowStyle &styleOfRow(std::size_t row) const;
    /// The first row of data.
    std::size_t headRows() const { return (hasTitle ? 1u : 0u) + (hasHeader ? 1u : 0u); }
};

/// Rows and columns are as many as have a size; counts that say more are not believed.
TableData readTable(const drawing::Drawing &drawing, const drawing::TagList &tags);

} // namespace host::view
