// The program, as programs of the dialect see it.

#include "host/kernel/documents/Document.h"
#include "host/kernel/documents/Session.h"
#include "host/kernel/lisp/LispConversion.h"
#include "host/kernel/variables/SystemVariables.h"
#include "host/objects/ObjectModel.h"

namespace host::kernel {

namespace {

using lisp::Value;

constexpr char applicationKind[] = "Application";
constexpr std::uint64_t applicationNumber = 1;

/// The drawing that is typed to; while a program runs in another one, that one.
Value activeDocument(const ObjectCall &call)
{
    return documentObject(documentOf(call.args));
}

Value programName(const ObjectCall &call)
{
    return toLisp(documentOf(call.args).variables().text(u"PRODUCT"));
}

Value programVersion(const ObjectCall &call)
{
    return toLisp(documentOf(call.args).variables().text(u"ACADVER"));
}

Value thisApplication(const ObjectCall &)
{
    return applicationObject();
}

constexpr ObjectProperty applicationProperties[] = {
    {applicationKind, "ActiveDocument", activeDocument, nullptr, "the drawing that the program works on"},
    {applicationKind, "Application", thisApplication, nullptr, "the program itself"},
    {applicationKind, "Name", programName, nullptr, "the program's name"},
    {applicationKind, "Version", programVersion, nullptr, "the release number, as ACADVER has it"},
};

} // namespace

ObjectRows applicationRows()
{
    return {applicationProperties, {}};
}

Value applicationObject()
{
    return Value::hostObject(applicationKind, applicationNumber);
}

} // namespace host::kernel
