#include "host/lisp/Wrapping.h"
#include "host/lisp/compiled/Operations.h"

namespace host::lisp::compiled {

namespace {

template <Arithmetic Kind>
std::int32_t combineIntegers(std::int32_t left, std::int32_t right)
{
    switch (Kind) {
    case Arithmetic::Add:
        return wrappingAdd(left, right);
    case Arithmetic::Subtract:
        return wrappingSubtract(left, right);
    case Arithmetic::Multiply:
        return wrappingMultiply(left, right);
    case Arithmetic::Divide:
        return wrappingDivide(left, right);
    }
}

template <Arithmetic Kind>
double combineReals(double left, double right)
{
    switch (Kind) {
    case Arithmetic::Add:
        return left + right;
    case Arithmetic::Subtract:
        return left - right;
    case Arithmetic::Multiply:
        return left * right;
    case Arithmetic::Divide:
        return left / right;
    }
}

/// What is no number, and division by zero: the built-in says what is wrong.
template <From Left, From Right, To Result>
[[gnu::noinline]] const Word *refuseNumbers(Machine &machine, const Word *at, Value *top)
{
    using In = Operands<Left, Right>;
    Value result = machine.callNative(*at[4].site, top, In::left(at, top), In::right(at, top));
    return jumpTo(machine, at + operandWords, put<Result, In::onStack>(at[3].cell, top, result));
}

template <Arithmetic Kind, From Left, From Right, To Result>
[[gnu::noinline]] const Word *arithmeticOfReals(Machine &machine, const Word *at, Value *top)
{
    using In = Operands<Left, Right>;
    const Value &left = In::left(at, top);
    const Value &right = In::right(at, top);
    if (!left.isNumber() || !right.isNumber() || (Kind == Arithmetic::Divide && right.asReal() == 0.0)) [[unlikely]]
        return refuseNumbers<Left, Right, Result>(machine, at, top);
    const double number = combineReals<Kind>(left.asReal(), right.asReal());
    top = putNumber<Result, In::onStack>(at[3].cell, top, [number] { return Value::real(number); });
    return goOn(machine, at + operandWords, top);
}

template <Arithmetic Kind, From Left, From Right, To Result>
const Word *arithmetic(Machine &machine, const Word *at, Value *top)
{
    using In = Operands<Left, Right>;
    const Value &left = In::left(at, top);
    const Value &right = In::right(at, top);
    if (!left.isInteger() || !right.isInteger() || (Kind == Arithmetic::Divide && right.asInteger() == 0)) [[unlikely]]
        return arithmeticOfReals<Kind, Left, Right, Result>(machine, at, top);
    const std::int32_t number = combineIntegers<Kind>(left.asInteger(), right.asInteger());
    top = putNumber<Result, In::onStack>(at[3].cell, top, [number] { return Value::integer(number); });
    return goOn(machine, at + operandWords, top);
}

template <Arithmetic Kind, From Left, From Right>
Operation arithmeticTo(To result)
{
    return result == To::Stack ? arithmetic<Kind, Left, Right, To::Stack> : arithmetic<Kind, Left, Right, To::Cell>;
}

template <Arithmetic Kind>
Operation arithmeticOf(From left, From right, To result)
{
    if (left == From::Cell)
        return right == From::Cell ? arithmeticTo<Kind, From::Cell, From::Cell>(result)
                                   : arithmeticTo<Kind, From::Cell, From::Stack>(result);
    return right == From::Cell ? arithmeticTo<Kind, From::Stack, From::Cell>(result)
                               : arithmeticTo<Kind, From::Stack, From::Stack>(result);
}

} // namespace

Operation arithmeticOperation(Arithmetic kind, From left, From right, To result)
{
    switch (kind) {
    case Arithmetic::Add:
        return arithmeticOf<Arithmetic::Add>(left, right, result);
    case Arithmetic::Subtract:
        return arithmeticOf<Arithmetic::Subtract>(left, right, result);
    case Arithmetic::Multiply:
        return arithmeticOf<Arithmetic::Multiply>(left, right, result);
    case Arithmetic::Divide:
        break;
    }
    return arithmeticOf<Arithmetic::Divide>(left, right, result);
}

} // namespace host::lisp::compiled
