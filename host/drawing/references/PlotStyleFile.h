#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

#include <array>
#include <optional>
#include <vector>

namespace host::drawing {

/// What a plot style makes of what is drawn in it. Pens, fills, ends and joins of lines are read over.
struct PlotStyle
{
    static constexpr int ownLinetype = -1;
    static constexpr int ownLineweight = -1;

    QString name{};
    std::optional<quint32> colour{}; ///< 0xRRGGBB; nothing: the entity's own
    bool isGrey = false;             ///< colours become greys
    int screening = 100;             ///< per cent of the ink, 0 to 100
    int linetype = ownLinetype;      ///< place in plotLinetypes()
    int lineweight = ownLineweight;  ///< hundredths of a millimetre

    bool operator==(const PlotStyle &) const = default;
};

/// A table of plot styles: one for each of the 255 colours, or some that layers and entities name.
class PlotStyleTable
{
public:
    PlotStyleTable() = default;
    PlotStyleTable(bool isByColour, std::vector<PlotStyle> styles);

    bool isByColour() const { return m_isByColour; }
    const std::vector<PlotStyle> &styles() const { return m_styles; }
    /// The style of a colour index, in a table by colours; null for an index that has none. Constant cost.
    const PlotStyle *ofColour(int index) const;
    /// The style of that name in any letter case, in a table by names; null where there is none.
    const PlotStyle *named(const QString &name) const;

private:
    bool m_isByColour = true;
    std::vector<PlotStyle> m_styles;
    QHash<QString, int> m_byName; ///< in folded case
};

/// What came of reading: a table, or the reason why there is none.
struct PlotStyleReading
{
    std::optional<PlotStyleTable> table{};
    QString error{};
};

/// Reads a CTB or STB file. Compressed content counts up to 64 KB, what comes out of it up to 4 MB. Properties that are
/// missing or make no sense are those of PlotStyle.
PlotStyleReading readPlotStyles(const QByteArray &bytes);

/// The same for a file that may be read; the error does not name it.
PlotStyleReading readPlotStyleFile(const QString &path);

/// The tables that need no file, by their files' names in any letter case: "monochrome.ctb", "grayscale.ctb",
/// "screening 25%.ctb" with 50, 75 and 100, and "monochrome.stb". Without an extension the table by colours. Nothing
/// for other names.
std::optional<PlotStyleTable> builtInPlotStyles(const QString &name);

/// The linetypes that plot styles choose from: lengths of dashes, gaps (negative) and dots (0) in millimetres. The
/// first is a full line, without any.
const std::vector<std::vector<double>> &plotLinetypes();

} // namespace host::drawing
