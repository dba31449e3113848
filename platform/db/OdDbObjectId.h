#pragma once

#include <QtGlobal>

#include <vector>

/// Names an object of an open drawing, for as long as the drawing is open; also of one that has been erased, so that it
/// can be asked for. What the number means is the host's own.
class OdDbObjectId
{
public:
    /// The null id, which names nothing.
    OdDbObjectId() = default;
    /// Of a number that the host gave before: as a link of type kRtEntityName, or by number().
    explicit OdDbObjectId(quint64 number) : m_number(number) {}

    bool isNull() const { return m_number == 0; }
    /// For a link of type kRtEntityName; 0 for the null id. It says nothing about order or age of the objects.
    quint64 number() const { return m_number; }

    /// Ids of different drawings may be equal.
    bool operator==(const OdDbObjectId &) const = default;

private:
    quint64 m_number = 0;
};

/// Ids in the order of the selection, walk or list that they come from; whether erased objects are among them is said
/// there.
using OdDbObjectIdArray = std::vector<OdDbObjectId>;
