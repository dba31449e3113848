#pragma once

#include "platform/kernel/CKvLispEngine.h"

#include <array>

namespace ortakit {

/// What becomes of a function when its document's Lisp engine is about to go away.
enum class OnClose
{
    Undefine,
    /// Stays defined until the engine is gone.
    Keep
};

/// An external Lisp function of the product.
struct LispFunction
{
    QLatin1StringView name;
    CKvLispEngine::Handler handler;
    OnClose onClose;
};

/// The whole public face of the product, in the order of definition.
using LispFunctionTable = std::array<LispFunction, 44>;
extern const LispFunctionTable lispFunctionTable;

/// Defines every function of the table in `lisp`.
void defineFunctions(CKvLispEngine &lisp);

/// Undefines those that are not to be kept, in the order of the table.
void undefineFunctions(CKvLispEngine &lisp);

} // namespace ortakit
