#pragma once

#include "host/kernel/running/CommandTable.h"

#include <vector>

namespace host::kernel {

// The rows of each file of commands.
std::vector<CommandRow> absentCommands();
std::vector<CommandRow> alignCommands();
std::vector<CommandRow> angularDimensionCommands();
std::vector<CommandRow> arcCommands();
std::vector<CommandRow> areaCommands();
std::vector<CommandRow> arrayCommands();
std::vector<CommandRow> attributeCommands();
std::vector<CommandRow> attributeDefinitionCommands();
std::vector<CommandRow> auditCommands();
std::vector<CommandRow> blockCommands();
std::vector<CommandRow> breakCommands();
std::vector<CommandRow> changeCommands();
std::vector<CommandRow> circleCommands();
std::vector<CommandRow> clipCommands();
std::vector<CommandRow> clipboardCommands();
std::vector<CommandRow> constructionLineCommands();
std::vector<CommandRow> cornerCommands();
std::vector<CommandRow> dimensionChainCommands();
std::vector<CommandRow> dimensionEditCommands();
std::vector<CommandRow> dimensionStyleCommands();
std::vector<CommandRow> divideCommands();
std::vector<CommandRow> documentCommands();
std::vector<CommandRow> drawCommands();
std::vector<CommandRow> drawOrderCommands();
std::vector<CommandRow> editCommands();
std::vector<CommandRow> ellipseCommands();
std::vector<CommandRow> explodeCommands();
std::vector<CommandRow> faceCommands();
std::vector<CommandRow> fileCommands();
std::vector<CommandRow> groupCommands();
std::vector<CommandRow> hatchCommands();
std::vector<CommandRow> hatchEditCommands();
std::vector<CommandRow> inquiryCommands();
std::vector<CommandRow> insertCommands();
std::vector<CommandRow> layerCommands();
std::vector<CommandRow> layoutCommands();
std::vector<CommandRow> leaderCommands();
std::vector<CommandRow> lengthenCommands();
std::vector<CommandRow> linearDimensionCommands();
std::vector<CommandRow> linetypeCommands();
std::vector<CommandRow> matchCommands();
std::vector<CommandRow> mirrorCommands();
std::vector<CommandRow> mlineCommands();
std::vector<CommandRow> namedViewCommands();
std::vector<CommandRow> offsetCommands();
std::vector<CommandRow> paragraphCommands();
std::vector<CommandRow> pickedLayerCommands();
std::vector<CommandRow> plotCommands();
std::vector<CommandRow> polygonCommands();
std::vector<CommandRow> polylineCommands();
std::vector<CommandRow> polylineEditCommands();
std::vector<CommandRow> purgeCommands();
std::vector<CommandRow> radialDimensionCommands();
std::vector<CommandRow> rectangleCommands();
std::vector<CommandRow> referenceCommands();
std::vector<CommandRow> removeLayerCommands();
std::vector<CommandRow> renameCommands();
std::vector<CommandRow> revisionCloudCommands();
std::vector<CommandRow> selectCommands();
std::vector<CommandRow> settingCommands();
std::vector<CommandRow> shapeCommands();
std::vector<CommandRow> snapCommands();
std::vector<CommandRow> spaceChangeCommands();
std::vector<CommandRow> splineCommands();
std::vector<CommandRow> statusCommands();
std::vector<CommandRow> stretchCommands();
std::vector<CommandRow> styleCommands();
std::vector<CommandRow> textCommands();
std::vector<CommandRow> trimCommands();
std::vector<CommandRow> ucsCommands();
std::vector<CommandRow> undoCommands();
std::vector<CommandRow> unitCommands();
std::vector<CommandRow> variableCommands();
std::vector<CommandRow> viewCommands();
std::vector<CommandRow> viewportCommands();
std::vector<CommandRow> viewportLayerCommands();
std::vector<CommandRow> writeBlockCommands();

} // namespace host::kernel
