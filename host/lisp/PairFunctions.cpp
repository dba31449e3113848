// car, cdr and all their combinations of up to four.

#include "host/lisp/Arguments.h"
#include "host/lisp/Builtins.h"
#include "host/lisp/Interpreter.h"

namespace host::lisp {

// (c...r list) -> the part that the letters say, applied from the right: a the first item, d the rest. The letters are
// the bits of Path, the rightmost lowest, 1 for d. A step from something that is no list: bad argument type: listp.
template <unsigned Length, unsigned Path>
static Value part(Arguments &args)
{
    const Value *value = &args[0];
    for (unsigned step = 0; step < Length; ++step) {
        if (!value->isList())
            args.badType(0, "listp");
        value = (Path >> step & 1U) != 0 ? &value->cdr() : &value->car();
    }
    return *value;
}

static constexpr NativeRow pairRows[] = {
    {"car", part<1, 0b0>, Arity::exactly(1)},       {"cdr", part<1, 0b1>, Arity::exactly(1)},
    {"caar", part<2, 0b00>, Arity::exactly(1)},     {"cadr", part<2, 0b01>, Arity::exactly(1)},
    {"cdar", part<2, 0b10>, Arity::exactly(1)},     {"cddr", part<2, 0b11>, Arity::exactly(1)},
    {"caaar", part<3, 0b000>, Arity::exactly(1)},   {"caadr", part<3, 0b001>, Arity::exactly(1)},
    {"cadar", part<3, 0b010>, Arity::exactly(1)},   {"caddr", part<3, 0b011>, Arity::exactly(1)},
    {"cdaar", part<3, 0b100>, Arity::exactly(1)},   {"cdadr", part<3, 0b101>, Arity::exactly(1)},
    {"cddar", part<3, 0b110>, Arity::exactly(1)},   {"cdddr", part<3, 0b111>, Arity::exactly(1)},
    {"caaaar", part<4, 0b0000>, Arity::exactly(1)}, {"caaadr", part<4, 0b0001>, Arity::exactly(1)},
    {"caadar", part<4, 0b0010>, Arity::exactly(1)}, {"caaddr", part<4, 0b0011>, Arity::exactly(1)},
    {"cadaar", part<4, 0b0100>, Arity::exactly(1)}, {"cadadr", part<4, 0b0101>, Arity::exactly(1)},
    {"caddar", part<4, 0b0110>, Arity::exactly(1)}, {"cadddr", part<4, 0b0111>, Arity::exactly(1)},
    {"cdaaar", part<4, 0b1000>, Arity::exactly(1)}, {"cdaadr", part<4, 0b1001>, Arity::exactly(1)},
    {"cdadar", part<4, 0b1010>, Arity::exactly(1)}, {"cdaddr", part<4, 0b1011>, Arity::exactly(1)},
    {"cddaar", part<4, 0b1100>, Arity::exactly(1)}, {"cddadr", part<4, 0b1101>, Arity::exactly(1)},
    {"cdddar", part<4, 0b1110>, Arity::exactly(1)}, {"cddddr", part<4, 0b1111>, Arity::exactly(1)},
};

void addPairFunctions(Interpreter &interpreter)
{
    // One text for all, since the name says the way.
    for (NativeRow row : pairRows) {
        row.usage = "list";
        row.help = "the part that the letters lead to, read from the right: a is the first element, d the rest";
        interpreter.define({&row, 1});
    }
}

} // namespace host::lisp
