#include "lispfuncs/EntityData.h"

#include <QSet>

namespace ortakit {

using namespace Qt::StringLiterals;

namespace {

constexpr int typeCode = 0;
constexpr int markerCode = 100;

} // namespace

const OdResBuf *EntityData::value(int code) const
{
    const OdResBuf *found = nullptr;
    visitOwn([&](int given, const OdResBuf &link) {
        if (!found && given == code)
            found = &link;
    });
    return found;
}

QString EntityData::type() const
{
    const OdResBuf *type = value(typeCode);
    return type ? type->getString() : QString();
}

bool EntityData::isPart() const
{
    const QString own = type();
    return own == u"VERTEX" || own == u"ATTRIB";
}

bool EntityData::isEntity() const
{
    static const QSet<QString> tables = {u"APPID"_s, u"DIMSTYLE"_s, u"LAYER"_s, u"LTYPE"_s,
                                         u"STYLE"_s, u"UCS"_s,      u"VIEW"_s,  u"VPORT"_s};
    bool hasMarkers = false;
    bool isMarked = false;
    visitOwn([&](int code, const OdResBuf &link) {
        hasMarkers |= code == markerCode;
        isMarked |= code == markerCode && link.getString() == u"AcDbEntity";
    });
    // Early drawings have no markers.
    return hasMarkers ? isMarked : !isEmpty() && !tables.contains(type());
}

QString EntityData::joinedText(int code, int otherCode) const
{
    QString text;
    visitOwn([&](int given, const OdResBuf &link) {
        if (given == code || given == otherCode)
            text += link.getString();
    });
    return text;
}

} // namespace ortakit
