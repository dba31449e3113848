// What commands remember from one run to the next, and how they behave.

#include "host/kernel/variables/VariableRows.h"

namespace host::kernel {

using namespace rows;

namespace {

constexpr double anyLength = 1e99;

/// Sizes of the last time, which the next run proposes.
VariableRows proposedSizes()
{
    return {kept("CHAMMODE", 0, 0, 1),
            kept("CIRCLERAD", 0.0, 0, anyLength),
            kept("DONUTID", 0.5, 0, anyLength),
            kept("DONUTOD", 1.0, 1e-99, anyLength),
            ofUser("DIVMEETTYPE", 0, 0, 1),
            kept("INSNAME", text("")),
            kept("OFFSETDIST", -1.0),
            ofUser("OFFSETGAPTYPE", 0, 0, 2),
            kept("POLYSIDES", 4, 3, 1024),
            kept("PSPROLOG", text("")),
            kept("REVCLOUDAPPROXARCLEN", 0.5, 0, anyLength),
            ofUser("REVCLOUDARCVARIANCE", 1, 0, 1),
            ofUser("REVCLOUDCREATEMODE", 2, 0, 2),
            ofUser("REVCLOUDGRIPS", 0, 0, 1),
            kept("REVCLOUDMAXARCLENGTH", 0.5, 0, anyLength),
            kept("REVCLOUDMINARCLENGTH", 0.5, 0, anyLength),
            ofUser("REVCLOUDVARIANCE", 1, 0, 1),
            kept("SHPNAME", text("")),
            kept("SPLKNOTS", 0, 0, 2),
            kept("SPLMETHOD", 0, 0, 1),
            kept("SPLPERIODIC", 1, 0, 1),
            kept("SPLDEGREE", 3, 1, 10),
            kept("ROTATEDEFAULT", 0.0),
            kept("SCALEDEFAULT", 1.0, 1e-99, anyLength),
            readOnly(kept("LASTANGLE", 0.0)),
            kept("MULTILEADERSTYLE", text("Standard")),
            kept("ARRAYTYPE", 0, 0, 2),
            ofUser("ARRAYASSOCIATIVITY", 1, 0, 1),
            kept("HELIXTURNS", 3.0, 0, 500)};
}

/// Switches of commands that shape or choose.
VariableRows commandModes()
{
    return {ofUser("BINDTYPE", 0, 0, 1),
            kept("BLOCKEDITLOCK", 0, 0, 1),
            fixed("BLOCKEDITOR", 0),
            ofUser("COPYMODE", 0, 0, 1),
            ofUser("DELOBJ", 1, -3, 3),
            ofUser("EDGEMODE", 0, 0, 1),
            kept("EXPLMODE", 1, 0, 1),
            ofUser("FIELDEVAL", 31, 0, 31),
            kept("FLATLAND", 0, 0, 1),
            ofUser("LAYEREVAL", 0, 0, 2),
            ofUser("LAYEREVALCTL", 1, 0, 1),
            ofUser("LAYERNOTIFY", 0, 0, 31),
            ofUser("LAYLOCKFADECTL", 50, -90, 90),
            ofUser("MACROTRACE", 0, 0, 1),
            ofUser("MIRRHATCH", 0, 0, 1),
            ofUser("MTEXTED", text("Internal")),
            ofUser("MTEXTCOLUMN", 2, 0, 2),
            ofUser("MTEXTFIXED", 2, 0, 2),
            ofUser("NUDGE", 1, 0, 1),
            kept("PELLIPSE", 0, 0, 1),
            ofUser("PEDITACCEPT", 0, 0, 1),
            ofUser("PLINECONVERTMODE", 0, 0, 1),
            ofUser("PLINEREVERSEWIDTHS", 0, 0, 1),
            ofUser("PLINETYPE", 2, 0, 2),
            ofUser("PROJMODE", 1, 0, 2),
            ofUser("PURGEMODE", 0, 0, 1),
            fixed("REFEDITNAME", text("")),
            ofUser("REFPATHTYPE", 1, 0, 2),
            ofUser("TEXTALIGNMODE", 9, 0, 14),
            ofUser("TEXTALIGNSPACING", 0.0),
            ofUser("TEXTALLCAPS", 0, 0, 1),
            ofUser("TEXTAUTOCORRECTCAPS", 1, 0, 1),
            ofUser("TEXTED", 2, 0, 2),
            ofUser("TEXTEDITMODE", 0, 0, 1),
            kept("TEXTEVAL", 0, 0, 1),
            kept("TEXTFILL", 1, 0, 1),
            ofUser("TEXTOUTPUTFILEFORMAT", 0, 0, 3),
            kept("TEXTQLTY", 50, 0, 100),
            ofUser("TRIMEXTENDMODE", 0, 0, 1),
            ofUser("TRIMEDGES", 1, 0, 1),
            ofUser("TRIMMODE", 1, 0, 1),
            ofUser("TSPACEFAC", 1.0, 0.25, 4),
            ofUser("TSPACETYPE", 1, 1, 2),
            ofUser("TSTACKALIGN", 1, 0, 2),
            ofUser("TSTACKSIZE", 70, 25, 125),
            ofUser("XREFNOTIFY", 2, 0, 2),
            ofUser("XREFTYPE", 0, 0, 1),
            ofUser("XREFLAYER", text("use current")),
            ofUser("XREFOVERRIDE", 0, 0, 1),
            ofUser("XFADECTL", 50, 0, 90),
            ofUser("XDWGFADECTL", 50, -90, 90),
            ofUser("XLOADCTL", 2, 0, 2),
            ofUser("XREFCTL", 0, 0, 1),
            ofUser("WBLOCKCREATEMODE", 0, 0, 2),
            ofUser("BLOCKREDEFINEMODE", 0, 0, 2),
            ofUser("BLOCKCREATEMODE", 0, 0, 2),
            ofUser("BLOCKSYNC", 1, 0, 1),
            ofUser("ATTIPE", 0, 0, 1),
            ofUser("ATTMULTI", 1, 0, 1),
            ofUser("ATTDIA", 1, 0, 1),
            ofUser("ATTREQ", 1, 0, 1),
            ofUser("INSUNITSDEFSOURCE", 1, 0, 24),
            ofUser("INSUNITSDEFTARGET", 1, 0, 24),
            ofUser("MLEADERSCALE", 1.0, 0, anyLength),
            ofUser("JOINTOLERANCE", 0.0, 0, anyLength),
            ofUser("PREVIEWTYPE", 0, 0, 1),
            ofUser("CENTERMARKEXE", 1, 0, 1),
            ofUser("CENTEREXE", 0.12),
            ofUser("CENTERLAYER", text("use current")),
            ofUser("CENTERLTYPE", text("CENTER2")),
            ofUser("CENTERLTSCALE", 1.0, 1e-99, anyLength),
            ofUser("CENTERCROSSSIZE", text("0.1x")),
            ofUser("CENTERCROSSGAP", text("0.05x")),
            ofUser("CMLEADERSTYLE", text("Standard")),
            ofUser("GEOLATLONGFORMAT", 0, 0, 1),
            ofUser("PROPOBJLIMIT", 25000, 0, 32767),
            ofUser("SELECTSIMILARMODE", 130, 0, 255),
            ofUser("COPYMULTIPLE", 1, 0, 1)};
}

} // namespace

VariableRows commandVariables()
{
    VariableRows all = proposedSizes();
    const VariableRows modes = commandModes();
    all.insert(all.end(), modes.begin(), modes.end());
    return all;
}

VariableRows hatchVariables()
{
    return {kept("HPANG", 0.0),
            kept("HPANNOTATIVE", 0, 0, 1),
            ofUser("HPASSOC", 1, 0, 1),
            kept("HPBACKGROUNDCOLOR", text(".")),
            kept("HPBOUND", 1, 0, 1),
            ofUser("HPBOUNDRETAIN", 0, 0, 1),
            kept("HPCOLOR", text("use current")),
            ofUser("HPDLGMODE", 2, 0, 2),
            kept("HPDOUBLE", 0, 0, 1),
            ofUser("HPDRAWORDER", 3, 0, 4),
            kept("HPGAPTOL", 0.0, 0, 5000),
            ofUser("HPINHERIT", 0, 0, 1),
            ofUser("HPISLANDDETECTION", 1, 0, 2),
            ofUser("HPISLANDDETECTIONMODE", 1, 0, 1),
            kept("HPLAYER", text(".")),
            kept("HPLINETYPE", 0, 0, 1),
            ofUser("HPMAXAREAS", 100, 0, 10000),
            ofUser("HPMAXLINES", 1000000, 100, 10000000),
            kept("HPNAME", text("ANSI31")),
            ofUser("HPOBJWARNING", 10000, 1, 1073741823),
            kept("HPORIGIN", drawing::Vec2{}),
            kept("HPORIGINMODE", 0, 0, 5),
            ofUser("HPORIGINSTOREASDEFAULT", 0, 0, 1),
            ofUser("HPPATHALIGNMENT", 0, 0, 2),
            ofUser("HPPATHWIDTH", 1.0, 0, anyLength),
            ofUser("HPPICKMODE", 0, 0, 1),
            ofUser("HPQUICKPREVIEW", 1, 0, 1),
            ofUser("HPQUICKPREVTIMEOUT", 2, 1, 20),
            kept("HPRELATIVEPS", 0, 0, 1),
            kept("HPSCALE", 1.0, 1e-99, anyLength),
            kept("HPSEPARATE", 0, 0, 1),
            kept("HPSPACE", 1.0, 1e-99, anyLength),
            kept("HPSTYLE", 0, 0, 2),
            kept("HPTRANSPARENCY", text("use current")),
            kept("GFANG", 0.0, 0, 360),
            kept("GFCLR1", text("5")),
            kept("GFCLR2", text("2")),
            kept("GFCLRLUM", 1.0, 0, 1),
            kept("GFCLRSTATE", 1, 0, 1),
            kept("GFNAME", 1, 1, 9),
            kept("GFSHIFT", 0, 0, 1)};
}

} // namespace host::kernel
