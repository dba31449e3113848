#include "host/drawing/file/RecordTypes.h"

#include <QHash>

#include <initializer_list>

namespace host::drawing {

namespace {

using RoleTable = QHash<QByteArray, TypeRole>;

void addTypes(RoleTable &table, TypeRole role, std::initializer_list<const char *> types)
{
    for (const char *type : types)
        table.insert(type, role);
}

const RoleTable &roleTable()
{
    static const RoleTable table = [] {
        RoleTable roles;
        addTypes(roles, TypeRole::Marker, {"SECTION", "ENDSEC", "TABLE", "ENDTAB", "BLOCK", "ENDBLK", "EOF"});
        addTypes(roles, TypeRole::Class, {"CLASS"});
        addTypes(roles, TypeRole::Symbol,
                 {"VPORT", "LTYPE", "LAYER", "STYLE", "VIEW", "UCS", "APPID", "DIMSTYLE", "BLOCK_RECORD"});
        addTypes(roles, TypeRole::Entity,
                 {"3DFACE",
                  "3DLINE",
                  "3DSOLID",
                  "ACAD_PROXY_ENTITY",
                  "ACAD_TABLE",
                  "ARC",
                  "ARCALIGNEDTEXT",
                  "ARC_DIMENSION",
                  "ATTDEF",
                  "ATTRIB",
                  "BODY",
                  "CIRCLE",
                  "DGNUNDERLAY",
                  "DIMENSION",
                  "DWFUNDERLAY",
                  "ELLIPSE",
                  "EXTRUDEDSURFACE",
                  "HATCH",
                  "HELIX",
                  "IMAGE",
                  "INSERT",
                  "LARGE_RADIAL_DIMENSION",
                  "LEADER",
                  "LIGHT",
                  "LINE",
                  "LOFTEDSURFACE",
                  "LWPOLYLINE",
                  "MESH",
                  "MLINE",
                  "MPOLYGON",
                  "MTEXT",
                  "MULTILEADER",
                  "OLE2FRAME",
                  "OLEFRAME",
                  "PDFUNDERLAY",
                  "PLANESURFACE",
                  "POINT",
                  "POLYLINE",
                  "RAY",
                  "REGION",
                  "REVOLVEDSURFACE",
                  "RTEXT",
                  "SEQEND",
                  "SHAPE",
                  "SOLID",
                  "SPLINE",
                  "SURFACE",
                  "SWEPTSURFACE",
                  "TEXT",
                  "TOLERANCE",
                  "TRACE",
                  "VERTEX",
                  "VIEWPORT",
                  "WIPEOUT",
                  "XLINE"});
        addTypes(roles, TypeRole::Object,
                 {"ACAD_PROXY_OBJECT",
                  "ACDBDICTIONARYWDFLT",
                  "ACDBPLACEHOLDER",
                  "CELLSTYLEMAP",
                  "DICTIONARY",
                  "DICTIONARYVAR",
                  "DIMASSOC",
                  "DWFDEFINITION",
                  "DGNDEFINITION",
                  "FIELD",
                  "FIELDLIST",
                  "GEODATA",
                  "GROUP",
                  "IDBUFFER",
                  "IMAGEDEF",
                  "IMAGEDEF_REACTOR",
                  "LAYER_FILTER",
                  "LAYER_INDEX",
                  "LAYOUT",
                  "MATERIAL",
                  "MLEADERSTYLE",
                  "MLINESTYLE",
                  "PDFDEFINITION",
                  "PLOTSETTINGS",
                  "RASTERVARIABLES",
                  "SCALE",
                  "SORTENTSTABLE",
                  "SPATIAL_FILTER",
                  "SPATIAL_INDEX",
                  "SUN",
                  "TABLECONTENT",
                  "TABLEGEOMETRY",
                  "TABLESTYLE",
                  "VBA_PROJECT",
                  "VISUALSTYLE",
                  "WIPEOUTVARIABLES",
                  "XRECORD"});
        return roles;
    }();
    return table;
}

} // namespace

TypeRole typeRole(QByteArrayView type)
{
    constexpr qsizetype longest = 32;
    return type.size() > longest ? TypeRole::Unknown : roleTable().value(type.toByteArray().toUpper());
}

bool isPlausibleType(QByteArrayView text)
{
    constexpr qsizetype longest = 80;
    const auto isPrintable = [](char c) { return c >= 0x20 && c < 0x7F; };
    const auto isLetter = [](char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); };
    return text.size() <= longest && std::ranges::all_of(text, isPrintable) && std::ranges::any_of(text, isLetter);
}

bool isHolder(QByteArrayView type)
{
    static const QList<QByteArray> holders = {"SECTION", "ENDSEC",     "TABLE",        "ENDTAB", "BLOCK",
                                              "ENDBLK",  "POLYLINE",   "SEQEND",       "LAYER",  "STYLE",
                                              "APPID",   "DICTIONARY", "BLOCK_RECORD", "EOF"};
    return holders.contains(type.toByteArray().toUpper());
}

} // namespace host::drawing
