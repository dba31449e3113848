#include "host/lisp/Builtins.h"

#include <initializer_list>

namespace host::lisp {

void addBuiltins(Interpreter &interpreter)
{
    for (const auto add :
         {addSpecialForms,        addFunctionFunctions,     addNumberFunctions,       addIntegerFunctions,
          addComparisonFunctions, addListFunctions,         addListSearchFunctions,   addPairFunctions,
          addSortFunctions,       addStringFunctions,       addStringSearchFunctions, addConversionFunctions,
          addGeometryFunctions,   addSelectionSetFunctions, addOutputFunctions,       addInputFunctions,
          addFileFunctions,       addFileNameFunctions,     addErrorFunctions,        addSystemFunctions})
        add(interpreter);
}

} // namespace host::lisp
