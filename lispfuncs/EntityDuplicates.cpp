#include "lispfuncs/EntityDuplicates.h"

#include "lispfuncs/EntityData.h"

#include <QCryptographicHash>
#include <QDataStream>
#include <QSet>

namespace ortakit {

namespace {

constexpr int nameCode = -1;
constexpr int handleCode = 5;
constexpr int ownerCode = 330;
constexpr int partsFollowCode = 66;

/// Parts belong to different entities even where they are equal otherwise.
enum class Owner
{
    Counts,
    DoesNotCount
};

void writeValue(QDataStream &out, const OdResBuf &value)
{
    const OdGePoint3d point = value.getPoint3d();
    out << value.restype() << value.getInteger() << value.getDouble() << value.getString() << point.x << point.y
        << point.z;
}

void writeEntity(QDataStream &out, const EntityData &data, Owner owner)
{
    bool isOwnerPast = owner == Owner::Counts;
    data.visit([&](int code, const OdResBuf &value) {
        if (code == nameCode || code == handleCode)
            return;
        if (code == ownerCode && !std::exchange(isOwnerPast, true))
            return;
        out << code;
        writeValue(out, value);
    });
}

/// What an entity and its parts are, as a digest: a large drawing's worth of these is to fit into memory.
QByteArray digest(const OdDbDatabase &database, const OdDbObjectId &entity)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    const EntityData data(database, entity);
    writeEntity(out, data, Owner::Counts);
    const OdResBuf *follow = data.value(partsFollowCode);
    if (follow && follow->getInteger() != 0) {
        for (OdDbObjectId part = database.nextEntity(entity); !part.isNull(); part = database.nextEntity(part)) {
            const EntityData partData(database, part);
            writeEntity(out, partData, Owner::DoesNotCount);
            if (!partData.isPart())
                break;
        }
    }
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256);
}

} // namespace

void leaveOutDuplicates(const OdDbDatabase &database, OdDbObjectIdArray &entities)
{
    QSet<QByteArray> known;
    std::erase_if(entities, [&](const OdDbObjectId &entity) {
        const QByteArray own = digest(database, entity);
        if (known.contains(own))
            return true;
        known.insert(own);
        return false;
    });
}

} // namespace ortakit
