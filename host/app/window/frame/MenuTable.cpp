#include "host/app/window/frame/MenuTable.h"

#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandTable.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

constexpr WhenBusy always = WhenBusy::Enabled;

// clang-format off
constexpr MenuRow menuTable[] = {
    {"&File", "&New", "new", "Ctrl+N", "Standard", "new", "Makes a new drawing"},
    {"&File", "&Open...", "open", "Ctrl+O", "Standard", "open", "Opens drawings"},
    {"&File", "", "@recent"},
    {"&File", "&Close", "close", "Ctrl+W", "", "", "Closes the drawing in front"},
    {"&File", "-", ""},
    {"&File", "&Save", "save", "Ctrl+S", "Standard", "save", "Saves the drawing"},
    {"&File", "Save &as...", "saveAs", "Ctrl+Shift+S", "", "", "Saves the drawing under another name"},
    {"&File/&Export", "&PNG picture...", "exportPng", "", "", "", "Writes what is drawn as a picture"},
    {"&File/&Export", "&SVG drawing...", "exportSvg", "", "", "", "Writes what is drawn as lines and areas"},
    {"&File/&Export", "P&DF page...", "exportPdf", "", "", "", "Writes what is drawn as a page"},
    {"&File", "&Print...", "print", "Ctrl+P", "", "", "Prints the layout that is shown, or writes it as a page"},
    {"&File", "Pa&ge setup...", "pageSetup", "", "", "", "How the layout that is shown lies on its paper"},
    {"&File", "-", ""},
    {"&File/&Upkeep", "Look for errors", "_AUDIT"},
    {"&File/&Upkeep", "Purge", "_PURGE"},
    {"&File/&Upkeep", "Rename", "_RENAME"},
    {"&File/&Upkeep", "Remove duplicates", "_OVERKILL"},
    {"&File", "-", ""},
    {"&File", "&Quit", "quit", "Ctrl+Q", "", "", "Closes all drawings and the program", always},

    {"&Edit", "&Undo", "_U", "Ctrl+Z", "Standard", "undo"},
    {"&Edit", "&Redo", "_REDO", "Ctrl+Y", "Standard", "redo"},
    {"&Edit", "-", ""},
    {"&Edit", "Cu&t", "_CUTCLIP", "Ctrl+X"},
    {"&Edit", "&Copy", "_COPYCLIP", "Ctrl+C"},
    {"&Edit", "Copy with &base point", "_COPYBASE", "Ctrl+Shift+C"},
    {"&Edit", "&Paste", "_PASTECLIP", "Ctrl+V"},
    {"&Edit", "Paste as b&lock", "_PASTEBLOCK", "Ctrl+Shift+V"},
    {"&Edit", "Paste where it &was", "_PASTEORIG"},
    {"&Edit", "-", ""},
    {"&Edit", "&Delete", "eraseChosen", "Del", "", "", "Erases what is chosen"},
    {"&Edit", "Choose &all", "chooseAll", "Ctrl+A", "", "", "Chooses what can be seen and changed", always},
    {"&Edit", "&Next under the pointer", "markNext", "Shift+Space", "", "", "Goes through what lies on top of each other",
     always},
    {"&Edit", "Choose &similar", "_SELECTSIMILAR"},
    {"&Edit", "Bring back what was &erased", "_OOPS"},

    {"&View", "Zoom &extents", "zoomExtents", "Ctrl+0", "Standard", "zoomExtents", "Shows all that is drawn", always},
    {"&View", "Zoom &window", "zoomWindow", "Ctrl+R", "Standard", "zoomWindow", "Shows what is in a box", always},
    {"&View", "Zoom &in", "zoomIn", "Ctrl++", "Standard", "zoomIn", "Shows less, larger", always},
    {"&View", "Zoom &out", "zoomOut", "Ctrl+-", "Standard", "zoomOut", "Shows more, smaller", always},
    {"&View", "&Zoom by its options", "_ZOOM"},
    {"&View", "&Pan", "_PAN", "", "Standard", "pan"},
    {"&View", "&Regenerate", "_REGEN"},
    {"&View", "-", ""},
    {"&View/&Views and planes", "Named views", "_VIEW"},
    {"&View/&Views and planes", "Look from a direction", "_VPOINT"},
    {"&View/&Views and planes", "Look straight at a plane", "_PLAN"},
    {"&View/&Views and planes", "User coordinate system", "_UCS"},
    {"&View/&Views and planes", "Divide the screen", "_VPORTS"},
    {"&View/&Views and planes", "Into the viewport", "_MSPACE"},
    {"&View/&Views and planes", "Onto the sheet", "_PSPACE"},
    {"&View/Viewports of &a sheet", "&Make", "_MVIEW"},
    {"&View/Viewports of &a sheet", "&Lock display", "_MVIEW _L _ON"},
    {"&View/Viewports of &a sheet", "&Unlock display", "_MVIEW _L _OFF"},
    {"&View/Viewports of &a sheet", "-", ""},
    {"&View/Viewports of &a sheet", "&Fit", "_ZOOM _E", "", "", "", "Shows all through the viewport that is worked through"},
    {"&View/Viewports of &a sheet", "1:1", "_ZOOM 1XP", "", "", "", "The viewport that is worked through shows a scale of 1:1"},
    {"&View/Viewports of &a sheet", "1:2", "_ZOOM 0.5XP", "", "", "", "The viewport that is worked through shows a scale of 1:2"},
    {"&View/Viewports of &a sheet", "1:5", "_ZOOM 0.2XP", "", "", "", "The viewport that is worked through shows a scale of 1:5"},
    {"&View/Viewports of &a sheet", "1:10", "_ZOOM 0.1XP", "", "", "", "The viewport that is worked through shows a scale of 1:10"},
    {"&View/Viewports of &a sheet", "1:20", "_ZOOM 0.05XP", "", "", "", "The viewport that is worked through shows a scale of 1:20"},
    {"&View/Viewports of &a sheet", "1:50", "_ZOOM 0.02XP", "", "", "", "The viewport that is worked through shows a scale of 1:50"},
    {"&View/Viewports of &a sheet", "1:100", "_ZOOM 0.01XP", "", "", "", "The viewport that is worked through shows a scale of 1:100"},
    {"&View", "-", ""},
    {"&View", "&Start page", "startPage", "", "", "", "Shows recent drawings, samples and first steps"},
    {"&View", "Lisp &console", "console", "F12", "", "", "Shows a place to try Lisp at", always},
    {"&View", "Lon&g command history", "longHistory", "F2", "", "", "Gives what was printed most of the window, and back", always},
    {"&View", "", "@panels"},
    {"&View/&Toolbars", "", "@toolbars"},
    {"&View", "-", ""},
    {"&View", "&Black ground", "blackGround", "", "", "", "Draws on black", always, "ground"},
    {"&View", "W&hite ground", "whiteGround", "", "", "", "Draws on white", always, "ground"},
    {"&View", "-", ""},
    {"&View", "&Light style", "lightStyle", "", "", "", "Light windows", always, "style"},
    {"&View", "&Dark style", "darkStyle", "", "", "", "Dark windows", always, "style"},

    {"&Insert", "Insert a block", "_INSERT", "", "Draw", "insert"},
    {"&Insert", "Make a block", "_BLOCK", "", "Draw", "block"},
    {"&Insert", "Write a block to a file", "_WBLOCK"},
    {"&Insert", "Define an attribute", "_ATTDEF"},
    {"&Insert", "Synchronize attributes", "_ATTSYNC"},
    {"&Insert", "Base point", "_BASE"},
    {"&Insert", "-", ""},
    {"&Insert", "External reference", "_XREF"},
    {"&Insert", "Clip", "_XCLIP"},
    {"&Insert", "-", ""},
    {"&Insert", "Layout", "_LAYOUT"},
    {"&Insert", "-", ""},
    {"&Insert", "Load shapes", "_LOAD"},
    {"&Insert", "Place a shape", "_SHAPE"},
    {"&Insert", "Update expressions of texts", "_UPDATEFIELD"},

    {"F&ormat", "Layers", "_LAYER"},
    {"F&ormat/Layers of &objects", "Make current", "_LAYMCUR"},
    {"F&ormat/Layers of &objects", "To the layer of another one", "_LAYMCH"},
    {"F&ormat/Layers of &objects", "To the current layer", "_LAYCUR"},
    {"F&ormat/Layers of &objects", "Isolate", "_LAYISO"},
    {"F&ormat/Layers of &objects", "End isolating", "_LAYUNISO"},
    {"F&ormat/Layers of &objects", "Turn off", "_LAYOFF"},
    {"F&ormat/Layers of &objects", "Turn all on", "_LAYON"},
    {"F&ormat/Layers of &objects", "Freeze", "_LAYFRZ"},
    {"F&ormat/Layers of &objects", "Thaw all", "_LAYTHW"},
    {"F&ormat/Layers of &objects", "Lock", "_LAYLCK"},
    {"F&ormat/Layers of &objects", "Unlock", "_LAYULK"},
    {"F&ormat/Layers of &objects", "Merge layers", "_LAYMRG"},
    {"F&ormat/Layers of &objects", "Delete layers", "_LAYDEL"},
    {"F&ormat", "Take back the last layer change", "_LAYERP"},
    {"F&ormat", "-", ""},
    {"F&ormat", "Color", "_COLOR"},
    {"F&ormat", "Linetype", "_LINETYPE"},
    {"F&ormat", "Lineweight", "_LWEIGHT"},
    {"F&ormat", "Elevation and thickness", "_ELEV"},
    {"F&ormat", "-", ""},
    {"F&ormat", "Text style", "_STYLE"},
    {"F&ormat", "Dimension style", "_DIMSTYLE"},
    {"F&ormat", "-", ""},
    {"F&ormat", "Units", "_UNITS"},
    {"F&ormat", "Drawing limits", "_LIMITS"},
    {"F&ormat/&Aiming", "Object snap", "_OSNAP"},
    {"F&ormat/&Aiming", "Snap to a grid", "_SNAP"},
    {"F&ormat/&Aiming", "Grid", "_GRID"},
    {"F&ormat/&Aiming", "Along the axes", "_ORTHO"},
    {"F&ormat/&Aiming", "Isometric plane", "_ISOPLANE"},

    {"&Draw", "Line", "_LINE", "", "Draw", "line"},
    {"&Draw", "Polyline", "_PLINE", "", "Draw", "polyline"},
    {"&Draw", "Arc", "_ARC", "", "Draw", "arc"},
    {"&Draw", "Circle", "_CIRCLE", "", "Draw", "circle"},
    {"&Draw", "Ellipse", "_ELLIPSE", "", "Draw", "ellipse"},
    {"&Draw", "Rectangle", "_RECTANG", "", "Draw", "rectangle"},
    {"&Draw", "Polygon", "_POLYGON", "", "Draw", "polygon"},
    {"&Draw", "Spline", "_SPLINE", "", "Draw", "spline"},
    {"&Draw", "Ring", "_DONUT"},
    {"&Draw", "Multiline", "_MLINE"},
    {"&Draw", "Revision cloud", "_REVCLOUD"},
    {"&Draw/&Construction lines", "Without ends", "_XLINE"},
    {"&Draw/&Construction lines", "With one end", "_RAY"},
    {"&Draw", "-", ""},
    {"&Draw/Poin&ts", "Point", "_POINT", "", "Draw", "point"},
    {"&Draw/Poin&ts", "Divide a curve", "_DIVIDE"},
    {"&Draw/Poin&ts", "At steps along a curve", "_MEASURE"},
    {"&Draw", "Hatch", "_HATCH", "", "Draw", "hatch"},
    {"&Draw", "Boundary", "_BOUNDARY"},
    {"&Draw", "Region", "_REGION"},
    {"&Draw", "-", ""},
    {"&Draw", "Text of one line", "_TEXT"},
    {"&Draw", "Paragraph", "_MTEXT", "", "Draw", "text"},
    {"&Draw", "-", ""},
    {"&Draw/I&n space", "Polyline in space", "_3DPOLY"},
    {"&Draw/I&n space", "Face", "_3DFACE"},
    {"&Draw/I&n space", "Filled area", "_SOLID"},

    {"Dime&nsion", "Horizontal or vertical", "_DIMLINEAR", "", "Draw", "dimension"},
    {"Dime&nsion", "Aligned", "_DIMALIGNED"},
    {"Dime&nsion", "Arc length", "_DIMARC"},
    {"Dime&nsion", "Ordinate", "_DIMORDINATE"},
    {"Dime&nsion", "-", ""},
    {"Dime&nsion", "Radius", "_DIMRADIUS"},
    {"Dime&nsion", "Jogged radius", "_DIMJOGGED"},
    {"Dime&nsion", "Diameter", "_DIMDIAMETER"},
    {"Dime&nsion", "Angle", "_DIMANGULAR"},
    {"Dime&nsion", "Center mark", "_CENTERMARK"},
    {"Dime&nsion", "-", ""},
    {"Dime&nsion", "From the same begin", "_DIMBASELINE"},
    {"Dime&nsion", "In a row", "_DIMCONTINUE"},
    {"Dime&nsion", "-", ""},
    {"Dime&nsion", "Leader", "_QLEADER"},
    {"Dime&nsion", "Multileader", "_MLEADER"},
    {"Dime&nsion", "Edit multileaders", "_MLEADEREDIT"},
    {"Dime&nsion", "Align multileaders", "_MLEADERALIGN"},
    {"Dime&nsion", "-", ""},
    {"Dime&nsion", "Edit text and extension lines", "_DIMEDIT"},
    {"Dime&nsion", "Move the text", "_DIMTEDIT"},
    {"Dime&nsion", "Override variables", "_DIMOVERRIDE"},

    {"&Modify", "Erase", "_ERASE", "", "Modify", "erase"},
    {"&Modify", "Copy", "_COPY", "", "Modify", "copy"},
    {"&Modify", "Mirror", "_MIRROR", "", "Modify", "mirror"},
    {"&Modify", "Offset", "_OFFSET", "", "Modify", "offset"},
    {"&Modify", "Array", "_ARRAY", "", "Modify", "array"},
    {"&Modify", "-", ""},
    {"&Modify", "Move", "_MOVE", "", "Modify", "move"},
    {"&Modify", "Rotate", "_ROTATE", "", "Modify", "rotate"},
    {"&Modify", "Scale", "_SCALE", "", "Modify", "scale"},
    {"&Modify", "Stretch", "_STRETCH", "", "Modify", "stretch"},
    {"&Modify", "Lengthen", "_LENGTHEN"},
    {"&Modify", "-", ""},
    {"&Modify", "Trim", "_TRIM", "", "Modify", "trim"},
    {"&Modify", "Extend", "_EXTEND", "", "Modify", "extend"},
    {"&Modify", "Break", "_BREAK", "", "Modify", "break"},
    {"&Modify", "Join", "_JOIN", "", "Modify", "join"},
    {"&Modify", "Chamfer", "_CHAMFER", "", "Modify", "chamfer"},
    {"&Modify", "Fillet", "_FILLET", "", "Modify", "fillet"},
    {"&Modify", "Explode", "_EXPLODE", "", "Modify", "explode"},
    {"&Modify", "-", ""},
    {"&Modify/&Properties", "Layer, color, linetype", "_CHPROP"},
    {"&Modify/&Properties", "As another one", "_MATCHPROP", "", "Modify", "match"},
    {"&Modify/&Properties", "Draw order", "_DRAWORDER"},
    {"&Modify/&Properties", "Between sheet and model", "_CHSPACE"},
    {"&Modify/O&bjects", "Polyline", "_PEDIT"},
    {"&Modify/O&bjects", "Text", "_DDEDIT"},
    {"&Modify/O&bjects", "Texts to a paragraph", "_TXT2MTXT"},
    {"&Modify/O&bjects", "Hatch", "_HATCHEDIT"},
    {"&Modify/O&bjects", "Attributes", "_-ATTEDIT"},
    {"&Modify/O&bjects", "Group", "_GROUP"},
    {"&Modify/&In space", "Align", "_ALIGN"},
    {"&Modify/&In space", "Move in space", "_3DMOVE"},
    {"&Modify/&In space", "Rotate round an axis", "_ROTATE3D"},
    {"&Modify/&In space", "Mirror in a plane", "_MIRROR3D"},

    {"&Tools", "", "@tools"},
    {"&Tools", "-", ""},
    {"&Tools/In&quiry", "Distance", "_DIST"},
    {"&Tools/In&quiry", "Area", "_AREA"},
    {"&Tools/In&quiry", "Coordinates of a point", "_ID"},
    {"&Tools/In&quiry", "List", "_LIST"},
    {"&Tools/In&quiry", "Drawing status", "_STATUS"},
    {"&Tools/In&quiry", "Times", "_TIME"},
    {"&Tools", "System &variables", "_SETVAR"},
    {"&Tools", "Run a s&cript", "_SCRIPT"},
    {"&Tools", "S&ettings...", "settings", "Ctrl+,", "", "", "Snaps, display, selection, units, folders and trust", always},
    {"&Tools", "&Record session...", "record", "", "", "", "Writes down what you do as a session that plays", always},

    {"&Help", "&Contents", "help", "F1", "", "", "Shows the help pages", always},
    {"&Help", "Co&mmands...", "palette", "Ctrl+Shift+P", "", "", "Finds commands, menu entries and system variables", always},
    {"&Help", "&About Ortakit", "about", "", "", "", "Says what this program is", always},
};
// clang-format on

} // namespace

QString MenuRow::command() const
{
    return isLine() ? QString::fromLatin1(does + 1).section(u' ', 0, 0) : QString();
}

std::span<const MenuRow> menuRows()
{
    return menuTable;
}

bool isForPrompts(const MenuRow &row)
{
    if (!row.isLine())
        return row.whenBusy == WhenBusy::Enabled;
    const kernel::CommandRow *command = kernel::CommandTable::find(row.command());
    return command && command->interrupts == kernel::Interrupts::Prompts;
}

QString menuTip(const MenuRow &row)
{
    if (row.tip[0] != '\0')
        return QCoreApplication::translate("Menus", row.tip);
    const kernel::CommandRow *command = row.isLine() ? kernel::CommandTable::find(row.command()) : nullptr;
    return command ? kernel::HelpLines::tr(command->help) : QString();
}

} // namespace host::app
