#pragma once

#include "host/kernel/variables/HostVariables.h"

namespace host::kernel {

/// The rows of one table.
using VariableRows = std::vector<HostVariable>;

// The tables, one a subject. hostVariables() puts them together.

VariableRows commandVariables();   ///< what commands remember, and how they behave
VariableRows dimensionRows();      ///< DIMSCALE and the like
VariableRows drawingRows();        ///< kept in the drawing
VariableRows hatchVariables();     ///< what hatching proposes
VariableRows interfaceVariables(); ///< windows, panels, tips and pictures on the screen
VariableRows stateVariables();     ///< what the program and its document are
VariableRows userVariables();      ///< how the user likes to work
VariableRows viewVariables();      ///< views, viewports, user coordinate systems, visual styles

/// How rows are written, a line each. Where low is below high, a number must lie between them.
namespace rows {

inline VariableValue text(const char *value)
{
    return QString::fromLatin1(value);
}

/// In memory, while the document is open.
inline HostVariable kept(const char *name, VariableValue initial, double low = 0.0, double high = 0.0)
{
    return {name, VariablePlace::Document, VariableAccess::ReadWrite, std::move(initial), low, high};
}

inline HostVariable ofUser(const char *name, VariableValue initial, double low = 0.0, double high = 0.0)
{
    return {name, VariablePlace::User, VariableAccess::ReadWrite, std::move(initial), low, high};
}

inline HostVariable inHeader(const char *name, int code, VariableValue initial, double low = 0.0, double high = 0.0)
{
    return {name, VariablePlace::Header, VariableAccess::ReadWrite, std::move(initial), low, high, code};
}

inline HostVariable inDictionary(const char *name, VariableValue initial, double low = 0.0, double high = 0.0)
{
    return {name, VariablePlace::Dictionary, VariableAccess::ReadWrite, std::move(initial), low, high};
}

inline HostVariable inViewport(const char *name, int code, VariableValue initial, double low = 0.0, double high = 0.0)
{
    return {name, VariablePlace::Viewport, VariableAccess::ReadWrite, std::move(initial), low, high, code};
}

/// Nothing changes it.
inline HostVariable fixed(const char *name, VariableValue value)
{
    return {name, VariablePlace::Document, VariableAccess::ReadOnly, std::move(value)};
}

inline HostVariable computed(const char *name, VariableValue (*compute)(const Document &))
{
    return {name, VariablePlace::Computed, VariableAccess::ReadOnly, 0, 0.0, 0.0, 0, compute};
}

// What is said of few rows, around them.

/// Only the host itself sets it.
inline HostVariable readOnly(HostVariable row)
{
    row.access = VariableAccess::ReadOnly;
    return row;
}

/// Programs set what is worked out, too: `initial` says its kind. `store` may be null.
inline HostVariable settable(void (*store)(Document &, const VariableValue &), VariableValue initial, HostVariable row)
{
    row.access = VariableAccess::ReadWrite;
    row.store = store;
    row.initial = std::move(initial);
    return row;
}

inline HostVariable within(double low, double high, HostVariable row)
{
    row.low = low;
    row.high = high;
    return row;
}

inline HostVariable since(drawing::Version first, HostVariable row)
{
    row.since = first;
    return row;
}

inline HostVariable until(drawing::Version last, HostVariable row)
{
    row.until = last;
    return row;
}

/// With a default of its own in metric drawings.
inline HostVariable metric(VariableValue value, HostVariable row)
{
    row.metric = std::move(value);
    return row;
}

inline HostVariable checked(std::optional<VariableValue> (*accept)(const Document &, const VariableValue &),
                            HostVariable row)
{
    row.accept = accept;
    return row;
}

} // namespace rows

} // namespace host::kernel
