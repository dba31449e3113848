// Windows, panels, tips and pictures on the screen. Much of it this program's window has not: programs switch it off
// and on again, so it is kept all the same.

#include "host/kernel/variables/VariableRows.h"

namespace host::kernel {

using namespace rows;

namespace {

/// Whether a panel is open. Nothing opens one by setting its variable.
VariableRows panels()
{
    VariableRows all;
    for (const char *name : {"ADCSTATE",
                             "BLOCKSTATE",
                             "CBARSTATE",
                             "CLEANSCREENSTATE",
                             "COMMANDMACROSSTATE",
                             "COUNTPALETTESTATE",
                             "CONTENTEXPLORERSTATE",
                             "CSSTATE",
                             "DBCSTATE",
                             "DESIGNFEEDSTATE",
                             "DRAWINGEXPLORERSTATE",
                             "ERSTATE",
                             "GEOMARKPALETTESTATE",
                             "HPMODELESSSTATE",
                             "LAYERMANAGERSTATE",
                             "LIGHTLISTSTATE",
                             "MATBROWSERSTATE",
                             "MATEDITORSTATE",
                             "OPMSTATE",
                             "PARAMETERSSTATUS",
                             "POINTCLOUDCLIPFRAMESTATE",
                             "QCSTATE",
                             "RENDERPREFSSTATE",
                             "SHEETSETSTATE",
                             "SSMSTATE",
                             "STRUCTURETREESTATE",
                             "SUNPROPERTIESSTATE",
                             "TPSTATE",
                             "VSSTATE"})
        all.push_back(fixed(name, 0));
    return all;
}

VariableRows windowParts()
{
    return {ofUser("BACTIONBARMODE", 1, 0, 1),
            ofUser("BLOCKMRULIST", 50, 0, 100),
            ofUser("CLIPROMPTLINES", 3, 0, 50),
            ofUser("CLIPROMPTUPDATE", 1, 0, 1),
            ofUser("CMDLINESTATE", 1, 0, 1),
            ofUser("COLORTHEME", 0, 0, 1),
            ofUser("DISPLAYVIEWCUBEIN2D", 1, 0, 1),
            ofUser("DISPLAYVIEWCUBEIN3D", 1, 0, 1),
            ofUser("DOCTABPOSITION", 0, 0, 3),
            ofUser("FILETABPREVIEW", 1, 0, 1),
            ofUser("FILETABSTATE", 1, 0, 1),
            ofUser("FILETABTHUMBHOVER", 1, 0, 1),
            ofUser("GALLERYVIEW", 1, 0, 1),
            ofUser("HIGHLIGHTSMOOTHING", 1, 0, 1),
            ofUser("HELPPREFIX", text("")),
            ofUser("ICONSIZE", 1, 0, 3),
            ofUser("LAYERDLGMODE", 1, 0, 1),
            ofUser("LAYOUTTAB", 1, 0, 1),
            ofUser("LOCKUI", 0, 0, 15),
            ofUser("MENUBAR", 0, 0, 1),
            ofUser("MENUCTL", 1, 0, 1),
            ofUser("MLEADERLANDINGGAP", 0.36),
            ofUser("NAVBARDISPLAY", 0, 0, 1),
            ofUser("NAVSWHEELMODE", 2, 0, 6),
            ofUser("NAVVCUBEDISPLAY", 3, 0, 3),
            ofUser("NAVVCUBELOCATION", 0, 0, 3),
            ofUser("NAVVCUBEOPACITY", 50, 0, 100),
            ofUser("NAVVCUBEORIENT", 1, 0, 1),
            ofUser("NAVVCUBESIZE", 4, 0, 4),
            ofUser("PALETTEOPAQUE", 0, 0, 3),
            ofUser("PROPERTYPREVIEW", 1, 0, 1),
            ofUser("PSTYLEPREVIEW", 1, 0, 1),
            ofUser("QPLOCATION", 0, 0, 1),
            ofUser("QPMODE", -1, -2, 2),
            ofUser("QVDRAWINGPIN", 0, 0, 1),
            ofUser("QVLAYOUTPIN", 0, 0, 1),
            ofUser("RIBBONCONTEXTSELECT", 1, 0, 2),
            ofUser("RIBBONICONRESIZE", 1, 0, 1),
            ofUser("RIBBONSTATE", 1, 0, 1),
            ofUser("SCREENBOXES", 0, 0, 100),
            ofUser("SCREENMENU", 0, 0, 1),
            ofUser("SCREENMODE", 0, 0, 3),
            ofUser("SHOWFULLPATHINTITLE", 0, 0, 1),
            ofUser("SHOWLAYERUSAGE", 0, 0, 1),
            ofUser("SHOWPAGESETUPFORNEWLAYOUTS", 0, 0, 1),
            ofUser("SRCHPATH", text("")),
            ofUser("STATUSBAR", 1, 0, 3),
            ofUser("STATUSBARAUTOWRAP", 1, 0, 1),
            ofUser("STATUSBARSTATE", 1, 0, 1),
            ofUser("TASKBAR", 1, 0, 1),
            ofUser("TOOLTIPDELAY", 1.0, 0, 10),
            ofUser("TOOLTIPMERGE", 0, 0, 1),
            ofUser("TOOLTIPS", 1, 0, 1),
            ofUser("TOOLTIPSIZE", 0, 0, 2),
            ofUser("TOOLTIPTRANSPARENCY", 0, 0, 100),
            ofUser("TOUCHMODE", 1, 0, 1),
            ofUser("TRAYICONS", 1, 0, 1),
            ofUser("TRAYNOTIFY", 1, 0, 1),
            ofUser("TRAYTIMEOUT", 0, 0, 10),
            ofUser("TREEMAX", 10000000, 0, 2147483647),
            ofUser("UOSNAP", 1, 0, 1),
            ofUser("VPCONTROL", 1, 0, 1),
            ofUser("VPROTATEASSOC", 1, 0, 1),
            ofUser("WSAUTOSAVE", 0, 0, 1),
            ofUser("WSCURRENT", text("Drafting"))};
}

/// How the screen is drawn.
VariableRows screen()
{
    return {ofUser("CACHEMAXFILES", 256, 0, 32767),
            ofUser("CACHEMAXTOTALSIZE", 1024, 0, 32767),
            ofUser("CENTERMT", 0, 0, 1),
            ofUser("DRAWORDERCTL", 3, 0, 3),
            ofUser("DTEXTED", 2, 0, 2),
            ofUser("DXEVAL", 12, 0, 32767),
            ofUser("FIELDDISPLAY", 1, 0, 1),
            ofUser("FRAMESELECTION", 1, 0, 1),
            ofUser("GFXDX12", 0, 0, 1),
            ofUser("GRIDSTYLE", 0, 0, 7),
            ofUser("HALOGAPMODE", 0, 0, 1),
            ofUser("HPSMOOTH", 1, 0, 1),
            ofUser("IMAGEHLT", 0, 0, 1),
            ofUser("LAYOUTCREATEVIEWPORT", 1, 0, 1),
            ofUser("LAYOUTREGENCTL", 2, 0, 2),
            ofUser("LINESMOOTHING", 1, 0, 1),
            ofUser("LINEFADING", 1, 0, 1),
            ofUser("LINEFADINGLEVEL", 3, 1, 3),
            ofUser("OLEFRAME", 2, 0, 3),
            ofUser("PAPERUPDATE", 0, 0, 1),
            ofUser("PCMSTATE", 0, 0, 1),
            ofUser("PLOTOFFSET", 0, 0, 1),
            ofUser("PLOTROTMODE", 2, 0, 2),
            kept("PLOTTRANSPARENCYOVERRIDE", 1, 0, 2),
            ofUser("PLQUIET", 0, 0, 1),
            ofUser("BACKGROUNDPLOT", 2, 0, 3),
            ofUser("PUBLISHALLSHEETS", 1, 0, 1),
            ofUser("PUBLISHCOLLATE", 1, 0, 1),
            ofUser("LOGEXPBRIGHTNESS", 65.0, 0, 200),
            ofUser("RTDISPLAY", 1, 0, 1),
            ofUser("RTREGENAUTO", 1, 0, 1),
            ofUser("SHOWMOTIONPIN", 1, 0, 1),
            ofUser("TRANSPARENCYDISPLAY", 1, 0, 1),
            ofUser("VTDURATION", 750, 0, 5000),
            ofUser("VTENABLE", 3, 0, 7),
            ofUser("VTFPS", 7.0, 1, 30),
            ofUser("MTJIGSTRING", text("abc")),
            ofUser("BGCOREPUBLISH", 1, 0, 1),
            ofUser("DGNIMPORTMAX", 10000000, 0, 2147483647),
            ofUser("PDFIMPORTMODE", 6, 0, 255),
            ofUser("PDFIMPORTFILTER", 8, 0, 255),
            ofUser("PDFSHX", 1, 0, 1),
            ofUser("PDFSHXLAYER", 1, 0, 1),
            ofUser("PDFOSNAP", 1, 0, 1),
            ofUser("UNDERLAYSELECT", 0, 0, 1),
            ofUser("AUTODWFPUBLISH", 0, 0, 1),
            ofUser("SMOOTHMESHCONVERT", 0, 0, 3),
            kept("FACETRES", 0.5, 0.01, 10),
            kept("ISOLINES", 4, 0, 2047)};
}

} // namespace

VariableRows interfaceVariables()
{
    VariableRows all = panels();
    for (const VariableRows &group : {windowParts(), screen()})
        all.insert(all.end(), group.begin(), group.end());
    return all;
}

} // namespace host::kernel
