#pragma once

#include "platform/kernel/OdResBuf.h"

namespace ortakit {

/// What entities an argument asks for: a filter list as (ssget) takes it, or a string of type names with wildcards
/// ("LINE,*POLYLINE", in any case) in place of the list that asks for these. nil and nothing ask for all.
class EntityFilter
{
public:
    EntityFilter() = default;
    /// `value` must outlive the filter. Throws ArgumentError for what is neither.
    explicit EntityFilter(const OdResBuf *value);

    /// For the host; null for all.
    const OdResBuf *list() const { return m_ownList ? m_ownList.get() : m_list; }
    /// The type names in upper case; empty where a list was given.
    QString types() const { return m_types; }

private:
    QString m_types;
    OdResBufPtr m_ownList;
    const OdResBuf *m_list = nullptr;
};

} // namespace ortakit
