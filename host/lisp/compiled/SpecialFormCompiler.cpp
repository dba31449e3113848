// Special forms: assignments, branches, loops.

#include "host/lisp/compiled/FormCompiler.h"

namespace host::lisp::compiled {

void FormCompiler::compileSetq(const Value &arguments, const Destination &to)
{
    const Value *cell = &detail::nil;
    for (const Value *rest = &arguments; rest->isCons(); rest = &rest->cdr().cdr()) {
        Value &target = rest->car().asSymbol().value();
        compile(rest->cdr().car(), Destination::cell(target));
        if (m_analysis.holdsBuiltin(rest->car()))
            m_guarded.clear();
        cell = &target;
    }
    compileConstant(*cell, to);
}

void FormCompiler::compileIf(const Value &arguments, const Destination &to)
{
    const Label otherwise = m_assembler.newLabel();
    const Label end = m_assembler.newLabel();
    compile(arguments.car(), Destination::jump(otherwise, false));
    const int depth = m_assembler.depth();
    const std::vector<Guard> guarded = m_guarded;
    compile(arguments.cdr().car(), to);
    const bool isGuardedStill = m_guarded == guarded;
    m_assembler.begin(jumpOperation, 0);
    m_assembler.add(end);
    m_assembler.place(otherwise);
    m_assembler.setDepth(depth);
    m_guarded = guarded;
    compile(arguments.cdr().cdr().car(), to);
    m_assembler.place(end);
    if (!isGuardedStill)
        m_guarded.clear();
}

void FormCompiler::compileCond(const Value &clauses, const Destination &to)
{
    // The value of a test that has nothing behind it is on the stack in any case.
    const Destination way = to.kind == Kind::Nothing ? to : Destination::stack();
    const Label end = m_assembler.newLabel();
    const int depth = m_assembler.depth();
    const std::vector<Guard> guarded = m_guarded;
    bool isGuardedStill = true;
    for (const Value &clause : ListItems(clauses)) {
        compileClause(clause, way, end);
        isGuardedStill = isGuardedStill && m_guarded == guarded;
        m_assembler.setDepth(depth);
    }
    compileConstant(detail::nil, way);
    m_assembler.place(end);
    if (!isGuardedStill)
        m_guarded.clear();
    if (to.kind != Kind::Nothing)
        deliver(to);
}

void FormCompiler::compileClause(const Value &clause, const Destination &to, Label end)
{
    const Label next = m_assembler.newLabel();
    if (clause.cdr().isCons()) {
        compile(clause.car(), Destination::jump(next, false));
        const std::vector<Guard> guarded = m_guarded;
        compileBody(clause.cdr(), to);
        m_assembler.begin(jumpOperation, 0);
        m_assembler.add(end);
        m_assembler.place(next);
        if (m_guarded != guarded)
            m_guarded.clear();
    } else if (to.kind == Kind::Nothing) {
        compile(clause.car(), Destination::jump(end, true));
    } else {
        compile(clause.car(), Destination::stack());
        m_assembler.begin(jumpKeepingOperation, -1);
        m_assembler.add(end);
    }
}

/// Before a loop: its value while there was no round, and no guards but those that hold in each.
void FormCompiler::beginLoop(const Value &form, const Destination &to)
{
    if (to.kind != Kind::Nothing)
        pushValue(detail::nil);
    if (m_analysis.effectOf(form) == Effect::Calls)
        m_guarded.clear();
}

/// The forms of a loop; their value takes the place of the one so far below it.
void FormCompiler::compileRound(const Value &forms, const Destination &to, int distance)
{
    if (to.kind == Kind::Nothing)
        return compileBody(forms, to);
    compileBody(forms, Destination::stack());
    const std::optional<Word> value = m_assembler.takeBack(pushOperation, 1);
    m_assembler.begin(value ? keepValueOperation : keepOperation, value ? 0 : -1);
    m_assembler.add(wordOf(static_cast<std::size_t>(distance)));
    if (value)
        m_assembler.add(*value);
}

void FormCompiler::compileWhile(const Value &form, const Destination &to)
{
    const Label round = m_assembler.newLabel();
    const Label end = m_assembler.newLabel();
    beginLoop(form, to);
    m_assembler.place(round);
    compile(form.cdr().car(), Destination::jump(end, false));
    compileRound(form.cdr().cdr(), to, 1);
    m_assembler.begin(loopOperation, 0);
    m_assembler.add(round);
    m_assembler.add(wordOf(std::size_t{form.asCons().mark()}));
    m_assembler.place(end);
    if (to.kind != Kind::Nothing)
        deliver(to);
}

void FormCompiler::compileRepeat(const KnownBuiltin &builtin, const Value &form, const Destination &to)
{
    const Label round = m_assembler.newLabel();
    const Label end = m_assembler.newLabel();
    if (to.kind != Kind::Nothing)
        pushValue(detail::nil);
    compile(form.cdr().car(), Destination::stack());
    m_assembler.begin(repeatOperation, 0);
    m_assembler.add(wordOf(newSite(builtin, form, 1)));
    beginLoop(form, Destination::nothing());
    m_assembler.place(round);
    m_assembler.begin(repeatNextOperation, 0);
    m_assembler.add(end);
    m_assembler.add(wordOf(std::size_t{form.asCons().mark()}));
    compileRound(form.cdr().cdr(), to, 2);
    m_assembler.begin(jumpOperation, 0);
    m_assembler.add(round);
    m_assembler.place(end);
    m_assembler.moveDepth(-1);
    if (to.kind != Kind::Nothing)
        deliver(to);
}

void FormCompiler::compileForeach(const KnownBuiltin &builtin, const Value &form, const Destination &to)
{
    const Label round = m_assembler.newLabel();
    const Label end = m_assembler.newLabel();
    const Value &arguments = form.cdr();
    if (to.kind != Kind::Nothing)
        pushValue(detail::nil);
    compile(arguments.cdr().car(), Destination::stack());
    m_assembler.begin(foreachOperation, -1);
    m_assembler.add(wordOf(arguments.car().asSymbol()));
    m_assembler.add(wordOf(newSite(builtin, form, 1)));
    beginLoop(form, Destination::nothing());
    m_assembler.place(round);
    m_assembler.begin(foreachNextOperation, 0);
    m_assembler.add(end);
    m_assembler.add(wordOf(std::size_t{form.asCons().mark()}));
    compileRound(arguments.cdr().cdr(), to, 1);
    m_assembler.begin(jumpOperation, 0);
    m_assembler.add(round);
    m_assembler.place(end);
    if (to.kind != Kind::Nothing)
        deliver(to);
}

} // namespace host::lisp::compiled
