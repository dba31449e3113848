#include "lispfuncs/EntityFields.h"

#include "lispfuncs/EntityData.h"

#include <QStringTokenizer>

#include <algorithm>
#include <cmath>

namespace ortakit {

using namespace Qt::StringLiterals;

namespace {

/// What a field is where it is left out.
struct Usual
{
    enum class Kind
    {
        None,
        Integer,
        Real,
        Text,
        ZAxis
    };
    Kind kind = Kind::None;
    double number = 0.0;
    const char *text = "";
};

constexpr Usual integer(int value)
{
    return {.kind = Usual::Kind::Integer, .number = double(value)};
}

constexpr Usual real(double value)
{
    return {.kind = Usual::Kind::Real, .number = value};
}

constexpr Usual text(const char *value)
{
    return {.kind = Usual::Kind::Text, .text = value};
}

constexpr Usual zAxis{.kind = Usual::Kind::ZAxis};

struct Field
{
    const char *names; ///< lower case, with "," between
    const char *types; ///< with "," between; "": all that no row above has
    int code;
    Usual usual{};
};

constexpr const char *texts = "TEXT,ATTRIB,ATTDEF,RTEXT";

/// The first row for a name and type counts.
constexpr Field fields[] = {
    // What every entity has.
    {"type", "", 0},
    {"handle", "", 5},
    {"owner", "", 330},
    {"layer", "", 8, text("0")},
    {"color,colour", "", 62, integer(256)},
    {"truecolor,truecolour", "", 420},
    {"linetype,ltype", "", 6, text("ByLayer")},
    {"linetypescale,ltscale", "", 48, real(1.0)},
    {"lineweight", "", 370, integer(-1)},
    {"transparency", "", 440},
    {"thickness", "", 39, real(0.0)},
    {"invisible", "", 60, integer(0)},
    {"space", "", 67, integer(0)},
    {"layout", "", 410},
    {"normal,extrusion", "", 210, zAxis},
    // Texts and attributes.
    {"text,value", texts, 1, text("")},
    {"text,value", "MTEXT", 1, text("")},
    {"text,value", "DIMENSION,TOLERANCE", 1, text("")},
    {"text,value", "MULTILEADER", 304},
    {"height", texts, 40},
    {"height", "MTEXT", 40},
    {"height", "VIEWPORT", 41},
    {"size", "SHAPE", 40},
    {"style", texts, 7, text("Standard")},
    {"style", "MTEXT", 7, text("Standard")},
    {"style", "DIMENSION,LEADER,TOLERANCE", 3, text("Standard")},
    {"style", "MLINE", 2, text("Standard")},
    {"rotation", texts, 50, real(0.0)},
    {"rotation", "MTEXT,INSERT,SHAPE,DIMENSION", 50, real(0.0)},
    {"widthfactor", "TEXT,ATTRIB,ATTDEF,SHAPE", 41, real(1.0)},
    {"oblique", "TEXT,ATTRIB,ATTDEF,SHAPE", 51, real(0.0)},
    {"halign", "TEXT,ATTRIB,ATTDEF", 72, integer(0)},
    {"valign", "TEXT", 73, integer(0)},
    {"valign", "ATTRIB,ATTDEF", 74, integer(0)},
    {"attachment", "MTEXT", 71, integer(1)},
    {"tag", "ATTRIB,ATTDEF", 2},
    {"prompt", "ATTDEF", 3, text("")},
    // Places.
    {"position,insertion", texts, 10},
    {"position,insertion", "MTEXT,INSERT,SHAPE,POINT,VERTEX,IMAGE,TOLERANCE", 10},
    {"alignment", "TEXT,ATTRIB,ATTDEF", 11},
    {"start", "LINE", 10},
    {"end", "LINE", 11},
    {"center,centre", "CIRCLE,ARC,ELLIPSE,VIEWPORT", 10},
    {"radius", "CIRCLE,ARC", 40},
    {"startangle", "ARC", 50},
    {"endangle", "ARC", 51},
    {"majoraxis", "ELLIPSE", 11},
    {"ratio", "ELLIPSE", 40},
    // Block references.
    {"block", "INSERT,DIMENSION", 2},
    {"name", "", 2},
    {"scale,xscale", "INSERT", 41, real(1.0)},
    {"yscale", "INSERT", 42, real(1.0)},
    {"zscale", "INSERT", 43, real(1.0)},
    {"columns", "INSERT", 70, integer(1)},
    {"rows", "INSERT", 71, integer(1)},
    {"columnspacing", "INSERT", 44, real(0.0)},
    {"rowspacing", "INSERT", 45, real(0.0)},
    // Polylines, hatches, dimensions.
    {"width", "LWPOLYLINE", 43, real(0.0)},
    {"width", "POLYLINE", 40, real(0.0)},
    {"width", "MTEXT", 41},
    {"width", "VIEWPORT", 40},
    {"elevation", "LWPOLYLINE", 38, real(0.0)},
    {"vertices", "LWPOLYLINE", 90},
    {"startwidth", "VERTEX", 40, real(0.0)},
    {"endwidth", "VERTEX", 41, real(0.0)},
    {"bulge", "VERTEX", 42, real(0.0)},
    {"flags", "LWPOLYLINE,POLYLINE,VERTEX,ATTRIB,ATTDEF,DIMENSION", 70, integer(0)},
    {"pattern", "HATCH", 2},
    {"angle", "HATCH", 52, real(0.0)},
    {"scale", "HATCH", 41, real(1.0)},
    {"measurement", "DIMENSION", 42},
    {"textposition", "DIMENSION", 11},
};

constexpr int mtextPiece = 3;
constexpr int mtextEnd = 1;
constexpr int mtextDirection = 11;
constexpr int rotationCode = 50;

bool isAmong(QStringView word, const char *list)
{
    const QLatin1StringView all(list);
    return std::ranges::any_of(QStringTokenizer(all, u','), [&](QLatin1StringView part) { return part == word; });
}

const Field *findField(const QString &name, const QString &type)
{
    const auto *found = std::ranges::find_if(fields, [&](const Field &field) {
        return isAmong(name, field.names) && (!*field.types || isAmong(type, field.types));
    });
    return found == std::end(fields) ? nullptr : found;
}

OdResBufPtr usualValue(const Usual &usual)
{
    switch (usual.kind) {
    case Usual::Kind::Integer:
        return OdResBuf::newInteger(OdResBuf::kRtShort, qint64(usual.number));
    case Usual::Kind::Real:
        return OdResBuf::newReal(OdResBuf::kRtReal, usual.number);
    case Usual::Kind::Text:
        return OdResBuf::newString(OdResBuf::kRtString, QString::fromLatin1(usual.text));
    case Usual::Kind::ZAxis:
        return OdResBuf::newPoint(OdResBuf::kRtPoint3d, {0, 0, 1});
    case Usual::Kind::None:
        break;
    }
    return nullptr;
}

OdResBufPtr copyOf(const OdResBuf &link)
{
    const int type = link.restype();
    switch (type) {
    case OdResBuf::kRtString:
        return OdResBuf::newString(type, link.getString());
    case OdResBuf::kRtReal:
        return OdResBuf::newReal(type, link.getDouble());
    case OdResBuf::kRtPoint:
    case OdResBuf::kRtPoint3d:
        return OdResBuf::newPoint(type, link.getPoint3d());
    default:
        return OdResBuf::newInteger(type, link.getInteger());
    }
}

/// What multi-line texts say otherwise than by one group; null for other fields.
OdResBufPtr fieldOfMText(const EntityData &data, const Field &field)
{
    if (field.code == mtextEnd)
        return OdResBuf::newString(OdResBuf::kRtString, data.joinedText(mtextPiece, mtextEnd));
    const OdResBuf *direction = data.value(mtextDirection);
    const OdResBuf *rotation = data.value(rotationCode);
    if (field.code != rotationCode || !direction || rotation)
        return nullptr;
    const OdGePoint3d along = direction->getPoint3d();
    return OdResBuf::newReal(OdResBuf::kRtReal, std::atan2(along.y, along.x));
}

} // namespace

OdResBufPtr codedField(const EntityData &data, int code)
{
    const OdResBuf *value = data.value(code);
    return value ? copyOf(*value) : nullptr;
}

OdResBufPtr namedField(const EntityData &data, const QString &name)
{
    const QString type = data.type();
    const Field *field = findField(name.trimmed().toLower(), type);
    if (!field)
        return nullptr;
    OdResBufPtr value = type == u"MTEXT" ? fieldOfMText(data, *field) : nullptr;
    if (!value)
        value = codedField(data, field->code);
    if (!value && data.isEntity())
        value = usualValue(field->usual);
    return value;
}

} // namespace ortakit
