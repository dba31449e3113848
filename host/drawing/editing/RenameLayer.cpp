#include "host/drawing/editing/RenameLayer.h"

#include "host/drawing/records/Journal.h"
#include "host/drawing/records/Tables.h"
#include "host/drawing/tags/DrawingTexts.h"

#include <QRegularExpression>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

constexpr int layerCode = 8;
constexpr int extendedLayerCode = 1003;

/// Whether a text under this code in such a record is a layer's name.
bool namesLayer(const Drawing &drawing, RecordId id, int code)
{
    switch (drawing.kind(id)) {
    case RecordKind::Entity:
    case RecordKind::Child:
    case RecordKind::EndChildren:
    case RecordKind::Block:
    case RecordKind::EndBlock:
        return code == layerCode || code == extendedLayerCode;
    case RecordKind::Variable:
        return drawing.typeName(id) == "$CLAYER";
    case RecordKind::Object:
        return code == extendedLayerCode || (code == layerCode && drawing.isType(id, "XRECORD"));
    default:
        return code == extendedLayerCode;
    }
}

void renameIn(Drawing &drawing, RecordId id, const QHash<QString, QString> &names)
{
    FieldList fields = drawing.fields(id);
    bool isChanged = false;
    for (Field &field : fields) {
        if (!namesLayer(drawing, id, field.code))
            continue;
        const auto other = names.constFind(field.text().toCaseFolded());
        if (other == names.constEnd())
            continue;
        field.value = *other;
        isChanged = true;
    }
    if (isChanged)
        drawing.setFields(id, fields);
}

} // namespace

bool isSymbolName(const QString &name, Version version)
{
    static const QRegularExpression shortName(u"^[^<>/\\\\\":;?*|,=`\\s]{1,31}$"_s);
    static const QRegularExpression longName(u"^[^<>/\\\\\":;?*|,=`\\x00-\\x1f]{1,255}$"_s);
    return (version < Version::R2000 ? shortName : longName).match(name).hasMatch() && name == name.trimmed();
}

QString renameLayer(Drawing &drawing, const QString &from, const QString &to)
{
    const RecordId entry = drawing.tables().find(TableKind::Layer, from);
    if (!isValid(entry))
        return DrawingTexts::tr("Cannot find layer \"%1\".").arg(from);
    const QString name = drawing.tables().name(entry);
    if (name == u"0" || name.contains(u'|'))
        return DrawingTexts::tr("Layer \"%1\" cannot be renamed.").arg(name);
    const RecordId taken = drawing.tables().find(TableKind::Layer, to);
    if (isValid(taken) && taken != entry)
        return DrawingTexts::tr("Layer \"%1\" already exists.").arg(to);
    if (!isSymbolName(to, drawing.version()))
        return DrawingTexts::tr("\"%1\" cannot be the name of a layer.").arg(to);
    const JournalGroup group(drawing.journal(), {});
    FieldList fields = drawing.fields(entry);
    setField(fields, 2, to);
    drawing.setFields(entry, fields);
    replaceLayerNames(drawing, {{name.toCaseFolded(), to}});
    return {};
}

void replaceLayerNames(Drawing &drawing, const QHash<QString, QString> &names)
{
    for (RecordId id = drawing.first(); isValid(id); id = drawing.next(id))
        renameIn(drawing, id, names);
}

} // namespace host::drawing
