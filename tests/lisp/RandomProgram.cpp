#include "tests/lisp/RandomProgram.h"

namespace host::lisp::test {

std::string RandomProgram::list(std::string_view head, std::initializer_list<std::string> items)
{
    std::string text = "(" + std::string(head);
    for (const std::string &item : items)
        text += (m_choices.oneIn(4) ? "\n" : " ") + item;
    return text + ")";
}

std::string RandomProgram::variable()
{
    return std::string(m_choices.of({"a", "b", "c", "x", "y", "z", "max", "l"}));
}

std::string RandomProgram::function()
{
    return std::string(m_choices.of({"f", "g", "h", "k"}));
}

std::string RandomProgram::literal()
{
    return std::string(m_choices.of({"0",
                                     "1",
                                     "2",
                                     "-1",
                                     "7",
                                     "2147483647",
                                     "-2147483648",
                                     "0.5",
                                     "1e300",
                                     "\"\"",
                                     "\"ab\"",
                                     "\"xyz\"",
                                     "nil",
                                     "T",
                                     "'a",
                                     "'(1 2 3)",
                                     "'((a . 1) (b 2) (\"ab\" 3))",
                                     "'(3 1 2)",
                                     "'(1 . 2)",
                                     "'((1 2) (3 4))"}));
}

std::string RandomProgram::atom()
{
    return m_choices.oneIn(2) ? variable() : literal();
}

std::string RandomProgram::forms(int depth)
{
    std::string text = form(depth);
    for (std::uint32_t more = m_choices.below(3); more > 0; --more)
        text += (m_choices.oneIn(3) ? "\n" : " ") + form(depth);
    return text;
}

std::string RandomProgram::form(int depth)
{
    if (depth <= 0)
        return atom();
    switch (m_choices.below(16)) {
    case 0:
    case 1:
    case 2:
        return numbers(depth - 1);
    case 3:
        return test(depth - 1);
    case 4:
    case 5:
    case 6:
        return specialForm(depth - 1);
    case 7:
        return loop(depth - 1);
    case 8:
    case 9:
        return call(depth - 1);
    case 10:
        return callback(depth - 1);
    case 11:
    case 12:
        return ofLists(depth - 1);
    case 13:
        return ofTexts(depth - 1);
    case 14:
        return m_choices.oneIn(3) ? mischief(depth - 1) : numbers(depth - 1);
    default:
        return atom();
    }
}

std::string RandomProgram::numbers(int depth)
{
    const std::string head(m_choices.of({"+", "-", "*", "/", "1+", "1-", "rem", "max", "+", "-", "abs", "fix"}));
    const bool ofOne = head == "1+" || head == "1-" || head == "abs" || head == "fix";
    if (ofOne != m_choices.oneIn(12))
        return list(head, {form(depth)});
    if (m_choices.oneIn(6))
        return list(head, {form(depth), form(depth), form(depth)});
    return list(head, {form(depth), form(depth)});
}

std::string RandomProgram::test(int depth)
{
    const std::string left = form(depth);
    switch (m_choices.below(4)) {
    case 0:
        return list(
            m_choices.of({"not", "null", "atom", "listp", "numberp", "zerop", "minusp", "vl-consp", "vl-symbolp"}),
            {left});
    case 1:
        return list(m_choices.of({"and", "or"}), {left, form(depth), form(depth)});
    default:
        return list(m_choices.of({"<", "<=", ">", ">=", "=", "/=", "eq", "equal"}), {left, form(depth)});
    }
}

std::string RandomProgram::specialForm(int depth)
{
    switch (m_choices.below(9)) {
    case 0:
        return list("if", {test(depth), form(depth), form(depth)});
    case 1:
        return list("if", {form(depth), form(depth)});
    case 2:
        return list("cond", {"(" + test(depth) + " " + forms(depth) + ")", "(" + form(depth) + ")",
                             "(T " + forms(depth) + ")"});
    case 3:
        return list("cond", {"(" + test(depth) + ")", "(" + form(depth) + " " + forms(depth) + ")"});
    case 4:
        return list("progn", {forms(depth)});
    case 5:
        return list("setq", {variable(), form(depth), variable(), form(depth)});
    case 6:
        return list(m_choices.of({"and", "or"}), {form(depth), forms(depth)});
    default:
        return list("setq", {variable(), form(depth)});
    }
}

std::string RandomProgram::loop(int depth)
{
    const std::string takesFuel = "(> (setq fuel (1- fuel)) 0)";
    switch (m_choices.below(3)) {
    case 0:
        return list("while", {"(and " + takesFuel + " " + test(depth) + ")", forms(depth)});
    case 1:
        return list("repeat", {std::string(m_choices.of({"3", "(rem x 5)", "0", "(fix 2.5)", "\"2\""})),
                               takesFuel + " " + forms(depth)});
    default:
        return list("foreach", {variable(), form(depth), takesFuel + " " + forms(depth)});
    }
}

std::string RandomProgram::lambda(int depth)
{
    const std::string body = m_choices.oneIn(2) ? form(depth) : forms(depth);
    return list("lambda", {parameters(), body});
}

std::string RandomProgram::parameters()
{
    return std::string(m_choices.of({"(x)", "(x)", "(x y)", "(a)", "(a / b)", "(x / x)", "(max)", "(x / car)", "()",
                                     "(/ b)", "(/ max y)", "(x y / l z)", "(f)", "(x x)"}));
}

std::string RandomProgram::call(int depth)
{
    switch (m_choices.below(8)) {
    case 0:
        return list(function(), {form(depth), form(depth)});
    case 1:
        return list("(" + lambda(depth).substr(1), {form(depth)});
    case 2:
        return "(" + function() + ")";
    default:
        return list(function(), {form(depth)});
    }
}

std::string RandomProgram::callee(int depth)
{
    switch (m_choices.below(9)) {
    case 0:
        return lambda(depth);
    case 1:
        return "(function " + lambda(depth) + ")";
    case 2:
        return m_choices.oneIn(2) ? "(function " + function() + ")" : function();
    case 3:
        return m_choices.oneIn(3) ? variable() : "(cdr '(1 " + parameters() + " " + forms(depth) + "))";
    case 4:
    case 5:
        return "'" + function();
    default:
        return "'" + lambda(depth);
    }
}

std::string RandomProgram::items(int depth)
{
    switch (m_choices.below(6)) {
    case 0:
    case 1:
        return "(list " + forms(depth) + ")";
    case 2:
        return "'(3 1 2.5 1)";
    case 3:
        return "(append " + form(depth) + " '(1 nil 2))";
    default:
        return form(depth);
    }
}

std::string RandomProgram::callback(int depth)
{
    const std::string called = callee(depth);
    const std::string items = this->items(depth);
    switch (m_choices.below(12)) {
    case 0:
        return list("apply", {called, items});
    case 1:
        return list("vl-catch-all-apply", {called, items});
    case 2:
        return list("mapcar", {called, items, form(depth)});
    case 3:
        return list(m_choices.of({"vl-sort", "vl-sort-i"}), {items, m_choices.oneIn(2) ? "'<" : called});
    case 4:
    case 6:
        return list(m_choices.of({"vl-some", "vl-every", "vl-remove-if", "vl-remove-if-not", "vl-member-if",
                                  "vl-member-if-not"}),
                    {called, items});
    case 7:
        return list(m_choices.of({"vl-some", "vl-every", "mapcar"}), {called, items, this->items(depth)});
    case 8:
        // A function that is a list, called several times.
        return "(progn (defun-q k " + parameters() + " " + forms(depth) + ") (list (k 1) (k 2) " +
               list("mapcar", {"'k", items}) + "))";
    case 9:
        return list("mapcar", {"'" + lambda(depth), "(mapcar " + called + " " + items + ")"});
    case 5:
        return list("apply", {std::string(m_choices.of({"'+", "'list", "'strcat", "'max", "'if"})), items});
    default:
        return list("mapcar", {called, items});
    }
}

std::string RandomProgram::ofLists(int depth)
{
    switch (m_choices.below(6)) {
    case 0:
        return list("cons", {form(depth), form(depth)});
    case 1:
        return list("list", {form(depth), form(depth)});
    case 2:
        return list(m_choices.of({"assoc", "member", "nth", "vl-position", "vl-remove"}), {form(depth), form(depth)});
    case 3:
        return list(m_choices.of({"append", "append", "equal"}), {form(depth), form(depth)});
    default:
        return list(m_choices.of({"car", "cdr", "cadr", "cddr", "caar", "cdar", "caddr", "length", "reverse", "last"}),
                    {form(depth)});
    }
}

std::string RandomProgram::ofTexts(int depth)
{
    switch (m_choices.below(4)) {
    case 0:
        return list("strcat", {form(depth), form(depth)});
    case 1:
        return list(m_choices.of({"strlen", "itoa", "vl-princ-to-string", "type", "boundp"}), {form(depth)});
    default:
        return list(m_choices.of({"princ", "prin1", "print"}), {form(depth)});
    }
}

std::string RandomProgram::mischief(int depth)
{
    switch (m_choices.below(14)) {
    case 0:
        return list("setq", {function(), m_choices.oneIn(3) ? "nil" : lambda(depth)});
    case 1:
        return list("set", {"'" + variable(), form(depth)});
    case 2:
        return list("eval", {"'" + form(depth)});
    case 3:
        return list(m_choices.of({"trace", "untrace"}), {function()});
    case 4:
        return list("setq", {std::string(m_choices.of({"car", "+", "1+", "<", "not", "list"})),
                             std::string(m_choices.of({"cdr", "-", "list", "'f", "nil", "(lambda (x) x)"}))});
    case 5:
        return list("setq", {std::string(m_choices.of({"if", "and", "foreach"})),
                             std::string(m_choices.of({"if", "or", "progn", "list"}))});
    case 6:
        return list("foreach", {std::string(m_choices.of({"car", "list", "+", "max"})), "'(1 2)", forms(depth)});
    case 7:
        return "(defun-q " + function() + " " + parameters() + " " + forms(depth) + ")";
    case 8:
        return list("defun-q-list-set", {"'" + function(), "(list '(x) '(princ x) (list 'car 'x))"});
    case 9:
        return "(defun " + std::string(m_choices.of({"car", "*", "max", "strcat"})) + " " + parameters() + " " +
               forms(depth) + ")";
    case 10:
        return "(eval (list 'car " + form(depth) + "))";
    case 11:
        return m_choices.oneIn(4) ? "(exit)" : "(\"no function\" 1)";
    case 12:
        return "(" + std::string(m_choices.of({"if", "setq a", "setq 1 2", "while", "foreach a", "cond a", "quote"})) +
               ")";
    default:
        return definition(depth);
    }
}

std::string RandomProgram::definition(int depth)
{
    return "(defun " + function() + "\n" + parameters() + " (if (< (setq fuel (1- fuel)) 0) 'spent (progn " +
           forms(depth) + ")))";
}

std::vector<std::string> RandomProgram::forms()
{
    std::vector<std::string> texts = {"(setq fuel 200 a 1 b 2.5 c \"ab\" x 3 y '(1 2 3) z nil l '((a . 1) (b . 2)))"};
    if (m_choices.oneIn(4))
        texts.push_back("(defun *error* (m) (princ (list \"*error*\" m)) " + form(2) + ")");
    for (const std::string_view name : {"f", "g", "h"})
        texts.push_back("(defun " + std::string(name) + " " +
                        std::string(m_choices.of({"(x)", "(a / b x)", "(x y)", "(/ x)"})) +
                        "\n(if (< (setq fuel (1- fuel)) 0) 'spent\n(progn " + forms(4) + ")))");
    for (std::uint32_t more = 2 + m_choices.below(6); more > 0; --more)
        texts.push_back("\n" + form(5));
    return texts;
}

} // namespace host::lisp::test
