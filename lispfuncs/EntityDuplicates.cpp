#include "lispfuncs/EntityDuplicates.h"

#include "lispfuncs/EntityData.h"

#include <QCryptographicHash>
#include <QDataStream>
#include <QSet>

#include <algorithm>

namespace ortakit {

using namespace Qt::StringLiterals;

namespace {

constexpr int nameCode = -1;
constexpr int relatedCode = -2; ///< of a SEQEND: the entity that it ends
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

struct Group
{
    int code;
    const OdResBuf *value;
};

/// Types whose groups mean the same in whatever order they come, those of one code aside.
bool isOrderFree(const QString &type)
{
    static const QSet<QString> types = {u"3DFACE"_s,    u"ARC"_s,     u"ATTDEF"_s,   u"ATTRIB"_s, u"CIRCLE"_s,
                                        u"DIMENSION"_s, u"ELLIPSE"_s, u"INSERT"_s,   u"LINE"_s,   u"LWPOLYLINE"_s,
                                        u"MTEXT"_s,     u"POINT"_s,   u"POLYLINE"_s, u"RAY"_s,    u"SEQEND"_s,
                                        u"SHAPE"_s,     u"SOLID"_s,   u"TEXT"_s,     u"TRACE"_s,  u"VERTEX"_s,
                                        u"VIEWPORT"_s,  u"XLINE"_s};
    return types.contains(type);
}

/// What every entity has, and programs write in different places.
bool isProperty(int code)
{
    constexpr int codes[] = {6, 8, 48, 60, 62, 67, 210, 370, 410, 420, 430, 440};
    return std::ranges::find(codes, code) != std::end(codes);
}

/// Brings groups into an order that does not depend on who wrote the entity, without making different ones the same.
void arrange(std::vector<Group> &groups, const QString &type)
{
    constexpr int xdata = 1000;
    constexpr int inOrder = xdata - 1;
    const bool areFree = isOrderFree(type);
    const auto rank = [areFree](const Group &group) {
        if (group.code >= xdata)
            return xdata;
        return areFree || isProperty(group.code) ? group.code : inOrder;
    };
    std::ranges::stable_sort(groups, {}, rank);
}

void writeEntity(QDataStream &out, const EntityData &data, Owner owner)
{
    std::vector<Group> groups;
    bool isOwnerPast = owner == Owner::Counts;
    data.visit([&](int code, const OdResBuf &value) {
        const bool isOwner = code == ownerCode && !std::exchange(isOwnerPast, true);
        if (code != nameCode && code != relatedCode && code != handleCode && !isOwner)
            groups.push_back({code, &value});
    });
    arrange(groups, data.type());
    for (const Group &group : groups) {
        out << group.code;
        writeValue(out, *group.value);
    }
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
