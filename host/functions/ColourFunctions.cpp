// Colours that the user chooses.

#include "host/functions/ColourDialog.h"
#include "host/functions/FunctionGroups.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/documents/Session.h"
#include "host/kernel/input/UserInput.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/lisp/LispConversion.h"
#include "host/lisp/Interpreter.h"

namespace host::kernel {

namespace {

using lisp::Arguments;
using lisp::Value;

std::optional<ChosenColour> askOnLine(Document &document, const ChosenColour &present, ColourChoice choice)
{
    PromptRequest request;
    request.kind = PromptKind::String;
    request.defaultText = QString::number(present.index);
    request.prompt = Functions::tr("\nNew color <%1>: ").arg(request.defaultText);
    while (true) {
        const PromptReply reply = document.prompts().ask(request);
        if (reply.kind == ReplyKind::Cancelled)
            return std::nullopt;
        if (!reply.hasValue() || reply.text.isEmpty())
            return present;
        if (const std::optional<int> number = colourNumber(reply.text, choice.hasLogical))
            return ChosenColour{.index = *number};
        document.print(Functions::tr("\nRequires a color number or name."));
    }
}

/// Without a window the command line asks, for a number or name. Nothing when the user cancels.
std::optional<ChosenColour> askColour(Document &document, const ChosenColour &present, ColourChoice choice)
{
    QWidget *window = document.session().mainWindow();
    if (!window)
        return askOnLine(document, present, choice);
    ColourDialog dialog(window, present, choice);
    return dialog.exec() == QDialog::Accepted ? std::optional(dialog.chosen()) : std::nullopt;
}

// (acad_colordlg number [logical]) -> the number of the colour that the user chose, nil when there is none. With
// logical nil neither 256 (by layer) nor 0 (by block) can be chosen.
Value colourDialog(Arguments &args)
{
    const std::int32_t present = args.integer(0);
    if (present < 0 || present > 256)
        return {};
    const bool hasLogical = args.size() < 2 || args.has(1);
    const auto chosen = askColour(documentOf(args), {.index = present}, {.hasLogical = hasLogical, .hasTrue = false});
    return chosen ? Value::integer(chosen->index) : Value();
}

/// The colour of a list of (62 . number) and (420 . colour), or of one of these pairs.
ChosenColour colourOf(Arguments &args, std::size_t index)
{
    constexpr std::int32_t indexCode = 62;
    constexpr std::int32_t trueCode = 420;
    ChosenColour colour;
    const Value pairs = args.list(index).car().isCons() ? args[index] : Value::list({args[index]});
    for (const Value &pair : lisp::ListItems(pairs)) {
        if (!pair.car().isInteger() || !pair.cdr().isInteger())
            args.badValue(index, "color");
        if (pair.car().asInteger() == indexCode)
            colour.index = pair.cdr().asInteger();
        else if (pair.car().asInteger() == trueCode)
            colour.trueColour = static_cast<QRgb>(pair.cdr().asInteger()) & 0xffffffU;
    }
    return colour;
}

// (acad_truecolordlg color [logical [ofLayer]]) -> the colour that the user chose as a list of (62 . number) and, for
// one that is not of the table, (420 . colour); nil when there is none. The first argument is such a pair or a list of
// them.
Value trueColourDialog(Arguments &args)
{
    const bool hasLogical = args.size() < 2 || args.has(1);
    const auto chosen = askColour(documentOf(args), colourOf(args, 0), {.hasLogical = hasLogical, .hasTrue = true});
    if (!chosen)
        return {};
    const Value index = Value::cons(Value::integer(62), Value::integer(chosen->index));
    if (!chosen->trueColour)
        return Value::list({index});
    const auto colour = static_cast<std::int32_t>(*chosen->trueColour & 0xffffffU);
    return Value::list({index, Value::cons(Value::integer(420), Value::integer(colour))});
}

} // namespace

void addColourFunctions(lisp::Interpreter &interpreter)
{
    using lisp::Arity;
    static constexpr lisp::NativeRow rows[] = {
        {"acad_colordlg", colourDialog, Arity::between(1, 2), "number [logical]",
         "the number of a color that the user chooses"},
        {"acad_truecolordlg", trueColourDialog, Arity::between(1, 3), "color [logical [oflayer]]",
         "a color of any kind that the user chooses"},
    };
    interpreter.define(rows);
}

} // namespace host::kernel
