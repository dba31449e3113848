#include "host/functions/FunctionGroups.h"

#include "host/kernel/lisp/NativeFunctions.h"
#include "host/objects/ObjectModel.h"

namespace host::kernel {

void addNativeFunctions(lisp::Interpreter &interpreter)
{
    addEntityFunctions(interpreter);
    addTableFunctions(interpreter);
    addDictionaryFunctions(interpreter);
    addSelectionFunctions(interpreter);
    addPickFunctions(interpreter);
    addPromptFunctions(interpreter);
    addVariableFunctions(interpreter);
    addCommandFunctions(interpreter);
    addDialogFunctions(interpreter);
    addDialogFileFunctions(interpreter);
    addDialogRunFunctions(interpreter);
    addTileFunctions(interpreter);
    addTileImageFunctions(interpreter);
    addCoordinateFunctions(interpreter);
    addCurveFunctions(interpreter);
    addSheetFunctions(interpreter);
    addTestFunctions(interpreter);
    addTextFunctions(interpreter);
    addExtentFunctions(interpreter);
    addScreenFunctions(interpreter);
    addProgramFunctions(interpreter);
    addMenuFunctions(interpreter);
    addNamespaceFunctions(interpreter);
    addProgramDataFunctions(interpreter);
    addToolkitFunctions(interpreter);
    addViewFunctions(interpreter);
    addColourFunctions(interpreter);
    addPropertyFunctions(interpreter);
    addSettingsFunctions(interpreter);
    addResultFunctions(interpreter);
    addObjectFunctions(interpreter);
}

} // namespace host::kernel
