#pragma once

#include "host/lisp/Native.h"
#include "host/lisp/checking/SyntaxTree.h"

#include <deque>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace host::lisp::checking {

/// The functions that are there before any program is read, by upper-case name.
using NativeArities = std::map<std::string, Arity, std::less<>>;

/// A parameter or local where it is declared, or a variable where it is set.
struct VariablePlace
{
    std::string name; ///< in upper case
    std::string text; ///< as written
    Position at;
};

/// A function of a program, or what a file does outside of its functions. Lambdas belong to what they are written in.
struct FunctionRecord
{
    std::string name; ///< in upper case; empty for what stands outside of functions
    std::string text; ///< as written
    Position at;
    std::size_t source = 0; ///< the index of its file
    bool isInner = false;   ///< defined by another function, or where a condition holds
    std::size_t parameterCount = 0;
    std::vector<VariablePlace> variables;  ///< parameters, then locals, then locals of its lambdas
    std::vector<VariablePlace> undeclared; ///< what it sets without having declared it, the first place of each
    std::set<std::string> declared;        ///< all names bound in it, by lambdas and loops too
    std::set<std::string> reads; ///< all names in it but those that are set: variables, functions, quoted ones
    std::set<std::string> sets;  ///< all names that it sets

    bool isTopLevel() const { return name.empty(); }
};

/// A call whose function may be known.
struct CallPlace
{
    std::string name; ///< in upper case
    std::string text; ///< as written
    Position at;
    std::size_t source = 0;
    int count = -1;  ///< arguments; -1: not known
    std::string via; ///< the function that is to call it, "mapcar"; empty for a plain call
};

/// What several files say together.
struct Program
{
    std::deque<FunctionRecord> functions;
    std::vector<CallPlace> calls;
    std::set<std::string> globals; ///< set outside of functions
    std::set<std::string> values;  ///< set or bound anywhere: what they hold may be a function
    /// Of those, the names in what they are set to: a table of functions calls these for whoever reads it.
    std::map<std::string, std::set<std::string>> namesInGlobals;
    std::set<std::string> quoted;  ///< handed on by name: who calls them is not seen
    std::vector<Finding> findings; ///< what needs no more than one form to be seen
};

/// Adds a file's forms to what is known. `source` is its index; its findings come without the file's name. The forms
/// may go afterwards.
void collect(Program &program, const SyntaxTree &tree, std::size_t source, const NativeArities &natives);

/// "1 argument", "2 to 3 arguments", "at least 1 argument".
std::string argumentsText(const Arity &arity);

} // namespace host::lisp::checking
