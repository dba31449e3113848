#pragma once

#include "host/drawing/math/Curves.h"

#include <QString>

namespace host::drawing {

/// A sign of tolerances by strokes: from 0 to 1 upwards, in text heights.
struct ToleranceSymbol
{
    std::vector<Path> lines{}; ///< curves in straight pieces
    QChar letter{};            ///< within its circle, in letters of the text; null: none
    double width = 1.2;        ///< with the room around it
};

/// The sign that a letter of the tolerance font stands for: the fourteen characteristics, the diameter and the
/// modifiers. Null for a letter without one. The pointer stays.
const ToleranceSymbol *toleranceSymbol(QChar letter);

/// A piece of one cell: a sign or plain text.
struct TolerancePiece
{
    const ToleranceSymbol *symbol = nullptr;
    QString text{};
};
using ToleranceCell = std::vector<TolerancePiece>;

/// The rows of a tolerance's frame, each with its cells; empty cells are left out, as are rows of none. "%%v" stands
/// between cells; a new line, "^J" or "\P" between rows; "{\Fgdt;x}" is the sign that x stands for. At most a thousand
/// cells.
std::vector<std::vector<ToleranceCell>> toleranceRows(const QString &text);

} // namespace host::drawing
