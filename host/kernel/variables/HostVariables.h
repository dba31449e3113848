#pragma once

#include "host/kernel/variables/SystemVariables.h"

namespace host::kernel {

/// Where the value of a variable lives.
enum class VariablePlace
{
    Host,    ///< in memory, while the document is open
    Header,  ///< in the drawing's header; the default counts for drawings that lack it
    Computed ///< nowhere: `compute` tells it
};

enum class VariableAccess
{
    ReadWrite,
    ReadOnly
};

/// One system variable that the host itself knows. Header variables without a row are passed on as the file has them.
struct HostVariable
{
    const char *name;
    VariablePlace place;
    VariableAccess access;
    VariableValue initial;
    double low = 0.0; ///< a number must be within, where low is below high
    double high = 0.0;
    int code = 0; ///< Header: the group code of the file
    VariableValue (*compute)(const Document &) = nullptr;
    /// An extra check of a new value; null for none.
    bool (*accepts)(const Document &, const VariableValue &) = nullptr;
};

/// The row of a variable by its name in upper case; null for one without a row.
const HostVariable *findHostVariable(QStringView upperName);
const std::vector<HostVariable> &hostVariables();

} // namespace host::kernel
