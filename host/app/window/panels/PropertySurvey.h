#pragma once

#include "host/drawing/properties/EntityProperties.h"
#include "host/drawing/records/Drawing.h"

#include <QByteArray>
#include <QDeadlineTimer>
#include <QMap>
#include <QSet>

namespace host::app {

/// What many entities have of one property.
struct SurveyedValue
{
    std::optional<drawing::FieldValue> common; ///< of those that were looked at; nothing when none has a value
    bool varies = false;
    bool isTold = false; ///< of one of them it cannot be set
    qsizetype count = 0; ///< entities that have the property

    bool operator==(const SurveyedValue &) const = default;
};

/// The property's value as the record has it, colours as colourText() has them (exact ones too), angles in degrees.
std::optional<drawing::FieldValue> propertyValue(const drawing::Drawing &drawing, drawing::RecordId entity,
                                                 const drawing::EntityProperty &property);

/// Looks through chosen entities for what they have in common, a piece at a time so that nobody waits for many. The
/// drawing must not change meanwhile, and outlive it; entities that are gone are left out.
class PropertySurvey
{
public:
    PropertySurvey(const drawing::Drawing &drawing, std::vector<drawing::RecordId> entities);

    /// Looks at entities until the deadline. True when all were looked at.
    bool goOn(const QDeadlineTimer &deadline);
    bool isDone() const { return m_next == m_entities.size(); }
    const std::vector<drawing::RecordId> &entities() const { return m_entities; }
    /// How many there are of each type, of those looked at.
    const QMap<QByteArray, qsizetype> &counts() const { return m_counts; }
    /// On locked layers, of those looked at.
    qsizetype lockedCount() const { return m_lockedCount; }
    /// Of entities of one type; of an empty one, of all. `property` is an index into entityProperties(). What is no
    /// property of all entities has a value for all only where all are of one type.
    SurveyedValue value(const QByteArray &type, std::size_t property) const;

private:
    void look(drawing::RecordId entity);

    const drawing::Drawing &m_drawing;
    std::vector<drawing::RecordId> m_entities;
    std::size_t m_next = 0;
    QMap<QByteArray, qsizetype> m_counts;
    QMap<QByteArray, std::vector<SurveyedValue>> m_values; ///< by type, in the order of entityProperties()
    QSet<QString> m_lockedLayers;                          ///< in folded case
    qsizetype m_lockedCount = 0;
};

} // namespace host::app
