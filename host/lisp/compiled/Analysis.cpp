#include "host/lisp/compiled/Analysis.h"

#include <algorithm>

namespace host::lisp::compiled {

namespace {

/// The number of items of a list that ends in nil; nothing for a dotted one.
std::optional<std::size_t> properLengthOf(const Value &list)
{
    std::size_t length = 0;
    const Value *rest = &list;
    for (; rest->isCons(); rest = &rest->cdr())
        ++length;
    return rest->isNil() ? std::optional(length) : std::nullopt;
}

bool arePairsOfSymbols(const Value &arguments)
{
    const Value *rest = &arguments;
    for (; rest->isCons(); rest = &rest->cdr().cdr()) {
        if (!rest->car().isSymbol() || !rest->cdr().isCons())
            return false;
    }
    return true;
}

bool areClauses(const Value &arguments)
{
    const ListItems clauses(arguments);
    return std::all_of(clauses.begin(), clauses.end(),
                       [](const Value &clause) { return clause.isCons() && properLengthOf(clause).has_value(); });
}

} // namespace

bool Analysis::isVariable(const Symbol &symbol) const
{
    return std::find(m_variables.begin(), m_variables.end(), &symbol) != m_variables.end();
}

bool Analysis::holdsBuiltin(const Value &symbol) const
{
    return symbol.isSymbol() && m_shapes.find(symbol.asSymbol().value());
}

bool Analysis::isWellFormed(const KnownBuiltin &builtin, const Value &arguments) const
{
    const std::optional<std::size_t> count = properLengthOf(arguments);
    if (!count)
        return false;
    switch (builtin.shape) {
    case Shape::Quote:
    case Shape::Function:
    case Shape::Not:
    case Shape::Increment:
    case Shape::Predicate:
    case Shape::Part:
        return *count == 1;
    case Shape::Cons:
    case Shape::Apply:
        return *count == 2;
    case Shape::Walk:
        return builtin.native->arity.accepts(*count);
    case Shape::Setq:
        return *count > 0 && arePairsOfSymbols(arguments);
    case Shape::If:
        return *count == 2 || *count == 3;
    case Shape::Cond:
        return areClauses(arguments);
    case Shape::While:
    case Shape::Repeat:
        return *count >= 1;
    case Shape::Foreach:
        return *count >= 2 && arguments.car().isSymbol();
    default:
        return true;
    }
}

std::optional<KnownBuiltin> Analysis::builtinOf(const Value &form) const
{
    const Value &head = form.car();
    if (!head.isSymbol() || isVariable(head.asSymbol()))
        return std::nullopt;
    const KnownBuiltin *known = m_shapes.find(head.asSymbol().value());
    if (!known || !isWellFormed(*known, form.cdr()))
        return std::nullopt;
    KnownBuiltin builtin = *known;
    const bool ofTwo = builtin.shape == Shape::Arithmetic || builtin.shape == Shape::Comparison;
    if (ofTwo && listLength(form.cdr()) != 2)
        builtin.shape = Shape::Plain;
    return builtin;
}

bool Analysis::isSimple(const Value &form) const
{
    if (!form.isCons())
        return true;
    const std::optional<KnownBuiltin> builtin = builtinOf(form);
    return builtin && builtin->shape == Shape::Quote;
}

bool Analysis::isLiteralLambda(const Value &form, const Symbol &lambda)
{
    return form.car().isSymbol() && &form.car().asSymbol() == &lambda && form.cdr().isCons();
}

/// Calls `visit` with the forms among the arguments that are evaluated, in turn, until it gives false.
template <typename Visit>
bool Analysis::visitParts(const KnownBuiltin &builtin, const Value &arguments, Visit visit)
{
    const auto visitAll = [&visit](const Value &forms) {
        const ListItems items(forms);
        return std::all_of(items.begin(), items.end(), visit);
    };
    switch (builtin.shape) {
    case Shape::Quote:
    case Shape::Lambda:
    case Shape::Function:
        return true;
    case Shape::Setq:
        for (const Value *rest = &arguments; rest->isCons(); rest = &rest->cdr().cdr()) {
            if (!visit(rest->cdr().car()))
                return false;
        }
        return true;
    case Shape::Cond: {
        const ListItems clauses(arguments);
        return std::all_of(clauses.begin(), clauses.end(), visitAll);
    }
    case Shape::Foreach:
        return visitAll(arguments.cdr());
    default:
        return visitAll(arguments);
    }
}

Effect Analysis::ownEffect(const KnownBuiltin &builtin, const Value &arguments) const
{
    if (builtin.shape == Shape::Callback || builtin.shape == Shape::Walk || builtin.shape == Shape::Apply)
        return Effect::Calls;
    if (builtin.shape == Shape::Foreach)
        return holdsBuiltin(arguments.car()) ? Effect::Calls : Effect::Assigns;
    if (builtin.shape != Shape::Setq)
        return Effect::None;
    for (const Value *rest = &arguments; rest->isCons(); rest = &rest->cdr().cdr()) {
        if (holdsBuiltin(rest->car()))
            return Effect::Calls;
    }
    return Effect::Assigns;
}

Effect Analysis::walk(const Value &form)
{
    if (form.asCons().mark() == 0)
        m_isSuitable = false;
    Effect effect = Effect::Calls;
    const auto visit = [this, &effect](const Value &part) {
        effect = std::max(effect, effectOf(part));
        return m_isSuitable;
    };
    if (const std::optional<KnownBuiltin> builtin = builtinOf(form)) {
        effect = ownEffect(*builtin, form.cdr());
        visitParts(*builtin, form.cdr(), visit);
    } else {
        const ListItems arguments(form.cdr());
        std::all_of(arguments.begin(), arguments.end(), visit);
    }
    return effect;
}

Effect Analysis::effectOf(const Value &form)
{
    if (!form.isCons())
        return Effect::None;
    if (const auto found = m_effects.find(&form.asCons()); found != m_effects.end())
        return found->second;
    if (++m_depth > deepest)
        m_isSuitable = false;
    const Effect effect = m_isSuitable ? walk(form) : Effect::Calls;
    --m_depth;
    m_effects.emplace(&form.asCons(), effect);
    return effect;
}

Effect Analysis::effectOfAll(const Value &forms)
{
    Effect effect = Effect::None;
    for (const Value &form : ListItems(forms))
        effect = std::max(effect, effectOf(form));
    return effect;
}

bool Analysis::collectGuards(const Value &form, std::vector<Guard> &guards)
{
    if (!form.isCons())
        return true;
    const auto collect = [this, &guards](const Value &part) { return collectGuards(part, guards); };
    const std::optional<KnownBuiltin> builtin = builtinOf(form);
    if (!builtin) {
        // The arguments come before the call.
        const ListItems arguments(form.cdr());
        if (form.car().isSymbol())
            std::all_of(arguments.begin(), arguments.end(), collect);
        return false;
    }
    const Guard guard{&form.car().asSymbol(), builtin->native};
    if (std::find(guards.begin(), guards.end(), guard) == guards.end())
        guards.push_back(guard);
    return visitParts(*builtin, form.cdr(), collect) && effectOf(form) != Effect::Calls;
}

} // namespace host::lisp::compiled
