#include "host/drawing/records/EntityRules.h"

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

const FieldList vertexDefaults = {{70, qint64(0)}};

// Sorted by name.
const std::vector<EntityRule> &rules()
{
    using enum Version;
    static const std::vector<EntityRule> table = {
        {"3DFACE"_L1, R12, {10, 11, 12, 13}, {}, PointForm::Space, "AcDbFace"_L1},
        {"ARC"_L1, R12, {10, 40, 50, 51}, {}, PointForm::Space, {}},
        {"ATTDEF"_L1, R12, {10, 40, 1, 3, 2}, {{70, qint64(0)}}, PointForm::Space, {}},
        {"ATTRIB"_L1, R12, {10, 40, 1, 2}, {{70, qint64(0)}}, PointForm::Space, {}},
        {"CIRCLE"_L1, R12, {10, 40}, {}, PointForm::Space, "AcDbCircle"_L1},
        {"DIMENSION"_L1, R12, {10}, {{70, qint64(0)}, {3, u"Standard"_s}}, PointForm::Space, {}},
        {"ELLIPSE"_L1, R13, {10, 11, 40}, {{41, 0.0}, {42, 6.283185307179586}}, PointForm::Space, "AcDbEllipse"_L1},
        {"HATCH"_L1, R14, {10, 2, 91}, {}, PointForm::AsGiven, "AcDbHatch"_L1},
        {"IMAGE"_L1, R14, {10, 11, 12, 13, 340}, {}, PointForm::AsGiven, "AcDbRasterImage"_L1},
        {"INSERT"_L1, R12, {2, 10}, {}, PointForm::Space, {}},
        {"LEADER"_L1, R13, {10}, {{3, u"Standard"_s}}, PointForm::Space, "AcDbLeader"_L1},
        {"LINE"_L1, R12, {10, 11}, {}, PointForm::Space, "AcDbLine"_L1},
        {"LWPOLYLINE"_L1, R14, {10}, {{90, qint64(0)}, {70, qint64(0)}}, PointForm::Flat, "AcDbPolyline"_L1},
        {"MLINE"_L1, R13, {10, 11, 2}, {}, PointForm::Space, "AcDbMline"_L1},
        {"MTEXT"_L1,
         R13,
         {10, 1},
         {{40, 2.5}, {41, 0.0}, {71, qint64(1)}, {72, qint64(5)}},
         PointForm::Space,
         "AcDbMText"_L1},
        {"POINT"_L1, R12, {10}, {}, PointForm::Space, "AcDbPoint"_L1},
        {"POLYLINE"_L1, R12, {}, {{66, qint64(1)}, {10, Vec3{}}}, PointForm::Space, {}},
        {"RAY"_L1, R13, {10, 11}, {}, PointForm::Space, "AcDbRay"_L1},
        {"REGION"_L1, R13, {1}, {{70, qint64(1)}}, PointForm::AsGiven, "AcDbModelerGeometry"_L1},
        {"RTEXT"_L1, R14, {10, 40, 1}, {}, PointForm::Space, "RText"_L1},
        {"SEQEND"_L1, R12, {}, {}, PointForm::Space, {}},
        {"SHAPE"_L1, R12, {10, 40, 2}, {}, PointForm::Space, "AcDbShape"_L1},
        {"SOLID"_L1, R12, {10, 11, 12, 13}, {}, PointForm::Space, "AcDbTrace"_L1},
        {"SPLINE"_L1, R13, {}, {{70, qint64(8)}, {71, qint64(3)}}, PointForm::Space, "AcDbSpline"_L1},
        {"TEXT"_L1, R12, {10, 40, 1}, {}, PointForm::Space, {}},
        {"TOLERANCE"_L1, R13, {10, 1}, {{3, u"Standard"_s}}, PointForm::Space, "AcDbFcf"_L1},
        {"TRACE"_L1, R12, {10, 11, 12, 13}, {}, PointForm::Space, "AcDbTrace"_L1},
        {"VERTEX"_L1, R12, {10}, vertexDefaults, PointForm::Space, {}},
        {"VIEWPORT"_L1, R12, {10, 40, 41}, {}, PointForm::AsGiven, "AcDbViewport"_L1},
        {"WIPEOUT"_L1, R2000, {10, 11, 12}, {}, PointForm::AsGiven, "AcDbWipeout"_L1},
        {"XLINE"_L1, R13, {10, 11}, {}, PointForm::Space, "AcDbXline"_L1},
    };
    return table;
}

qint64 flagsOf(const FieldList &fields)
{
    const Field *flags = findField(fields, 70);
    return flags ? flags->integer() : 0;
}

EntityPart rest(QLatin1StringView marker)
{
    return {marker, {}, true};
}

std::vector<EntityPart> dimensionParts(const FieldList &fields)
{
    switch (flagsOf(fields) & 7) {
    case 1:
        return {rest("AcDbDimension"_L1), {"AcDbAlignedDimension"_L1, {12, 13, 14, 40, 50, 52}}};
    case 2:
        return {rest("AcDbDimension"_L1), {"AcDb2LineAngularDimension"_L1, {13, 14, 15, 16, 40}}};
    case 3:
        return {rest("AcDbDimension"_L1), {"AcDbDiametricDimension"_L1, {15, 40}}};
    case 4:
        return {rest("AcDbDimension"_L1), {"AcDbRadialDimension"_L1, {15, 40}}};
    case 5:
        return {rest("AcDbDimension"_L1), {"AcDb3PointAngularDimension"_L1, {13, 14, 15, 16, 40}}};
    case 6:
        return {rest("AcDbDimension"_L1), {"AcDbOrdinateDimension"_L1, {13, 14}}};
    default:
        return {rest("AcDbDimension"_L1),
                {"AcDbAlignedDimension"_L1, {12, 13, 14, 40, 50, 52}},
                {"AcDbRotatedDimension"_L1, {}}};
    }
}

std::vector<EntityPart> polylineParts(const FieldList &fields)
{
    const qint64 flags = flagsOf(fields);
    if ((flags & 64) != 0)
        return {rest("AcDbPolyFaceMesh"_L1)};
    if ((flags & 16) != 0)
        return {rest("AcDbPolygonMesh"_L1)};
    return {rest((flags & 8) != 0 ? "AcDb3dPolyline"_L1 : "AcDb2dPolyline"_L1)};
}

std::vector<EntityPart> vertexParts(const FieldList &fields)
{
    const qint64 flags = flagsOf(fields);
    const bool isMesh = (flags & 64) != 0;
    if ((flags & 128) != 0 && !isMesh)
        return {rest("AcDbFaceRecord"_L1)};
    const QLatin1StringView kind = (flags & 128) != 0  ? "AcDbPolyFaceMeshVertex"_L1
                                   : isMesh            ? "AcDbPolygonMeshVertex"_L1
                                   : (flags & 32) != 0 ? "AcDb3dPolylineVertex"_L1
                                                       : "AcDb2dVertex"_L1;
    return {{"AcDbVertex"_L1, {}}, rest(kind)};
}

bool isArray(const FieldList &fields)
{
    const Field *columns = findField(fields, 70);
    const Field *rows = findField(fields, 71);
    return (columns && columns->integer() > 1) || (rows && rows->integer() > 1);
}

} // namespace

const EntityRule *entityRule(QStringView type)
{
    const auto rule =
        std::lower_bound(rules().begin(), rules().end(), type, [](const EntityRule &candidate, QStringView wanted) {
            return candidate.type.compare(wanted) < 0;
        });
    return rule != rules().end() && rule->type == type ? &*rule : nullptr;
}

std::vector<EntityPart> entityParts(const EntityRule &rule, const FieldList &fields)
{
    if (!rule.marker.isEmpty())
        return {rest(rule.marker)};
    if (rule.type == "ARC"_L1)
        return {rest("AcDbCircle"_L1), {"AcDbArc"_L1, {50, 51}}};
    if (rule.type == "TEXT"_L1)
        return {rest("AcDbText"_L1), {"AcDbText"_L1, {73}}};
    if (rule.type == "ATTRIB"_L1)
        return {rest("AcDbText"_L1), {"AcDbAttribute"_L1, {280, 2, 70, 73, 74}}};
    if (rule.type == "ATTDEF"_L1)
        return {rest("AcDbText"_L1), {"AcDbAttributeDefinition"_L1, {280, 3, 2, 70, 73, 74}}};
    if (rule.type == "INSERT"_L1)
        return {rest(isArray(fields) ? "AcDbMInsertBlock"_L1 : "AcDbBlockReference"_L1)};
    if (rule.type == "DIMENSION"_L1)
        return dimensionParts(fields);
    if (rule.type == "POLYLINE"_L1)
        return polylineParts(fields);
    if (rule.type == "VERTEX"_L1)
        return vertexParts(fields);
    return {};
}

bool isCommonCode(int code)
{
    static constexpr int codes[] = {6, 8, 48, 60, 62, 67, 284, 347, 348, 370, 390, 410, 420, 430, 440};
    return std::binary_search(std::begin(codes), std::end(codes), code);
}

} // namespace host::drawing
