#include "host/drawing/editing/MirrorEntity.h"

#include "host/drawing/geometry/TransformEntity.h"
#include "host/drawing/geometry/TransformFields.h"
#include "host/drawing/math/Angles.h"
#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/Journal.h"
#include "host/drawing/text/ParagraphText.h"

namespace host::drawing {

namespace {

constexpr qint64 backward = 2;

/// A record as it was, for what is put right behind the map.
struct Before
{
    RecordId record = noRecord;
    FieldList fields;
};

Vec3 extrusionIn(const FieldList &fields)
{
    const Field *field = findField(fields, 210);
    return field ? field->point() : Vec3{0.0, 0.0, 1.0};
}

qint64 numberIn(const FieldList &fields, int code)
{
    const Field *field = findField(fields, code);
    return field ? field->integer() : 0;
}

/// The direction of a line of text, in world coordinates.
Vec3 lineDirection(const FieldList &text)
{
    const double angle = realOf(text, 50) * radians;
    return Matrix::fromExtrusion(extrusionIn(text)).direction({std::cos(angle), std::sin(angle), 0.0});
}

void turnAround(FieldList &fields)
{
    const double turned = realOf(fields, 50) + 180.0;
    setOwnField(fields, 50, turned >= 360.0 ? turned - 360.0 : turned);
}

/// How far along the text, in parts of its width, its own point lies from where it starts.
double startShare(qint64 horizontal)
{
    return horizontal == 2 ? 1.0 : horizontal == 1 || horizontal == 4 ? 0.5 : 0.0;
}

/// The same for the height: of texts at the base line or bottom 0, in the middle a half, at the top 1.
double heightShare(const FieldList &text)
{
    const qint64 vertical = numberIn(text, numberIn(text, 73) ? 73 : 74);
    if (numberIn(text, 72) == 4)
        return 0.5;
    return vertical == 3 ? 1.0 : vertical == 2 ? 0.5 : 0.0;
}

/// Moves the point where the letters start, and the text's own point where it has another.
void moveAnchors(FieldList &text, const Vec3 &start, const Vec3 &own)
{
    const bool hasOwn = numberIn(text, 72) != 0 || numberIn(text, 73) != 0 || numberIn(text, 74) != 0;
    if (Field *field = findField(text, 10))
        field->value = field->point() + start;
    if (Field *field = findField(text, 11); field && hasOwn)
        field->value = field->point() + own;
}

/// `text` is mirrored: it runs along the mirrored direction, on the wrong side of it.
void makeReadable(FieldList &text, const Vec3 &wasAlong, const Vec2 &size)
{
    const double angle = realOf(text, 50) * radians;
    const Vec3 width = Vec3{std::cos(angle), std::sin(angle), 0.0} * size.x;
    const Vec3 height = Vec3{std::sin(angle), -std::cos(angle), 0.0} * size.y;
    if (dot(lineDirection(text), wasAlong) >= 0.0)
        return moveAnchors(text, height, height * (1.0 - 2.0 * heightShare(text)));
    turnAround(text);
    moveAnchors(text, width, width * (1.0 - 2.0 * startShare(numberIn(text, 72))));
}

void correctLine(FieldList &text, const FieldList &before, MirroredText texts, const LineSize &lineSize)
{
    const qint64 horizontal = numberIn(before, 72);
    const bool isStretched = horizontal == 3 || horizontal == 5;
    if (texts == MirroredText::Reversed) {
        turnAround(text);
        setOwnField(text, 71, numberIn(text, 71) ^ backward);
    } else if (!isStretched) {
        makeReadable(text, lineDirection(before), lineSize(before));
    } else if (dot(lineDirection(text), lineDirection(before)) < 0.0) {
        // Between its two points it runs the other way.
        std::swap(findField(text, 10)->value, findField(text, 11)->value);
        turnAround(text);
    }
}

/// Left and right, or top and bottom, of the nine places that a paragraph may have at its point change places.
void correctParagraph(FieldList &text, const FieldList &before)
{
    const qint64 place = std::clamp<qint64>(numberIn(before, 71), 1, 9) - 1;
    qint64 column = place % 3;
    qint64 row = place / 3;
    const Vec3 along = paragraphDirection(text);
    if (dot(along, paragraphDirection(before)) < 0.0) {
        column = 2 - column;
        setOwnField(text, 11, along * -1.0);
    } else {
        row = 2 - row;
    }
    setOwnField(text, 71, row * 3 + column + 1);
}

/// Reversed along its x axis; one that was so comes back as it had been.
void correctReference(FieldList &insert, const FieldList &before)
{
    const bool wasUpright = realOf(before, 41, 1.0) >= 0.0 && realOf(before, 42, 1.0) >= 0.0;
    const bool isReversedTwice = realOf(insert, 41, 1.0) < 0.0 && realOf(insert, 42, 1.0) < 0.0;
    if (!wasUpright && !isReversedTwice)
        return;
    turnAround(insert);
    for (const int code : {41, 42, 44, 45}) {
        if (Field *field = findField(insert, code))
            field->value = -field->real();
    }
}

void correct(Drawing &drawing, const Before &before, const Matrix &mirror, MirroredText texts, const LineSize &lineSize)
{
    if (!PlaneMap(extrusionIn(before.fields), mirror).isMirrored())
        return;
    FieldList fields = drawing.fields(before.record);
    const QByteArrayView type = drawing.typeName(before.record);
    if (type == "MTEXT")
        correctParagraph(fields, before.fields);
    else if (type == "INSERT")
        correctReference(fields, before.fields);
    else
        correctLine(fields, before.fields, texts, lineSize);
    drawing.setFields(before.record, fields);
}

void collect(const Drawing &drawing, RecordId record, std::vector<Before> &found)
{
    const QByteArrayView type = drawing.typeName(record);
    if (type == "TEXT" || type == "ATTRIB" || type == "ATTDEF" || type == "MTEXT" || type == "INSERT")
        found.push_back({record, drawing.fields(record)});
}

} // namespace

bool mirrorEntity(Drawing &drawing, RecordId entity, const Matrix &mirror, MirroredText texts, const LineSize &lineSize)
{
    std::vector<Before> parts;
    collect(drawing, entity, parts);
    for (const RecordId child : drawing.children(entity))
        collect(drawing, child, parts);
    if (drawing.typeName(entity).endsWith("DIMENSION")) {
        const RecordId picture = drawing.blocks().find(drawing.tags(entity).text(2));
        for (const RecordId part : isValid(picture) ? drawing.children(picture) : std::vector<RecordId>())
            collect(drawing, part, parts);
    }
    const JournalGroup group(drawing.journal(), {});
    if (!transformEntity(drawing, entity, mirror))
        return false;
    for (const Before &part : parts)
        correct(drawing, part, mirror, texts, lineSize);
    return true;
}

} // namespace host::drawing
