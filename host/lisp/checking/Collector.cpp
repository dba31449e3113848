#include "host/lisp/checking/Collector.h"

#include "host/lisp/Text.h"
#include "host/lisp/checking/Tokens.h"

#include <algorithm>

namespace host::lisp::checking {

namespace {

/// A function that calls one of its arguments.
struct CallerRule
{
    enum class Count
    {
        Fixed,   ///< with so many arguments
        PerList, ///< with one of each list behind it
        OfList   ///< with the items of the list behind it
    };

    std::string_view name;
    std::size_t function; ///< which argument, from 1
    Count count;
    int fixed = 0;
};

constexpr CallerRule callers[] = {
    {"APPLY", 1, CallerRule::Count::OfList},
    {"MAPCAR", 1, CallerRule::Count::PerList},
    {"VL-CATCH-ALL-APPLY", 1, CallerRule::Count::OfList},
    {"VL-EVERY", 1, CallerRule::Count::PerList},
    {"VL-MEMBER-IF", 1, CallerRule::Count::Fixed, 1},
    {"VL-MEMBER-IF-NOT", 1, CallerRule::Count::Fixed, 1},
    {"VL-REMOVE-IF", 1, CallerRule::Count::Fixed, 1},
    {"VL-REMOVE-IF-NOT", 1, CallerRule::Count::Fixed, 1},
    {"VL-SOME", 1, CallerRule::Count::PerList},
    {"VL-SORT", 2, CallerRule::Count::Fixed, 2},
    {"VL-SORT-I", 2, CallerRule::Count::Fixed, 2},
    {"VLAX-MAP-COLLECTION", 2, CallerRule::Count::Fixed, 1},
};

/// Functions whose texts are read as code.
constexpr std::string_view textReaders[] = {"ACTION_TILE", "COMMAND", "READ", "VL-CMDF"};

const CallerRule *callerRule(std::string_view name)
{
    const auto *rule = std::ranges::find(callers, name, &CallerRule::name);
    return rule == std::end(callers) ? nullptr : rule;
}

/// How many arguments the function gets; -1 when only an evaluation tells.
int countOf(const CallerRule &rule, const SyntaxNode &form)
{
    if (rule.count == CallerRule::Count::Fixed)
        return rule.fixed;
    const int behind = static_cast<int>(form.items.size() - rule.function) - 1;
    if (rule.count == CallerRule::Count::PerList)
        return behind;
    const bool isWritten = behind == 1 && form.items.back().calls("LIST");
    return isWritten ? static_cast<int>(form.items.back().items.size()) - 1 : -1;
}

bool isLambda(const SyntaxNode &node)
{
    return node.calls("LAMBDA") && node.items.size() > 1 && node.items[1].isList();
}

bool isNeverFunction(const SyntaxNode *value)
{
    return value && (value->kind == SyntaxNode::Kind::Number || value->kind == SyntaxNode::Kind::String);
}

} // namespace

std::string argumentsText(const Arity &arity)
{
    const auto plural = [](int count) { return std::to_string(count) + (count == 1 ? " argument" : " arguments"); };
    if (arity.most < 0)
        return "at least " + plural(arity.least);
    if (arity.least == arity.most)
        return arity.least == 0 ? "no arguments" : plural(arity.least);
    return std::to_string(arity.least) + " to " + plural(arity.most);
}

class Collector::Binding
{
public:
    Binding(Collector &collector, const std::vector<VariablePlace> &variables) : m_collector(collector)
    {
        for (const VariablePlace &variable : variables) {
            m_names.push_back(variable.name);
            ++m_collector.m_bound[variable.name];
            m_collector.record().declared.insert(variable.name);
            m_collector.m_program.values.insert(variable.name);
        }
    }
    ~Binding()
    {
        for (const std::string &name : m_names)
            --m_collector.m_bound[name];
    }
    Binding(const Binding &) = delete;
    Binding &operator=(const Binding &) = delete;

private:
    Collector &m_collector;
    std::vector<std::string> m_names;
};

Collector::Collector(Program &program, std::size_t source, const NativeArities &natives)
    : m_program(program), m_source(source), m_natives(natives)
{
}

void Collector::tell(FindingKind kind, Position at, std::string message)
{
    m_program.findings.push_back({kind, m_place ? *m_place : at, std::move(message), {}});
}

void Collector::walkFile(const std::vector<SyntaxNode> &forms)
{
    FunctionRecord &file = m_program.functions.emplace_back();
    file.source = m_source;
    m_records.push_back(&file);
    for (const SyntaxNode &form : forms) {
        m_topForm = &form;
        walk(form);
    }
    m_records.pop_back();
}

void Collector::read(const std::string &name)
{
    for (FunctionRecord *record : m_records)
        record->reads.insert(name);
    if (m_global)
        m_global->insert(name);
}

void Collector::readWords(std::string_view text)
{
    for (const Token &token : tokensOf(text).tokens) {
        if (token.kind == Token::Kind::Atom)
            read(toUpperCase(token.text.starts_with('!') ? token.text.substr(1) : token.text));
    }
}

void Collector::walk(const SyntaxNode &form)
{
    if (form.isSymbol())
        read(form.name);
    else if (form.isList() && !form.items.empty())
        walkList(form);
    else if (form.kind == SyntaxNode::Kind::String && m_textDepth > 0)
        readWords(form.text);
}

void Collector::walkItems(const SyntaxNode &list, std::size_t first)
{
    for (std::size_t i = first; i < list.items.size(); ++i)
        walk(list.items[i]);
}

void Collector::walkList(const SyntaxNode &form)
{
    const SyntaxNode &head = form.items[0];
    const int count = static_cast<int>(form.items.size()) - 1;
    if (form.isDotted) {
        tell(FindingKind::Malformed, form.at, "a dotted pair where a call is expected");
        return walkQuoted(form);
    }
    if (isLambda(head)) {
        walkLambda(head, count, {});
        return walkItems(form, 1);
    }
    if (head.isList() && !head.isNil())
        return walkItems(form, 0);
    if (!head.isSymbol() || head.isNil()) {
        tell(FindingKind::Malformed, form.at, "this list begins with something that is no function");
        return walkItems(form, 1);
    }
    if (m_bound[head.name] == 0)
        addCall(head, count, {});
    read(head.name);
    if (m_bound[head.name] > 0 || !walkSpecialForm(*this, form))
        walkCall(form);
}

void Collector::addCall(const SyntaxNode &name, int count, const std::string &via)
{
    m_program.calls.push_back({name.name, name.text, m_place ? *m_place : name.at, m_source, count, via});
}

void Collector::walkCall(const SyntaxNode &form)
{
    const bool isText = std::ranges::find(textReaders, form.items[0].name) != std::end(textReaders);
    m_textDepth += isText ? 1 : 0;
    walkArguments(form);
    m_textDepth -= isText ? 1 : 0;
}

void Collector::walkArguments(const SyntaxNode &form)
{
    const CallerRule *rule = callerRule(form.items[0].name);
    for (std::size_t i = 1; i < form.items.size(); ++i) {
        const SyntaxNode &item = form.items[i];
        if (rule && rule->function == i)
            walkFunctionArgument(item, countOf(*rule, form), form.items[0].text);
        else if (i == 2 && form.calls("ACTION_TILE") && item.kind == SyntaxNode::Kind::String)
            walkActionText(item);
        else if (i == 1 && (form.calls("EVAL") || form.calls("SET")) && item.calls("QUOTE") && item.items.size() == 2)
            form.calls("EVAL") ? walk(item.items[1]) : assign(item.items[1], nullptr);
        else if (i == 2 && form.calls("AUTOLOAD") && item.calls("QUOTE") && item.items.size() == 2)
            for (const SyntaxNode &name : item.items[1].items)
                m_program.values.insert("C:" + toUpperCase(name.text));
        else
            walk(item);
    }
}

void Collector::walkFunctionArgument(const SyntaxNode &argument, int count, const std::string &via)
{
    const bool isQuoted = (argument.calls("QUOTE") || argument.calls("FUNCTION")) && argument.items.size() == 2;
    const SyntaxNode &function = isQuoted ? argument.items[1] : argument;
    if (isLambda(function)) {
        walkLambda(function, count, via);
    } else if (isQuoted && function.isSymbol()) {
        if (m_bound[function.name] == 0)
            addCall(function, count, via);
        walkQuoted(function);
    } else {
        walk(argument);
    }
}

void Collector::walkActionText(const SyntaxNode &text)
{
    const SyntaxTree tree = syntaxTreeOf(text.text);
    const Position *outer = m_place;
    m_place = outer ? outer : &text.at;
    if (!tree.findings.empty())
        tell(tree.findings.front().kind, text.at, "in this text: " + tree.findings.front().message);
    for (const SyntaxNode &form : tree.forms)
        walk(form);
    m_place = outer;
}

void Collector::walkQuoted(const SyntaxNode &data)
{
    if (isLambda(data))
        return walkLambda(data, -1, {});
    if (data.isSymbol()) {
        m_program.quoted.insert(data.name);
        read(data.name);
    }
    if (data.kind == SyntaxNode::Kind::String && m_textDepth > 0)
        readWords(data.text);
    for (const SyntaxNode &item : data.items)
        walkQuoted(item);
}

void Collector::walkAssignments(const SyntaxNode &form)
{
    for (std::size_t i = 1; i < form.items.size(); i += 2) {
        const SyntaxNode *value = i + 1 < form.items.size() ? &form.items[i + 1] : nullptr;
        if (value)
            walkValue(form.items[i], *value);
        else
            tell(FindingKind::ArgumentCount, form.items[i].at, "setq has no value for " + form.items[i].text);
        assign(form.items[i], value);
    }
}

void Collector::walkValue(const SyntaxNode &name, const SyntaxNode &value)
{
    std::set<std::string> *outer = m_global;
    if (record().isTopLevel() && name.isSymbol())
        m_global = &m_program.namesInGlobals[name.name];
    walk(value);
    m_global = outer;
}

void Collector::assign(const SyntaxNode &name, const SyntaxNode *value)
{
    if (!name.isSymbol() || name.isNil()) {
        tell(FindingKind::Malformed, name.at, "only a symbol can be set");
        return;
    }
    for (FunctionRecord *record : m_records)
        record->sets.insert(name.name);
    if (!isNeverFunction(value))
        m_program.values.insert(name.name);
    if (m_bound[name.name] > 0)
        return;
    const VariablePlace place{name.name, name.text, m_place ? *m_place : name.at};
    checkName("variable", place);
    if (record().isTopLevel())
        m_program.globals.insert(name.name);
    else if (std::ranges::find(record().undeclared, name.name, &VariablePlace::name) == record().undeclared.end())
        record().undeclared.push_back(place);
}

void Collector::walkDefinition(const SyntaxNode &form)
{
    if (form.items.size() < 3)
        return;
    const SyntaxNode &name = form.items[1];
    if (!name.isSymbol() || name.isNil()) {
        tell(FindingKind::Malformed, name.at, "a function's name is a symbol");
        return;
    }
    checkName("function", {name.name, name.text, name.at});
    FunctionRecord &function = m_program.functions.emplace_back();
    function.name = name.name;
    function.text = name.text;
    function.at = m_place ? *m_place : name.at;
    function.source = m_source;
    function.isInner = &form != m_topForm;
    const std::vector<VariablePlace> variables = variablesOf(form.items[2], function.parameterCount);
    function.variables = variables;
    checkVariables(variables, function.parameterCount);
    m_records.push_back(&function);
    {
        const Binding binding(*this, variables);
        walkItems(form, 3);
    }
    m_records.pop_back();
}

void Collector::walkLambda(const SyntaxNode &form, int count, const std::string &via)
{
    if (form.items.size() < 2)
        return;
    std::size_t parameters = 0;
    const std::vector<VariablePlace> variables = variablesOf(form.items[1], parameters);
    checkVariables(variables, parameters);
    if (count >= 0 && static_cast<std::size_t>(count) != parameters)
        tell(FindingKind::ArgumentCount, form.at,
             "this lambda takes " + argumentsText(Arity::exactly(static_cast<int>(parameters))) + ", " +
                 (via.empty() ? "its call" : via) + " gives it " + std::to_string(count));
    if (!record().isTopLevel())
        record().variables.insert(record().variables.end(), variables.begin() + static_cast<std::ptrdiff_t>(parameters),
                                  variables.end());
    const Binding binding(*this, variables);
    walkItems(form, 2);
}

void Collector::walkLoop(const SyntaxNode &form)
{
    if (form.items.size() < 3)
        return;
    const SyntaxNode &name = form.items[1];
    walk(form.items[2]);
    if (!name.isSymbol() || name.isNil()) {
        tell(FindingKind::Malformed, name.at, "foreach needs a symbol for the element");
        return;
    }
    // A local of that name is declared for the loop alone, which is superfluous but common.
    read(name.name);
    const VariablePlace variable{name.name, name.text, name.at};
    if (m_bound[name.name] == 0)
        checkName("variable", variable);
    const Binding binding(*this, {variable});
    walkItems(form, 3);
}

void Collector::walkClauses(const SyntaxNode &form)
{
    for (std::size_t i = 1; i < form.items.size(); ++i) {
        const SyntaxNode &clause = form.items[i];
        if (clause.isList() && !clause.items.empty() && !clause.isDotted)
            walkItems(clause, 0);
        else
            tell(FindingKind::Malformed, clause.at, "a clause of cond is a list: (test form...)");
    }
}

std::vector<VariablePlace> Collector::variablesOf(const SyntaxNode &parameters, std::size_t &parameterCount)
{
    std::vector<VariablePlace> variables;
    if (!(parameters.isList() || parameters.isNil()) || parameters.isDotted)
        tell(FindingKind::Malformed, parameters.at, "parameters and locals are a list: (parameter... / local...)");
    bool isLocal = false;
    for (const SyntaxNode &item : parameters.items) {
        const bool isGlued =
            item.isSymbol() && item.name.size() > 1 && (item.name.starts_with('/') || item.name.ends_with('/'));
        if (!item.isSymbol() || item.isNil())
            tell(FindingKind::Malformed, item.at, "only a symbol can be a parameter or local");
        else if (item.name == "/" && isLocal)
            tell(FindingKind::Malformed, item.at, "a second / among parameters and locals");
        else if (isGlued)
            tell(FindingKind::Malformed, item.at, "the / before the locals needs blanks around it");
        else if (item.name == "/")
            isLocal = true;
        else
            variables.push_back({item.name, item.text, m_place ? *m_place : item.at});
        parameterCount = isLocal ? parameterCount : variables.size();
    }
    return variables;
}

void Collector::checkVariables(const std::vector<VariablePlace> &variables, std::size_t parameterCount)
{
    std::set<std::string_view> seen;
    for (std::size_t i = 0; i < variables.size(); ++i) {
        const VariablePlace &variable = variables[i];
        checkName(i < parameterCount ? "parameter" : "local", variable);
        if (!seen.insert(variable.name).second)
            tell(FindingKind::RepeatedName, variable.at, variable.text + " is declared twice");
    }
}

void Collector::checkName(const std::string &what, const VariablePlace &variable)
{
    static constexpr std::string_view constants[] = {"PAUSE", "PI", "T"};
    if (std::ranges::find(constants, variable.name) != std::end(constants))
        tell(FindingKind::ShadowedBuiltin, variable.at,
             "the " + what + ' ' + variable.text + " has the name of a constant");
    else if (m_natives.contains(variable.name) && !variable.name.starts_with('*'))
        tell(FindingKind::ShadowedBuiltin, variable.at,
             "the " + what + ' ' + variable.text + " has the name of a built-in function");
}

void collect(Program &program, const SyntaxTree &tree, std::size_t source, const NativeArities &natives)
{
    Collector(program, source, natives).walkFile(tree.forms);
}

} // namespace host::lisp::checking
