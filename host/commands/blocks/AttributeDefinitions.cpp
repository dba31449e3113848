#include "host/commands/blocks/AttributeDefinitions.h"

#include "host/drawing/geometry/TransformFields.h"
#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/Dictionaries.h"
#include "host/drawing/records/EntityBuilder.h"
#include "host/drawing/records/Structure.h"
#include "host/drawing/tags/GroupCodes.h"

#include <QHash>
#include <QSet>

using namespace Qt::StringLiterals;

namespace host::kernel {

using drawing::FieldList;
using drawing::Matrix;
using drawing::RecordId;
using drawing::TagList;

namespace {

/// The reference says that attributes follow, and has an end for them.
RecordId ensureAttributeEnd(drawing::Drawing &drawing, RecordId insert, drawing::Space space)
{
    constexpr int followCode = 66;
    FieldList fields = drawing.fields(insert);
    if (!drawing::findField(fields, followCode)) {
        const auto name = std::ranges::find(fields, 2, &drawing::Field::code);
        fields.insert(name, {followCode, qint64(1)});
        drawing.setFields(insert, fields);
    }
    if (const RecordId end = drawing.endOf(insert); isValid(end))
        return end;
    const drawing::Field *layer = drawing::findField(fields, 8);
    const drawing::EntityBuilder end(drawing, {{0, u"SEQEND"_s}, {8, layer ? layer->text() : u"0"_s}});
    return drawing.insert(insert, insert, drawing::RecordKind::EndChildren,
                          end.build(drawing::recordHead(drawing, u"SEQEND"_s, drawing.handle(insert)), space));
}

QString tagOf(const FieldList &attribute)
{
    const drawing::Field *tag = drawing::findField(attribute, 2);
    return tag ? tag->text().toUpper() : QString();
}

} // namespace

std::vector<AttributeDefinition> attributeDefinitions(const drawing::Drawing &drawing, const QString &block)
{
    constexpr qint64 constant = 2;
    constexpr qint64 preset = 8;
    std::vector<AttributeDefinition> definitions;
    for (RecordId id : drawing.children(drawing.blocks().find(block))) {
        if (!drawing.isType(id, "ATTDEF"))
            continue;
        const TagList tags = drawing.tags(id);
        if (!(tags.integer(70) & constant))
            definitions.push_back(
                {drawing.fields(id), tags.text(2), tags.text(3), tags.text(1), !(tags.integer(70) & preset)});
    }
    return definitions;
}

/// The attribute that a definition becomes where the block is inserted.
FieldList attributeFor(const AttributeDefinition &definition, const Matrix &toDrawing)
{
    static const QSet<int> kept = {6, 7, 8, 10, 11, 39, 40, 41, 50, 51, 62, 70, 71, 72, 73, 74, 210};
    FieldList fields = {{0, u"ATTRIB"_s}};
    for (const drawing::Field &field : definition.fields)
        if (kept.contains(field.code) && !drawing::findField(fields, field.code))
            fields.push_back(field);
    drawing::transformFields(fields, toDrawing);
    fields.push_back({1, definition.value});
    fields.push_back({2, definition.tag});
    return fields;
}

void setAttributes(drawing::Drawing &drawing, RecordId insert, const std::vector<FieldList> &attributes)
{
    QHash<QString, RecordId> present;
    for (const RecordId child : drawing.children(insert))
        present.insert(drawing.tags(child).text(2).toUpper(), child);
    if (attributes.empty() && present.isEmpty())
        return;
    const drawing::Space space = drawing.entities().space(insert);
    const drawing::Handle owner = drawing.handle(insert);
    ensureAttributeEnd(drawing, insert, space);
    QSet<RecordId> kept;
    RecordId last = insert;
    for (const FieldList &attribute : attributes) {
        const drawing::EntityBuilder built(drawing, attribute);
        if (!built.isGood())
            continue;
        const RecordId own = present.value(tagOf(attribute), drawing::noRecord);
        if (isValid(own) && !kept.contains(own)) {
            FieldList head = {{0, u"ATTRIB"_s}, {5, drawing.handle(own)}};
            if (drawing::hasOwners(drawing))
                head.push_back({drawing::ownerCode, owner});
            drawing.setFields(own, built.build(head, space));
            last = own;
        } else {
            last = drawing.insert(last, insert, drawing::RecordKind::Child,
                                  built.build(drawing::recordHead(drawing, u"ATTRIB"_s, owner), space));
        }
        kept.insert(last);
    }
    for (const RecordId child : drawing.children(insert))
        if (!kept.contains(child))
            drawing.dictionaries().setErasedWithOwned(child, true);
}

} // namespace host::kernel
