#pragma once

#include "host/drawing/selection/SelectionFilter.h"

namespace host::drawing {

/// A filter held against many entities of one drawing, one after another. It looks for the wanted groups in the bytes
/// of the records, makes numbers and texts of nothing else, and remembers what came out for types and short texts. The
/// drawing may change meanwhile.
class SelectionFilter::Matcher
{
public:
    /// Both must outlive it.
    Matcher(const SelectionFilter &filter, const Drawing &drawing);
    ~Matcher();

    /// As SelectionFilter::matches().
    bool matches(RecordId entity);

private:
    class RecordTest;
    void prepare(const Node &node);
    bool holds(const Node &node);

    const SelectionFilter &m_filter;
    const Drawing &m_drawing;
    std::vector<RecordTest> m_tests; ///< of the leaves, by their numbers
    RecordId m_entity = noRecord;
};

} // namespace host::drawing
