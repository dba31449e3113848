#pragma once

#include "Documents.h"
#include "Hand.h"
#include "ModuleFile.h"

namespace sample {

/// The host as a whole: the module's file, and what the toy Lisp of each document can do with the host.
///
///     (open-document "a.dxf")        a document more, which becomes the active one; gives the number of documents
///     (activate 1) (close-document)  another one, by its place from 1; closing the active one
///     (save)                         tells the module that the drawing is about to be written
///     (command "NAME" answers...)    runs a command of the module
///     (hand "press" "NAME") ...      a step for the next dialog, see Hand
///     (functions) (unload)           how many functions the module has defined here; takes the module out
class Program
{
public:
    explicit Program(Hand &hand) : m_hand(hand) {}
    /// Closes the documents, then takes the module out.
    ~Program();

    /// A sentence when the module cannot be loaded, else empty.
    QString load(const QString &path) { return m_module.load(path); }
    void openDocument(const QString &path);
    /// Evaluates `text` form by form, each in the document that is active then, and prints what comes of it. False
    /// after an error, which ends it.
    bool run(const QString &text);

private:
    void addFunctions(LispEngine &engine);
    Value runCommand(const Value::List &arguments);
    Value addStep(const Value::List &arguments);
    void unload();

    Hand &m_hand;
    ModuleFile m_module;
};

} // namespace sample
