#pragma once

#include "host/drawing/tags/Tag.h"

namespace host::drawing {

/// Gives a record's fields this extended data of an application (without the group 1001), in place of what they have of
/// it; empty takes it away. The application is not registered here.
void setExtendedData(FieldList &fields, const QString &application, const FieldList &data);

} // namespace host::drawing
