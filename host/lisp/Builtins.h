#pragma once

namespace host::lisp {

class Interpreter;

/// Defines everything the language brings along. Each group is one source file that ends in its table.
void addBuiltins(Interpreter &interpreter);

void addSpecialForms(Interpreter &interpreter);
void addFunctionFunctions(Interpreter &interpreter);
void addNumberFunctions(Interpreter &interpreter);
void addIntegerFunctions(Interpreter &interpreter);
void addComparisonFunctions(Interpreter &interpreter);
void addListFunctions(Interpreter &interpreter);
void addListSearchFunctions(Interpreter &interpreter);
void addPairFunctions(Interpreter &interpreter);
void addSortFunctions(Interpreter &interpreter);
void addStringFunctions(Interpreter &interpreter);
void addStringSearchFunctions(Interpreter &interpreter);
void addConversionFunctions(Interpreter &interpreter);
void addGeometryFunctions(Interpreter &interpreter);
void addSelectionSetFunctions(Interpreter &interpreter);
void addOutputFunctions(Interpreter &interpreter);
void addInputFunctions(Interpreter &interpreter);
void addFileFunctions(Interpreter &interpreter);
void addFileNameFunctions(Interpreter &interpreter);
void addErrorFunctions(Interpreter &interpreter);
void addSystemFunctions(Interpreter &interpreter);

} // namespace host::lisp
