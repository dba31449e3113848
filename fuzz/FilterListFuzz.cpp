// Any Lisp value as a selection's filter list and as a chain of result buffers: a filter chooses some of the entities
// or says why there is none, and a chain gives a value that makes the same chain again.

#include "fuzz/HostSession.h"
#include "fuzz/Require.h"
#include "host/drawing/records/Entities.h"
#include "host/kernel/lisp/ResBufConversion.h"
#include "host/kernel/lisp/SelectionFilterList.h"
#include "host/lisp/Interpreter.h"
#include "host/lisp/Printer.h"
#include "host/lisp/Reader.h"

using namespace host;

namespace {

std::vector<lisp::Value> valuesOf(lisp::Interpreter &interpreter, std::string_view text)
{
    std::vector<lisp::Value> values;
    try {
        lisp::Reader reader(interpreter, "fuzz");
        reader.feed(text);
        reader.finish();
        while (const std::optional<lisp::Value> value = reader.next())
            values.push_back(*value);
    } catch (const lisp::Error &) {
    }
    return values;
}

void checkFilter(const kernel::Document &document, const lisp::Value &list)
{
    const drawing::SelectionFilter::Outcome outcome = kernel::filterFromList(document, list);
    require(outcome.filter.has_value() == outcome.error.isEmpty());
    if (!outcome.filter)
        return;
    const drawing::Drawing &drawing = document.drawing();
    for (const drawing::RecordId entity : drawing.entities().all())
        require(outcome.filter->matching(drawing, {entity}).size() ==
                (outcome.filter->matches(drawing, entity) ? 1 : 0));
}

void checkChain(lisp::Interpreter &interpreter, const lisp::Value &value)
{
    const auto throughChain = [&](const lisp::Value &given) {
        const OdResBufPtr chain = kernel::chainFromValues({given});
        const OdResBuf *link = chain.get();
        lisp::Value back = kernel::valueFromChain(link, interpreter, {});
        require(link == nullptr);
        return back;
    };
    const lisp::Value once = throughChain(value);
    require(lisp::toText(throughChain(once)) == lisp::toText(once));
}

kernel::Document &furnishedDocument()
{
    static kernel::Document &document = [&]() -> kernel::Document & {
        kernel::Document &made = *hostSession().documents().active();
        made.run(QStringLiteral("(entmake '((0 . \"LINE\") (8 . \"A\") (62 . 3) (10 1 2 3) (11 4 5 6)"
                                " (-3 (\"ACAD\" (1000 . \"x\"))))) (entmake '((0 . \"CIRCLE\") (10 0 0 0) (40 . 2)))"
                                " (entmake '((0 . \"TEXT\") (10 0 0 0) (40 . 1) (1 . \"a b\") (50 . 0.5)))"));
        require(made.drawing().entities().all().size() == 3);
        return made;
    }();
    return document;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    furnishedDocument();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    kernel::Document &document = furnishedDocument();
    const std::string_view text(reinterpret_cast<const char *>(data), size);
    for (const lisp::Value &value : valuesOf(document.interpreter(), text)) {
        checkFilter(document, value);
        checkChain(document.interpreter(), value);
    }
    return 0;
}
