#include "host/app/batch/tools/ToolTable.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

bool hasWord(const char *words, const QString &word)
{
    return QString::fromLatin1(words).split(u' ', Qt::SkipEmptyParts).contains(word);
}

/// What works on texts, blocks and attributes.
QList<ToolRow> contentTools()
{
    return {
        {.name = "convertsimplenotes",
         .purpose = QT_TRANSLATE_NOOP("Uses", "makes one paragraph of single-line texts"),
         .dialog = "DLG_QT_ConvertNotes",
         .accept = "acceptButton",
         .selects = true,
         .example = "convertsimplenotes plan.dxf --select 'TEXT on layer NOTES' --set select_topdow=yes --out changed"},
        {.name = "edittextcase",
         .purpose = QT_TRANSLATE_NOOP("Uses", "writes texts in capitals, small letters or as titles"),
         .dialog = "Dlg_QT_EditTextCase",
         .accept = "okButton",
         .selects = true,
         .example = "edittextcase plan.dxf --set radiobutton3=yes --out changed"},
        {.name = "exportblockattributes",
         .purpose = QT_TRANSLATE_NOOP("Uses", "writes texts of attributes to a table in a text file"),
         .selects = true,
         .changes = false,
         .fileKey = "file",
         .writesFile = true,
         .example = "exportblockattributes *.dxf --set file='tables/{name}.txt'"},
        {.name = "getblockinfo",
         .purpose = QT_TRANSLATE_NOOP("Uses", "counts the blocks of the drawing, for a text file"),
         .notes =
             QT_TRANSLATE_NOOP("Uses", "With --press exporttable the table is drawn instead; its upper left corner and "
                                       "the height of its texts are answers: --answer 0,0 --answer 2.5"),
         .dialog = "Dlg_QT_GetBlockInfo",
         .accept = "exportButton",
         .staysOpen = true,
         .fileKey = "file",
         .writesFile = true,
         .drawingKeys = "blockstable",
         .buttons = "exporttable",
         .example = "getblockinfo *.dxf --set nestedcheckbox=yes --set file='counts/{name}.txt'"},
        {.name = "importblockattributes",
         .purpose = QT_TRANSLATE_NOOP("Uses", "takes texts of attributes from a table in a text file"),
         .notes = QT_TRANSLATE_NOOP("Uses", "All rows of the table are taken unless attributes names some. With "
                                            "--press btreplace, txreplace takes the place of txsearch in them first."),
         .dialog = "Dlg_QT_ImportBlockAttributes",
         .accept = "acceptButton",
         .pathKeys = "attributefile",
         .drawingKeys = "attributes",
         .allOf = "selectall",
         .buttons = "btreplace",
         .example = "importblockattributes plan.dxf --set attributefile=tables/plan.txt --out changed"},
        {.name = "numbertext",
         .purpose = QT_TRANSLATE_NOOP("Uses", "writes numbers into texts in the order of their places"),
         .notes = QT_TRANSLATE_NOOP("Uses", "For the orders by points the points are answers: --answer 0,0"),
         .dialog = "Dlg_QT_numbertext",
         .accept = "acceptButton",
         .selects = true,
         .example =
             "numbertext plan.dxf --select 'TEXT on layer ROOMS' --set sort_x=yes --set tx_init=5 --out changed"},
        {.name = "replaceblock",
         .purpose = QT_TRANSLATE_NOOP("Uses", "replaces references to blocks by another block of the drawing"),
         .dialog = "Dlg_QT_ReplaceBlock",
         .accept = "acceptButton",
         .drawingKeys = "blockstable blockstablerep",
         .example = "replaceblock plan.dxf --set blockstable='DESK^CHAIR' --set blockstablerep=TREE --out changed"},
        {.name = "replaceblockbyreference",
         .purpose = QT_TRANSLATE_NOOP("Uses", "replaces references to blocks by a drawing file"),
         .notes = QT_TRANSLATE_NOOP("Uses", "directory is the folder of the file, blockstablerep its name there."),
         .dialog = "Dlg_QT_ReplaceBlockToXref",
         .accept = "acceptButton",
         .pathKeys = "directory",
         .drawingKeys = "blockstable blockstablerep",
         .state = "replaceblocktoxref",
         .example = "replaceblockbyreference plan.dxf --set directory=library --set blockstable=DOOR "
                    "--set blockstablerep=door.dwg --out changed"},
        {.name = "textframe",
         .purpose = QT_TRANSLATE_NOOP("Uses", "draws slots, rectangles or circles around texts"),
         .notes = QT_TRANSLATE_NOOP("Uses",
                                    "Texts that have a frame get a new one in its place; with --answer No the old one "
                                    "stays as well."),
         .dialog = "Dlg_QT_TextFrame",
         .accept = "acceptButton",
         .selects = true,
         .stateKeys = "color",
         .example = "textframe plan.dxf --set type_circle=yes --set offset=0.5 --out changed"},
        {.name = "textmask",
         .purpose = QT_TRANSLATE_NOOP("Uses", "hides what lies behind texts"),
         .dialog = "Dlg_QT_TextMask",
         .accept = "acceptButton",
         .selects = true,
         .stateKeys = "color",
         .example = "textmask plan.dxf --select 'MTEXT' --set type_solid=yes --set color=8 --out changed"},
    };
}

/// What works on the drawing as a whole.
QList<ToolRow> drawingTools()
{
    return {
        {.name = "dimstyleexport",
         .purpose = QT_TRANSLATE_NOOP("Uses", "writes dimension styles of the drawing to a file"),
         .notes = QT_TRANSLATE_NOOP("Uses", "All styles are written unless lststyles names some."),
         .dialog = "Dlg_QT_ExchangedDimensionStyle",
         .accept = "selectfile",
         .changes = false,
         .fileKey = "exportfile",
         .writesFile = true,
         .drawingKeys = "lststyles lstvariables",
         .allOf = "lststyles",
         .example = "dimstyleexport office.dxf --set exportfile=office.dim"},
        {.name = "dimstyleimport",
         .purpose = QT_TRANSLATE_NOOP("Uses", "brings dimension styles from a file into the drawing"),
         .notes =
             QT_TRANSLATE_NOOP("Uses", "All styles of the file are taken unless lststyles names some, by the first "
                                       "words of their names."),
         .dialog = "Dlg_QT_ImportDimensionStyle",
         .accept = "acceptButton",
         .pathKeys = "txexport",
         .drawingKeys = "lststyles lstvariables",
         .allOf = "lststyles",
         .example = "dimstyleimport *.dxf --set txexport=office.dim --set cbdimensionstyle=yes --out changed"},
        {.name = "drawordercolor",
         .purpose = QT_TRANSLATE_NOOP("Uses", "puts entities over each other in the order of their colours"),
         .notes = QT_TRANSLATE_NOOP("Uses", "Steps are taken in the order in which they are given: --set lstcolors=\"5 "
                                            "Blue\" --press tofront puts blue on top."),
         .dialog = "Dlg_QT_DrawOderColor",
         .accept = "acceptButton",
         .drawingKeys = "lstcolors",
         .buttons = "tofront toback moveup movedown reverse sortnumbers removecolors",
         .passesOver = true,
         .example = "drawordercolor plan.dxf --press sortnumbers --press reverse --out changed"},
        {.name = "exportinfo",
         .purpose = QT_TRANSLATE_NOOP("Uses", "writes a problem report with what the program and the drawing are"),
         .dialog = "Dlg_QT_ExportInfo",
         .accept = "acceptButton",
         .changes = false,
         .fileKey = "file",
         .writesFile = true,
         .example = "exportinfo plan.dxf --set textedit_2='The door is missing.' --set file=report.txt"},
        {.name = "exportvariables",
         .purpose = QT_TRANSLATE_NOOP("Uses", "writes system variables to a script that sets them again"),
         .dialog = "Dlg_QT_ExportSettings",
         .accept = "saveButton",
         .changes = false,
         .staysOpen = true,
         .fileKey = "file",
         .writesFile = true,
         .example = "exportvariables office.dxf --set type=Standard --set file=office.scr"},
        {.name = "redefinepaths",
         .purpose = QT_TRANSLATE_NOOP("Uses", "changes the paths of references, images, fonts and remote texts"),
         .notes = QT_TRANSLATE_NOOP(
             "Uses", "All paths are meant unless lstfiles names some. --press btreplace puts txreplace in "
                     "the place of txsearch in them."),
         .dialog = "Dlg_QT_RedefinePaths",
         .accept = "acceptButton",
         .drawingKeys = "lstfiles",
         .allOf = "lstfiles",
         .buttons = "btreplace",
         .example = "redefinepaths *.dxf --set txsearch='c:\\old' --set txreplace='d:\\new' --press "
                    "btreplace --out changed"},
        {.name = "showlinks",
         .purpose = QT_TRANSLATE_NOOP("Uses", "changes and removes hyperlinks of entities"),
         .notes = QT_TRANSLATE_NOOP("Uses", "All links are meant unless tableurl names some, by their handles. --press "
                                            "btnreplace puts txreplace in the place of txsearch in them, --press "
                                            "btnremoveurl takes them away."),
         .dialog = "Dlg_QT_ShowLinks",
         .accept = "btnClose",
         .drawingKeys = "tableurl",
         .allOf = "tableurl",
         .buttons = "btnreplace btnremoveurl",
         .example = "showlinks plan.dxf --set txsearch=old.example --set txreplace=new.example "
                    "--press btnreplace --out changed"},
    };
}

/// What wants a person, or a session in place of one.
QList<ToolRow> askingTools()
{
    const auto row = [](const char *name, const char *purpose) {
        return ToolRow{.name = name, .purpose = purpose, .asks = true};
    };
    return {
        row("breakline", QT_TRANSLATE_NOOP("Uses", "cuts a line open and draws a break symbol in the gap")),
        row("editalias", QT_TRANSLATE_NOOP("Uses", "edits the short names that are typed in place of commands")),
        row("lispexplorer", QT_TRANSLATE_NOOP("Uses", "shows the functions of Lisp files")),
        row("makelinestyle", QT_TRANSLATE_NOOP("Uses", "makes a linetype of a drawn pattern")),
        row("makeshape", QT_TRANSLATE_NOOP("Uses", "makes a shape of drawn lines and arcs")),
        row("mergesheets", QT_TRANSLATE_NOOP("Uses", "makes one drawing of the sheets of several")),
        row("multiviewsetup",
            QT_TRANSLATE_NOOP("Uses", "sets up a sheet: title block, viewports, alignment and scale")),
        row("patternhatch", QT_TRANSLATE_NOOP("Uses", "fills a closed area with copies of a pattern")),
        row("selectblock", QT_TRANSLATE_NOOP("Uses", "inserts a block of the drawing or of another drawing file")),
        row("tracktime", QT_TRANSLATE_NOOP("Uses", "shows and sets the time that was worked on drawings")),
    };
}

} // namespace

bool ToolRow::hasPath(const QString &key) const
{
    return hasWord(pathKeys, key);
}

bool ToolRow::dependsOnDrawing(const QString &key) const
{
    return hasWord(drawingKeys, key);
}

bool ToolRow::isOfState(const QString &key) const
{
    return hasWord(stateKeys, key);
}

const QList<ToolRow> &toolRows()
{
    static const QList<ToolRow> rows = [] {
        QList<ToolRow> all = contentTools() + drawingTools() + askingTools();
        std::ranges::sort(all, {}, [](const ToolRow &row) { return QLatin1StringView(row.name); });
        return all;
    }();
    return rows;
}

const ToolRow *findTool(const QString &name)
{
    for (const ToolRow &row : toolRows())
        if (name == QLatin1StringView(row.name))
            return &row;
    return nullptr;
}

} // namespace host::app
