#include "host/drawing/file/NewDrawing.h"

#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/Dictionaries.h"
#include "host/drawing/records/DimensionVariables.h"
#include "host/drawing/records/HeaderVariables.h"
#include "host/drawing/records/LayoutTabs.h"
#include "host/drawing/records/Structure.h"
#include "host/drawing/records/Tables.h"
#include "host/drawing/tags/GroupCodes.h"

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

constexpr Version newVersion = Version::R2018;
// The groups of a dimension style that lead to other records; the first leads to its text style.
constexpr int firstHandleCode = 340;
constexpr int lastHandleCode = 347;

QByteArray skeleton()
{
    QByteArray text = "  0\nSECTION\n  2\nHEADER\n  9\n$ACADVER\n  1\nAC1032\n  9\n$HANDSEED\n  5\n1\n  0\nENDSEC\n";
    for (const char *section : {"CLASSES", "TABLES", "BLOCKS", "ENTITIES", "OBJECTS"})
        text += QByteArray("  0\nSECTION\n  2\n") + section + "\n  0\nENDSEC\n";
    return text + "  0\nEOF\n";
}

using Variables = std::vector<std::pair<const char *, Field>>;

Variables generalVariables()
{
    return {{"$ACADMAINTVER", {90, qint64(0)}},
            {"$DWGCODEPAGE", {3, u"ANSI_1252"_s}},
            {"$INSBASE", {10, Vec3{}}},
            {"$EXTMIN", {10, Vec3{1e20, 1e20, 1e20}}},
            {"$EXTMAX", {10, Vec3{-1e20, -1e20, -1e20}}},
            {"$LIMMIN", {10, Vec2{}}},
            {"$ORTHOMODE", {70, qint64(0)}},
            {"$REGENMODE", {70, qint64(1)}},
            {"$FILLMODE", {70, qint64(1)}},
            {"$QTEXTMODE", {70, qint64(0)}},
            {"$MIRRTEXT", {70, qint64(0)}},
            {"$LTSCALE", {40, 1.0}},
            {"$ATTMODE", {70, qint64(1)}},
            {"$TRACEWID", {40, 1.0}},
            {"$TEXTSTYLE", {7, u"Standard"_s}},
            {"$CLAYER", {8, u"0"_s}},
            {"$CELTYPE", {6, u"ByLayer"_s}},
            {"$CECOLOR", {62, qint64(256)}},
            {"$CELTSCALE", {40, 1.0}},
            {"$DISPSILH", {70, qint64(0)}},
            {"$DIMSTYLE", {2, u"Standard"_s}},
            {"$LUNITS", {70, qint64(2)}},
            {"$LUPREC", {70, qint64(4)}},
            {"$SKETCHINC", {40, 1.0}},
            {"$FILLETRAD", {40, 0.0}},
            {"$AUNITS", {70, qint64(0)}},
            {"$AUPREC", {70, qint64(0)}},
            {"$MENU", {1, u"."_s}},
            {"$ELEVATION", {40, 0.0}},
            {"$PELEVATION", {40, 0.0}},
            {"$THICKNESS", {40, 0.0}},
            {"$LIMCHECK", {70, qint64(0)}},
            {"$CHAMFERA", {40, 0.0}},
            {"$CHAMFERB", {40, 0.0}},
            {"$ANGBASE", {50, 0.0}},
            {"$ANGDIR", {70, qint64(0)}},
            {"$PDMODE", {70, qint64(0)}},
            {"$PDSIZE", {40, 0.0}},
            {"$PLINEWID", {40, 0.0}},
            {"$SPLFRAME", {70, qint64(0)}},
            {"$SPLINETYPE", {70, qint64(6)}},
            {"$SPLINESEGS", {70, qint64(8)}},
            {"$SURFTAB1", {70, qint64(6)}},
            {"$SURFTAB2", {70, qint64(6)}},
            {"$SURFTYPE", {70, qint64(6)}},
            {"$UCSNAME", {2, QString()}},
            {"$UCSORG", {10, Vec3{}}},
            {"$UCSXDIR", {10, Vec3{1, 0, 0}}},
            {"$UCSYDIR", {10, Vec3{0, 1, 0}}},
            {"$USERI1", {70, qint64(0)}},
            {"$USERI2", {70, qint64(0)}},
            {"$USERI3", {70, qint64(0)}},
            {"$USERI4", {70, qint64(0)}},
            {"$USERI5", {70, qint64(0)}},
            {"$USERR1", {40, 0.0}},
            {"$USERR2", {40, 0.0}},
            {"$USERR3", {40, 0.0}},
            {"$USERR4", {40, 0.0}},
            {"$USERR5", {40, 0.0}},
            {"$WORLDVIEW", {70, qint64(1)}},
            {"$TILEMODE", {70, qint64(1)}},
            {"$MAXACTVP", {70, qint64(64)}},
            {"$PLINEGEN", {70, qint64(0)}},
            {"$PSLTSCALE", {70, qint64(1)}},
            {"$CMLSTYLE", {2, u"Standard"_s}},
            {"$CMLJUST", {70, qint64(0)}},
            {"$CMLSCALE", {40, 1.0}},
            {"$CELWEIGHT", {370, qint64(-1)}},
            {"$LWDISPLAY", {290, qint64(0)}},
            {"$EXTNAMES", {290, qint64(1)}}};
}

/// What depends on the unit. Lengths of the metric kind are millimetres, the others inches.
Variables unitVariables(Measurement measurement)
{
    const bool isMetric = measurement == Measurement::Metric;
    const auto length = [isMetric](double metric, double imperial) { return isMetric ? metric : imperial; };
    return {{"$LIMMAX", {10, isMetric ? Vec2{420.0, 297.0} : Vec2{12.0, 9.0}}},
            {"$TEXTSIZE", {40, length(2.5, 0.2)}},
            {"$INSUNITS", {70, qint64(isMetric ? 4 : 1)}},
            {"$MEASUREMENT", {70, qint64(isMetric ? 1 : 0)}}};
}

/// The variables of dimensions, which depend on the unit as well.
void setDimensionVariables(Drawing &drawing)
{
    for (const DimensionVariable &variable : dimensionVariables()) {
        if (variable.since <= newVersion && variable.until >= newVersion)
            drawing.header().set(u'$' + QString::fromLatin1(variable.name), usualValue(drawing, variable));
    }
}

/// The same as the header has for the dimensions to come.
FieldList dimensionStyle(const Drawing &drawing, Handle textStyle)
{
    FieldList fields = {{70, qint64(0)}};
    for (const DimensionVariable &variable : dimensionVariables()) {
        const bool isNamed = variable.styleCode >= firstHandleCode && variable.styleCode <= lastHandleCode;
        const bool isInHeader = variable.since <= newVersion && variable.until >= newVersion;
        if (variable.styleCode != 0 && !isNamed && isInHeader)
            fields.push_back({variable.styleCode, usualValue(drawing, variable).value});
    }
    fields.push_back({firstHandleCode, textStyle});
    return fields;
}

void addTables(Drawing &drawing)
{
    Tables &tables = drawing.tables();
    tables.add(TableKind::Viewport, u"*Active"_s);
    for (const QString &name : {u"ByBlock"_s, u"ByLayer"_s, u"Continuous"_s})
        tables.add(TableKind::Linetype, name, {{3, name == u"Continuous" ? u"Solid line"_s : QString()}});
    tables.add(TableKind::Layer, u"0"_s);
    const RecordId style = tables.add(TableKind::Style, u"Standard"_s);
    tables.ensureTable(TableKind::View);
    tables.ensureTable(TableKind::Ucs);
    tables.add(TableKind::AppId, u"ACAD"_s);
    tables.add(TableKind::DimStyle, u"Standard"_s, dimensionStyle(drawing, drawing.handle(style)));
    for (const QString &name : {u"*Model_Space"_s, u"*Paper_Space"_s})
        insertBlockDefinition(drawing, name, {}, 0);
}

/// The dictionary of plot styles names a default; layers refer to it.
void addPlotStyles(Drawing &drawing, RecordId root)
{
    const RecordId styles = insertObject(drawing, u"ACDBDICTIONARYWDFLT"_s, drawing.handle(root),
                                         {{subclassCode, u"AcDbDictionary"_s}, {281, qint64(1)}});
    const RecordId normal = insertObject(drawing, u"ACDBPLACEHOLDER"_s, drawing.handle(styles), {});
    FieldList fields = drawing.fields(styles);
    fields.insert(fields.end(), {{3, u"Normal"_s},
                                 {350, drawing.handle(normal)},
                                 {subclassCode, u"AcDbDictionaryWithDefault"_s},
                                 {340, drawing.handle(normal)}});
    drawing.setFields(styles, fields);
    drawing.dictionaries().set(root, u"ACAD_PLOTSTYLENAME"_s, styles);
    const RecordId layer = drawing.tables().find(TableKind::Layer, u"0");
    FieldList layerFields = drawing.fields(layer);
    setField(layerFields, 390, drawing.handle(normal));
    drawing.setFields(layer, layerFields);
}

void addMultiLineStyle(Drawing &drawing, RecordId root)
{
    const RecordId styles = drawing.dictionaries().ensureDictionary(root, u"ACAD_MLINESTYLE"_s);
    const RecordId standard = insertObject(drawing, u"MLINESTYLE"_s, drawing.handle(styles),
                                           {{subclassCode, u"AcDbMlineStyle"_s},
                                            {2, u"Standard"_s},
                                            {70, qint64(0)},
                                            {3, QString()},
                                            {62, qint64(256)},
                                            {51, 90.0},
                                            {52, 90.0},
                                            {71, qint64(2)},
                                            {49, 0.5},
                                            {62, qint64(256)},
                                            {6, u"BYLAYER"_s},
                                            {49, -0.5},
                                            {62, qint64(256)},
                                            {6, u"BYLAYER"_s}});
    drawing.dictionaries().set(styles, u"Standard"_s, standard);
}

void addObjects(Drawing &drawing)
{
    Dictionaries &dictionaries = drawing.dictionaries();
    const RecordId root = dictionaries.ensureRoot();
    dictionaries.ensureDictionary(root, u"ACAD_GROUP"_s);
    addLayout(drawing, u"Model"_s, u"*Model_Space"_s, 0);
    addLayout(drawing, u"Layout1"_s, u"*Paper_Space"_s, 1);
    addMultiLineStyle(drawing, root);
    dictionaries.ensureDictionary(root, u"ACAD_PLOTSETTINGS"_s);
    addPlotStyles(drawing, root);
}

} // namespace

std::unique_ptr<Drawing> newDrawing(Measurement measurement)
{
    const std::unique_ptr<Drawing> draft = std::move(Drawing::fromBytes(skeleton()).drawing);
    for (const Variables &variables : {generalVariables(), unitVariables(measurement)}) {
        for (const auto &[name, value] : variables)
            draft->header().set(QString::fromLatin1(name), value);
    }
    setDimensionVariables(*draft);
    addTables(*draft);
    addObjects(*draft);
    // Read afresh: no journal, and every record in one piece of memory.
    return std::move(Drawing::fromBytes(draft->toBytes()).drawing);
}

} // namespace host::drawing
