#include "tests/dwg/ClassRows.h"

namespace host::dwg::test {

// A dimension that measures 5, of R2010 and later.
const std::string dimensionHead = "c0 p0,0,1 f2,3 d0 c2 t d0 d0 p1,1,1 d0 s5 s1 d1 d5 b0 b0 b1 f0,0 ";

namespace {

std::string dimensionTags(const std::string &type)
{
    return "100 AcDbDimension|280 0|2 *MODEL_SPACE|10 0.0|20 0.0|30 0.0|11 2.0|21 3.0|31 0.0|70 " + type +
           "|71 5|42 5.0|73 0|74 0|75 1|";
}

/// How a value from R2007 on ends: without a unit and without a text of its own.
const std::string plainEnd = "l0 t t ";
const std::string plainEndTags = "94 0|300 |302 |304 ACVALUE_END|";
const std::string scaleTags = "100 AcDbObjectContextData|70 4|290 1|100 AcDbAnnotScaleObjectContextData|340 50|";

// A step of a solid's history up to the sizes of what was made.
const std::string historyNode =
    "l-1 l33 l29 s-9999 l1 l33 l29 d1 d0 d0 d5 d0 d1 d0 d6 d0 d0 d1 d0 d0 d0 d0 d1 C256 l2 h50 l33 l29 ";
const std::string historyTags =
    "100 AcDbEvalExpr|90 1|98 33|99 29|100 AcDbShHistoryNode|90 33|91 29|40 1.0|41 0.0|42 0.0|43 5.0|44 0.0|45 1.0|"
    "46 0.0|47 6.0|48 0.0|49 0.0|50 57.29577951308232|51 0.0|52 0.0|53 0.0|54 0.0|"
    "55 57.29577951308232|62 256|92 2|347 50|100 AcDbShPrimitive|100 ";

const ClassRow rows[] = {
    {"FIELD",
     "t t l0 l0 l0 l0 l0 l0 l0 t l3 l0 " + plainEnd + "t l0 l7 tA l2 l1 l7 " + plainEnd + "tB l2 l2 d2.5 " + plainEnd +
         "tC l2 l8 l2 c1 c255 " + plainEnd + "tD l2 l16 l16 f1,2 " + plainEnd + "tE l2 l32 l24 r1 r2 r3 " + plainEnd +
         "tF l2 l64 h50 " + plainEnd + "tG l2 l512 l1 c65 " + plainEnd,
     "100 AcDbField|1 |2 |90 0|97 0|91 0|92 0|94 0|95 0|96 0|300 |93 7|6 A|93 2|90 1|91 7|" + plainEndTags +
         "6 B|93 2|90 2|140 2.5|" + plainEndTags + "6 C|93 2|90 8|92 2|310 01FF|" + plainEndTags +
         "6 D|93 2|90 16|11 1.0|21 2.0|" + plainEndTags + "6 E|93 2|90 32|11 1.0|21 2.0|31 3.0|" + plainEndTags +
         "6 F|93 2|90 64|330 50|" + plainEndTags + "6 G|93 2|90 512|92 1|310 41|" + plainEndTags +
         "7 ACFD_FIELD_VALUE|93 3|90 0|" + plainEndTags + "301 |98 0|",
     false, Release::R2007},
    {"ACSH_HISTORY_CLASS", "l33 l29 h50 l1 b0 b1", "100 AcDbShHistory|90 33|91 29|360 50|92 1|280 0|281 1|"},
    {"ACSH_BOX_CLASS", historyNode + "d3 d4 d5", historyTags + "AcDbShBox|90 33|91 29|40 3.0|41 4.0|42 5.0|"},
    {"ACSH_WEDGE_CLASS", historyNode + "d3 d4 d5", historyTags + "AcDbShWedge|90 33|91 29|40 3.0|41 4.0|42 5.0|"},
    {"ACSH_SPHERE_CLASS", historyNode + "d3", historyTags + "AcDbShSphere|90 33|91 29|40 3.0|"},
    {"ACSH_TORUS_CLASS", historyNode + "d3 d4", historyTags + "AcDbShTorus|90 33|91 29|40 3.0|41 4.0|"},
    {"ACSH_CYLINDER_CLASS", historyNode + "d3 d4 d5 d6",
     historyTags + "AcDbShCylinder|90 33|91 29|40 3.0|41 4.0|42 5.0|43 6.0|"},
    {"ACSH_CONE_CLASS", historyNode + "d3 d4 d5 d6",
     historyTags + "AcDbShCone|90 33|91 29|40 3.0|41 4.0|42 5.0|43 6.0|"},
    {"ACDBPERSSUBENTMANAGER", "l2 l0 l2 l0 l0 l1", "100 AcDbPersSubentManager|90 2|90 0|90 2|90 0|90 0|90 1|"},
    {"ACDBASSOCPERSSUBENTMANAGER", "l2 l3 l0 b1", "100 AcDbAssocPersSubentManager|90 2|90 3|90 0|290 1|"},
    {"ACDBASSOCACTION", "l1 l1 h50 h51 l1 l2 l2 b1 h52 b0 h53",
     "100 AcDbAssocAction|90 1|90 1|330 50|360 51|90 1|90 2|90 2|360 52|330 53|"},
    {"DATATABLE", "s2 l4 l2 tT l1 tA l5 l0 l2 t d1 d2 l3 tC tx ty l6 t h50 h51",
     "100 AcDbDataTable|70 2|90 4|91 2|1 T|92 1|2 A|93 5|93 0|92 2|2 |40 1.0|40 2.0|92 3|2 C|3 x|3 y|92 6|2 |360 50|"
     "360 51|"},
    {"MENTALRAYRENDERSETTINGS",
     "l2 tA b1 b1 b1 b1 t t l3 l2 l0 l1 s2 d3 d3 d0 d0 d0 d0 s0 b0 b1 l5 l5 l5 b0 l500 b0 d1 l10000 l5 l5 l5 b0 l200 "
     "b0 "
     "b0 b0 d0 d1 d1500 s0 s0 d10 s0 s0 b0 t l128 s0 l1048 b0 d1",
     "100 AcDbRenderSettings|90 2|1 A|290 1|290 1|290 1|290 1|1 |1 |90 3|100 AcDbMentalRayRenderSettings|90 2|90 0|90 "
     "1|"
     "70 2|40 3.0|40 3.0|40 0.0|40 0.0|40 0.0|40 0.0|70 0|290 0|290 1|90 5|90 5|90 5|290 0|90 500|290 0|40 1.0|90 "
     "10000|"
     "90 5|90 5|90 5|290 0|90 200|290 0|290 0|290 0|40 0.0|40 1.0|40 1500.0|70 0|70 0|40 10.0|70 0|70 0|290 0|1 |90 "
     "128|"
     "70 0|90 1048|290 0|40 1.0|"},
    {"SECTIONOBJECT", "l2 l1 tS p0,0,1 d5 d6 s70 C3 l2 p1,2,3 p4,5,6 l1 p7,8,9 h50",
     "100 AcDbSection|90 2|91 1|1 S|10 0.0|20 0.0|30 1.0|40 5.0|41 6.0|70 70|63 3|92 2|11 1.0|21 2.0|31 3.0|11 4.0|"
     "21 5.0|31 6.0|93 1|12 7.0|22 8.0|32 9.0|360 50|",
     true},
    {"DWFUNDERLAY", "p0,0,1 p1,2,0 d0 d1 d1 d1 c10 c100 c20 h50 l0",
     "100 AcDbUnderlayReference|340 50|10 1.0|20 2.0|30 0.0|41 1.0|42 1.0|43 1.0|50 0.0|210 0.0|220 0.0|230 1.0|280 10|"
     "281 100|282 20|",
     true},
    {"ACDB_LEADEROBJECTCONTEXTDATA_CLASS", "s4 b1 h50 l2 p0,0,0 p1,1,0 p1,0,0 b0 p0,0,0 p0,2,0",
     scaleTags +
         "70 2|10 0.0|20 0.0|30 0.0|10 1.0|20 1.0|30 0.0|11 1.0|21 0.0|31 0.0|290 0|12 0.0|22 0.0|32 0.0|13 0.0|"
         "23 2.0|33 0.0|"},
    {"ACDB_MLEADEROBJECTCONTEXTDATA_CLASS",
     "s4 b1 h50 l0 d2 p1,2,0 d4 d0.18 d0.09 s0 s1 s2 s3 b0 b0 p0,0,0 p1,0,0 p0,1,0 b0",
     scaleTags + "300 CONTEXT_DATA{|40 2.0|10 1.0|20 2.0|30 0.0|41 4.0|140 0.18|145 0.09|174 0|175 1|176 2|177 3|290 0|"
                 "296 0|110 0.0|120 0.0|130 0.0|111 1.0|121 0.0|131 0.0|112 0.0|122 1.0|132 0.0|297 0|301 }|",
     false, Release::R2000, Release::R2007},
    {"ACDB_FCFOBJECTCONTEXTDATA_CLASS", "s4 b1 h50 p1,2,0 p1,0,0",
     scaleTags + "10 1.0|20 2.0|30 0.0|11 1.0|21 0.0|31 0.0|"},
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
     "40 1.0|40 0.0|40 0.0|40 0.0|40 0.0|40 1.0|40 0.0|40 0.0|40 0.0|40 0.0|40 1.0|40 0.0|",
     false, Release::R13},
    {"LAYER_FILTER", "l2 tA tB", "100 AcDbFilter|100 AcDbLayerFilter|8 A|8 B|", false, Release::R13},
    {"LAYER_INDEX", "l2455826 l43200000 l1 l7 tA h50", "100 AcDbIndex|40 2455826.5|100 AcDbLayerIndex|8 A|360 50|90 7|",
     false, Release::R13},
    {"IDBUFFER", "c0 l1 h50", "100 AcDbIdBuffer|330 50|", false, Release::R13},
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
     "100 AcDbSpline|70 1056|71 3|72 0|73 0|74 0|44 1e-10|100 AcDbHelix|90 "
     "29|91 1|10 0.0|20 0.0|30 0.0|11 1.0|21 0.0|31 0.0|12 0.0|22 0.0|32 1.0|40 1.0|41 3.0|42 2.0|290 1|280 1|",
     true, Release::R2013},
};

} // namespace

std::span<const ClassRow> classRows()
{
    return rows;
}

} // namespace host::dwg::test
