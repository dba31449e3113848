// How the user likes to work: asked for, chosen, snapped and told.

#include "files/TextEncoding.h"
#include "host/kernel/variables/VariableRows.h"

namespace host::kernel {

using namespace rows;

namespace {

/// Of Lisp sources that are in no form of Unicode.
std::optional<VariableValue> knownCodePage(const Document &, const VariableValue &value)
{
    const std::string page = files::codePageName(std::get<QString>(value).toStdString());
    return page.empty() ? std::nullopt : std::optional(value);
}

/// Picking, choosing and snapping.
VariableRows pointingVariables()
{
    return {ofUser("3DOSMODE", 11, 0, 32767),
            ofUser("3DSELECTIONMODE", 1, 0, 1),
            ofUser("APBOX", 0, 0, 1),
            ofUser("APERTURE", 10, 1, 50),
            ofUser("AUTOSNAP", 63, 0, 63),
            ofUser("COORDS", 1, 0, 3),
            ofUser("CROSSINGAREACOLOR", 100, 1, 255),
            ofUser("CURSORSIZE", 5, 1, 100),
            ofUser("CURSORTYPE", 0, 0, 1),
            ofUser("DRAGMODE", 2, 0, 2),
            ofUser("DRAGP1", 10, 0, 32767),
            ofUser("DRAGP2", 25, 0, 32767),
            ofUser("DYNDIGRIP", 31, 0, 31),
            ofUser("DYNDIVIS", 1, 0, 2),
            ofUser("DYNINFOTIPS", 1, 0, 1),
            ofUser("DYNMODE", 3, -3, 3),
            ofUser("DYNPICOORDS", 0, 0, 1),
            ofUser("DYNPIFORMAT", 0, 0, 1),
            ofUser("DYNPIVIS", 1, 0, 2),
            ofUser("DYNPROMPT", 1, 0, 1),
            ofUser("DYNTOOLTIPS", 1, 0, 1),
            ofUser("GRIPBLOCK", 0, 0, 1),
            ofUser("GRIPCOLOR", 150, 1, 255),
            ofUser("GRIPCONTOUR", 251, 1, 255),
            ofUser("GRIPDYNCOLOR", 140, 1, 255),
            ofUser("GRIPHOT", 12, 1, 255),
            ofUser("GRIPHOVER", 11, 1, 255),
            ofUser("GRIPMULTIFUNCTIONAL", 3, 0, 3),
            ofUser("GRIPOBJLIMIT", 100, 0, 32767),
            ofUser("GRIPS", 2, 0, 2),
            ofUser("GRIPSIZE", 5, 1, 255),
            ofUser("GRIPSUBOBJMODE", 1, 0, 3),
            ofUser("GRIPTIPS", 1, 0, 1),
            ofUser("HIGHLIGHT", 1, 0, 1),
            ofUser("LEGACYCTRLPICK", 2, 0, 2),
            ofUser("MBUTTONPAN", 1, 0, 1),
            ofUser("OSMODE", 4133, 0, 32767),
            ofUser("OSNAPCOORD", 2, 0, 2),
            ofUser("OSNAPHATCH", 0, 0, 1),
            kept("OSNAPOVERRIDE", 0, 0, 1),
            ofUser("OSNAPZ", 0, 0, 1),
            ofUser("OSOPTIONS", 3, 0, 7),
            ofUser("PICKADD", 2, 0, 2),
            ofUser("PICKAUTO", 5, 0, 7),
            ofUser("PICKBOX", 3, 0, 50),
            ofUser("PICKDRAG", 2, 0, 2),
            ofUser("PICKFIRST", 1, 0, 1),
            ofUser("PICKSTYLE", 1, 0, 3),
            ofUser("POLARADDANG", text("")),
            ofUser("POLARANG", 1.5707963267948966),
            ofUser("POLARDIST", 0.0),
            ofUser("POLARMODE", 0, 0, 15),
            ofUser("PRESELECTIONEFFECT", 1, 0, 1),
            ofUser("PREVIEWEFFECT", 2, 0, 2),
            ofUser("PREVIEWFILTER", 7, 0, 127),
            ofUser("ROLLOVERTIPS", 1, 0, 1),
            ofUser("SELECTIONANNODISPLAY", 1, 0, 1),
            ofUser("SELECTIONAREA", 1, 0, 1),
            ofUser("SELECTIONAREAOPACITY", 25, 0, 100),
            ofUser("SELECTIONCYCLING", 0, -2, 2),
            ofUser("SELECTIONEFFECT", 1, 0, 1),
            ofUser("SELECTIONEFFECTCOLOR", 0, 0, 255),
            ofUser("SELECTIONPREVIEW", 3, 0, 3),
            ofUser("SELECTIONPREVIEWLIMIT", 2000, 0, 32767),
            ofUser("SELECTOFFSCREEN", 2, 0, 2),
            ofUser("SHORTCUTMENU", 27, 0, 31),
            ofUser("SHORTCUTMENUDURATION", 250, 100, 10000),
            ofUser("SNAPGRIDLEGACY", 0, 0, 1),
            ofUser("SUBOBJSELECTIONMODE", 0, 0, 5),
            ofUser("TEMPOVERRIDES", 1, 0, 1),
            ofUser("TRACKPATH", 0, 0, 3),
            ofUser("WINDOWAREACOLOR", 150, 1, 255),
            ofUser("ZOOMFACTOR", 60, 3, 100),
            ofUser("ZOOMWHEEL", 0, 0, 1)};
}

/// Being asked and told.
VariableRows questions()
{
    return {ofUser("AUTOCOMPLETEDELAY", 0.3, 0, 10),
            ofUser("AUTOCOMPLETEMODE", 63, 0, 63),
            ofUser("BLIPMODE", 0, 0, 1),
            ofUser("CMDDIA", 1, 0, 1),
            kept("CMDECHO", 1, 0, 1),
            ofUser("CMDINPUTHISTORYMAX", 20, 0, 32767),
            ofUser("DBLCLKEDIT", 1, 0, 1),
            ofUser("ERHIGHLIGHT", 1, 0, 1),
            kept("ERRNO", 0, 0, 999),
            kept("EXPERT", 0, 0, 5),
            ofUser("FILEDIA", 1, 0, 1),
            ofUser("GETPOINTSNAP", 0, 0, 1),
            ofUser("INPUTHISTORYMODE", 15, 0, 15),
            ofUser("INPUTSEARCHDELAY", 300, 100, 10000),
            ofUser("INPUTSEARCHOPTIONFLAGS", 63, 0, 255),
            ofUser("INPUTSEARCHOPTIONS", 63, 0, 255),
            kept("MENUECHO", 0, 0, 15),
            kept("MODEMACRO", text("")),
            kept("NOMUTT", 0, 0, 1),
            ofUser("PROXYNOTICE", 1, 0, 1),
            ofUser("PROXYSHOW", 1, 0, 2),
            ofUser("PROXYWEBSEARCH", 0, 0, 1),
            kept("QAFLAGS", 0, 0, 32767),
            ofUser("STANDARDSVIOLATION", 2, 0, 2),
            ofUser("SYSMON", 2, 0, 2),
            kept("USERS1", text("")),
            kept("USERS2", text("")),
            kept("USERS3", text("")),
            kept("USERS4", text("")),
            kept("USERS5", text("")),
            ofUser("XEDITNOTIFY", 1, 0, 1)};
}

/// Files, fonts, plotting and Lisp.
VariableRows filesAndPrograms()
{
    return {ofUser("ACADLSPASDOC", 0, 0, 1), ofUser("BACKUPMODE", 1, 0, 1), ofUser("DCTCUST", text("")),
            ofUser("DCTMAIN", text("enu")), ofUser("DEFAULTGIZMO", 0, 0, 3), ofUser("DEFLPLSTYLE", text("ByColor")),
            ofUser("DEFPLSTYLE", text("ByColor")), ofUser("DEMANDLOAD", 3, 0, 3), ofUser("DWGCHECK", 1, 0, 3),
            ofUser("FONTALT", text("simplex.shx")), ofUser("FONTMAP", text("")), ofUser("INETLOCATION", text("")),
            ofUser("ISAVEBAK", 1, 0, 1), ofUser("ISAVEPERCENT", 50, 0, 100), ofUser("LEGACYCODESEARCH", 0, 0, 1),
            checked(knownCodePage, ofUser("LISPCODEPAGE", text("ANSI_1252"))), ofUser("LISPINIT", 1, 0, 1),
            ofUser("LOGFILEMODE", 0, 0, 1), ofUser("LWDEFAULT", 25, 0, 211), ofUser("LWUNITS", 1, 0, 1),
            ofUser("MAXSORT", 1000, 0, 32767), ofUser("MEASUREINIT", 1, 0, 1), ofUser("OLEHIDE", 0, 0, 3),
            ofUser("OLEQUALITY", 3, 0, 3), ofUser("OPENPARTIAL", 1, 0, 1), ofUser("PARAMETERCOPYMODE", 1, 0, 4),
            ofUser("RASTERPREVIEW", 1, 0, 1), ofUser("RECOVERYAUTO", 0, 0, 2), ofUser("RECOVERYMODE", 2, 0, 2),
            ofUser("REGENAUTO", 1, 0, 1), ofUser("REMEMBERFOLDERS", 1, 0, 1), ofUser("REPORTERROR", 1, 0, 1),
            ofUser("ROAMABLESETTINGS", 0, 0, 1), ofUser("SAVEFIDELITY", 1, 0, 1), ofUser("SAVETIME", 10, 0, 600),
            ofUser("SDI", 0, 0, 3),
            // What may be loaded is said by the folders that the user trusts, whatever this says.
            kept("SECURELOAD", 1, 0, 2), ofUser("SECUREREMOTEACCESS", 0, 0, 1), ofUser("SKETCHTOLERANCE", 0.5, 0, 1),
            ofUser("STARTINFOLDER", text("")), ofUser("STARTMODE", 0, 0, 1), ofUser("STARTUP", 0, 0, 3),
            ofUser("TRUSTEDDOMAINS", text("")), ofUser("UPDATETHUMBNAIL", 15, 0, 31), ofUser("WHIPARC", 0, 0, 1),
            ofUser("WHIPTHREAD", 3, 0, 3), ofUser("WMFBKGND", 0, 0, 1), ofUser("WMFFOREGND", 0, 0, 1)};
}

} // namespace

VariableRows userVariables()
{
    VariableRows all = pointingVariables();
    for (const VariableRows &group : {questions(), filesAndPrograms()})
        all.insert(all.end(), group.begin(), group.end());
    return all;
}

} // namespace host::kernel
