#include "host/commands/Commands.h"

#include <algorithm>

namespace host::kernel {

namespace {

/// Those that ask for nothing but how things are shown or set, so that they do no harm in the middle of another.
constexpr const char *transparentNames[] = {
    "-LAYER",    "-LINETYPE", "-OSNAP",  "-STYLE", "-VIEW",    "APERTURE", "BASE",   "BLIPMODE",  "COLOR",     "DELAY",
    "DSETTINGS", "DIST",      "ELEV",    "FILL",   "GRAPHSCR", "GRID",     "HELP",   "ID",        "ISOPLANE",  "LAYER",
    "LIMITS",    "LTSCALE",   "LWEIGHT", "ORTHO",  "OSNAP",    "PAN",      "REDRAW", "REDRAWALL", "REGENAUTO", "RESUME",
    "SCRIPT",    "SETVAR",    "SNAP",    "STATUS", "TEXTSCR",  "TIME",     "UNITS",  "ZOOM",
};

void markTransparent(std::vector<CommandRow> &rows)
{
    for (CommandRow &row : rows)
        row.isTransparent =
            std::ranges::any_of(transparentNames, [&row](const char *name) { return qstrcmp(name, row.name) == 0; });
}

} // namespace

std::vector<CommandRow> builtInCommands()
{
    std::vector<CommandRow> rows;
    // clang-format off
    for (const auto &group : {
             angularDimensionCommands(),
             arcCommands(),
             alignCommands(),
             arrayCommands(),
             attributeCommands(),
             attributeDefinitionCommands(),
             blockCommands(),
             changeCommands(),
             absentCommands(),
             auditCommands(),
             areaCommands(),
             breakCommands(),
             circleCommands(),
             clipCommands(),
             clipboardCommands(),
             constructionLineCommands(),
             cornerCommands(),
             angularDimensionCommands(),
             dimensionChainCommands(),
             dimensionEditCommands(),
             dimensionStyleCommands(),
             divideCommands(),
             drawCommands(),
             drawOrderCommands(),
             editCommands(),
             ellipseCommands(),
             faceCommands(),
             explodeCommands(),
             fileCommands(),
             groupCommands(),
             inquiryCommands(),
             hatchCommands(),
             hatchEditCommands(),
             insertCommands(),
             layerCommands(),
             layoutCommands(),
             leaderCommands(),
             lengthenCommands(),
             linearDimensionCommands(),
             linetypeCommands(),
             mlineCommands(),
             offsetCommands(),
             paragraphCommands(),
             polygonCommands(),
             matchCommands(),
             mirrorCommands(),
             namedViewCommands(),
             pickedLayerCommands(),
             plotCommands(),
             polylineCommands(),
             polylineEditCommands(),
             purgeCommands(),
             radialDimensionCommands(),
             rectangleCommands(),
             referenceCommands(),
             revisionCloudCommands(),
             removeLayerCommands(),
             renameCommands(),
             settingCommands(),
             shapeCommands(),
             spaceChangeCommands(),
             splineCommands(),
             styleCommands(),
             selectCommands(),
             statusCommands(),
             stretchCommands(),
             snapCommands(),
             textCommands(),
             ucsCommands(),
             trimCommands(),
             undoCommands(),
             variableCommands(),
             viewCommands(),
             viewportCommands(),
             viewportLayerCommands(),
             writeBlockCommands(),
         })
        rows.insert(rows.end(), group.begin(), group.end());
    // clang-format on
    markTransparent(rows);
    return rows;
}

} // namespace host::kernel
