#pragma once

#include "host/lisp/Arguments.h"

#include <span>
#include <vector>

namespace host::lisp {
class Interpreter;
}

namespace host::kernel {

/// What a property or method gets: the object, and what the program gave for it.
struct ObjectCall
{
    lisp::Arguments &args;
    const lisp::HostObject &object;
    std::size_t first; ///< index of the value to put, or of the method's first argument, in `args`
};

/// One property of a kind of object. What fails throws as Arguments does.
struct ObjectProperty
{
    const char *kind; ///< "Document"; what values print with
    const char *name; ///< in the spelling of the model: "ActiveDocument"
    lisp::Value (*get)(const ObjectCall &call);
    void (*put)(const ObjectCall &call); ///< null for one that programs only read
    const char *help;                    ///< one line: what it is
};

/// One method.
struct ObjectMethod
{
    const char *kind;
    const char *name;
    lisp::Arity arity; ///< of what stands behind the object
    lisp::Value (*call)(const ObjectCall &call);
    const char *usage; ///< its arguments
    const char *help;  ///< one line: what it does
};

/// The rows of one kind of object, each in a source file of its own.
struct ObjectRows
{
    std::span<const ObjectProperty> properties;
    std::span<const ObjectMethod> methods;
};
ObjectRows applicationRows();
ObjectRows documentRows();

/// All kinds; a further one is a file with its rows, and a line here.
const std::vector<ObjectRows> &objectKinds();
/// The row of a name in any letter case; null where objects of the kind have none.
const ObjectProperty *findProperty(std::string_view kind, std::string_view name);
const ObjectMethod *findMethod(std::string_view kind, std::string_view name);

/// The one object that stands for the program.
lisp::Value applicationObject();
class Document;
/// An open drawing as an object. It stays a value when the drawing is closed; then its properties fail.
lisp::Value documentObject(const Document &document);

/// Defines the functions of the object model: vlax-get-property and its like, and for each property and method of the
/// tables its own (vla-get-..., vla-put-..., vla-...).
void addObjectFunctions(lisp::Interpreter &interpreter);

} // namespace host::kernel
