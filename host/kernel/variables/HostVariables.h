#pragma once

#include "host/kernel/variables/SystemVariables.h"

#include <span>

namespace host::kernel {

/// Where the value of a variable lives.
enum class VariablePlace
{
    Document,   ///< in memory, while the document is open
    User,       ///< in the user's settings, from one session to the next, for all documents
    Header,     ///< in the drawing's header; the default counts for drawings that lack it
    Dictionary, ///< in an object of the drawing's dictionary of settings; likewise
    Viewport,   ///< in the record of the model's viewport ("*Active"); likewise
    Computed    ///< nowhere: `compute` tells it
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
    int code = 0; ///< Header, Viewport: the group code in the file
    VariableValue (*compute)(const Document &) = nullptr;
    /// What a new value is kept as (a layer's name in its own spelling), nothing for one that cannot be; null where
    /// every value is kept as it is.
    std::optional<VariableValue> (*accept)(const Document &, const VariableValue &) = nullptr;
    /// Computed: puts a new value where `compute` finds it; null where it is remembered while the document is open.
    void (*store)(Document &, const VariableValue &) = nullptr;
    /// Header: the versions of the format that have it. In others the value lasts as long as the document is open.
    drawing::Version since = drawing::Version::R12;
    drawing::Version until = drawing::Version{2147483647};
    /// Header: the default of metric drawings, where `initial` is that of the others.
    std::optional<VariableValue> metric = {};
};

/// The row of a variable by its name in upper case; null for one without a row.
const HostVariable *findHostVariable(QStringView upperName);
/// All rows, those of each table behind the other.
const std::vector<HostVariable> &hostVariables();
/// What counts where nobody has set the variable.
VariableValue usualValue(const Document &document, const HostVariable &variable);

/// `value` as the kind that `like` is; nothing when it cannot be: whole numbers become reals, points lose or get a z.
std::optional<VariableValue> convertedTo(const VariableValue &like, const VariableValue &value);
/// Whether a number is within the variable's limits; true for everything else.
bool isInRange(const HostVariable &variable, const VariableValue &value);

} // namespace host::kernel
