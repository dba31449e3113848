#pragma once

#include <QColor>
#include <QIcon>

class QPainter;

namespace host::app {

struct LayerRow;

/// The small pictures of layers' states, drawn as lines so that they are sharp at every scale and fit light and dark
/// windows.
enum class StateMark
{
    None,    ///< as wide as the others, to keep texts in line
    Current, ///< a tick
    On,
    Off,
    Thawed,
    Frozen,
    Unlocked,
    Locked,
    Plots,
    NoPlot,
    ThawedInViewport,
    FrozenInViewport
};

/// Draws one into the square, with `ink` for its lines.
void paintState(QPainter &painter, const QRectF &square, StateMark mark, const QColor &ink);
/// The same as an icon, in the ink of the windows' texts.
QIcon stateIcon(StateMark mark);

/// A square of a colour.
QIcon colourIcon(const QColor &colour);
/// What the layer's colour looks like in the windows' drawings.
QColor shownColour(const LayerRow &row);

} // namespace host::app
