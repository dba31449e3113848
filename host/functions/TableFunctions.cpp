// Symbol tables.

#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/Tables.h"
#include "host/functions/FunctionGroups.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/lisp/EntityList.h"
#include "host/kernel/lisp/LispConversion.h"
#include "host/lisp/Interpreter.h"

namespace host::kernel {

namespace {

using drawing::RecordId;
using drawing::TableKind;
using lisp::Arguments;
using lisp::Value;

/// Programs know block definitions as a table; there they are the BLOCK records.
bool namesBlocks(const QString &table)
{
    return table.compare(QStringLiteral("BLOCK"), Qt::CaseInsensitive) == 0;
}

/// The table's entry behind `cursor`, the first for noRecord; noRecord behind the last, and behind one that is gone
/// meanwhile. Throws for a name that is no table.
RecordId entryBehind(Arguments &args, const QString &table, RecordId cursor)
{
    const drawing::Drawing &drawing = documentOf(args).drawing();
    const bool isBlocks = namesBlocks(table);
    const auto kind = drawing::tableKindOf(table.toUpper());
    if (!isBlocks && !kind)
        args.badValue(0, "table name");
    const RecordId head = isBlocks ? drawing.sectionRecord(drawing::Section::Blocks) : drawing.tables().table(*kind);
    if (!isValid(head) || (isValid(cursor) && !drawing.isAlive(cursor)))
        return drawing::noRecord;
    RecordId entry = isValid(cursor) ? drawing.nextSibling(cursor) : drawing.firstChild(head);
    while (isBlocks && isValid(entry) && drawing.blocks().read(entry).isLayout())
        entry = drawing.nextSibling(entry);
    return entry;
}

RecordId entryNamed(Arguments &args, const QString &table, const QString &name)
{
    const drawing::Drawing &drawing = documentOf(args).drawing();
    if (namesBlocks(table))
        return drawing.blocks().find(name);
    const auto kind = drawing::tableKindOf(table.toUpper());
    if (!kind)
        args.badValue(0, "table name");
    return drawing.tables().find(*kind, name);
}

/// Handle, owner, markers and {...} groups are no part of what the table functions give.
bool isPlainCode(int code)
{
    return code != 5 && code != 105 && code != 100 && code != 102 && code != 330 && code != 360 && code < 1000;
}

/// What a BLOCK has in the file alone: its name twice, the layer of its marker, the path of no file; and what of a
/// LAYER came to it later, which only (entget) gives.
bool isFileMatter(drawing::RecordKind kind, QByteArrayView type, const drawing::Field &field)
{
    if (kind == drawing::RecordKind::Block)
        return field.code == 3 || field.code == 8 || (field.code == 1 && field.text().isEmpty());
    return type == "LAYER" && field.code > 70;
}

/// The entry as the table functions give it: (0 . "LAYER") (2 . "0") ..., a block with its first entity at the end.
Value tableList(Arguments &args, RecordId entry)
{
    const Document &document = documentOf(args);
    const drawing::Drawing &drawing = document.drawing();
    lisp::ListBuilder list;
    const bool isBlock = drawing.kind(entry) == drawing::RecordKind::Block;
    for (const drawing::Field &field : drawing.fields(entry)) {
        if (isPlainCode(field.code) && !isFileMatter(drawing.kind(entry), drawing.typeName(entry), field))
            list.append(toListItem(document, field, AngleForm::Radians));
    }
    if (const RecordId first = isBlock ? firstInBlock(drawing, entry) : drawing::noRecord; isValid(first))
        list.append(Value::cons(Value::integer(-2), toLisp(first)));
    return list.take();
}

// (tblsearch table name [next]) -> the entry's list, nil when there is none. With next, (tblnext table) goes on behind
// it. An unknown table is an error.
Value tblsearch(Arguments &args)
{
    const QString table = stringAt(args, 0);
    const RecordId entry = entryNamed(args, table, stringAt(args, 1));
    if (!isValid(entry))
        return {};
    if (args.has(2))
        documentOf(args).cursors().insert(table.toUpper(), entry);
    return tableList(args, entry);
}

// (tblnext table [rewind]) -> the next entry's list, the first with rewind or at the start, nil behind the last.
Value tblnext(Arguments &args)
{
    const QString table = stringAt(args, 0);
    QHash<QString, RecordId> &cursors = documentOf(args).cursors();
    const QString key = table.toUpper();
    if (args.has(1))
        cursors.remove(key);
    const RecordId next = entryBehind(args, table, cursors.value(key, drawing::noRecord));
    if (!isValid(next))
        return {};
    cursors.insert(key, next);
    return tableList(args, next);
}

// (tblobjname table name) -> the entry's entity name, nil when there is none.
Value tblobjname(Arguments &args)
{
    const RecordId entry = entryNamed(args, stringAt(args, 0), stringAt(args, 1));
    return isValid(entry) ? toLisp(entry) : Value();
}

// (snvalid name [bar]) -> T when a table entry may have that name.
Value snvalid(Arguments &args)
{
    static const QString refusedCharacters = QStringLiteral("<>/\\\":;?*,=`");
    const QString name = stringAt(args, 0);
    const bool mayHaveBar = args.has(1) && args.integer(1) != 0;
    const bool isRefused = std::any_of(name.begin(), name.end(), [&](QChar c) {
        return refusedCharacters.contains(c) || c < u' ' || (c == u'|' && !mayHaveBar);
    });
    return args.boolean(!name.isEmpty() && !name.startsWith(u' ') && !name.endsWith(u' ') && !isRefused);
}

} // namespace

void addTableFunctions(lisp::Interpreter &interpreter)
{
    static constexpr lisp::NativeRow rows[] = {
        {"tblsearch", tblsearch, lisp::Arity::between(2, 3), "table name [next]",
         "the entry of a table, as a list of pairs"},
        {"tblnext", tblnext, lisp::Arity::between(1, 2), "table [rewind]", "the next entry of a table"},
        {"tblobjname", tblobjname, lisp::Arity::exactly(2), "table name", "the entity name of a table's entry"},
        {"snvalid", snvalid, lisp::Arity::between(1, 2), "name [flag]",
         "T for what may be the name of a table's entry"},
    };
    interpreter.define(rows);
}

} // namespace host::kernel
