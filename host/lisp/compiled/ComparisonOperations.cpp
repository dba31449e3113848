#include "host/lisp/Equality.h"
#include "host/lisp/compiled/Operations.h"

namespace host::lisp::compiled {

namespace {

template <Comparison Kind, typename Number>
bool holds(Number left, Number right)
{
    switch (Kind) {
    case Comparison::Less:
        return left < right;
    case Comparison::LessOrEqual:
        return left <= right;
    case Comparison::Greater:
        return left > right;
    case Comparison::GreaterOrEqual:
        return left >= right;
    case Comparison::NotEqual:
        return left != right;
    default:
        return left == right;
    }
}

constexpr bool isOrder(Comparison kind)
{
    return kind <= Comparison::GreaterOrEqual;
}

/// Whatever the two are; what cannot be put in order makes the built-in fail.
template <Comparison Kind>
bool compareAny(Machine &machine, const Site &site, Value *top, const Value &left, const Value &right)
{
    const bool areNumbers = left.isNumber() && right.isNumber();
    if (Kind == Comparison::Same)
        return left.isSame(right);
    if (Kind == Comparison::LookAlike) {
        machine.top = top;
        return machine.interpreter().equal(left, right);
    }
    if (areNumbers)
        return holds<Kind>(left.asReal(), right.asReal());
    if (isOrder(Kind))
        return machine.callNative(site, top, left, right).isTrue();
    return left.isSame(right) == (Kind == Comparison::Equal);
}

template <Comparison Kind, From Left, From Right, bool jumpsWhen>
[[gnu::noinline]] const Word *comparisonOfAny(Machine &machine, const Word *at, Value *top)
{
    using In = Operands<Left, Right>;
    const bool truth = compareAny<Kind>(machine, *at[4].site, top, In::left(at, top), In::right(at, top));
    return jumpTo(machine, truth == jumpsWhen ? at[3].target : at + operandWords, discard<In::onStack>(top));
}

template <Comparison Kind, From Left, From Right, bool jumpsWhen>
const Word *comparison(Machine &machine, const Word *at, Value *top)
{
    using In = Operands<Left, Right>;
    const Value &left = In::left(at, top);
    const Value &right = In::right(at, top);
    if (!left.isInteger() || !right.isInteger()) [[unlikely]]
        return comparisonOfAny<Kind, Left, Right, jumpsWhen>(machine, at, top);
    const bool truth = holds<Kind>(left.asInteger(), right.asInteger());
    return goOn(machine, truth == jumpsWhen ? at[3].target : at + operandWords, top - In::onStack);
}

template <Comparison Kind, From Left, From Right>
Operation comparisonWhen(bool jumpsWhen)
{
    return jumpsWhen ? comparison<Kind, Left, Right, true> : comparison<Kind, Left, Right, false>;
}

template <Comparison Kind>
Operation comparisonOf(From left, From right, bool jumpsWhen)
{
    if (left == From::Cell)
        return right == From::Cell ? comparisonWhen<Kind, From::Cell, From::Cell>(jumpsWhen)
                                   : comparisonWhen<Kind, From::Cell, From::Stack>(jumpsWhen);
    return right == From::Cell ? comparisonWhen<Kind, From::Stack, From::Cell>(jumpsWhen)
                               : comparisonWhen<Kind, From::Stack, From::Stack>(jumpsWhen);
}

template <Predicate Kind>
bool isOfKind(const Value &value)
{
    switch (Kind) {
    case Predicate::IsTrue:
        return value.isTrue();
    case Predicate::IsAtom:
        return !value.isCons();
    case Predicate::IsList:
        return value.isList();
    case Predicate::IsPair:
        return value.isCons();
    case Predicate::IsNumber:
        return value.isNumber();
    case Predicate::IsSymbol:
        return value.isSymbol();
    case Predicate::IsZero:
        return value.asReal() == 0;
    case Predicate::IsNegative:
        return value.asReal() < 0;
    }
}

constexpr bool wantsNumber(Predicate kind)
{
    return kind == Predicate::IsZero || kind == Predicate::IsNegative;
}

[[gnu::noinline]] void refuseOperand(Machine &machine, const Word *at, Value *top, const Value &value)
{
    machine.callNative(*at[4].site, top, value, value);
}

template <Predicate Kind, From Operand, bool jumpsWhen>
const Word *predicate(Machine &machine, const Word *at, Value *top)
{
    const Value &value = Operand == From::Stack ? top[-1] : *at[1].value;
    if constexpr (wantsNumber(Kind)) {
        // Never comes back.
        if (!value.isNumber()) [[unlikely]]
            refuseOperand(machine, at, top, value);
    }
    const bool truth = isOfKind<Kind>(value);
    if constexpr (Operand == From::Stack)
        top = discard<1>(top);
    return goOn(machine, truth == jumpsWhen ? at[3].target : at + operandWords, top);
}

template <Predicate Kind>
Operation predicateOf(From operand, bool jumpsWhen)
{
    if (operand == From::Cell)
        return jumpsWhen ? predicate<Kind, From::Cell, true> : predicate<Kind, From::Cell, false>;
    return jumpsWhen ? predicate<Kind, From::Stack, true> : predicate<Kind, From::Stack, false>;
}

using ComparisonMaker = Operation (*)(From, From, bool);
constexpr ComparisonMaker comparisonMakers[] = {
    comparisonOf<Comparison::Less>,           comparisonOf<Comparison::LessOrEqual>, comparisonOf<Comparison::Greater>,
    comparisonOf<Comparison::GreaterOrEqual>, comparisonOf<Comparison::Equal>,       comparisonOf<Comparison::NotEqual>,
    comparisonOf<Comparison::Same>,           comparisonOf<Comparison::LookAlike>,
};

using PredicateMaker = Operation (*)(From, bool);
constexpr PredicateMaker predicateMakers[] = {
    predicateOf<Predicate::IsTrue>, predicateOf<Predicate::IsAtom>,     predicateOf<Predicate::IsList>,
    predicateOf<Predicate::IsPair>, predicateOf<Predicate::IsNumber>,   predicateOf<Predicate::IsSymbol>,
    predicateOf<Predicate::IsZero>, predicateOf<Predicate::IsNegative>,
};

} // namespace

Operation comparisonOperation(Comparison kind, From left, From right, bool jumpsWhen)
{
    return comparisonMakers[static_cast<std::size_t>(kind)](left, right, jumpsWhen);
}

Operation predicateOperation(Predicate kind, From operand, bool jumpsWhen)
{
    return predicateMakers[static_cast<std::size_t>(kind)](operand, jumpsWhen);
}

} // namespace host::lisp::compiled
