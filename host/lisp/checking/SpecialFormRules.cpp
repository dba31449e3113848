// How the arguments of special forms are evaluated, a row each; a form without one evaluates them all.

#include "host/lisp/checking/Collector.h"

#include <algorithm>

namespace host::lisp::checking {

namespace {

struct FormRule
{
    std::string_view name;
    Arity arity;
    void (*walk)(Collector &, const SyntaxNode &);
};

void walkAll(Collector &collector, const SyntaxNode &form)
{
    collector.walkItems(form, 1);
}

void walkQuote(Collector &collector, const SyntaxNode &form)
{
    for (std::size_t i = 1; i < form.items.size(); ++i)
        collector.walkQuoted(form.items[i]);
}

void walkSetq(Collector &collector, const SyntaxNode &form)
{
    collector.walkAssignments(form);
}

void walkDefun(Collector &collector, const SyntaxNode &form)
{
    collector.walkDefinition(form);
}

void walkLambdaForm(Collector &collector, const SyntaxNode &form)
{
    collector.walkLambda(form, -1, {});
}

void walkForeach(Collector &collector, const SyntaxNode &form)
{
    collector.walkLoop(form);
}

void walkCond(Collector &collector, const SyntaxNode &form)
{
    collector.walkClauses(form);
}

/// What a test sets is gone with its drawing.
void walkTest(Collector &collector, const SyntaxNode &form)
{
    collector.walkItems(form, 2);
}

constexpr FormRule rules[] = {
    {"AND", Arity::any(), walkAll},
    {"COND", Arity::any(), walkCond},
    {"DEFUN", Arity::atLeast(2), walkDefun},
    {"DEFUN-Q", Arity::atLeast(2), walkDefun},
    {"DEFTEST", Arity::atLeast(1), walkTest},
    {"FOREACH", Arity::atLeast(2), walkForeach},
    {"FUNCTION", Arity::exactly(1), walkQuote},
    {"IF", Arity::between(2, 3), walkAll},
    {"IS", Arity::exactly(1), walkAll},
    {"IS-EQUAL", Arity::between(2, 3), walkAll},
    {"IS-ERROR", Arity::between(1, 2), walkAll},
    {"LAMBDA", Arity::atLeast(1), walkLambdaForm},
    {"OR", Arity::any(), walkAll},
    {"PROGN", Arity::any(), walkAll},
    {"QUOTE", Arity::exactly(1), walkQuote},
    {"REPEAT", Arity::atLeast(1), walkAll},
    {"SETQ", Arity::any(), walkSetq},
    {"TRACE", Arity::any(), walkQuote},
    {"UNTRACE", Arity::any(), walkQuote},
    {"WHILE", Arity::atLeast(1), walkAll},
};

const FormRule *ruleOf(std::string_view name)
{
    const auto *rule = std::ranges::lower_bound(rules, name, {}, &FormRule::name);
    return rule != std::end(rules) && rule->name == name ? rule : nullptr;
}

} // namespace

bool walkSpecialForm(Collector &collector, const SyntaxNode &form)
{
    const FormRule *rule = ruleOf(form.items[0].name);
    if (rule)
        rule->walk(collector, form);
    return rule != nullptr;
}

const Arity *specialFormArity(std::string_view name)
{
    const FormRule *rule = ruleOf(name);
    return rule ? &rule->arity : nullptr;
}

} // namespace host::lisp::checking
