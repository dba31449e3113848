#pragma once

#include "host/drawing/records/Symbols.h"

#include <QCoreApplication>

#include <vector>

namespace host::app {

/// A layer as a panel shows it: its table entry, what extended data says of it, and its part in the drawing.
struct LayerRow
{
    drawing::Layer layer;
    QString colourBook;   ///< name in a colour book, for the one colour that the index or true colour stands for
    int transparency = 0; ///< percent, 0 to 90
    QString description;
    bool isCurrent = false;
    bool isFrozenInViewport = false; ///< in the one that is worked in

    bool operator==(const LayerRow &other) const;
};

/// A text of the context "Layers", translated.
QString layersText(const char *text);

/// All layers in file order. Costs a pass over the tags of the table.
std::vector<LayerRow> layerRows(const drawing::Drawing &drawing);

/// What a panel shows of layers, in its order.
enum class LayerColumn
{
    Name,
    On,
    Freeze,
    Lock,
    Plot,
    Colour,
    Linetype,
    Lineweight,
    Transparency,
    Description,
    Viewport
};

/// One column: how it is called, what it shows, and since when drawings have it.
struct LayerColumnRow
{
    const char *title; ///< to be translated in the context "Layers"
    QString (*text)(const LayerRow &row);
    drawing::Version since;
    bool isState; ///< one of two texts, of which a click makes the other
};

const LayerColumnRow &layerColumn(LayerColumn column);
inline constexpr int layerColumns = int(LayerColumn::Viewport) + 1;

/// The state on (the layer can be seen, worked on, printed) or off, whatever the column calls it.
bool layerState(const LayerRow &row, LayerColumn column);
/// What the column shows for a state.
QString layerStateText(LayerColumn column, bool state);
/// The layer is one of an external reference: "file|name".
bool isReferenced(const LayerRow &row);

/// A colour as people write it: "red", "12", "255,128,0".
QString colourText(int index, const std::optional<quint32> &exact);
/// "Default", "0.25 mm".
QString weightText(int weight);

/// Of a stored transparency: the low byte is how much covers, 255 all of it; a flag in front says that it is a number.
int transparencyPercent(qint64 stored);

} // namespace host::app
