#include "host/drawing/editing/BlockAttributes.h"

#include "host/drawing/editing/TextContent.h"
#include "host/drawing/records/Blocks.h"

#include <QHash>

namespace host::drawing {

namespace {

/// What the definitions of a block ask, by tag in capitals, in their order.
QHash<QString, QStringList> promptsByTag(const Drawing &drawing, const std::vector<RecordId> &definitions)
{
    QHash<QString, QStringList> prompts;
    for (const RecordId id : definitions) {
        const TagList tags = drawing.tags(id);
        prompts[tags.text(2).toUpper()].append(tags.text(3));
    }
    return prompts;
}

BlockAttribute readAttribute(const Drawing &drawing, RecordId record, const QString &prompt)
{
    const TagList tags = drawing.tags(record);
    return {record, tags.text(2), prompt, contentOf(drawing, record), hasEmbeddedLines(tags)};
}

} // namespace

std::vector<BlockAttribute> blockAttributes(const Drawing &drawing, RecordId insert)
{
    constexpr qint64 constantFlag = 2;
    std::vector<RecordId> asked;
    std::vector<RecordId> constant;
    const RecordId block = drawing.blocks().find(drawing.tags(insert).text(2));
    for (const RecordId part : isValid(block) ? drawing.children(block) : std::vector<RecordId>())
        if (drawing.isType(part, "ATTDEF"))
            (drawing.tags(part).integer(70) & constantFlag ? constant : asked).push_back(part);
    QHash<QString, QStringList> prompts = promptsByTag(drawing, asked);
    std::vector<BlockAttribute> attributes;
    for (const RecordId child : drawing.children(insert)) {
        if (!drawing.isType(child, "ATTRIB"))
            continue;
        QStringList &ofTag = prompts[drawing.tags(child).text(2).toUpper()];
        attributes.push_back(readAttribute(drawing, child, ofTag.isEmpty() ? QString() : ofTag.takeFirst()));
    }
    for (const RecordId definition : constant) {
        attributes.push_back(readAttribute(drawing, definition, drawing.tags(definition).text(3)));
        attributes.back().record = noRecord;
    }
    return attributes;
}

} // namespace host::drawing
