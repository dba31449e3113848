#include "host/lisp/checking/Checker.h"

#include "host/lisp/Interpreter.h"
#include "host/lisp/checking/Collector.h"

#include <algorithm>
#include <set>

namespace host::lisp::checking {

namespace {

/// Says what a program's records amount to, when all of them are there.
class Judge
{
public:
    /// Of `isSilent` sources nothing is told.
    Judge(Program &program, const std::vector<CheckedSource> &sources, const NativeArities &natives,
          const std::vector<bool> &isSilent)
        : m_program(program), m_sources(sources), m_natives(natives), m_isSilent(isSilent)
    {
        for (const FunctionRecord &function : program.functions)
            link(function);
    }

    void run()
    {
        for (const CallPlace &call : m_program.calls)
            judgeCall(call);
        for (const FunctionRecord &function : m_program.functions) {
            if (!function.isTopLevel() && !m_isSilent[function.source])
                judgeFunction(function);
        }
    }

private:
    using Records = std::vector<const FunctionRecord *>;

    void link(const FunctionRecord &function)
    {
        if (!function.isTopLevel())
            m_named[function.name].push_back(&function);
        for (const std::string &name : namesReachedBy(function))
            m_readers[name].push_back(&function);
    }

    /// What it reads, and what the globals among that hold.
    std::set<std::string> namesReachedBy(const FunctionRecord &function) const
    {
        std::set<std::string> names = function.reads;
        for (const std::string &name : function.reads) {
            const auto global = m_program.namesInGlobals.find(name);
            if (global != m_program.namesInGlobals.end())
                names.insert(global->second.begin(), global->second.end());
        }
        return names;
    }

    void tell(FindingKind kind, std::size_t source, Position at, std::string message)
    {
        m_program.findings.push_back({kind, at, std::move(message), m_sources[source].name});
    }

    void judgeCall(const CallPlace &call)
    {
        const auto named = m_named.find(call.name);
        if (m_isSilent[call.source])
            return;
        if (const Arity *arity = specialFormArity(call.name); arity && call.via.empty())
            return judgeCount(call, *arity);
        if (named != m_named.end())
            return judgeCount(call, named->second);
        if (const auto native = m_natives.find(call.name);
            native != m_natives.end() && !m_program.globals.contains(call.name))
            return judgeCount(call, native->second);
        if (m_program.values.contains(call.name))
            return;
        tell(FindingKind::UnknownFunction, call.source, call.at,
             "there is no function " + call.text + (call.via.empty() ? "" : " for " + call.via));
    }

    void judgeCount(const CallPlace &call, const Arity &arity)
    {
        if (call.count < 0 || arity.accepts(static_cast<std::size_t>(call.count)))
            return;
        tell(FindingKind::ArgumentCount, call.source, call.at,
             call.text + " takes " + argumentsText(arity) + ", " +
                 (call.via.empty() ? "not " : call.via + " gives it ") + std::to_string(call.count));
    }

    /// Of several functions of a name any may be meant; what holds it as a variable may be another one.
    void judgeCount(const CallPlace &call, const Records &functions)
    {
        const auto fits = [&call](const FunctionRecord *function) {
            return static_cast<int>(function->parameterCount) == call.count;
        };
        if (m_program.values.contains(call.name) || std::ranges::any_of(functions, fits))
            return;
        judgeCount(call, Arity::exactly(static_cast<int>(functions.back()->parameterCount)));
    }

    void judgeFunction(const FunctionRecord &function)
    {
        judgeRepetition(function);
        for (const VariablePlace &variable : function.undeclared) {
            if (!isGlobalByName(variable.name) && !m_program.globals.contains(variable.name) &&
                !isDeclaredByCaller(function, variable.name))
                tell(FindingKind::UndeclaredLocal, function.source, variable.at,
                     function.text + " sets " + variable.text + " without declaring it as a local");
        }
        for (std::size_t i = 0; i < function.variables.size(); ++i)
            judgeVariable(function, i);
    }

    void judgeRepetition(const FunctionRecord &function)
    {
        if (function.isInner || isGlobalByName(function.name))
            return;
        for (const FunctionRecord *other : m_named[function.name]) {
            if (other == &function)
                return;
            if (other->source == function.source && !other->isInner)
                return tell(FindingKind::RepeatedFunction, function.source, function.at,
                            function.text + " was defined in line " + std::to_string(other->at.line) + " already");
        }
    }

    void judgeVariable(const FunctionRecord &function, std::size_t index)
    {
        const VariablePlace &variable = function.variables[index];
        const bool isParameter = index < function.parameterCount;
        if (function.reads.contains(variable.name) || isGlobalByName(variable.name) || variable.name.starts_with('_') ||
            (isParameter && m_program.quoted.contains(function.name)))
            return;
        const std::set<const FunctionRecord *> &called = calledBy(function);
        const auto reads = [&variable](const FunctionRecord *other) { return other->reads.contains(variable.name); };
        const auto sets = [&variable](const FunctionRecord *other) { return other->sets.contains(variable.name); };
        if (std::ranges::any_of(called, reads))
            return;
        const bool isSet = function.sets.contains(variable.name);
        // What is not looked at may read what is set here.
        if (isSet ? callsStrangers(called) : std::ranges::any_of(called, sets))
            return;
        tell(isParameter ? FindingKind::UnusedParameter : FindingKind::UnusedLocal, function.source, variable.at,
             std::string("the ") + (isParameter ? "parameter " : "local ") + variable.text + " of " + function.text +
                 (isSet ? " is set, but never read" : " is never used"));
    }

    /// By custom: *error*, *settings*.
    static bool isGlobalByName(const std::string &name) { return name.starts_with('*'); }

    bool isDeclaredByCaller(const FunctionRecord &function, const std::string &variable)
    {
        const std::set<const FunctionRecord *> callers = reachable(function, [this](const FunctionRecord &of) {
            const auto found = m_readers.find(of.name);
            return found == m_readers.end() ? Records() : found->second;
        });
        return std::ranges::any_of(callers, [&](const FunctionRecord *caller) {
            return caller != &function && caller->declared.contains(variable);
        });
    }

    /// The functions that run while one does, itself among them; remembered for the last one asked for.
    const std::set<const FunctionRecord *> &calledBy(const FunctionRecord &function)
    {
        if (m_calledFrom != &function) {
            m_calledFrom = &function;
            m_called = reachable(function, [this](const FunctionRecord &of) { return functionsNamedIn(of); });
        }
        return m_called;
    }

    Records functionsNamedIn(const FunctionRecord &function) const
    {
        Records records;
        for (const std::string &name : namesReachedBy(function)) {
            const auto found = m_named.find(name);
            if (found != m_named.end())
                records.insert(records.end(), found->second.begin(), found->second.end());
        }
        return records;
    }

    template <typename Next>
    static std::set<const FunctionRecord *> reachable(const FunctionRecord &from, Next &&next)
    {
        std::set<const FunctionRecord *> seen = {&from};
        Records waiting = {&from};
        while (!waiting.empty()) {
            const FunctionRecord *function = waiting.back();
            waiting.pop_back();
            for (const FunctionRecord *other : next(*function)) {
                if (!other->isTopLevel() && seen.insert(other).second)
                    waiting.push_back(other);
            }
        }
        return seen;
    }

    /// Whether one of them evaluates what is not seen here.
    bool callsStrangers(const std::set<const FunctionRecord *> &functions) const
    {
        static const std::set<std::string> evaluators = {"EVAL", "LOAD", "READ"};
        return std::ranges::any_of(functions, [](const FunctionRecord *function) {
            return std::ranges::any_of(evaluators,
                                       [function](const std::string &name) { return function->reads.contains(name); });
        });
    }

    Program &m_program;
    const std::vector<CheckedSource> &m_sources;
    const NativeArities &m_natives;
    const std::vector<bool> &m_isSilent;
    std::map<std::string, Records> m_named;
    std::map<std::string, Records> m_readers; ///< of each name
    const FunctionRecord *m_calledFrom = nullptr;
    std::set<const FunctionRecord *> m_called;
};

void sortFindings(std::vector<Finding> &findings, const std::vector<CheckedSource> &sources)
{
    std::map<std::string, std::size_t> places;
    for (std::size_t i = 0; i < sources.size(); ++i)
        places.emplace(sources[i].name, i);
    std::ranges::stable_sort(findings, [&places](const Finding &left, const Finding &right) {
        const std::size_t first = places[left.file];
        const std::size_t second = places[right.file];
        return first != second ? first < second : left.at < right.at;
    });
}

void addFindings(std::vector<Finding> &to, std::vector<Finding> &from, const std::string &file)
{
    for (Finding &finding : from) {
        finding.file = file;
        to.push_back(std::move(finding));
    }
}

} // namespace

std::vector<Finding> check(const std::vector<CheckedSource> &sources, const NativeArities &natives)
{
    Program program;
    std::vector<Finding> findings;
    std::vector<bool> isSilent;
    for (std::size_t i = 0; i < sources.size(); ++i) {
        SyntaxTree tree = syntaxTreeOf(sources[i].text);
        isSilent.push_back(sources[i].isLibrary || tree.isCutShort);
        if (!sources[i].isLibrary)
            addFindings(findings, tree.findings, sources[i].name);
        program.findings.clear();
        collect(program, tree, i, natives);
        if (!isSilent.back())
            addFindings(findings, program.findings, sources[i].name);
    }
    program.findings.clear();
    Judge(program, sources, natives, isSilent).run();
    std::ranges::move(program.findings, std::back_inserter(findings));
    sortFindings(findings, sources);
    return findings;
}

NativeArities nativeArities(const Interpreter &interpreter)
{
    NativeArities arities;
    for (const FunctionEntry &entry : interpreter.functions()) {
        const Symbol *symbol = interpreter.symbols().find(entry.name);
        if (symbol && symbol->value().tag() == Tag::Native)
            arities.emplace(entry.name, entry.kind == FunctionEntry::Kind::SpecialForm
                                            ? Arity::any()
                                            : symbol->value().asNative().arity);
    }
    return arities;
}

} // namespace host::lisp::checking
