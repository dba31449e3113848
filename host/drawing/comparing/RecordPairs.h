#pragma once

#include "host/drawing/comparing/Ignoring.h"
#include "host/drawing/records/Drawing.h"

#include <vector>

namespace host::drawing {

/// What makes records of two drawings the same one.
enum class Matching
{
    Automatic, ///< by handle, unless far more are the same by content
    ByHandle,
    ByContent
};

/// Which records of one drawing stand for which of another one. Each has one partner or none.
class RecordPairs
{
public:
    RecordPairs(const Drawing &before, const Drawing &after);

    const Drawing &before() const { return *m_before; }
    const Drawing &after() const { return *m_after; }
    /// Never Automatic.
    Matching matching() const { return m_matching; }
    void setMatching(Matching matching) { m_matching = matching; }

    // Any id may be asked about, noRecord too, which is its own partner.
    RecordId ofBefore(RecordId id) const { return isValid(id) ? m_ofBefore[quint32(id)] : noRecord; }
    RecordId ofAfter(RecordId id) const { return isValid(id) ? m_ofAfter[quint32(id)] : noRecord; }
    bool arePartners(RecordId before, RecordId after) const { return isValid(before) && ofBefore(before) == after; }
    /// Neither may have a partner yet.
    void join(RecordId before, RecordId after);
    bool areFree(RecordId before, RecordId after) const;
    /// Joins them when both are free and of one type and kind; whether it did.
    bool joinIfAlike(RecordId before, RecordId after);
    /// Whether these references lead to the same thing: to partners, or where records are matched by handle by the same
    /// handle, or nowhere at all.
    bool leadToSame(Handle before, Handle after) const;

private:
    const Drawing *m_before;
    const Drawing *m_after;
    std::vector<RecordId> m_ofBefore; ///< by id
    std::vector<RecordId> m_ofAfter;
    Matching m_matching = Matching::ByHandle;
};

/// Finds the partners. Variables, classes, tables, their entries and blocks go by their names, and then, as they may
/// have been renamed, by handles; entities and objects
///
/// - by handle, where both have the same type, or
/// - by content: first those that are equal, in their order where several are; then those of one type of which as many
///   stand between the same neighbours; objects by the names of their dictionaries before.
///
/// Where records are matched by handle those without one are by content. n log n in the number of records.
RecordPairs pairRecords(const Drawing &before, const Drawing &after, Matching matching, IgnoredKinds ignored);

} // namespace host::drawing
