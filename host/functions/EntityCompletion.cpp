#include "host/functions/EntityCompletion.h"

#include "host/drawing/annotation/DimensionBlock.h"
#include "host/drawing/annotation/DimensionStyle.h"
#include "host/drawing/math/Angles.h"
#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/EntityRules.h"
#include "host/drawing/tags/GroupCodes.h"
#include "host/drawing/text/TextAlignment.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/documents/TextSizes.h"
#include "host/kernel/lisp/EntityList.h"
#include "host/view/build/TextMeasure.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::Field;
using drawing::FieldList;
using drawing::RecordId;

bool isLineOfText(const FieldList &fields)
{
    const QString type = fields.empty() ? QString() : fields.front().text().toUpper();
    return type == u"TEXT" || type == u"ATTRIB" || type == u"ATTDEF";
}

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

/// The text as it is without its alignment, for measuring it.
FieldList atLeftEnd(const FieldList &text)
{
    return fieldsThat(text, [](const Field &field) {
        constexpr int alignment[] = {11, 72, 73, 74};
        return std::ranges::find(alignment, field.code) == std::end(alignment);
    });
}

/// A stretched text runs from the one point to the other.
void directStretched(FieldList &text)
{
    const Field *from = drawing::findField(text, 10);
    const Field *to = drawing::findField(text, 11);
    if (!drawing::textAlignment(text).isStretched() || !from || !to)
        return;
    const drawing::Vec3 way = to->point() - from->point();
    if (way.length() > 0.0)
        drawing::setField(text, 50, std::atan2(way.y, way.x) / drawing::radians);
}

} // namespace

FieldList completedText(Document &document, FieldList fields)
{
    if (!isLineOfText(fields) || drawing::textAlignment(fields).isLeft())
        return fields;
    const Field *own = drawing::findField(fields, 11);
    if (!own || !drawing::isPoint(*own) || !drawing::findField(fields, 40))
        return fields;
    if (!drawing::findField(fields, 10))
        fields.insert(fields.begin() + (own - fields.data()), {10, own->point()});
    directStretched(fields);
    drawing::alignText(fields, document.textMeasure().lineBox(atLeftEnd(fields)));
    return fields;
}

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
