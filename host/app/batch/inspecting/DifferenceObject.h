#pragma once

#include "host/drawing/comparing/DifferenceText.h"

#include <QJsonObject>

namespace host::app {

/// A comparison as JSON: "equal", "matchedBy" ("handle" or "content"), "totals", "byType", "byLayer" and, unless it is
/// brief, "differences".
QJsonObject comparisonObject(const drawing::Comparison &comparison, const drawing::DifferenceText &text, bool isBrief);

/// A value as JSON: a number, a text, [x, y] or [x, y, z]; handles and bytes as hexadecimal text.
QJsonValue valueObject(const drawing::FieldValue &value);

} // namespace host::app
