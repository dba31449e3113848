#pragma once

#include "lispfuncs/EntityFilter.h"
#include "platform/kernel/CKvSelectionInput.h"

class CKvDocument;

namespace ortakit {

struct LispCall;

/// Whether of entities that are equal in all but their handles one alone is chosen.
enum class Duplicates
{
    Keep,
    LeaveOut
};

/// One call of a selection function: what Lisp asked for.
struct SelectionRequest
{
    QString prompt; ///< empty: the host's own
    QString mode;   ///< as (ssget) takes it; empty: the user's choice
    Duplicates duplicates = Duplicates::Keep;
    std::vector<OdGePoint3d> points; ///< world coordinates
    EntityFilter filter;
    const OdResBuf *set = nullptr; ///< chooses from this selection set and asks nobody

    /// Takes the mode in `value`, a string or nil. ":D", which leaves out duplicates, is no business of the host.
    /// Throws ArgumentError, as does the other.
    void takeMode(const OdResBuf *value);
    /// Takes what is behind the mode: points in user coordinates, lists of them and a filter.
    void takePointsAndFilter(const OdResBuf *first, const CKvDocument &document);
};

/// Chooses as the request says, and gives what was chosen to Lisp as a selection set. Returns the function's code.
int giveSelection(LispCall &call, const SelectionRequest &request);

} // namespace ortakit
