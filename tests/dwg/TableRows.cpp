#include "tests/dwg/ClassRows.h"

namespace host::dwg::test {

namespace {

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

/// A border that is hidden, in a format with margins.
const std::string fullFormat = "s1 l0 l0 K257 l1 " + noFormat + "s1 d1 d2 d3 d4 d5 d6 l1 l1 l0 l1 K3 l25 h0 l1 d0 ";
const std::string fullFormatTags =
    "170 1|91 0|92 0|62 257|93 1|" + noFormatTags +
    "171 1|301 MARGIN|1 CELLMARGIN_BEGIN|40 1.0|40 2.0|40 3.0|40 4.0|40 5.0|40 6.0|309 CELLMARGIN_END|94 1|95 1|"
    "302 GRIDFORMAT|1 GRIDFORMAT_BEGIN|90 0|91 1|62 3|92 25|340 0|93 1|40 0.0|309 GRIDFORMAT_END|";

const ClassRow rowsOfTables[] = {
    {"ACAD_TABLE",
     tableInsert +
         "s22 h50 p1,0,0 l1 l2 d40 d11 d9 s1 c0 b0 b0 l1 l1 d0 h0 tHi b1 l17535 c3 w5 b1 C1 C2 h0 d4 C3 s25 s1 "
         "s2 c0 b0 b1 l1 l1 d0 h51 d0.5 b1 s1 h52 s0 tAtt b0 b1 l41 b1 d1.5 C4 b0 b1 l2 s50 b1 l32 s1",
     std::string(tableHead).replace(tableHead.find("93 0"), 19,
                                    "93 41|280 1|40 1.5|64 4|94 0|95 2|275 50|96 32|289 1") +
         textCell + "177 17535|178 3|145 0.0|1 Hi|170 5|283 1|63 1|64 2|7 |140 4.0|69 3|279 25|289 1|" + blockCell +
         "177 0|178 0|145 0.0|340 51|144 0.5|179 1|331 52|300 Att|",
     true, Release::R2000, Release::R2004},
    {"TABLECONTENT",
     "tName tAbout l1 tA l5 l1 tKey l2 l2 d2.5 l0 t t l3 " + fullFormat +
         "l0 d40 l1 l1 l1 tTip l0 l0 l1 h51 l2 l3 l0 l1 l2 h52 l1 h53 tVal l1 s0 l1 s0 l2 l1 d1 d2 l3 h54 l0 l0 l2 s0 "
         "l1 d11 l1 h52 l4 s0 l1 l0 l0 l0 l1 h50",
     "100 AcDbLinkedData|1 Name|300 About|100 AcDbLinkedTableData|90 1|300 COLUMN|1 LINKEDTABLEDATACOLUMN_BEGIN|300 A|"
     "91 5|301 CUSTOMDATA|1 DATAMAP_BEGIN|90 1|300 Key|301 DATAMAP_VALUE|93 2|90 2|140 2.5|94 0|300 |302 |"
     "304 ACVALUE_END|309 DATAMAP_END|309 LINKEDTABLEDATACOLUMN_END|1 FORMATTEDTABLEDATACOLUMN_BEGIN|"
     "300 COLUMNTABLEFORMAT|1 TABLEFORMAT_BEGIN|90 3|" +
         fullFormatTags +
         "309 TABLEFORMAT_END|309 FORMATTEDTABLEDATACOLUMN_END|1 TABLECOLUMN_BEGIN|90 0|40 40.0|309 TABLECOLUMN_END|91 "
         "1|"
         "301 ROW|1 LINKEDTABLEDATAROW_BEGIN|90 1|300 CELL|1 LINKEDTABLEDATACELL_BEGIN|90 1|300 Tip|" +
         noCustomTags +
         "92 1|340 51|93 2|94 3|96 0|95 1|302 CONTENT|1 CELLCONTENT_BEGIN|90 2|340 52|91 1|330 53|301 Val|92 1|"
         "309 CELLCONTENT_END|1 FORMATTEDCELLCONTENT_BEGIN|170 0|309 FORMATTEDCELLCONTENT_END|"
         "309 LINKEDTABLEDATACELL_END|1 FORMATTEDTABLEDATACELL_BEGIN|300 CELLTABLEFORMAT|1 TABLEFORMAT_BEGIN|90 1|170 "
         "0|"
         "309 TABLEFORMAT_END|309 FORMATTEDTABLEDATACELL_END|1 TABLECELL_BEGIN|90 2|91 1|40 1.0|41 2.0|92 3|330 54|"
         "309 TABLECELL_END|" +
         noCustomTags +
         "309 LINKEDTABLEDATAROW_END|1 FORMATTEDTABLEDATAROW_BEGIN|300 ROWTABLEFORMAT|1 TABLEFORMAT_BEGIN|90 2|170 0|"
         "309 TABLEFORMAT_END|309 FORMATTEDTABLEDATAROW_END|1 TABLEROW_BEGIN|90 1|40 11.0|309 TABLEROW_END|92 1|340 52|"
         "100 AcDbFormattedTableData|300 TABLEFORMAT|1 TABLEFORMAT_BEGIN|90 4|170 0|309 TABLEFORMAT_END|90 1|91 0|92 0|"
         "93 0|94 1|100 AcDbTableContent|340 50|",
     false, Release::R2007},
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

std::span<const ClassRow> tableRows()
{
    return rowsOfTables;
}

} // namespace host::dwg::test
