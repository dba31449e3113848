#pragma once

#include "host/lisp/SourceMap.h"
#include "host/lisp/Symbol.h"
#include "host/lisp/Value.h"
#include "host/lisp/compiled/Code.h"

#include <memory>
#include <vector>

namespace host::lisp {

/// A function written in Lisp. `mark` says in which ways its calls are watched: bits of CallWatch.
struct Function : Object
{
    Symbol *name = nullptr;          ///< null for a lambda
    std::size_t parameterCount = 0;  ///< how many of `variables` are parameters; the others are locals
    std::vector<Symbol *> variables; ///< parameters, then locals
    Value parameters;                ///< the list as written, with "/" before the locals
    Value body;                      ///< list of forms
    Location location = 0;           ///< of the first form of the body; 0 when unknown

    /// How far its machine has come with it. The list of forms stays what it is made of and the truth.
    enum class Compiling : std::uint8_t
    {
        NotYet,
        AtNextCall,
        Never ///< the evaluator does it
    };
    mutable Compiling compiling = Compiling::NotYet;
    mutable std::unique_ptr<const compiled::Code> code; ///< null until it is called

    std::string displayName() const { return name ? name->name() : "LAMBDA"; }
};

/// Why calls of a function take the long way.
enum CallWatch : std::uint32_t
{
    Traced = 1,  ///< they are written out
    Observed = 2 ///< the interpreter's CallObserver hears of them
};

inline Function &Value::asFunction() const noexcept
{
    assert(tag() == Tag::Function);
    return *static_cast<Function *>(m_object);
}

} // namespace host::lisp
