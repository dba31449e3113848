#include "host/drawing/geometry/TransformEntity.h"

#include "host/drawing/geometry/OwnedCopies.h"
#include "host/drawing/geometry/TransformFields.h"
#include "host/drawing/geometry/ViewportView.h"
#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/Journal.h"
#include "host/drawing/records/PolylineFlags.h"
#include "host/drawing/records/Structure.h"
#include "host/drawing/records/Tables.h"

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

using Changes = std::vector<std::pair<RecordId, FieldList>>;

void setPoint(FieldList &fields, int code, const Vec3 &point)
{
    if (Field *field = findField(fields, code))
        field->value = point;
}

/// A flat polyline: head and vertices share one plane, and the head's point is the elevation.
bool planPolyline(const Drawing &drawing, RecordId polyline, const Matrix &matrix, Changes &changes)
{
    FieldList head = drawing.fields(polyline);
    const Field *flags = findField(head, 70);
    const bool isFlat = !flags || (flags->integer() & (Flag3d | FlagMesh | FlagFaces)) == 0;
    const Field *extrusion = findField(head, 210);
    const PlaneMap plane(isFlat && extrusion ? extrusion->point() : Vec3{0, 0, 1}, matrix);
    Vec3 last = findField(head, 10) ? findField(head, 10)->point() : Vec3{};
    for (const RecordId child : drawing.children(polyline)) {
        FieldList vertex = drawing.fields(child);
        const Field *point = findField(vertex, 10);
        Field *bulge = findField(vertex, 42);
        if (isFlat && bulge && bulge->real() != 0.0 && !plane.isSimilar())
            return false;
        if (bulge && plane.isMirrored())
            bulge->value = -bulge->real();
        if (point) {
            last = isFlat ? plane.point(point->point()) : matrix.point(point->point());
            setPoint(vertex, 10, last);
        }
        for (const int width : {40, 41}) {
            if (Field *field = findField(vertex, width))
                field->value = field->real() * plane.factor();
        }
        changes.emplace_back(child, std::move(vertex));
    }
    if (isFlat) {
        setPoint(head, 10, {0.0, 0.0, last.z});
        if (extrusion || plane.extrusion() != Vec3{0, 0, 1})
            setOwnField(head, 210, plane.extrusion());
        for (const int width : {40, 41}) {
            if (Field *field = findField(head, width))
                field->value = field->real() * plane.factor();
        }
    }
    transformXdata(head, matrix);
    changes.emplace_back(polyline, std::move(head));
    return true;
}

bool plan(const Drawing &drawing, RecordId entity, const Matrix &matrix, Changes &changes, int depth);

bool planAll(const Drawing &drawing, const std::vector<RecordId> &entities, const Matrix &matrix, Changes &changes,
             int depth)
{
    return std::all_of(entities.begin(), entities.end(),
                       [&](RecordId entity) { return plan(drawing, entity, matrix, changes, depth); });
}

bool plan(const Drawing &drawing, RecordId entity, const Matrix &matrix, Changes &changes, int depth)
{
    constexpr int maximumDepth = 4; // a dimension's picture holds no dimensions with pictures of their own
    if (drawing.isType(entity, "POLYLINE"))
        return planPolyline(drawing, entity, matrix, changes);
    FieldList fields = drawing.fields(entity);
    if (depth > maximumDepth || !transformFields(fields, matrix))
        return false;
    changes.emplace_back(entity, std::move(fields));
    if (drawing.typeName(entity).endsWith("DIMENSION")) {
        const RecordId picture = drawing.blocks().find(drawing.tags(entity).text(2));
        return !isValid(picture) || planAll(drawing, drawing.children(picture), matrix, changes, depth + 1);
    }
    return planAll(drawing, drawing.children(entity), matrix, changes, depth + 1);
}

/// The fields of a record for a copy of it.
FieldList copiedFields(Drawing &drawing, RecordId record, Handle owner)
{
    FieldList fields = recordHead(drawing, QString::fromLatin1(drawing.typeName(record)), owner);
    bool isInGroup = false;
    bool isInHead = true;
    for (const Field &field : drawing.fields(record)) {
        if (field.code == 102) {
            isInGroup = field.text().startsWith(u'{');
            continue;
        }
        isInHead = isInHead && field.code != 100;
        const bool isHead = field.code == 0 || field.code == 5 || (isInHead && field.code == 330);
        if (!isInGroup && !isHead)
            fields.push_back(field);
    }
    return fields;
}

RecordId copyInto(Drawing &drawing, RecordId entity, RecordId container, Handle owner);

/// A dimension's picture is its own: the copy gets a copy.
void copyPicture(Drawing &drawing, RecordId dimension)
{
    FieldList fields = drawing.fields(dimension);
    Field *name = findField(fields, 2);
    const std::optional<Block> picture = name ? drawing.blocks().get(name->text()) : std::nullopt;
    if (!picture || !picture->name.startsWith(u'*'))
        return;
    const RecordId block = drawing.blocks().create(u"*D"_s, picture->basePoint, picture->flags);
    const Handle owner = drawing.owner(block);
    for (const RecordId entity : drawing.children(picture->record)) {
        if (!drawing.typeName(entity).endsWith("DIMENSION"))
            copyInto(drawing, entity, block, owner);
    }
    name->value = drawing.blocks().name(block);
    drawing.setFields(dimension, fields);
}

/// Groups that say again where an entity stands: paper space, and the layout's name.
bool isOfPlace(const Field &field)
{
    return field.code == 67 || field.code == 410;
}

RecordId copyInto(Drawing &drawing, RecordId entity, RecordId container, Handle owner)
{
    const std::vector<RecordId> children = drawing.children(entity);
    const RecordId end = drawing.endOf(entity);
    const RecordId copy = drawing.insert(noRecord, container, RecordKind::Entity, copiedFields(drawing, entity, owner));
    RecordId last = copy;
    for (const RecordId child : children)
        last = drawing.insert(last, copy, RecordKind::Child, copiedFields(drawing, child, drawing.handle(copy)));
    if (isValid(end))
        drawing.insert(last, copy, RecordKind::EndChildren, copiedFields(drawing, end, drawing.handle(copy)));
    if (drawing.typeName(copy).endsWith("DIMENSION"))
        copyPicture(drawing, copy);
    copyOwnedObjects(drawing, entity, copy);
    return copy;
}

/// A copied viewport has a number of its own among those that stand where it does.
void numberViewport(Drawing &drawing, RecordId viewport)
{
    qint64 last = 1;
    for (const RecordId other : drawing.children(drawing.parent(viewport)))
        if (other != viewport && drawing.isType(other, "VIEWPORT"))
            last = std::max(last, drawing.tags(other).integer(69));
    FieldList fields = drawing.fields(viewport);
    if (Field *number = findField(fields, 69))
        number->value = last + 1;
    drawing.setFields(viewport, fields);
}

} // namespace

bool transformEntity(Drawing &drawing, RecordId entity, const Matrix &matrix)
{
    Changes changes;
    if (!drawing.isAlive(entity) || matrix.determinant() == 0.0 || !plan(drawing, entity, matrix, changes, 0))
        return false;
    const JournalGroup group(drawing.journal(), {});
    for (const auto &[record, fields] : changes)
        drawing.setFields(record, fields);
    return true;
}

RecordId copyEntity(Drawing &drawing, RecordId entity)
{
    if (!drawing.isAlive(entity) || drawing.kind(entity) != RecordKind::Entity)
        return noRecord;
    const bool isViewport = drawing.isType(entity, "VIEWPORT");
    if (isViewport && isSheetItself(drawing.tags(entity)))
        return noRecord;
    const JournalGroup group(drawing.journal(), {});
    const RecordId copy = copyInto(drawing, entity, drawing.parent(entity), drawing.owner(entity));
    if (isViewport)
        numberViewport(drawing, copy);
    return copy;
}

RecordId copyEntityInto(Drawing &drawing, RecordId entity, RecordId block)
{
    const RecordId entry = drawing.blocks().read(block).tableEntry;
    if (!drawing.isAlive(entity) || drawing.kind(entity) != RecordKind::Entity)
        return noRecord;
    const JournalGroup group(drawing.journal(), {});
    const RecordId copy = copyInto(drawing, entity, block, isValid(entry) ? drawing.handle(entry) : Handle{});
    FieldList fields = drawing.fields(copy);
    std::erase_if(fields, isOfPlace);
    drawing.setFields(copy, fields);
    return copy;
}

RecordId copyEntityTo(Drawing &drawing, RecordId entity, Space space)
{
    if (!drawing.isAlive(entity) || drawing.kind(entity) != RecordKind::Entity)
        return noRecord;
    const JournalGroup group(drawing.journal(), {});
    const QString name = space == Space::Paper ? u"*Paper_Space"_s : u"*Model_Space"_s;
    const RecordId entry = drawing.tables().find(TableKind::BlockRecord, name);
    const Handle owner = isValid(entry) ? drawing.handle(entry) : Handle{};
    const RecordId copy = copyInto(drawing, entity, ensureSection(drawing, Section::Entities), owner);
    FieldList fields = drawing.fields(copy);
    std::erase_if(fields, isOfPlace);
    if (space == Space::Paper)
        fields.insert(std::ranges::find(fields, 8, &Field::code), {67, qint64(1)});
    drawing.setFields(copy, fields);
    return copy;
}

} // namespace host::drawing
