// Entities by name: reading, changing, making, erasing.

#include "host/drawing/records/Dictionaries.h"
#include "host/drawing/records/Entities.h"
#include "host/drawing/records/Journal.h"
#include "host/drawing/records/Tables.h"
#include "host/functions/EntityChange.h"
#include "host/functions/EntityCompletion.h"
#include "host/functions/FunctionGroups.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/lisp/EntityList.h"
#include "host/kernel/lisp/EntityMaker.h"
#include "host/kernel/lisp/LispConversion.h"
#include "host/lisp/Interpreter.h"
#include "host/lisp/Printer.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::RecordId;
using drawing::RecordKind;
using lisp::Arguments;
using lisp::Value;

/// Runs `body`, turning a bad entity list into the dialect's error.
template <typename Body>
Value checkedList(Arguments &args, Body &&body)
{
    try {
        return body();
    } catch (const EntityListError &error) {
        args.fail("bad DXF group: " + lisp::toText(error.item) + " (" + error.text.toStdString() + ")");
    }
}

/// Prints why nothing was made or changed; the function gives nil then.
Value refused(Arguments &args, const QString &reason)
{
    documentOf(args).print(u'\n' + reason + u'\n');
    return {};
}

// (entget entity [applications]) -> the entity's list, nil for an erased one. `applications` is a list of patterns:
// extended data of these is in it.
Value entget(Arguments &args)
{
    const Document &document = documentOf(args);
    const RecordId record = recordFrom(document, args.entity(0));
    if (!document.drawing().isAlive(record))
        return {};
    QStringList applications;
    for (const Value &pattern : lisp::ListItems(args.list(1))) {
        if (!pattern.isString())
            args.badType(1, "stringp");
        applications.append(QString::fromStdString(pattern.asString()));
    }
    return entityList(document, record, applications);
}

/// The extension dictionary that the fields name; null when there is none.
drawing::Handle extensionIn(const drawing::FieldList &fields)
{
    auto place = std::find_if(fields.cbegin(), fields.cend(), [](const drawing::Field &field) {
        return field.code == 102 && field.text().trimmed() == u"{ACAD_XDICTIONARY";
    });
    if (place != fields.cend())
        ++place;
    return place != fields.cend() && place->code == 360 ? place->handle() : drawing::Handle();
}

/// Gives a record the extension dictionary that the list names, where it has none. It is the record's own then, also
/// when another has it still, which is about to be erased.
void takeExtension(drawing::Drawing &drawing, RecordId record, const drawing::FieldList &given)
{
    const drawing::Handle wanted = extensionIn(given);
    const RecordId dictionary = wanted.isNull() ? drawing::noRecord : drawing.find(wanted);
    drawing::FieldList fields = drawing.fields(record);
    if (!drawing.isAlive(dictionary) || !drawing.isType(dictionary, "DICTIONARY") || !extensionIn(fields).isNull())
        return;
    const drawing::FieldList group{{102, u"{ACAD_XDICTIONARY"_s}, {360, wanted}, {102, u"}"_s}};
    // Behind type and handle.
    fields.insert(fields.begin() + std::min<qsizetype>(2, qsizetype(fields.size())), group.begin(), group.end());
    drawing.setFields(record, fields);
    drawing::FieldList owned = drawing.fields(dictionary);
    const drawing::Handle before = drawing.owner(dictionary);
    for (drawing::Field &field : owned)
        if (field.code == 330 && field.handle() == before)
            field.value = drawing.handle(record);
    drawing.setFields(dictionary, owned);
}

/// What of a list can name an extension dictionary.
drawing::FieldList referencesIn(const Document &document, const Value &list)
{
    drawing::FieldList fields;
    for (const Value &item : lisp::ListItems(list))
        if (item.car().isInteger() && (item.car().asInteger() == 102 || item.car().asInteger() == 360))
            fields.push_back(fromListItem(document, item, AngleForm::Degrees));
    return fields;
}

/// Whether the list says another type than the record has.
bool changesType(const drawing::Drawing &drawing, RecordId record, const Value &list)
{
    for (const Value &item : lisp::ListItems(list)) {
        if (!item.car().isInteger() || item.car().asInteger() != 0 || !item.cdr().isString())
            continue;
        const QString type = QString::fromStdString(item.cdr().asString()).trimmed();
        return type.compare(QLatin1StringView(drawing.typeName(record)), Qt::CaseInsensitive) != 0;
    }
    return false;
}

Value modifyEntity(Arguments &args, RecordId record)
{
    Document &document = documentOf(args);
    drawing::Drawing &drawing = document.drawing();
    if (changesType(drawing, record, args.list(0)))
        return refused(args, u"the type of an entity cannot be changed"_s);
    const drawing::JournalGroup group(drawing.journal(), {});
    takeExtension(drawing, record, referencesIn(document, args.list(0)));
    const drawing::FieldList before = drawing.fields(record);
    const drawing::FieldList wanted = completedText(document, before, changedFields(document, record, args.list(0)));
    // A list that is handed back as it was must leave no trace.
    if (wanted == before)
        return args[0];
    if (isEntityKind(drawing.kind(record))) {
        const QString error = drawing.entities().modify(record, wanted);
        if (!error.isEmpty())
            return refused(args, error);
        followDimension(document, record, before);
        return args[0];
    }
    if (drawing.kind(record) == RecordKind::TableEntry)
        drawing.tables().modify(record, wanted);
    else
        drawing.setFields(record, wanted);
    return args[0];
}

// (entmod list) -> the list, nil when the entity named in it by -1 cannot be changed so; the reason is printed.
Value entmod(Arguments &args)
{
    return checkedList(args, [&] {
        for (const Value &item : lisp::ListItems(args.list(0))) {
            if (!item.car().isInteger() || item.car().asInteger() != -1 || !item.cdr().isEntityName())
                continue;
            const RecordId record = recordFrom(documentOf(args), item.cdr().asEntityName());
            return documentOf(args).drawing().isAlive(record) ? modifyEntity(args, record) : Value();
        }
        args.badValue(0, "entity list without a name");
    });
}

/// Makes what the list says. The record is noRecord while more lists have to follow.
EntityMaker::Outcome makeEntity(Arguments &args)
{
    EntityMaker::Outcome outcome;
    checkedList(args, [&] {
        Document &document = documentOf(args);
        if (!args.has(0))
            args.badType(0, "consp");
        drawing::FieldList fields = fieldsFromList(document, args.list(0), AngleForm::Radians);
        const auto type = std::ranges::find(fields, 0, &drawing::Field::code);
        std::rotate(fields.begin(), type, type == fields.end() ? type : type + 1);
        outcome = document.entityMaker().make(completedText(document, std::move(fields)));
        if (!outcome.ok)
            refused(args, outcome.error);
        else if (isValid(outcome.record))
            completeDimensions(document, outcome.record);
        return Value();
    });
    return outcome;
}

// (entmake list) -> the list, a block's name for the ENDBLK that completes it, nil when it cannot be made; the reason
// is printed.
Value entmake(Arguments &args)
{
    const EntityMaker::Outcome outcome = makeEntity(args);
    if (!outcome.ok)
        return {};
    return outcome.blockName.isEmpty() ? args[0] : toLisp(outcome.blockName);
}

// (entmakex list) -> the name of the new entity, nil when it cannot be made or is not complete yet.
Value entmakex(Arguments &args)
{
    const EntityMaker::Outcome outcome = makeEntity(args);
    return outcome.ok && isValid(outcome.record) ? toLisp(outcome.record) : Value();
}

// (entdel entity) -> the name; erases it or brings it back, with what it owns. nil for parts of an entity, for table
// entries and for the dictionary that all others are found by.
Value entdel(Arguments &args)
{
    drawing::Drawing &drawing = documentOf(args).drawing();
    const RecordId record = recordAt(args, 0);
    const RecordKind kind = drawing.kind(record);
    if ((kind != RecordKind::Entity && kind != RecordKind::Object) || record == drawing.dictionaries().root())
        return {};
    const bool isErased = drawing.dictionaries().setErasedWithOwned(record, drawing.isAlive(record));
    return isErased ? args[0] : Value();
}

// (entupd entity) -> the name. The window follows every change by itself.
Value entupd(Arguments &args)
{
    return documentOf(args).drawing().isAlive(recordAt(args, 0)) ? args[0] : Value();
}

/// The last entity of a section or block; noRecord when it has none, or is none.
RecordId lastWithin(const drawing::Drawing &drawing, RecordId container)
{
    RecordId last = isValid(container) ? drawing.previous(drawing.endOf(container)) : drawing::noRecord;
    while (isValid(last) && (drawing.kind(last) == RecordKind::Child || drawing.kind(last) == RecordKind::EndChildren))
        last = drawing.parent(last);
    return isValid(last) && drawing.kind(last) == RecordKind::Entity ? last : drawing::noRecord;
}

// (entlast) -> the last entity of the drawing that is not a part of another, nil for an empty drawing. While a sheet
// that rests in its block is current, the last one there, if there is any.
Value entlast(Arguments &args)
{
    const drawing::Drawing &drawing = documentOf(args).drawing();
    RecordId last = lastWithin(drawing, restingSheet(drawing));
    if (!isValid(last))
        last = lastWithin(drawing, drawing.sectionRecord(drawing::Section::Entities));
    return isValid(last) ? toLisp(last) : Value();
}

// (entnext [entity]) -> the next entity, going into the parts of a POLYLINE or INSERT; in a block up to its end.
// Without an argument the first entity of the drawing. nil behind the last.
Value entnext(Arguments &args)
{
    const drawing::Drawing &drawing = documentOf(args).drawing();
    const RecordId next =
        args.has(0) ? entityBehind(drawing, recordAt(args, 0)) : drawing.entities().nextOfAll(drawing::noRecord);
    return isValid(next) ? toLisp(next) : Value();
}

// (handent handle) -> the entity name of a handle, nil when the drawing never had it.
Value handent(Arguments &args)
{
    const auto handle = drawing::Handle::fromText(stringAt(args, 0));
    const RecordId record = handle ? documentOf(args).drawing().find(*handle) : drawing::noRecord;
    return isValid(record) ? toLisp(record) : Value();
}

} // namespace

void addEntityFunctions(lisp::Interpreter &interpreter)
{
    static constexpr lisp::NativeRow rows[] = {
        {"entget", entget, lisp::Arity::between(1, 2), "entity [applications]",
         "the fields of an entity, as a list of pairs"},
        {"entmod", entmod, lisp::Arity::exactly(1), "list", "changes an entity to the fields of a list"},
        {"entmake", entmake, lisp::Arity::between(0, 1), "[list]", "makes an entity, or a part of one"},
        {"entmakex", entmakex, lisp::Arity::between(0, 1), "[list]",
         "makes an object or entity without an owner; its name"},
        {"entdel", entdel, lisp::Arity::exactly(1), "entity", "erases an entity, or takes that back"},
        {"entupd", entupd, lisp::Arity::exactly(1), "entity", "shows an entity as it is now"},
        {"entlast", entlast, lisp::Arity::exactly(0), "", "the entity made last"},
        {"entnext", entnext, lisp::Arity::between(0, 1), "[entity]", "the next entity; without one, the first"},
        {"handent", handent, lisp::Arity::exactly(1), "handle", "the entity of a handle"},
    };
    interpreter.define(rows);
}

} // namespace host::kernel
