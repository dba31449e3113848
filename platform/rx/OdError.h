#pragma once

#include "platform/Export.h"
#include "platform/rx/OdString.h"

/// What operations of the drawing database throw where their comments say so. It passes through the module's own code
/// only; the module turns it into a failed call whose reason is on the command line. It is thrown and caught on both
/// sides of the boundary, so its type information is the host's.
class KV_EXPORT OdError
{
public:
    /// `description` is shown to the user as it is.
    explicit OdError(const OdString &description) : m_description(description) {}

    /// What went wrong, a sentence for the user: the module prints it on the command line of the active document and
    /// adds nothing.
    OdString description() const { return m_description; }

private:
    OdString m_description;
};
