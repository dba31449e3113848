#include "lispfuncs/EntityFunctions.h"

#include "lispfuncs/ArgumentValues.h"
#include "lispfuncs/EntityData.h"
#include "lispfuncs/EntityFields.h"
#include "lispfuncs/LispCall.h"

namespace ortakit {

using namespace Qt::StringLiterals;

namespace {

constexpr int tagCode = 2;

/// The attribute of a block reference that has a tag; null when there is none.
OdDbObjectId attributeOf(const OdDbDatabase &database, const OdDbObjectId &insert, const QString &tag)
{
    if (EntityData(database, insert).type() != u"INSERT")
        return {};
    for (OdDbObjectId part = database.nextEntity(insert); !part.isNull(); part = database.nextEntity(part)) {
        const EntityData data(database, part);
        if (data.type() != u"ATTRIB")
            return {};
        const OdResBuf *own = data.value(tagCode);
        if (own && own->getString().compare(tag.trimmed(), Qt::CaseInsensitive) == 0)
            return part;
    }
    return {};
}

OdResBufPtr fieldOf(const OdDbDatabase &database, const OdDbObjectId &entity, const OdResBuf *field)
{
    const EntityData data(database, entity);
    if (isInteger(field))
        return codedField(data, int(field->getInteger()));
    const bool isNamed = isString(field) && !field->getString().trimmed().isEmpty();
    return namedField(data, isNamed ? field->getString() : u"text"_s);
}

/// A point in two dimensions is a list of two reals.
OdResBufPtr flatPoint(const OdGePoint3d &point)
{
    OdResBufPtr list = OdResBuf::newRb(OdResBuf::kRtListBegin);
    list->setNext(OdResBuf::newReal(OdResBuf::kRtReal, point.x))
        ->setNext(OdResBuf::newReal(OdResBuf::kRtReal, point.y))
        ->setNext(OdResBuf::newRb(OdResBuf::kRtListEnd));
    return list;
}

void giveValue(CKvLispEngine &lisp, const OdResBuf &value)
{
    switch (value.restype()) {
    case OdResBuf::kRtString:
        return lisp.returnString(value.getString());
    case OdResBuf::kRtReal:
        return lisp.returnReal(value.getDouble());
    case OdResBuf::kRtShort:
    case OdResBuf::kRtLong:
        return lisp.returnInteger(qint32(value.getInteger()));
    case OdResBuf::kRtPoint:
        return lisp.returnList(flatPoint(value.getPoint3d()));
    case OdResBuf::kRtPoint3d:
        return lisp.returnPoint(value.getPoint3d());
    case OdResBuf::kRtEntityName:
        return lisp.returnEntityName(OdDbObjectId(quint64(value.getInteger())));
    default:
        return lisp.returnNil();
    }
}

int entField(LispCall &call)
{
    const OdResBuf *entity = call.lisp.arguments();
    const OdResBuf *field = behindValue(entity);
    const OdResBuf *tag = behindValue(field);
    std::optional<OdDbObjectId> object = entityIn(entity);
    if (!object)
        failArgument("the first argument is no entity");
    if (!isNil(tag) && !isString(tag))
        failArgument("the tag is a string");
    if (!isInteger(field) && !isString(field) && !(isNil(field) && isString(tag)))
        failArgument("a field is a group code or a name");
    const OdDbDatabase &database = *call.document.database();
    if (isString(tag))
        object = attributeOf(database, *object, tag->getString());
    const OdResBufPtr value = fieldOf(database, *object, field);
    if (!value)
        return giveNil(call);
    giveValue(call.lisp, *value);
    return kRtNormal;
}

} // namespace

int koraEntField()
{
    return runCall("KORA_entfield", entField);
}

} // namespace ortakit
