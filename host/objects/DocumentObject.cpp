// An open drawing, as programs of the dialect see it.

#include "host/kernel/documents/Document.h"
#include "host/kernel/documents/Session.h"
#include "host/kernel/documents/UndoSteps.h"
#include "host/kernel/lisp/LispConversion.h"
#include "host/objects/ObjectModel.h"

#include <QDir>
#include <QFileInfo>

namespace host::kernel {

namespace {

using lisp::Value;

constexpr char documentKind[] = "Document";

/// The object's number is where the document is in memory: it is looked for among those that are open.
Document &documentOfObject(const ObjectCall &call)
{
    for (const std::unique_ptr<Document> &open : documentOf(call.args).session().documents().documents())
        if (reinterpret_cast<std::uintptr_t>(open.get()) == call.object.number)
            return *open;
    call.args.fail("the drawing is not open any more");
}

Value documentName(const ObjectCall &call)
{
    return toLisp(documentOfObject(call).title());
}

Value fullName(const ObjectCall &call)
{
    return toLisp(documentOfObject(call).path());
}

/// The folder of the drawing's file; empty for a drawing that has none yet.
Value folderOfDocument(const ObjectCall &call)
{
    const QString path = documentOfObject(call).path();
    return toLisp(path.isEmpty() ? QString() : QDir::toNativeSeparators(QFileInfo(path).absolutePath()));
}

Value hasNoChanges(const ObjectCall &call)
{
    return call.args.boolean(!documentOfObject(call).isModified());
}

Value applicationOfDocument(const ObjectCall &)
{
    return applicationObject();
}

// What is changed from here to the end mark is one undo step.
Value startUndoMark(const ObjectCall &call)
{
    documentOfObject(call).undoSteps().begin();
    return {};
}

Value endUndoMark(const ObjectCall &call)
{
    documentOfObject(call).undoSteps().end();
    return {};
}

constexpr ObjectProperty documentProperties[] = {
    {documentKind, "Application", applicationOfDocument, nullptr, "the program that has it open"},
    {documentKind, "FullName", fullName, nullptr, "the path of its file"},
    {documentKind, "Name", documentName, nullptr, "the name of its file, as the window shows it"},
    {documentKind, "Path", folderOfDocument, nullptr, "the folder of its file"},
    {documentKind, "Saved", hasNoChanges, nullptr, "whether its file holds all of it"},
};

constexpr ObjectMethod documentMethods[] = {
    {documentKind, "EndUndoMark", lisp::Arity::exactly(0), endUndoMark, "", "ends what becomes one undo step"},
    {documentKind, "StartUndoMark", lisp::Arity::exactly(0), startUndoMark, "", "begins what becomes one undo step"},
};

} // namespace

ObjectRows documentRows()
{
    return {documentProperties, documentMethods};
}

Value documentObject(const Document &document)
{
    return Value::hostObject(documentKind, reinterpret_cast<std::uintptr_t>(&document));
}

} // namespace host::kernel
