#pragma once

#include "host/app/window/panels/PropertyModel.h"

namespace host::app {

/// What is to be done for a value that was written, as a line for the command line, or why nothing is.
struct PropertyOrder
{
    QString line;
    QString error; ///< empty when there is a line
};

/// Gives the property to the entities that are chosen when the line runs.
PropertyOrder propertyOrder(const kernel::Document &document, const PropertyLine &line, const QString &text);
/// Gives the system variable its value.
PropertyOrder variableOrder(const kernel::Document &document, const PropertyLine &line, const QString &text);

} // namespace host::app
