#pragma once

#include <QString>

class QWidget;

namespace ortakit {

/// What a widget writes into a state file and takes from one, by its class: the first class that matches in this
/// order, subclasses included.
///
/// | class | writes | takes |
/// |---|---|---|
/// | label | nothing | the text |
/// | push and tool button | nothing | nothing |
/// | check box | TRUE or FALSE | anything but FALSE checks it |
/// | line edit | the whole text | the text, shown shortened; not the inner editor of a spin box |
/// | radio button | as a check box | as a check box |
/// | colour combo box | the colour number | a colour number |
/// | combo box | the current text | the current text; not the box of favourites |
/// | list | the current item's text | the current item's text |
/// | unit spin box | the number, angles in degrees | the same |
/// | real spin box | the number | the same |
/// | whole-number spin box | nothing | the number, cut to a whole one |
/// | tab widget | the current index | the same |
/// | table | column 0 of each row with a selected cell, top down, each with "^" behind | texts split at "^": every item
/// | |  |  | with such a text (any case) is selected, the rest is not |
///
/// Reals have 6 significant digits. A number that cannot be read is 0.

/// What `widget` writes now; empty when it writes nothing.
QString writtenValue(const QWidget &widget);

/// The current index of a combo box, which is written in a line of its own; empty for every other widget.
QString writtenIndex(const QWidget &widget);

/// Gives `widget` the value.
void applyValue(QWidget &widget, const QString &value);

} // namespace ortakit
