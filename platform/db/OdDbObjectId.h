#pragma once

#include <QtGlobal>

#include <vector>

/// Names an object of an open drawing, for as long as the drawing is open; also of one that has been erased, so that it
/// can be asked for. What the number means is the host's own.
class OdDbObjectId
{
public:
    OdDbObjectId() = default;
    explicit OdDbObjectId(quint64 number) : m_number(number) {}

    bool isNull() const { return m_number == 0; }
    quint64 number() const { return m_number; }

    bool operator==(const OdDbObjectId &) const = default;

private:
    quint64 m_number = 0;
};

using OdDbObjectIdArray = std::vector<OdDbObjectId>;
