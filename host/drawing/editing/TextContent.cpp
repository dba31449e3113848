#include "host/drawing/editing/TextContent.h"

#include "host/drawing/geometry/TransformFields.h"
#include "host/drawing/text/ParagraphText.h"

using namespace Qt::StringLiterals;

namespace host::drawing {

namespace {

constexpr int contentCode = 1;
constexpr int contentPieceCode = 3;
constexpr int embeddedCode = 101;

/// The fields from `from` on with the content in place of what they have of one.
FieldList withPieces(const FieldList &fields, FieldList::const_iterator from, const QString &content)
{
    FieldList result(fields.begin(), from);
    bool isWritten = false;
    for (auto field = from; field != fields.end(); ++field) {
        if (field->code == contentPieceCode && !isWritten)
            continue;
        if (field->code == contentCode && !std::exchange(isWritten, true))
            addParagraphContent(result, content);
        else
            result.push_back(*field);
    }
    if (!isWritten)
        addParagraphContent(result, content);
    return result;
}

QString embeddedContent(const TagList &attribute)
{
    QString content;
    bool isInside = false;
    for (const Tag &tag : attribute) {
        isInside |= tag.code == embeddedCode;
        if (isInside && (tag.code == contentPieceCode || tag.code == contentCode))
            content += attribute.decoded(tag);
        if (isInside && tag.code == contentCode)
            break;
    }
    return content;
}

} // namespace

ContentKind contentKind(const Drawing &drawing, RecordId entity)
{
    const QByteArrayView type = drawing.typeName(entity);
    if (type == "TEXT" || type == "ATTRIB")
        return ContentKind::Line;
    if (type == "ATTDEF")
        return ContentKind::Definition;
    if (type == "MTEXT")
        return ContentKind::Paragraph;
    return type.endsWith("DIMENSION") ? ContentKind::Dimension : ContentKind::None;
}

bool hasEmbeddedLines(const TagList &attribute)
{
    return std::ranges::any_of(attribute, [](const Tag &tag) { return tag.code == embeddedCode; });
}

QString contentOf(const Drawing &drawing, RecordId entity)
{
    const TagList tags = drawing.tags(entity);
    switch (contentKind(drawing, entity)) {
    case ContentKind::None:
        return {};
    case ContentKind::Paragraph:
        return paragraphContent(tags);
    case ContentKind::Dimension: {
        const QString own = tags.text(contentCode);
        return own.isEmpty() ? u"<>"_s : own;
    }
    case ContentKind::Line:
    case ContentKind::Definition:
        break;
    }
    return hasEmbeddedLines(tags) ? embeddedContent(tags) : tags.text(contentCode);
}

FieldList withContent(FieldList fields, const QString &content)
{
    const QString type = fields.empty() ? QString() : fields.front().text();
    if (type == u"MTEXT")
        return withPieces(fields, fields.begin(), content);
    if (type.endsWith(u"DIMENSION")) {
        std::erase_if(fields, [](const Field &field) { return field.code == contentCode; });
        if (!content.isEmpty() && content != u"<>")
            setOwnField(fields, contentCode, content);
        return fields;
    }
    const auto embedded = std::ranges::find(fields, embeddedCode, &Field::code);
    const bool hasLines = embedded != fields.end();
    if (hasLines)
        fields = withPieces(fields, embedded, content);
    setField(fields, contentCode, hasLines ? content.section(u"\\P"_s, 0, 0) : content);
    return fields;
}

void addParagraphContent(FieldList &fields, QString content)
{
    constexpr qsizetype pieceLength = 250;
    while (content.size() > pieceLength) {
        // No pair of half characters is parted.
        const qsizetype length = pieceLength - (content[pieceLength - 1].isHighSurrogate() ? 1 : 0);
        fields.push_back({contentPieceCode, content.first(length)});
        content.remove(0, length);
    }
    fields.push_back({contentCode, content});
}

} // namespace host::drawing
