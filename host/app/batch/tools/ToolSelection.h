#pragma once

#include <QString>

namespace host::app {

/// A string of Lisp with this text, quotes and all.
QString lispText(QString text);

/// The value of --select as a filter of ssget: "((0 . \"TEXT\"))"; "nil" takes everything.
struct SelectionFilter
{
    QString filter;
    QString error; ///< why there is none; empty when there is
};

/// Reads
///     all
///     TEXT,MTEXT on layer NOTES*,ROOMS
///     INSERT of block DOOR* in color 1
///     ((0 . "TEXT") (8 . "NOTES"))
/// Words in front are types of entities with commas between; behind them stand "on layer", "of block", "in style" and
/// "in color" in any order, each once, with a pattern that goes up to the next of them. Case of these words does not
/// count. What begins with a parenthesis is a filter list of ssget as it is.
SelectionFilter readSelection(const QString &text);

} // namespace host::app
