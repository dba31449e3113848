#pragma once

#include "host/dcl/AttributeTable.h"

#include <QHash>
#include <QString>

#include <vector>

namespace host::dcl {

/// What a tile is in the end, whatever it is derived from.
enum class TileKind
{
    Dialog,
    Row, ///< children side by side
    Column,
    BoxedRow, ///< with a frame, and its label in that
    BoxedColumn,
    RadioRow, ///< of its radio buttons one is on
    RadioColumn,
    BoxedRadioRow,
    BoxedRadioColumn,
    Concatenation, ///< parts of one line of text
    Paragraph,     ///< lines of text below each other
    Button,
    EditBox,
    Image,
    ImageButton,
    ListBox,
    PopupList,
    RadioButton,
    Slider,
    Spacer,
    Text,
    TextPart, ///< a text without room around it
    Toggle
};

/// The kind whose tile is called so; null for a name that no kind has. "cluster" and "tile" are a column.
const TileKind *kindNamed(const QString &name);

// What several kinds have in common.

/// Has children side by side or below each other.
bool isCluster(TileKind kind);
bool isRow(TileKind kind);
bool isBoxed(TileKind kind);
bool isRadioCluster(TileKind kind);

/// A tile of a dialog as it is to be shown: what it is derived from is worked in.
struct Tile
{
    TileKind kind = TileKind::Column;
    QHash<QString, AttributeValue> attributes; ///< by name in lower case; what is left out has its kind's default
    std::vector<Tile> children;                ///< of clusters

    bool has(const QString &name) const { return attributes.contains(name); }
    /// As it is written, without quotes; empty where there is none.
    QString text(const QString &name) const { return attributes.value(name).text; }
    /// A reserved word in lower case.
    QString word(const QString &name) const { return text(name).toLower(); }
    /// `otherwise` where there is none, or it is no finite number.
    double number(const QString &name, double otherwise = 0) const;
    /// The same, as a whole number between the limits, which `otherwise` may lie outside of.
    int integer(const QString &name, int otherwise, int least, int most) const;
    /// "true", or a number that is not 0.
    bool flag(const QString &name, bool otherwise = false) const;
    /// Its key; empty for a tile that no program means.
    QString key() const { return text(QStringLiteral("key")); }
};

/// Calls `visit` for the tile and all within it, from the outside in.
template <typename Visit>
void forEachTile(const Tile &tile, Visit &&visit)
{
    visit(tile);
    for (const Tile &child : tile.children)
        forEachTile(child, visit);
}

} // namespace host::dcl
