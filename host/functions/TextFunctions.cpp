// How much room texts take.

#include "host/functions/FunctionGroups.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/lisp/EntityList.h"
#include "host/kernel/lisp/LispConversion.h"
#include "host/kernel/variables/SystemVariables.h"
#include "host/lisp/Interpreter.h"
#include "host/lisp/Printer.h"
#include "host/view/build/TextMeasure.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::FieldList;
using lisp::Arguments;
using lisp::Value;

/// The list as a text's fields, its type in front. A height and style that it does not have are the current ones.
FieldList textFields(Document &document, const Value &list)
{
    FieldList fields = fieldsFromList(document, list, AngleForm::Radians);
    const drawing::Field *type = drawing::findField(fields, 0);
    const QString name = type ? type->text() : u"TEXT"_s;
    std::erase_if(fields, [](const drawing::Field &field) { return field.code == 0; });
    fields.insert(fields.begin(), {0, name});
    if (!drawing::findField(fields, 40))
        fields.push_back({40, document.variables().real(u"TEXTSIZE", 1.0)});
    if (!drawing::findField(fields, 7))
        fields.push_back({7, document.variables().text(u"TEXTSTYLE")});
    return fields;
}

// (textbox list) -> two corners of what the letters of a text cover, as if its insertion point were the origin and it
// were not turned. `list` is that of a TEXT, ATTRIB or ATTDEF, or a part of it. nil for other entities.
Value textbox(Arguments &args)
{
    try {
        const FieldList fields = textFields(documentOf(args), args.list(0));
        static const QStringList types = {u"TEXT"_s, u"ATTRIB"_s, u"ATTDEF"_s};
        if (!types.contains(fields.front().text()))
            return {};
        drawing::Box box = documentOf(args).textMeasure().lineBox(fields);
        if (box.isEmpty())
            box = {{}, {}};
        return Value::list({toLisp(box.low), toLisp(box.high)});
    } catch (const EntityListError &error) {
        args.fail("bad DXF group: " + lisp::toText(error.item) + " (" + error.text.toStdString() + ")");
    }
}

} // namespace

void addTextFunctions(lisp::Interpreter &interpreter)
{
    static constexpr lisp::NativeRow rows[] = {
        {"textbox", textbox, lisp::Arity::exactly(1), "list", "the corners of a text's box, from the text's own point"},
    };
    interpreter.define(rows);
}

} // namespace host::kernel
