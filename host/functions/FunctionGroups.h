#pragma once

namespace host::lisp {
class Interpreter;
}

namespace host::kernel {

// The functions by group: each group is one source file that ends in its table.
void addEntityFunctions(lisp::Interpreter &interpreter);
void addTableFunctions(lisp::Interpreter &interpreter);
void addDictionaryFunctions(lisp::Interpreter &interpreter);
void addSelectionFunctions(lisp::Interpreter &interpreter);
void addPickFunctions(lisp::Interpreter &interpreter);
void addPromptFunctions(lisp::Interpreter &interpreter);
void addVariableFunctions(lisp::Interpreter &interpreter);
void addCommandFunctions(lisp::Interpreter &interpreter);
void addDialogFunctions(lisp::Interpreter &interpreter);
void addDialogFileFunctions(lisp::Interpreter &interpreter);
void addDialogRunFunctions(lisp::Interpreter &interpreter);
void addTileFunctions(lisp::Interpreter &interpreter);
void addTileImageFunctions(lisp::Interpreter &interpreter);
void addCoordinateFunctions(lisp::Interpreter &interpreter);
void addCurveFunctions(lisp::Interpreter &interpreter);
void addSheetFunctions(lisp::Interpreter &interpreter);
void addTestFunctions(lisp::Interpreter &interpreter);
void addTextFunctions(lisp::Interpreter &interpreter);
void addExtentFunctions(lisp::Interpreter &interpreter);
void addScreenFunctions(lisp::Interpreter &interpreter);
void addProgramFunctions(lisp::Interpreter &interpreter);
void addMenuFunctions(lisp::Interpreter &interpreter);
void addNamespaceFunctions(lisp::Interpreter &interpreter);
void addProgramDataFunctions(lisp::Interpreter &interpreter);
void addToolkitFunctions(lisp::Interpreter &interpreter);
void addViewFunctions(lisp::Interpreter &interpreter);
void addColourFunctions(lisp::Interpreter &interpreter);
void addPropertyFunctions(lisp::Interpreter &interpreter);
void addSettingsFunctions(lisp::Interpreter &interpreter);
void addResultFunctions(lisp::Interpreter &interpreter);

} // namespace host::kernel
