#include "host/app/window/panels/PropertySurvey.h"

#include "host/app/window/panels/LayerRows.h"
#include "host/drawing/records/Entities.h"
#include "host/drawing/records/Symbols.h"

namespace host::app {

namespace {

using drawing::EntityProperty;
using drawing::FieldValue;
using drawing::PropertyKind;

constexpr int exactCode = 420;

/// A look at the clock for so many entities.
constexpr std::size_t entitiesBetweenLooks = 64;

FieldValue entityColour(const drawing::TagList &tags)
{
    if (const drawing::Tag *exact = tags.find(exactCode))
        return colourText(0, quint32(exact->integer().value_or(0)));
    const qint64 index = tags.integer(62, drawing::colourByLayer);
    return index == drawing::colourByLayer ? QStringLiteral("ByLayer")
           : index == 0                    ? QStringLiteral("ByBlock")
                                           : colourText(int(index), {});
}

void addTo(SurveyedValue &sum, const SurveyedValue &more)
{
    sum.varies = sum.varies || more.varies || (sum.count > 0 && more.count > 0 && sum.common != more.common);
    if (sum.count == 0)
        sum.common = more.common;
    sum.isTold = sum.isTold || more.isTold;
    sum.count += more.count;
}

} // namespace

std::optional<FieldValue> propertyValue(const drawing::Drawing &drawing, drawing::RecordId entity,
                                        const EntityProperty &property)
{
    if (property.derived)
        return property.derived(drawing, entity);
    const drawing::TagList tags = drawing.tags(entity);
    if (property.kind == PropertyKind::Colour)
        return entityColour(tags);
    const drawing::Tag *tag = tags.find(property.code);
    if (!tag)
        return property.usual ? property.usual() : std::nullopt;
    switch (property.kind) {
    case PropertyKind::Whole:
    case PropertyKind::Weight:
    case PropertyKind::Transparency:
        return FieldValue(tag->integer().value_or(0));
    case PropertyKind::Number:
    case PropertyKind::Length:
    case PropertyKind::Angle:
    case PropertyKind::Direction:
        return FieldValue(tag->real().value_or(0.0));
    case PropertyKind::Point:
    case PropertyKind::Vector:
        return FieldValue(tags.point(property.code));
    default:
        return FieldValue(tags.decoded(*tag));
    }
}

PropertySurvey::PropertySurvey(const drawing::Drawing &drawing, std::vector<drawing::RecordId> entities)
    : m_drawing(drawing), m_entities(std::move(entities))
{
    std::erase_if(m_entities, [&](drawing::RecordId id) { return !drawing.isAlive(id); });
    for (const drawing::Layer &layer : drawing::allLayers(drawing))
        if (layer.isLocked)
            m_lockedLayers.insert(layer.name.toCaseFolded());
}

bool PropertySurvey::goOn(const QDeadlineTimer &deadline)
{
    while (!isDone()) {
        look(m_entities[m_next++]);
        if (m_next % entitiesBetweenLooks == 0 && deadline.hasExpired())
            break;
    }
    return isDone();
}

void PropertySurvey::look(drawing::RecordId entity)
{
    const QByteArray type = m_drawing.typeName(entity).toByteArray().toUpper();
    const std::span<const EntityProperty> properties = drawing::entityProperties();
    std::vector<SurveyedValue> &values = m_values[type];
    values.resize(properties.size());
    ++m_counts[type];
    const drawing::TagList tags = m_drawing.tags(entity);
    if (!m_lockedLayers.isEmpty() && m_lockedLayers.contains(tags.text(8, QStringLiteral("0")).toCaseFolded()))
        ++m_lockedCount;
    for (std::size_t i = 0; i < properties.size(); ++i) {
        if (!drawing::hasProperty(type, properties[i]) || !drawing::isInVersion(m_drawing.version(), properties[i]))
            continue;
        SurveyedValue &value = values[i];
        value.isTold = value.isTold || properties[i].isTold;
        if (!value.varies) {
            std::optional<FieldValue> own = propertyValue(m_drawing, entity, properties[i]);
            value.varies = value.count > 0 && own != value.common;
            value.common = std::move(own);
        }
        ++value.count;
    }
}

SurveyedValue PropertySurvey::value(const QByteArray &type, std::size_t property) const
{
    const bool isGeneral = drawing::entityProperties()[property].type[0] == '\0';
    const bool isOfOne = !type.isEmpty() || m_values.size() == 1;
    SurveyedValue sum;
    for (auto values = m_values.begin(); values != m_values.end(); ++values)
        if ((isGeneral || isOfOne) && (type.isEmpty() || values.key() == type))
            addTo(sum, (*values)[property]);
    return sum;
}

} // namespace host::app
