#include "host/dwg/contents/DataStore.h"
#include "host/dwg/drawing/Sections.h"

#include <algorithm>

namespace host::dwg {

namespace {

void noteAttributes(const DataStore &store, const std::vector<std::size_t> &attributes, int ownerCode,
                    std::string_view owner, Fields &f)
{
    for (const std::size_t index : attributes) {
        const DataStore::Attribute attribute =
            index < store.attributes.size() ? store.attributes[index] : DataStore::Attribute();
        const DataStore::Schema *schema = store.schemaOf(attribute.schema);
        if (!schema || schema->properties.empty())
            continue;
        f.note(101, "ACDSRECORD");
        f.note(ownerCode, owner);
        f.note(90, attribute.schema);
        const DataStore::Property &property = schema->properties.front();
        f.note(2, property.name);
        f.note(280, property.type);
        if (property.type == flagProperty)
            f.note(291, attribute.isSet);
        else if (property.type == byteProperty)
            f.note(282, property.usual.value_or(0));
    }
}

void noteSchema(const DataStore &store, const DataStore::Schema &schema, Fields &f)
{
    f.note(90, schema.number);
    f.note(1, schema.name);
    for (const DataStore::Property &property : schema.properties) {
        f.note(2, property.name);
        f.note(280, property.type);
        f.note(91, property.size);
        if (property.usual)
            f.note(284, *property.usual);
    }
    noteAttributes(store, schema.attributes, 95, std::to_string(schema.number), f);
    for (const DataStore::Property &property : schema.properties)
        noteAttributes(store, property.attributes, 1, property.name, f);
}

/// False for records of another form than a handle and binary data.
bool noteRecord(const DataStore &store, const DataStore::Record &record, Fields &f)
{
    const DataStore::Schema *schema = store.schemaOf(record.schema);
    if (!schema || schema->properties.size() != 2 || schema->properties[0].type != handleProperty ||
        schema->properties[1].type != binaryProperty)
        return false;
    f.note(90, record.schema);
    f.note(2, schema->properties[0].name);
    f.note(280, handleProperty);
    f.noteHandle(320, record.handle);
    f.note(2, schema->properties[1].name);
    f.note(280, binaryProperty);
    f.note(94, record.data.size());
    f.noteBinary(310, record.data);
    return true;
}

} // namespace

void writeDataSection(DrawingParts &parts)
{
    const DataStore store = readDataStore(parts.container, parts.objects.problems());
    if (store.schemas.empty())
        return;
    RecordWriter &records = parts.records;
    Fields &fields = records.fields();
    records.beginSection("ACDSDATA");
    records.addTag(70, std::to_string(store.version));
    records.addTag(71, std::to_string(store.kind));
    for (const DataStore::Schema &schema : store.schemas) {
        fields.start({}, {}, {});
        noteSchema(store, schema, fields);
        records.writeFields("ACDSSCHEMA");
    }
    for (const DataStore::Record &record : store.records) {
        fields.start({}, {}, {});
        if (noteRecord(store, record, fields))
            records.writeFields("ACDSRECORD");
        else
            parts.objects.problems().lose("What an object keeps outside itself has a form that is not known.");
    }
    records.endSection();
}

} // namespace host::dwg
