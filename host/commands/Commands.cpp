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
             absentCommands(),
             alignCommands(),
             angularDimensionCommands(),
             arcCommands(),
             arcDimensionCommands(),
             areaCommands(),
             arrayCommands(),
             attributeCommands(),
             attributeDefinitionCommands(),
             auditCommands(),
             blockCommands(),
             breakCommands(),
             changeCommands(),
             circleCommands(),
             clipCommands(),
             clipboardCommands(),
             constructionLineCommands(),
             cornerCommands(),
             dimensionChainCommands(),
             dimensionEditCommands(),
             dimensionModeCommands(),
             dimensionStyleCommands(),
             divideCommands(),
             documentCommands(),
             drawCommands(),
             drawOrderCommands(),
             editCommands(),
             ellipseCommands(),
             explodeCommands(),
             faceCommands(),
             fileCommands(),
             groupCommands(),
             hatchCommands(),
             hatchEditCommands(),
             inquiryCommands(),
             insertCommands(),
             joinCommands(),
             layerCommands(),
             layoutCommands(),
             leaderCommands(),
             lengthenCommands(),
             linearDimensionCommands(),
             linetypeCommands(),
             matchCommands(),
             mirrorCommands(),
             mlineCommands(),
             multiLeaderCommands(),
             namedViewCommands(),
             offsetCommands(),
             overkillCommands(),
             paragraphCommands(),
             pickedLayerCommands(),
             plotCommands(),
             polygonCommands(),
             polylineCommands(),
             polylineEditCommands(),
             purgeCommands(),
             radialDimensionCommands(),
             rectangleCommands(),
             referenceCommands(),
             regionCommands(),
             removeLayerCommands(),
             renameCommands(),
             revisionCloudCommands(),
             selectCommands(),
             settingCommands(),
             shapeCommands(),
             snapCommands(),
             spaceChangeCommands(),
             splineCommands(),
             statusCommands(),
             stretchCommands(),
             styleCommands(),
             textCommands(),
             trimCommands(),
             ucsCommands(),
             undoCommands(),
             unitCommands(),
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
