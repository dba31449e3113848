#include "host/functions/EntityCompletion.h"

#include "host/drawing/annotation/DimensionBlock.h"
#include "host/drawing/annotation/DimensionStyle.h"
#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/EntityRules.h"
#include "host/drawing/tags/GroupCodes.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/lisp/EntityList.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::Field;
using drawing::FieldList;
using drawing::RecordId;

/// The fields with these codes, in their order.
template <typename Wanted>
FieldList fieldsThat(const FieldList &fields, const Wanted &isWanted)
{
    FieldList found;
    std::ranges::copy_if(fields, std::back_inserter(found), isWanted);
    return found;
}

bool placesText(const Field &field)
{
    constexpr int codes[] = {1, 7, 10, 11, 40, 41, 50, 51, 71, 72, 73, 74};
    return std::ranges::find(codes, field.code) != std::end(codes);
}

/// What a dimension shows: its points, texts, style and overrides, not how it looks as an entity nor what it is called.
bool showsInDimension(const Field &field)
{
    constexpr int extensionCode = 360;
    const bool isMarkOrOwner = field.code == drawing::subclassCode || field.code == drawing::ownerCode ||
                               field.code == drawing::groupCode || field.code == extensionCode;
    return !drawing::isCommonCode(field.code) && !isMarkOrOwner && field.code != 0 && field.code != 2 &&
           field.code != 5 && field.code != 42;
}

bool isAnyDimension(const drawing::Drawing &drawing, RecordId record)
{
    return drawing.isAlive(record) && isEntityKind(drawing.kind(record)) &&
           drawing.typeName(record).endsWith("DIMENSION");
}

bool hasPicture(const drawing::Drawing &drawing, RecordId dimension)
{
    const QString name = drawing.tags(dimension).text(2);
    return !name.isEmpty() && isValid(drawing.blocks().find(name));
}

void drawPicture(Document &document, RecordId dimension)
{
    drawing::Drawing &drawing = document.drawing();
    const drawing::DimensionStyle style = readDimensionStyle(drawing, drawing.tags(dimension));
    if (!drawDimension(drawing, dimension, textSizeIn(document, style.textStyle)))
        return;
    // The block is the dimension's own: the next change draws in it again.
    constexpr qint64 ownBlockFlag = 32;
    FieldList fields = drawing.fields(dimension);
    const Field *flags = drawing::findField(fields, 70);
    drawing::setField(fields, 70, (flags ? flags->integer() : 0) | ownBlockFlag);
    drawing.setFields(dimension, fields);
}

} // namespace

FieldList completedText(Document &document, const FieldList &before, FieldList after)
{
    if (!isLineOfText(after) || fieldsThat(before, placesText) == fieldsThat(after, placesText))
        return after;
    return completedText(document, std::move(after));
}

void completeDimensions(Document &document, RecordId made)
{
    const drawing::Drawing &drawing = document.drawing();
    const bool isBlock = drawing.isAlive(made) && drawing.kind(made) == drawing::RecordKind::Block;
    for (const RecordId record : isBlock ? drawing.children(made) : std::vector<RecordId>{made})
        if (isAnyDimension(drawing, record) && !hasPicture(drawing, record))
            drawPicture(document, record);
}

void followDimension(Document &document, RecordId dimension, const FieldList &before)
{
    const drawing::Drawing &drawing = document.drawing();
    if (!isAnyDimension(drawing, dimension))
        return;
    const FieldList after = drawing.fields(dimension);
    const Field *name = drawing::findField(before, 2);
    const bool isRenamed = drawing.tags(dimension).text(2) != (name ? name->text() : QString());
    const bool isSame = fieldsThat(before, showsInDimension) == fieldsThat(after, showsInDimension);
    if ((!isSame && !isRenamed) || !hasPicture(drawing, dimension))
        drawPicture(document, dimension);
}

} // namespace host::kernel
