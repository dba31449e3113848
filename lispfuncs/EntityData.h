#pragma once

#include "platform/db/OdDbDatabase.h"

namespace ortakit {

/// The data of an entity or object as (entget) shows it, read once.
class EntityData
{
public:
    /// Of what is erased or not of the drawing there is no data.
    EntityData(const OdDbDatabase &database, const OdDbObjectId &object) : m_chain(database.entityData(object)) {}

    bool isEmpty() const { return !m_chain; }
    /// The value of the first group of a code, those of embedded objects and extended data aside; null when there is
    /// none.
    const OdResBuf *value(int code) const;
    /// "LINE"; empty when there is no data.
    QString type() const;
    /// A vertex or attribute.
    bool isPart() const;
    /// An entity or a part of one rather than a table entry or an object.
    bool isEntity() const;
    /// The texts of all own groups of these two codes in their order, as one.
    QString joinedText(int code, int otherCode) const;

    /// Calls `look(code, value)` for every group in order, extended data included.
    template <class Look>
    void visit(const Look &look) const
    {
        for (const OdResBuf *code = m_chain.get(); code && code->next(); code = code->next()->next())
            look(int(code->getInteger()), *code->next());
    }

private:
    /// As visit(), in front of an embedded object (101) and extended data.
    template <class Look>
    void visitOwn(const Look &look) const
    {
        for (const OdResBuf *code = m_chain.get(); code && code->next(); code = code->next()->next()) {
            const int given = int(code->getInteger());
            if (given == 101 || given >= 1000)
                return;
            look(given, *code->next());
        }
    }

    OdResBufPtr m_chain;
};

} // namespace ortakit
