// What a tool lists of its run: what it did, and what it left alone and why.

#include "host/functions/FunctionGroups.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/documents/Results.h"
#include "host/kernel/lisp/LispConversion.h"
#include "host/lisp/Interpreter.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using lisp::Arguments;
using lisp::Value;

// (results-begin title) -> T; a new list in place of the one before.
Value resultsBegin(Arguments &args)
{
    documentOf(args).results().begin(QString::fromStdString(args.string(0)));
    return args.boolean(true);
}

// (results-add entity state text) -> T; nil when no list is open or it is full. The entity may be nil; the state is
// "done" or "skipped".
Value resultsAdd(Arguments &args)
{
    const std::string state = args.string(1);
    if (state != "done" && state != "skipped")
        args.badValue(1, "state");
    Results::Row row;
    row.entity = args[0].isNil() ? drawing::noRecord : recordAt(args, 0);
    row.state = state == "done" ? Results::State::Done : Results::State::Skipped;
    row.text = QString::fromStdString(args.string(2));
    return args.boolean(documentOf(args).results().add(std::move(row)));
}

// (results-end) -> how many things are listed; nil when no list is open. Where no window shows it, it is printed.
Value resultsEnd(Arguments &args)
{
    constexpr std::size_t mostPrinted = 200;
    Document &document = documentOf(args);
    if (!document.results().end())
        return {};
    const Results &results = document.results();
    document.print(u'\n' +
                   (results.isShown() ? results.summary() + u'\n' : results.toText(document.drawing(), mostPrinted)));
    return Value::integer(int(results.count(Results::State::Done) + results.count(Results::State::Skipped)));
}

} // namespace

void addResultFunctions(lisp::Interpreter &interpreter)
{
    using lisp::Arity;
    static constexpr lisp::NativeRow rows[] = {
        {"results-begin", resultsBegin, Arity::exactly(1), "title", "begins a list of what a tool does"},
        {"results-add", resultsAdd, Arity::exactly(3), "entity state text",
         "adds what became of an entity, \"done\" or \"skipped\", with words on it"},
        {"results-end", resultsEnd, Arity::exactly(0), "", "shows the list, or prints it where there is no window"},
    };
    interpreter.define(rows);
}

} // namespace host::kernel
