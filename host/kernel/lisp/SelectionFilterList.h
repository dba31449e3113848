#pragma once

#include "host/drawing/selection/SelectionFilter.h"
#include "host/lisp/Value.h"

namespace host::kernel {

class Document;

/// A filter list of the dialect as a filter. Items are like those of an entity list, with operators under -4 and the
/// applications of extended data under -3; angles are in radians. What cannot be a filter is told in the outcome.
drawing::SelectionFilter::Outcome filterFromList(const Document &document, const lisp::Value &list);

} // namespace host::kernel
