#pragma once

#include <QStringView>

#include <span>

namespace host::kernel {

/// What a system variable is, in one line: for lists, help and documents.
struct VariableHelp
{
    const char *name; ///< upper case
    const char *text;
};

// The tables, each sorted by name.

std::span<const VariableHelp> dimensionHelp(); ///< DIMSCALE and the like
std::span<const VariableHelp> helpToK();       ///< other names up to K
std::span<const VariableHelp> helpFromL();     ///< and behind it

/// The line of a name in upper case. Variables that are stored for programs alone have one in common.
const char *variableHelp(QStringView upperName);

} // namespace host::kernel
