#include "host/kernel/functions/ImpliedFields.h"

#include "host/drawing/Blocks.h"
#include "host/drawing/Entities.h"
#include "host/kernel/CurrentSpace.h"

#include <QHash>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::Field;
using drawing::FieldList;
using drawing::Vec3;

const Field extrusion{210, Vec3{0.0, 0.0, 1.0}};

FieldList textFields()
{
    return {{50, 0.0},       {41, 1.0},       {51, 0.0},    {7, u"Standard"_s},
            {71, qint64(0)}, {72, qint64(0)}, {11, Vec3{}}, extrusion};
}

FieldList joined(FieldList fields, const FieldList &more)
{
    fields.insert(fields.end(), more.begin(), more.end());
    return fields;
}

QHash<QString, FieldList> makeTable()
{
    const FieldList widths = {{40, 0.0}, {41, 0.0}};
    return {{u"ARC"_s, {extrusion}},
            {u"ATTDEF"_s, joined(textFields(), {{70, qint64(0)}, {73, qint64(0)}, {74, qint64(0)}})},
            {u"ATTRIB"_s, joined(textFields(), {{70, qint64(0)}, {73, qint64(0)}, {74, qint64(0)}})},
            {u"CIRCLE"_s, {extrusion}},
            {u"ELLIPSE"_s, {extrusion}},
            {u"INSERT"_s,
             {{41, 1.0},
              {42, 1.0},
              {43, 1.0},
              {50, 0.0},
              {70, qint64(0)},
              {71, qint64(0)},
              {44, 0.0},
              {45, 0.0},
              extrusion}},
            {u"LINE"_s, {extrusion}},
            {u"LWPOLYLINE"_s, {{70, qint64(0)}, {43, 0.0}, {38, 0.0}, {39, 0.0}, extrusion}},
            {u"MTEXT"_s,
             {{71, qint64(1)},
              {72, qint64(1)},
              {7, u"Standard"_s},
              {11, Vec3{1.0, 0.0, 0.0}},
              {50, 0.0},
              {73, qint64(1)},
              {44, 1.0},
              extrusion}},
            {u"POINT"_s, {extrusion, {50, 0.0}}},
            {u"POLYLINE"_s, joined(widths, {{70, qint64(0)},
                                            {71, qint64(0)},
                                            {72, qint64(0)},
                                            {73, qint64(0)},
                                            {74, qint64(0)},
                                            {75, qint64(0)},
                                            extrusion})},
            {u"RTEXT"_s, {{50, 0.0}, {7, u"Standard"_s}, {70, qint64(0)}, extrusion}},
            {u"SHAPE"_s, {{41, 1.0}, {50, 0.0}, {51, 0.0}, extrusion}},
            {u"SOLID"_s, {extrusion}},
            {u"TEXT"_s, joined(textFields(), {{73, qint64(0)}})},
            {u"TRACE"_s, {extrusion}},
            {u"VERTEX"_s, joined(widths, {{42, 0.0}, {70, qint64(0)}, {50, 0.0}})}};
}

bool isXdata(const Field &field)
{
    return field.code >= 1000;
}

/// Puts the widths and the bulge that a vertex lacks behind it.
FieldList withVertexFields(const FieldList &fields)
{
    FieldList full;
    for (size_t i = 0; i < fields.size(); ++i) {
        full.push_back(fields[i]);
        if (fields[i].code != 10)
            continue;
        FieldList own;
        for (size_t k = i + 1; k < fields.size() && fields[k].code >= 40 && fields[k].code <= 42; ++k)
            own.push_back(fields[k]);
        for (int code : {40, 41, 42}) {
            const Field *given = drawing::findField(own, code);
            full.push_back(given ? *given : Field{code, 0.0});
        }
        i += own.size();
    }
    return full;
}

/// The layout that an entity stands in; empty for one of a block.
QString layoutOf(const drawing::Drawing &drawing, drawing::RecordId entity)
{
    const drawing::RecordId parent = drawing.parent(entity);
    if (drawing.kind(parent) == drawing::RecordKind::Block)
        return drawing.blocks().read(parent).isLayout() ? layoutOfBlock(drawing, parent) : QString();
    return drawing.entities().space(entity) == drawing::Space::Paper ? paperLayoutName(drawing) : u"Model"_s;
}

} // namespace

const FieldList &impliedFields(QStringView type)
{
    static const QHash<QString, FieldList> table = makeTable();
    static const FieldList none;
    const auto found = table.constFind(type.toString());
    return found == table.constEnd() ? none : *found;
}

FieldList withImpliedFields(const drawing::Drawing &drawing, drawing::RecordId entity, FieldList fields)
{
    const QString type = QString::fromLatin1(drawing.typeName(entity));
    if (type == u"LWPOLYLINE"_s)
        fields = withVertexFields(fields);
    FieldList missing;
    // An angle of its own takes the place of an MTEXT's direction.
    const bool hasAngle = type == u"MTEXT"_s && drawing::findField(fields, 50);
    for (const Field &field : impliedFields(type))
        if (!drawing::findField(fields, field.code) && !(hasAngle && field.code == 11))
            missing.push_back(field);
    if (drawing.kind(entity) == drawing::RecordKind::Entity && drawing.version() >= drawing::Version::R2000) {
        // Programs tell spaces apart by these two.
        const bool isPaper = drawing.entities().space(entity) == drawing::Space::Paper;
        if (!drawing::findField(fields, 67))
            missing.push_back({67, qint64(isPaper ? 1 : 0)});
        if (const QString layout = layoutOf(drawing, entity); !drawing::findField(fields, 410) && !layout.isEmpty())
            missing.push_back({410, layout});
    }
    fields.insert(std::find_if(fields.begin(), fields.end(), isXdata), missing.begin(), missing.end());
    return fields;
}

} // namespace host::kernel
