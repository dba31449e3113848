// Named objects.

#include "host/drawing/records/Dictionaries.h"
#include "host/drawing/records/Tables.h"
#include "host/functions/FunctionGroups.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/lisp/EntityList.h"
#include "host/kernel/lisp/LispConversion.h"
#include "host/lisp/Interpreter.h"

namespace host::kernel {

namespace {

using drawing::Dictionaries;
using drawing::RecordId;
using lisp::Arguments;
using lisp::Value;

/// A dictionary that is in the drawing; noRecord for another record.
RecordId dictionaryAt(Arguments &args, std::size_t index)
{
    const drawing::Drawing &drawing = documentOf(args).drawing();
    const RecordId record = recordAt(args, index);
    const bool isDictionary = drawing.isAlive(record) &&
                              (drawing.isType(record, "DICTIONARY") || drawing.isType(record, "ACDBDICTIONARYWDFLT"));
    return isDictionary ? record : drawing::noRecord;
}

// (namedobjdict) -> the drawing's dictionary of named objects, nil in drawings older than R13.
Value namedobjdict(Arguments &args)
{
    const RecordId root = documentOf(args).drawing().dictionaries().ensureRoot();
    return isValid(root) ? toLisp(root) : Value();
}

// (dictsearch dictionary name [next]) -> the object's list, nil when there is none. With next, (dictnext dictionary)
// goes on behind it.
Value dictsearch(Arguments &args)
{
    Document &document = documentOf(args);
    const RecordId dictionary = dictionaryAt(args, 0);
    const QString name = stringAt(args, 1);
    if (!isValid(dictionary))
        return {};
    const RecordId found = document.drawing().dictionaries().find(dictionary, name);
    if (!isValid(found))
        return {};
    if (args.has(2))
        document.cursors().insert(document.drawing().handle(dictionary).toString(), found);
    return entityList(document, found, {});
}

// (dictnext dictionary [rewind]) -> the next object's list, nil behind the last.
Value dictnext(Arguments &args)
{
    Document &document = documentOf(args);
    const RecordId dictionary = dictionaryAt(args, 0);
    if (!isValid(dictionary))
        return {};
    const QString key = document.drawing().handle(dictionary).toString();
    if (args.has(1))
        document.cursors().remove(key);
    bool isBehind = !document.cursors().contains(key);
    const RecordId cursor = document.cursors().value(key, drawing::noRecord);
    for (const Dictionaries::Entry &entry : document.drawing().dictionaries().entries(dictionary)) {
        if (isBehind && isValid(entry.record)) {
            document.cursors().insert(key, entry.record);
            return entityList(document, entry.record, {});
        }
        isBehind = isBehind || entry.record == cursor;
    }
    return {};
}

// (dictadd dictionary name object) -> the object's name, nil when the dictionary has the name already or cannot take
// the object.
Value dictadd(Arguments &args)
{
    Dictionaries &dictionaries = documentOf(args).drawing().dictionaries();
    const RecordId dictionary = dictionaryAt(args, 0);
    const QString name = stringAt(args, 1);
    const RecordId object = recordAt(args, 2);
    if (!isValid(dictionary) || name.isEmpty() || isValid(dictionaries.find(dictionary, name)))
        return {};
    return dictionaries.set(dictionary, name, object) ? args[2] : Value();
}

// (dictremove dictionary name) -> the entity name of what was taken out, nil when there was nothing.
Value dictremove(Arguments &args)
{
    Dictionaries &dictionaries = documentOf(args).drawing().dictionaries();
    const RecordId dictionary = dictionaryAt(args, 0);
    const QString name = stringAt(args, 1);
    const RecordId found = isValid(dictionary) ? dictionaries.find(dictionary, name) : drawing::noRecord;
    return isValid(found) && dictionaries.remove(dictionary, name) ? toLisp(found) : Value();
}

// (dictrename dictionary old new) -> the new name, nil when there is no old one or something has the new one.
Value dictrename(Arguments &args)
{
    Dictionaries &dictionaries = documentOf(args).drawing().dictionaries();
    const RecordId dictionary = dictionaryAt(args, 0);
    const QString newName = stringAt(args, 2);
    if (!isValid(dictionary) || newName.isEmpty())
        return {};
    return dictionaries.rename(dictionary, stringAt(args, 1), newName) ? args[2] : Value();
}

// (regapp name) -> the name; nil when the application is registered already or the name cannot be one.
Value regapp(Arguments &args)
{
    drawing::Tables &tables = documentOf(args).drawing().tables();
    const QString name = stringAt(args, 0);
    if (isValid(tables.find(drawing::TableKind::AppId, name)))
        return {};
    return isValid(tables.add(drawing::TableKind::AppId, name)) ? args[0] : Value();
}

} // namespace

void addDictionaryFunctions(lisp::Interpreter &interpreter)
{
    static constexpr lisp::NativeRow rows[] = {
        {"namedobjdict", namedobjdict, lisp::Arity::exactly(0), "", "the dictionary of all dictionaries"},
        {"dictsearch", dictsearch, lisp::Arity::between(2, 3), "dictionary name [restart]",
         "the object of a name in a dictionary, as entget gives it"},
        {"dictnext", dictnext, lisp::Arity::between(1, 2), "dictionary [rewind]", "the next object of a dictionary"},
        {"dictadd", dictadd, lisp::Arity::exactly(3), "dictionary name object", "puts an object into a dictionary"},
        {"dictremove", dictremove, lisp::Arity::exactly(2), "dictionary name", "takes a name out of a dictionary"},
        {"dictrename", dictrename, lisp::Arity::exactly(3), "dictionary old new", "renames an entry of a dictionary"},
        {"regapp", regapp, lisp::Arity::exactly(1), "name", "registers an application, for extended data"},
    };
    interpreter.define(rows);
}

} // namespace host::kernel
