#pragma once

#include "host/app/window/panels/LayerRows.h"

#include <QStringList>

namespace host::app {

// What is to be done to layers, as a line for the command line: one run, one step to undo, one entry of a recording.

/// The line that enters these words one after the other; an empty word is Enter. What a line cannot say as it is typed
/// (blanks, quotes, parentheses) is said in Lisp.
QString typedLine(const QStringList &words);
/// A text as Lisp reads it.
QString lispText(const QString &text);

/// Why the layer does not take the value; empty when it does. `value` as the column shows it.
QString obstacleToChanging(const drawing::Drawing &drawing, const LayerRow &row, LayerColumn column,
                           const QString &value);
/// Gives the layers a value: a state as layerStateText() has it, a colour as colourText() has it or by its number or
/// name, a linetype's name, a lineweight in millimetres or "Default", percents of transparency, a text. Nothing for
/// what is no such value, or without layers.
QString layerChangeLine(const std::vector<LayerRow> &layers, LayerColumn column, const QString &value);
QString layerRenameLine(const QString &from, const QString &to);
QString layerCurrentLine(const QString &name);
/// Takes unused layers out of the drawing.
QString layerDeleteLine(const QStringList &names);
/// A new layer that looks like `model`.
QString layerNewLine(const QString &name, const LayerRow *model, drawing::Version version);

/// "Layer1", or with the next number that no layer has.
QString freeLayerName(const drawing::Drawing &drawing);
/// Why the layer cannot have that name; empty when it can. A layer of another file keeps its name, as does "0".
QString obstacleToRenaming(const drawing::Drawing &drawing, const QString &from, const QString &to);

} // namespace host::app
