// What entities cover.

#include "host/functions/FunctionGroups.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/lisp/LispConversion.h"
#include "host/lisp/Interpreter.h"
#include "host/view/build/EntityExtents.h"

namespace host::kernel {

namespace {

using lisp::Arguments;
using lisp::Value;

// (acet-ent-geomextents entity) -> two corners of the box around what the entity draws, in world coordinates, those of
// the block for an entity of a block definition; nil when it draws nothing that ends.
Value entityExtents(Arguments &args)
{
    const drawing::Box box = documentOf(args).entityExtents().of(recordAt(args, 0));
    return box.isEmpty() ? Value() : Value::list({toLisp(box.low), toLisp(box.high)});
}

} // namespace

void addExtentFunctions(lisp::Interpreter &interpreter)
{
    static constexpr lisp::NativeRow rows[] = {
        {"acet-ent-geomextents", entityExtents, lisp::Arity::exactly(1), "entity", "the corners of an entity's box"},
    };
    interpreter.define(rows);
}

} // namespace host::kernel
