#include "host/app/window/settings/SettingsTable.h"

#include <QtGlobal>

namespace host::app {

namespace {

using enum SettingForm;

// clang-format off
constexpr SettingRow rows[] = {
    {QT_TRANSLATE_NOOP("Settings", "Window"), QT_TRANSLATE_NOOP("Settings", "Style of windows"), "@style", Choice, 0, QT_TRANSLATE_NOOP("Settings", "0=Light|1=Dark"),
     QT_TRANSLATE_NOOP("Settings", "The colours of windows and dialogs")},
    {"Window", QT_TRANSLATE_NOOP("Settings", "Language"), "@language", Choice, 0, QT_TRANSLATE_NOOP("Settings", "0=System|1=English|2=Deutsch|3=Français|4=Español|5=Italiano"),
     QT_TRANSLATE_NOOP("Settings", "Of windows, dialogs and prompts; it counts from the next start")},
    {"Window", QT_TRANSLATE_NOOP("Settings", "Ground of drawings"), "@ground", Choice, 0, QT_TRANSLATE_NOOP("Settings", "0=Black|1=White"),
     QT_TRANSLATE_NOOP("Settings", "What drawings lie on")},
    {"Window", QT_TRANSLATE_NOOP("Settings", "Length of the cross-hair, percent"), "CURSORSIZE", Number},
    {"Window", QT_TRANSLATE_NOOP("Settings", "Right button"), "SHORTCUTMENU", Number},
    {"Window", QT_TRANSLATE_NOOP("Settings", "File dialogs"), "FILEDIA"},
    {"Window", QT_TRANSLATE_NOOP("Settings", "Attributes of a block are asked for in a dialog"), "ATTDIA"},

    {QT_TRANSLATE_NOOP("Settings", "Snap"), QT_TRANSLATE_NOOP("Settings", "End points"), "OSMODE", Switch, 1},
    {"Snap", QT_TRANSLATE_NOOP("Settings", "Middle points"), "OSMODE", Switch, 2},
    {"Snap", QT_TRANSLATE_NOOP("Settings", "Centres"), "OSMODE", Switch, 4},
    {"Snap", QT_TRANSLATE_NOOP("Settings", "Nodes"), "OSMODE", Switch, 8},
    {"Snap", QT_TRANSLATE_NOOP("Settings", "Quadrants"), "OSMODE", Switch, 16},
    {"Snap", QT_TRANSLATE_NOOP("Settings", "Intersections"), "OSMODE", Switch, 32},
    {"Snap", QT_TRANSLATE_NOOP("Settings", "Insertion points"), "OSMODE", Switch, 64},
    {"Snap", QT_TRANSLATE_NOOP("Settings", "Perpendicular"), "OSMODE", Switch, 128},
    {"Snap", QT_TRANSLATE_NOOP("Settings", "Tangent"), "OSMODE", Switch, 256},
    {"Snap", QT_TRANSLATE_NOOP("Settings", "Nearest"), "OSMODE", Switch, 512},
    {"Snap", QT_TRANSLATE_NOOP("Settings", "Reach of snaps, pixels"), "APERTURE", Number},
    {"Snap", QT_TRANSLATE_NOOP("Settings", "Ortho"), "ORTHOMODE"},
    {"Snap", QT_TRANSLATE_NOOP("Settings", "Grid shown"), "GRIDMODE"},
    {"Snap", QT_TRANSLATE_NOOP("Settings", "Snap to the grid"), "SNAPMODE"},
    {"Snap", QT_TRANSLATE_NOOP("Settings", "Typed coordinates and snaps"), "OSNAPCOORD", Choice, 0,
     QT_TRANSLATE_NOOP("Settings", "0=Snaps move typed points|1=Typed points stay|2=Typed points stay, but in scripts")},

    {QT_TRANSLATE_NOOP("Settings", "Display"), QT_TRANSLATE_NOOP("Settings", "Lineweights"), "LWDISPLAY"},
    {"Display", QT_TRANSLATE_NOOP("Settings", "Lineweight of \"Default\", hundredths of a millimetre"), "LWDEFAULT", Number},
    {"Display", QT_TRANSLATE_NOOP("Settings", "Areas are filled"), "FILLMODE"},
    {"Display", QT_TRANSLATE_NOOP("Settings", "Texts as boxes"), "QTEXTMODE"},
    {"Display", QT_TRANSLATE_NOOP("Settings", "Frames of images"), "IMAGEFRAME", Choice, 0,
     QT_TRANSLATE_NOOP("Settings", "0=Hidden|1=Shown and plotted|2=Shown only")},
    {"Display", QT_TRANSLATE_NOOP("Settings", "Frames of masks"), "WIPEOUTFRAME", Choice, 0,
     QT_TRANSLATE_NOOP("Settings", "0=Hidden|1=Shown and plotted|2=Shown only")},
    {"Display", QT_TRANSLATE_NOOP("Settings", "Scale of linetypes"), "LTSCALE", Real},
    {"Display", QT_TRANSLATE_NOOP("Settings", "Font in place of missing ones"), "FONTALT", Text},

    {QT_TRANSLATE_NOOP("Settings", "Selection"), QT_TRANSLATE_NOOP("Settings", "Choose first, then the command"), "PICKFIRST"},
    {"Selection", QT_TRANSLATE_NOOP("Settings", "What is picked is added"), "PICKADD", Choice, 0,
     QT_TRANSLATE_NOOP("Settings", "0=With Shift only|1=Always|2=Always, and stays chosen")},
    {"Selection", QT_TRANSLATE_NOOP("Settings", "Groups are chosen whole"), "PICKSTYLE", Switch, 1},
    {"Selection", QT_TRANSLATE_NOOP("Settings", "Hatches are chosen with their boundaries"), "PICKSTYLE", Switch, 2},
    {"Selection", QT_TRANSLATE_NOOP("Settings", "Size of the pick box, pixels"), "PICKBOX", Number},
    {"Selection", QT_TRANSLATE_NOOP("Settings", "Chosen entities are marked"), "HIGHLIGHT"},
    {"Selection", QT_TRANSLATE_NOOP("Settings", "Marks under the pointer while nothing runs"), "SELECTIONPREVIEW", Switch, 1},
    {"Selection", QT_TRANSLATE_NOOP("Settings", "Marks under the pointer while a command asks"), "SELECTIONPREVIEW", Switch, 2},
    {"Selection", QT_TRANSLATE_NOOP("Settings", "Grips"), "GRIPS", Choice, 0, QT_TRANSLATE_NOOP("Settings", "0=None|1=Shown|2=Shown, of segments too")},
    {"Selection", QT_TRANSLATE_NOOP("Settings", "Size of grips, pixels"), "GRIPSIZE", Number},
    {"Selection", QT_TRANSLATE_NOOP("Settings", "No grips beyond so many entities"), "GRIPOBJLIMIT", Number},

    {QT_TRANSLATE_NOOP("Settings", "Units"), QT_TRANSLATE_NOOP("Settings", "Lengths"), "LUNITS", Choice, 0,
     QT_TRANSLATE_NOOP("Settings", "1=Scientific|2=Decimal|3=Engineering|4=Architectural|5=Fractional")},
    {"Units", QT_TRANSLATE_NOOP("Settings", "Places of lengths"), "LUPREC", Number},
    {"Units", QT_TRANSLATE_NOOP("Settings", "Angles"), "AUNITS", Choice, 0,
     QT_TRANSLATE_NOOP("Settings", "0=Degrees|1=Degrees, minutes, seconds|2=Grads|3=Radians|4=Surveyor's units")},
    {"Units", QT_TRANSLATE_NOOP("Settings", "Places of angles"), "AUPREC", Number},
    {"Units", QT_TRANSLATE_NOOP("Settings", "A drawing unit is"), "INSUNITS", Choice, 0,
     QT_TRANSLATE_NOOP("Settings", "0=Not said|1=An inch|2=A foot|4=A millimetre|5=A centimetre|6=A metre|7=A kilometre")},

    {QT_TRANSLATE_NOOP("Settings", "Saving"), QT_TRANSLATE_NOOP("Settings", "A backup is kept of what is saved over"), "ISAVEBAK"},
    {"Saving", QT_TRANSLATE_NOOP("Settings", "Minutes between saves by itself"), "SAVETIME", Number},
    {"Saving", QT_TRANSLATE_NOOP("Settings", "External references tell of changes"), "XREFNOTIFY", Choice, 0,
     QT_TRANSLATE_NOOP("Settings", "0=No|1=With a mark|2=With a message")},

    {QT_TRANSLATE_NOOP("Settings", "Lisp"), QT_TRANSLATE_NOOP("Settings", "Programs loaded with each drawing"), "@programs", Programs, 0, "",
     QT_TRANSLATE_NOOP("Settings", "Full paths, between semicolons, in this order; they count from the next drawing on")},
    {"Lisp", QT_TRANSLATE_NOOP("Settings", "Most memory of programs, MB"), "LISPHEAPMAX", Number},
    {"Lisp", QT_TRANSLATE_NOOP("Settings", "What programs do is shown"), "CMDECHO"},

    {QT_TRANSLATE_NOOP("Settings", "Folders and trust"), QT_TRANSLATE_NOOP("Settings", "Folders whose programs may run"), "TRUSTEDPATHS", Folders},
    {"Folders and trust", QT_TRANSLATE_NOOP("Settings", "Folders whose files drawings may name"), "READPATHS", Folders},
};
// clang-format on

} // namespace

std::span<const SettingRow> settingRows()
{
    return rows;
}

} // namespace host::app
