#include "host/functions/FunctionGroups.h"

#include "host/kernel/lisp/NativeFunctions.h"

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
    addSheetFunctions(interpreter);
    addTextFunctions(interpreter);
    addExtentFunctions(interpreter);
    addScreenFunctions(interpreter);
}

} // namespace host::kernel
