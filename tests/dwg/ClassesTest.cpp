// Objects of classes, made bit by bit in each release that has them: what is read of them is what was written, in the
// order of the text form. Bits that are left over make a proxy of the object.

#include "tests/dwg/making/ReadBack.h"

#include <charconv>
#include <gtest/gtest.h>

namespace host::dwg::test {

namespace {

constexpr Release releases[] = {Release::R2000, Release::R2004, Release::R2007,
                                Release::R2010, Release::R2013, Release::R2018};

struct ClassRow
{
    const char *name;
    /// The fields in the order of the file, with blanks between them: a letter and a value. b flag, c small, s int16,
    /// l int32, d real, r raw real, w raw int16, p point, f flat raw point (x,y), t text ("_" a blank), h reference
    /// (hexadecimal), C colour, K long colour.
    std::string fields;
    std::string tags; ///< behind the head; for entities behind the layer
    bool isEntity = false;
    Release first = Release::R2000;
    Release last = Release::R2018;
};

std::vector<std::string> wordsOf(std::string_view text, char separator)
{
    std::vector<std::string> words;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(separator), text.size());
        if (end > 0)
            words.emplace_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return words;
}

Point pointOf(const std::string &text)
{
    const std::vector<std::string> parts = wordsOf(text, ',');
    const auto at = [&parts](std::size_t i) { return i < parts.size() ? std::stod(parts[i]) : 0.0; };
    return {at(0), at(1), at(2)};
}

/// A colour that is coded as from R2004 on in every release.
void writeLongColour(ObjectWriter &o, int index)
{
    constexpr std::uint32_t byIndex = 0xc3000000;
    o.int16(0);
    o.int32(static_cast<std::int32_t>(byIndex | static_cast<std::uint32_t>(index)));
    o.small(0);
}

void writeField(ObjectWriter &o, char kind, const std::string &value)
{
    const auto number = [&value] { return std::stoi(value); };
    switch (kind) {
    case 'b':
        return o.flag(number() != 0);
    case 'c':
        return o.small(number());
    case 's':
        return o.int16(number());
    case 'l':
        return o.int32(number());
    case 'd':
        return o.real(std::stod(value));
    case 'r':
        return o.rawReal(std::stod(value));
    case 'w':
        return o.values().raw16(static_cast<std::uint32_t>(number()));
    case 'p':
        return o.point(pointOf(value));
    case 'f':
        return o.rawFlatPoint(pointOf(value).x, pointOf(value).y);
    case 't': {
        std::string text = value;
        std::replace(text.begin(), text.end(), '_', ' ');
        return o.text(text);
    }
    case 'h':
        return o.reference(std::stoull(value, nullptr, 16));
    case 'C':
        return o.colour(number());
    case 'K':
        return writeLongColour(o, number());
    default:
        FAIL() << "no kind of field: " << kind;
    }
}

MadeDrawing::Write writerOf(const std::string &fields)
{
    return [fields](ObjectWriter &o) {
        for (const std::string &word : wordsOf(fields, ' '))
            writeField(o, word[0], word.substr(1));
    };
}

std::uint64_t add(MadeDrawing &drawing, const ClassRow &row, const std::string &fields)
{
    return row.isEntity ? drawing.addEntity(row.name, writerOf(fields))
                        : drawing.addObject(row.name, "IT", writerOf(fields));
}

/// The tags of a class's own.
std::string ownTags(const std::string &record, bool isEntity)
{
    std::size_t at = record.find("|100 ");
    if (isEntity && at != std::string::npos)
        at = record.find("|100 ", at + 1);
    return at != std::string::npos ? record.substr(at + 1) : std::string();
}

const std::string noFormat = "l0 l0 l512 l0 t d0 d1 l1 K0 h0 d0.18 ";
const std::string noFormatTags = "300 CONTENTFORMAT|1 CONTENTFORMAT_BEGIN|90 0|91 0|92 512|93 0|300 |40 0.0|140 1.0|"
                                 "94 1|62 0|340 0|144 0.18|309 CONTENTFORMAT_END|";
const std::string noCustomTags = "91 0|301 CUSTOMDATA|1 DATAMAP_BEGIN|90 0|309 DATAMAP_END|";

// A table as the insert of its block, and how the text form begins it.
const std::string tableInsert = "p1,2,0 b1 b1 d0 p0,0,1 b0 h1D ";
const std::string tableHead = "100 AcDbBlockReference|2 *MODEL_SPACE|10 1.0|20 2.0|30 0.0|100 AcDbTable|342 50|343 1D|"
                              "11 1.0|21 0.0|31 0.0|90 22|91 2|92 1|93 0|94 0|95 0|96 0|141 11.0|141 9.0|142 40.0|";
const std::string textCell = "171 1|172 0|173 0|174 0|175 1|176 1|";
const std::string blockCell = "171 2|172 0|173 0|174 1|175 1|176 1|";
const std::string hiTags = "92 0|301 CELL_VALUE|93 2|90 4|1 Hi|94 0|300 |302 Hi|304 ACVALUE_END|";
const std::string noValueTags = "92 0|301 CELL_VALUE|93 3|90 0|91 0|94 0|300 |302 |304 ACVALUE_END|";
/// One column; two rows: a text over both cells, and a block in the hidden one.
const std::string lateTable = "t t l1 t l0 l0 l3 s0 l0 d40 l2 "
                              "l1 l0 t l0 l0 l0 l1 l1 l2 l4 tHi l0 t tHi l0 s0 l1 s0 l1 l0 l0 l0 l2 s0 l1 d11 "
                              "l1 l0 t l0 l0 l0 l1 l4 h51 l0 s1 l264 l256 l512 l0 t d0 d0.5 l1 K0 h0 d0.18 l1 s1 l16 "
                              "l0 K257 l1 l16 l0 l512 l0 t d0 d1 l5 K0 h0 d0.18 s0 l0 l3 l0 l0 l0 l2 s0 l3 d9 "
                              "l0 l4 s0 l1 l0 l0 l1 l0 h50 s38 p1,0,0 l0 l1 p0,0,0 l0 l1";
const std::string lateTags = "171 1|172 0|173 0|174 0|175 1|176 2|91 0|178 0|145 0.0|" + hiTags +
                             "171 2|172 0|173 1|174 1|175 1|176 1|91 1|178 0|145 0.0|340 51|144 0.5|170 5|" +
                             noValueTags;

// A dimension that measures 5, of R2010 and later.
const std::string dimensionHead = "c0 p0,0,1 f2,3 d0 c2 t d0 d0 p1,1,1 d0 s5 s1 d1 d5 b0 b0 b1 f0,0 ";

std::string dimensionTags(const std::string &type)
{
    return "100 AcDbDimension|280 0|2 *MODEL_SPACE|10 0.0|20 0.0|30 0.0|11 2.0|21 3.0|31 0.0|70 " + type +
           "|71 5|42 5.0|73 0|74 0|75 1|3 |";
}

const ClassRow classRows[] = {
    {"ACAD_TABLE",
     tableInsert +
         "s22 h50 p1,0,0 l1 l2 d40 d11 d9 s1 c0 b0 b0 l1 l1 d0 h0 tHi b1 l1 c0 w5 s2 c0 b0 b1 l1 l1 d0 h51 d0.5 "
         "b0 b0 b0 b0 b0 b0",
     tableHead + textCell + "177 1|178 0|145 0.0|1 Hi|170 5|" + blockCell + "177 0|178 0|145 0.0|340 51|144 0.5|", true,
     Release::R2000, Release::R2004},
    {"ACAD_TABLE",
     tableInsert + "s22 h50 p1,0,0 l1 l2 d40 d11 d9 s1 c0 b0 b0 l1 l1 d0 h0 b0 l0 l2 l4 tHi l0 t tHi "
                   "s2 c0 b0 b1 l1 l1 d0 h51 d0.5 b0 b0 l0 l3 l0 l0 t t b0 b1 l3 C5 C6 b0 b0",
     std::string(tableHead).replace(tableHead.find("94 0"), 4, "94 3|64 5|65 6") + textCell + "91 0|178 0|145 0.0|" +
         hiTags + blockCell + "91 0|178 0|145 0.0|340 51|144 0.5|" +
         "92 0|301 CELL_VALUE|93 3|90 0|94 0|300 |302 |304 ACVALUE_END|",
     true, Release::R2007, Release::R2007},
    {"ACAD_TABLE", tableInsert + "c0 h0 l0 b1 " + lateTable, tableHead + lateTags, true, Release::R2010,
     Release::R2010},
    {"ACAD_TABLE", tableInsert + "c0 h0 l0 l0 " + lateTable, tableHead + lateTags, true, Release::R2013},
    {"SUN", "l1 b0 C7 d1.5 b1 l2455826 l54000000 b0 s2 s256 c1",
     "100 AcDbSun|90 1|290 0|63 7|40 1.5|291 1|91 2455826|92 54000000|292 0|70 2|71 256|280 1|"},
    {"LIGHT", "l1 tLamp s3 b1 C5 b0 d2 p1,2,3 p4,5,6 s0 b0 d1 d10 d0 d0 b1 s0 s256 c1",
     "100 AcDbLight|90 1|1 Lamp|70 3|290 1|63 5|291 0|40 2.0|10 1.0|20 2.0|30 3.0|11 4.0|21 5.0|31 6.0|72 0|292 0|"
     "41 1.0|42 10.0|50 0.0|51 0.0|293 1|73 0|91 256|280 1|",
     true},
    {"FIELDLIST", "l2 b0 h50 h51", "100 AcDbIdSet|90 2|330 50|330 51|100 AcDbFieldList|"},
    {"FIELD", "tAcVar t\\AcVar l1 h50 l0 l63 l0 l59 l2 l0 t l2 l4 t1_m l0 t%fn6 t t1_m l3 l1 tVariable l3 l0 l0 t t",
     "100 AcDbField|1 AcVar|2 \\AcVar|90 1|360 50|97 0|91 63|92 0|94 59|95 2|96 0|300 |93 1|6 Variable|93 3|90 0|94 0|"
     "300 |302 |304 ACVALUE_END|7 ACFD_FIELD_VALUE|93 2|90 4|1 1 m|94 0|300 %fn6|302 |304 ACVALUE_END|301 1 m|98 3|",
     false, Release::R2007},
    {"FIELD", "t_text t l0 l0 t%s l63 l0 l59 l2 l0 t l2 d2.5 t l0 l0",
     "100 AcDbField|1  text|2 |90 0|97 0|4 %s|91 63|92 0|94 59|95 2|96 0|300 |93 0|7 ACFD_FIELD_VALUE|90 2|140 2.5|"
     "304 ACVALUE_END|301 |98 0|",
     false, Release::R2000, Release::R2004},
    {"DIMASSOC", "l2 h50 b0 c1 tAcDbOsnapPointRef c6 l1 h51 s2 l3 l0 d0.5 p1,2,0 l1 h52 s1 l4 l1 t1F b0",
     "100 AcDbDimAssoc|330 50|90 2|70 0|71 1|1 AcDbOsnapPointRef|72 6|331 51|73 2|91 3|40 0.5|10 1.0|20 2.0|30 0.0|"
     "332 52|74 1|92 4|302 1F|75 0|"},
    {"SPATIAL_FILTER",
     "s2 f0,0 f4,3 p0,0,1 p1,1,0 s1 s1 d9 s0 d1 d0 d0 d5 d0 d1 d0 d6 d0 d0 d1 d0 d1 d0 d0 d0 d0 d1 "
     "d0 d0 d0 d0 d1 d0",
     "100 AcDbFilter|100 AcDbSpatialFilter|70 2|10 0.0|20 0.0|10 4.0|20 3.0|210 0.0|220 0.0|230 1.0|11 1.0|21 1.0|"
     "31 0.0|71 1|72 1|40 9.0|73 0|40 1.0|40 0.0|40 0.0|40 5.0|40 0.0|40 1.0|40 0.0|40 6.0|40 0.0|40 0.0|40 1.0|40 0.0|"
     "40 1.0|40 0.0|40 0.0|40 0.0|40 0.0|40 1.0|40 0.0|40 0.0|40 0.0|40 0.0|40 1.0|40 0.0|"},
    {"LAYER_FILTER", "l2 tA tB", "100 AcDbFilter|100 AcDbLayerFilter|8 A|8 B|"},
    {"LAYER_INDEX", "l2455826 l43200000 l1 l7 tA h50",
     "100 AcDbIndex|40 2455826.5|100 AcDbLayerIndex|8 A|360 50|90 7|"},
    {"IDBUFFER", "c0 l1 h50", "100 AcDbIdBuffer|330 50|"},
    {"ACAD_EVALUATION_GRAPH", "l1 l1 l1 l0 l32 l1 h50 l-1 l-1 l-1 l-1 l1 l0 l0 l1 l1 l0 l-1 l-1 l-1 l-1 l-1",
     "100 AcDbEvalGraph|96 1|97 1|91 0|93 32|95 1|360 50|92 -1|92 -1|92 -1|92 -1|92 0|93 0|94 1|91 1|91 0|92 -1|92 -1|"
     "92 -1|92 -1|92 -1|"},
    {"ACDBASSOCNETWORK", "l2 l0 h0 h0 l1 l0 l1 b1 h50 l1 h51 l0 l0 l1 l1 b0 h52 l1 h52",
     "100 AcDbAssocAction|90 2|90 0|330 0|360 0|90 1|90 0|90 1|360 50|90 1|360 51|90 0|100 AcDbAssocNetwork|90 0|90 1|"
     "90 1|330 52|90 1|330 52|"},
    {"ACDBASSOCDEPENDENCY", "l2 l0 b1 b0 b1 b0 l0 h50 b1 tName h0 h51 h0 l1",
     "100 AcDbAssocDependency|90 2|90 0|290 1|290 0|290 1|290 0|90 0|330 50|290 1|1 Name|330 0|330 51|360 0|90 1|"},
    {"RAPIDRTRENDERSETTINGS", "l2 tMedium b1 b0 b1 b1 t tLevels l0 l3 s0 l5 l1 s1 s2 d3 d2 b1",
     "100 AcDbRenderSettings|90 2|1 Medium|290 1|290 0|290 1|290 1|1 |1 Levels|90 0|100 AcDbRapidRTRenderSettings|90 3|"
     "70 0|90 5|90 1|70 1|70 2|40 3.0|40 2.0|290 1|"},
    {"RENDERGLOBAL", "l2 l1 l0 b1 tout.png l640 l480 b0 b1",
     "100 AcDbRenderGlobal|90 2|90 1|90 0|290 1|1 out.png|90 640|90 480|290 0|290 1|"},
    {"RENDERENVIRONMENT", "l1 b1 b0 c128 c127 c1 d0 d100 d0 d0.5 b0 tsky",
     "100 AcDbRenderEnvironment|90 1|290 1|290 0|280 128|280 127|280 1|40 0.0|40 100.0|40 0.0|40 0.5|290 0|1 sky|"},
    {"ACDB_BLOCKREPRESENTATION_DATA", "s1 h50", "100 AcDbBlockRepresentationData|70 1|340 50|"},
    {"LARGE_RADIAL_DIMENSION", dimensionHead + "p0,0,0 p3,4,0 d1 p9,9,0 p5,5,0 h0 h1D",
     dimensionTags("169") +
         "100 AcDbRadialDimensionLarge|13 9.0|23 9.0|33 0.0|14 5.0|24 5.0|34 0.0|15 3.0|25 4.0|35 0.0|40 1.0|",
     true, Release::R2010},
    {"ARC_DIMENSION", dimensionHead + "p0,0,0 p1,0,0 p2,0,0 p3,0,0 b0 d1 d2 b1 p4,0,0 p5,0,0 h0 h1D",
     dimensionTags("165") + "100 AcDbArcDimension|13 1.0|23 0.0|33 0.0|14 2.0|24 0.0|34 0.0|15 3.0|25 0.0|35 0.0|70 "
                            "0|40 1.0|41 2.0|71 1|16 4.0|26 0.0|36 0.0|17 5.0|27 0.0|37 0.0|",
     true, Release::R2010},
    {"MESH", "s2 b0 l1 l3 p0,0,0 p1,0,0 p1,1,0 l4 l3 l0 l1 l2 l1 l0 l1 l1 d0.5 l0",
     "100 AcDbSubDMesh|71 2|72 0|91 1|92 3|10 0.0|20 0.0|30 0.0|10 1.0|20 0.0|30 0.0|10 1.0|20 1.0|30 0.0|93 4|90 3|"
     "90 0|90 1|90 2|94 1|90 0|90 1|95 1|140 0.5|90 0|",
     true},
    {"PDFUNDERLAY", "p0,0,1 p1,2,0 d0 d1 d1 d1 c26 c100 c20 h50 l2 f0,0 f2,1 l2 f3,3 f4,4",
     "100 AcDbUnderlayReference|340 50|10 1.0|20 2.0|30 0.0|41 1.0|42 1.0|43 1.0|50 0.0|210 0.0|220 0.0|230 1.0|280 26|"
     "281 100|282 20|11 0.0|21 0.0|11 2.0|21 1.0|12 3.0|22 3.0|12 4.0|22 4.0|",
     true},
    {"PDFDEFINITION", "tplan.pdf t1", "100 AcDbUnderlayDefinition|1 plan.pdf|2 1|"},
    {"ACDB_TEXTOBJECTCONTEXTDATA_CLASS", "s4 b1 h50 s1 d0 f1,2 f3,4",
     "100 AcDbObjectContextData|70 4|290 1|100 AcDbAnnotScaleObjectContextData|340 50|70 1|50 0.0|10 1.0|20 2.0|11 3.0|"
     "21 4.0|"},
    {"ACDB_MTEXTOBJECTCONTEXTDATA_CLASS", "s4 b1 h50 l1 p1,0,0 p5,6,0 d40 d0 d38 d4 l2 l2 d18 d2 b0 b0 d4 d3",
     "100 AcDbObjectContextData|70 4|290 1|100 AcDbAnnotScaleObjectContextData|340 50|70 1|10 1.0|20 0.0|30 0.0|11 5.0|"
     "21 6.0|31 0.0|40 40.0|41 0.0|42 38.0|43 4.0|71 2|72 2|44 18.0|45 2.0|73 0|74 0|46 4.0|46 3.0|"},
    {"ACDB_BLKREFOBJECTCONTEXTDATA_CLASS", "s4 b0 h50 d0 p1,2,3 d2 d3 d4",
     "100 AcDbObjectContextData|70 4|290 0|100 AcDbAnnotScaleObjectContextData|340 50|50 0.0|10 1.0|20 2.0|30 3.0|"
     "41 2.0|42 3.0|43 4.0|"},
    {"GEODATA",
     "l2 h50 s1 p1,2,0 p9,51,0 d1 l6 d1 l6 p0,0,1 f0,1 l1 d1 b0 d0 d0 tSystem t t t t l1 f1,2 f9,51 l1 l0 l1 l2",
     "100 AcDbGeoData|90 2|330 50|70 1|10 1.0|20 2.0|30 0.0|11 9.0|21 51.0|31 0.0|40 1.0|91 6|41 1.0|92 6|210 0.0|"
     "220 0.0|230 1.0|12 0.0|22 1.0|95 1|141 1.0|294 0|142 0.0|143 0.0|301 System|302 |305 |306 |307 |93 1|13 1.0|"
     "23 2.0|14 9.0|24 51.0|96 1|97 0|98 1|99 2|",
     false, Release::R2010},
    {"HELIX", "l2 l0 l0 l3 d1e-10 p0,0,0 p0,0,0 l0 l29 l1 p0,0,0 p1,0,0 p0,0,1 d1 d3 d2 b1 c1",
     "100 AcDbSpline|70 1032|71 3|72 0|73 0|74 0|44 1e-10|12 0.0|22 0.0|32 0.0|13 0.0|23 0.0|33 0.0|100 AcDbHelix|90 "
     "29|91 1|10 0.0|20 0.0|30 0.0|11 1.0|21 0.0|31 0.0|12 0.0|22 0.0|32 1.0|40 1.0|41 3.0|42 2.0|290 1|280 1|",
     true, Release::R2013},
    {"TABLEGEOMETRY", "l1 l1 l1 l3 d25 d9 h0 l1 p1,2,0 p3,4,0 d5 d6 d7 d8 l0",
     "100 AcDbTableGeometry|90 1|91 1|92 1|93 3|40 25.0|41 9.0|330 0|94 1|10 1.0|20 2.0|30 0.0|11 3.0|21 4.0|31 0.0|"
     "43 5.0|44 6.0|45 7.0|46 8.0|95 0|"},
    {"TABLECONTENT",
     "t t l1 tA l0 l0 l3 s0 l0 d40 l1 l1 l0 t l0 l0 l0 l1 l1 l4 tHi l0 s1 " + noFormat +
         "l1 s0 l1 l0 l0 l0 l2 s0 l1 d11 l0 l4 s0 l0 h50",
     "100 AcDbLinkedData|1 |300 |100 AcDbLinkedTableData|90 1|300 COLUMN|1 LINKEDTABLEDATACOLUMN_BEGIN|300 A|" +
         noCustomTags +
         "309 LINKEDTABLEDATACOLUMN_END|1 FORMATTEDTABLEDATACOLUMN_BEGIN|300 COLUMNTABLEFORMAT|1 TABLEFORMAT_BEGIN|90 "
         "3|"
         "170 0|309 TABLEFORMAT_END|309 FORMATTEDTABLEDATACOLUMN_END|1 TABLECOLUMN_BEGIN|90 0|40 40.0|"
         "309 TABLECOLUMN_END|91 1|301 ROW|1 LINKEDTABLEDATAROW_BEGIN|90 1|300 CELL|1 LINKEDTABLEDATACELL_BEGIN|90 0|"
         "300 |" +
         noCustomTags +
         "92 0|95 1|302 CONTENT|1 CELLCONTENT_BEGIN|90 1|300 VALUE|90 4|1 Hi|304 ACVALUE_END|91 0|309 CELLCONTENT_END|"
         "1 FORMATTEDCELLCONTENT_BEGIN|170 1|" +
         noFormatTags +
         "309 FORMATTEDCELLCONTENT_END|309 LINKEDTABLEDATACELL_END|1 FORMATTEDTABLEDATACELL_BEGIN|300 CELLTABLEFORMAT|"
         "1 TABLEFORMAT_BEGIN|90 1|170 0|309 TABLEFORMAT_END|309 FORMATTEDTABLEDATACELL_END|1 TABLECELL_BEGIN|90 1|91 "
         "0|"
         "309 TABLECELL_END|" +
         noCustomTags +
         "309 LINKEDTABLEDATAROW_END|1 FORMATTEDTABLEDATAROW_BEGIN|300 ROWTABLEFORMAT|1 TABLEFORMAT_BEGIN|90 2|170 0|"
         "309 TABLEFORMAT_END|309 FORMATTEDTABLEDATAROW_END|1 TABLEROW_BEGIN|90 1|40 11.0|309 TABLEROW_END|92 0|"
         "100 AcDbFormattedTableData|300 TABLEFORMAT|1 TABLEFORMAT_BEGIN|90 4|170 0|309 TABLEFORMAT_END|90 0|"
         "100 AcDbTableContent|340 50|",
     false, Release::R2000, Release::R2004},
};

} // namespace

TEST(DwgClasses, AreReadAsTheyWereWritten)
{
    for (const ClassRow &row : classRows) {
        for (const Release release : releases) {
            if (release < row.first || release > row.last)
                continue;
            MadeDrawing drawing(release);
            const std::uint64_t handle = add(drawing, row, row.fields);
            const ReadBack read = readBack(drawing);
            EXPECT_EQ(ownTags(read.record(handle), row.isEntity), row.tags) << row.name << static_cast<int>(release);
            EXPECT_EQ(read.problems(), "") << row.name << static_cast<int>(release);
        }
    }
}

TEST(DwgClasses, WhatLeavesBitsOverIsKeptAsItIs)
{
    for (const ClassRow &row : classRows) {
        for (const char *more : {" b0", " c1", " h50"}) {
            MadeDrawing drawing(row.first);
            const std::uint64_t handle = add(drawing, row, row.fields + more);
            const ReadBack read = readBack(drawing);
            EXPECT_EQ(read.record(handle).substr(0, 12), "0 ACAD_PROXY") << row.name << more;
            EXPECT_NE(read.problems().find("has another form than is known"), std::string::npos) << row.name << more;
            EXPECT_EQ(read.drawing.problems.lostCount(), 0u) << row.name << more;
        }
    }
}

TEST(DwgClasses, JoggedRadiusThatDoesNotMeasureItsDistanceIsKeptAsItIs)
{
    MadeDrawing drawing(Release::R2018);
    const std::uint64_t handle =
        drawing.addEntity("LARGE_RADIAL_DIMENSION", writerOf(dimensionHead + "p3,4,0 p9,9,0 d1 p0,0,0 p5,5,0 h0 h1D"));
    const ReadBack read = readBack(drawing);
    EXPECT_EQ(read.record(handle).substr(0, 12), "0 ACAD_PROXY");
}

TEST(DwgClasses, EmbeddedObjectsStandWhereTheirDataSays)
{
    MadeDrawing drawing(Release::R2000);
    const std::uint64_t handle = drawing.addEntity(0x4a, [](ObjectWriter &o) {
        BitWriter data;
        data.raw16(0x5580);
        for (const double ordinate : {1.0, 9.0, 0.0, 8.0, 9.0, 0.0, 8.0, 2.0, 0.0, 1.0, 2.0, 0.0})
            data.rawReal(ordinate);
        data.rawBytes(std::string(128 - data.position() / 8, '\x7f'));
        o.int16(2);
        o.int16(1);
        o.int32(128);
        o.values().append(data);
        o.small(3);
    });
    const ReadBack read = readBack(drawing);
    const std::string tags = read.lastPart(handle);
    EXPECT_EQ(tags.substr(0, tags.find("310")), "70 2|10 1.0|20 9.0|30 0.0|11 8.0|21 2.0|31 0.0|72 1|90 128|");
    EXPECT_EQ(tags.substr(tags.size() - 6), "1 OLE|");
    EXPECT_EQ(read.problems(), "");
}

} // namespace host::dwg::test
