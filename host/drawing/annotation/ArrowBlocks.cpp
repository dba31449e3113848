#include "host/drawing/annotation/Arrowheads.h"
#include "host/drawing/annotation/StyleValues.h"
#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/Entities.h"

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

/// What an arrow head's block consists of looks as the reference does.
FieldList arrowPart(const Drawing &drawing, FieldList fields)
{
    fields.insert(fields.begin() + 1, {{8, u"0"_s}, {62, qint64(0)}});
    if (drawing.version() >= Version::R2000)
        fields.insert(fields.begin() + 1, {370, qint64(-2)});
    return fields;
}

/// A filled one is a line as wide as its radius, run round half way out.
FieldList ringFields(const Drawing &drawing, const Arrowhead::Ring &ring)
{
    if (!ring.isFilled || drawing.version() < Version::R14)
        return {{0, u"CIRCLE"_s}, {10, ring.center}, {40, ring.radius}};
    const Vec2 middle = ring.center.xy();
    const Vec2 half{ring.radius / 2.0, 0.0};
    return {{0, u"LWPOLYLINE"_s}, {70, qint64(1)}, {43, ring.radius}, {10, middle - half}, {42, 1.0},
            {10, middle + half},  {42, 1.0}};
}

/// Three or four corners; a SOLID has its last two the other way round.
FieldList areaFields(const Path &corners)
{
    const Vec3 third = corners[2];
    const Vec3 fourth = corners.size() > 3 ? corners[3] : third;
    return {{0, u"SOLID"_s}, {10, corners[0]}, {11, corners[1]}, {12, fourth}, {13, third}};
}

void fillArrowBlock(Drawing &drawing, RecordId block, const Arrowhead &head)
{
    Entities &entities = drawing.entities();
    for (const Path &line : head.lines)
        for (std::size_t i = 1; i < line.size(); ++i)
            entities.createInBlock(block, arrowPart(drawing, {{0, u"LINE"_s}, {10, line[i - 1]}, {11, line[i]}}));
    for (const Path &area : head.areas)
        entities.createInBlock(block, arrowPart(drawing, areaFields(area)));
    for (const Arrowhead::Ring &ring : head.rings)
        entities.createInBlock(block, arrowPart(drawing, ringFields(drawing, ring)));
}

} // namespace

QString ensureArrowBlock(Drawing &drawing, const QString &name)
{
    const QString plain = name.startsWith(u'_') ? name.mid(1) : name;
    if (plain.isEmpty())
        return {};
    for (const QString &candidate : {name, u'_' + plain})
        if (const RecordId block = drawing.blocks().find(candidate); isValid(block))
            return drawing.blocks().name(block);
    if (!isArrowheadName(plain))
        return {};
    const RecordId block = drawing.blocks().create(u'_' + plain, {});
    fillArrowBlock(drawing, block, arrowheadNamed(plain));
    return drawing.blocks().name(block);
}

} // namespace host::drawing
