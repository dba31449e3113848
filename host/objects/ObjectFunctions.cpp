// The functions of the object model, the general ones and those that the tables name.

#include "host/lisp/Interpreter.h"
#include "host/lisp/Text.h"
#include "host/objects/ObjectModel.h"

#include <deque>
#include <set>

namespace host::kernel {

namespace {

using lisp::Arguments;
using lisp::Arity;
using lisp::Value;

const lisp::HostObject &objectAt(Arguments &args, std::size_t index)
{
    if (!args[index].isHostObject())
        args.badType(index, "VLA-OBJECT");
    return args[index].asHostObject();
}

/// A property's or method's name, as a symbol or text.
std::string nameAt(Arguments &args, std::size_t index)
{
    return args[index].isSymbol() ? args.symbol(index).name() : args.string(index);
}

[[noreturn]] void failUnknown(Arguments &args, const lisp::HostObject &object, const std::string &name)
{
    args.fail("unknown name: " + object.kind + "." + name);
}

Value getNamed(Arguments &args, const std::string &name)
{
    const lisp::HostObject &object = objectAt(args, 0);
    const ObjectProperty *property = findProperty(object.kind, name);
    if (!property)
        failUnknown(args, object, name);
    return property->get({args, object, args.size()});
}

Value putNamed(Arguments &args, const std::string &name, std::size_t first)
{
    const lisp::HostObject &object = objectAt(args, 0);
    const ObjectProperty *property = findProperty(object.kind, name);
    if (!property)
        failUnknown(args, object, name);
    if (!property->put)
        args.fail("read-only: " + object.kind + "." + property->name);
    property->put({args, object, first});
    return {};
}

Value callNamed(Arguments &args, const std::string &name, std::size_t first)
{
    const lisp::HostObject &object = objectAt(args, 0);
    const ObjectMethod *method = findMethod(object.kind, name);
    if (!method)
        failUnknown(args, object, name);
    if (!method->arity.accepts(args.size() - first))
        args.fail(args.size() - first < static_cast<std::size_t>(method->arity.least) ? "too few arguments"
                                                                                      : "too many arguments");
    return method->call({args, object, first});
}

// (vlax-get-acad-object) -> the object that stands for the program.
Value getApplication(Arguments &)
{
    return applicationObject();
}

// (vlax-get-property object name), (vlax-get object name) -> the value of a property.
Value getProperty(Arguments &args)
{
    return getNamed(args, nameAt(args, 1));
}

// (vlax-put-property object name value), (vlax-put object name value) -> nil.
Value putProperty(Arguments &args)
{
    return putNamed(args, nameAt(args, 1), 2);
}

// (vlax-invoke-method object name argument...), (vlax-invoke ...) -> what the method gives.
Value invokeMethod(Arguments &args)
{
    return callNamed(args, nameAt(args, 1), 2);
}

// (vlax-property-available-p object name [put]) -> T when objects of the kind have the property; with put, when it can
// be changed.
Value isPropertyAvailable(Arguments &args)
{
    const ObjectProperty *property = findProperty(objectAt(args, 0).kind, nameAt(args, 1));
    return args.boolean(property && (!args.has(2) || property->put));
}

// (vlax-method-applicable-p object name) -> T when objects of the kind have the method.
Value isMethodApplicable(Arguments &args)
{
    return args.boolean(findMethod(objectAt(args, 0).kind, nameAt(args, 1)) != nullptr);
}

// (vlax-release-object object) -> 0: there is nothing to let go of.
Value releaseObject(Arguments &args)
{
    objectAt(args, 0);
    return Value::integer(0);
}

// (vlax-object-released-p object) -> nil.
Value isReleased(Arguments &args)
{
    objectAt(args, 0);
    return {};
}

// What follows serves all rows of the tables, each under its own name.

constexpr std::string_view getterStart = "VLA-GET-";
constexpr std::string_view putterStart = "VLA-PUT-";
constexpr std::string_view methodStart = "VLA-";

Value namedGetter(Arguments &args)
{
    return getNamed(args, args.callee().name.substr(getterStart.size()));
}

Value namedPutter(Arguments &args)
{
    return putNamed(args, args.callee().name.substr(putterStart.size()), 1);
}

Value namedMethod(Arguments &args)
{
    return callNamed(args, args.callee().name.substr(methodStart.size()), 1);
}

/// Rows with names that are put together: they live as long as the process.
class NamedRows
{
public:
    NamedRows()
    {
        for (const ObjectRows &kind : objectKinds()) {
            for (const ObjectProperty &property : kind.properties) {
                add(getterStart, property.name, namedGetter, Arity::exactly(1), "object", property.help);
                if (property.put)
                    add(putterStart, property.name, namedPutter, Arity::exactly(2), "object value", property.help);
            }
            for (const ObjectMethod &method : kind.methods)
                add(methodStart, method.name, namedMethod, Arity::atLeast(1),
                    method.usage[0] != '\0' ? method.usage : "object", method.help);
        }
    }
    const std::vector<lisp::NativeRow> &rows() const { return m_rows; }

private:
    /// Of several kinds with a property of the same name one row serves all.
    void add(std::string_view start, const char *name, lisp::NativePointer function, Arity arity, const char *usage,
             const char *help)
    {
        const std::string full = lisp::toLowerCase(std::string(start) + name);
        if (!m_known.insert(full).second)
            return;
        m_names.push_back(full);
        m_rows.push_back({m_names.back().c_str(), function, arity, usage, help});
    }

    std::set<std::string> m_known;
    std::deque<std::string> m_names; ///< which stay where they are
    std::vector<lisp::NativeRow> m_rows;
};

} // namespace

void addObjectFunctions(lisp::Interpreter &interpreter)
{
    static constexpr lisp::NativeRow general[] = {
        {"vlax-get-acad-object", getApplication, Arity::exactly(0), "", "the object that stands for the program"},
        {"vlax-get-property", getProperty, Arity::exactly(2), "object name", "the value of an object's property"},
        {"vlax-get", getProperty, Arity::exactly(2), "object name", "the same"},
        {"vlax-put-property", putProperty, Arity::exactly(3), "object name value", "changes an object's property"},
        {"vlax-put", putProperty, Arity::exactly(3), "object name value", "the same"},
        {"vlax-invoke-method", invokeMethod, Arity::atLeast(2), "object name argument...", "calls an object's method"},
        {"vlax-invoke", invokeMethod, Arity::atLeast(2), "object name argument...", "the same"},
        {"vlax-property-available-p", isPropertyAvailable, Arity::between(2, 3), "object name [put]",
         "T for a property that the object has"},
        {"vlax-method-applicable-p", isMethodApplicable, Arity::exactly(2), "object name",
         "T for a method that the object has"},
        {"vlax-release-object", releaseObject, Arity::exactly(1), "object", "0: there is nothing to let go of"},
        {"vlax-object-released-p", isReleased, Arity::exactly(1), "object", "nil"},
    };
    static const NamedRows named;
    interpreter.define(general);
    interpreter.define(named.rows());
}

} // namespace host::kernel
