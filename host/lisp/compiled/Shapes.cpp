#include "host/lisp/compiled/Shapes.h"

#include "host/lisp/Interpreter.h"
#include "host/lisp/compiled/Operations.h"

namespace host::lisp::compiled {

namespace {

struct ShapeRow
{
    const char *name;
    Shape shape;
    unsigned detail = 0;
};

constexpr unsigned detailOf(auto kind)
{
    return static_cast<unsigned>(kind);
}

constexpr ShapeRow shapeRows[] = {
    {"quote", Shape::Quote},
    {"setq", Shape::Setq},
    {"if", Shape::If},
    {"cond", Shape::Cond},
    {"while", Shape::While},
    {"repeat", Shape::Repeat},
    {"foreach", Shape::Foreach},
    {"progn", Shape::Progn},
    {"and", Shape::And},
    {"or", Shape::Or},
    {"lambda", Shape::Lambda},
    {"function", Shape::Function},
    {"not", Shape::Not},
    {"null", Shape::Not},
    {"+", Shape::Arithmetic, detailOf(Arithmetic::Add)},
    {"-", Shape::Arithmetic, detailOf(Arithmetic::Subtract)},
    {"*", Shape::Arithmetic, detailOf(Arithmetic::Multiply)},
    {"/", Shape::Arithmetic, detailOf(Arithmetic::Divide)},
    {"1+", Shape::Increment, detailOf(Arithmetic::Add)},
    {"1-", Shape::Increment, detailOf(Arithmetic::Subtract)},
    {"<", Shape::Comparison, detailOf(Comparison::Less)},
    {"<=", Shape::Comparison, detailOf(Comparison::LessOrEqual)},
    {">", Shape::Comparison, detailOf(Comparison::Greater)},
    {">=", Shape::Comparison, detailOf(Comparison::GreaterOrEqual)},
    {"=", Shape::Comparison, detailOf(Comparison::Equal)},
    {"/=", Shape::Comparison, detailOf(Comparison::NotEqual)},
    {"eq", Shape::Comparison, detailOf(Comparison::Same)},
    {"equal", Shape::Comparison, detailOf(Comparison::LookAlike)},
    {"atom", Shape::Predicate, detailOf(Predicate::IsAtom)},
    {"listp", Shape::Predicate, detailOf(Predicate::IsList)},
    {"vl-consp", Shape::Predicate, detailOf(Predicate::IsPair)},
    {"numberp", Shape::Predicate, detailOf(Predicate::IsNumber)},
    {"vl-symbolp", Shape::Predicate, detailOf(Predicate::IsSymbol)},
    {"zerop", Shape::Predicate, detailOf(Predicate::IsZero)},
    {"minusp", Shape::Predicate, detailOf(Predicate::IsNegative)},
    {"car", Shape::Part, 0x01},
    {"cdr", Shape::Part, 0x11},
    {"caar", Shape::Part, 0x02},
    {"cadr", Shape::Part, 0x12},
    {"cdar", Shape::Part, 0x22},
    {"cddr", Shape::Part, 0x32},
    {"caddr", Shape::Part, 0x33},
    {"cdddr", Shape::Part, 0x73},
    {"cons", Shape::Cons},
    {"list", Shape::List},
    {"mapcar", Shape::Walk, detailOf(Walk::All)},
    {"vl-some", Shape::Walk, detailOf(Walk::Some)},
    {"vl-every", Shape::Walk, detailOf(Walk::Every)},
    {"vl-remove-if", Shape::Walk, detailOf(Walk::Without)},
    {"vl-remove-if-not", Shape::Walk, detailOf(Walk::Only)},
    {"vl-member-if", Shape::Walk, detailOf(Walk::FromFirst)},
    {"vl-member-if-not", Shape::Walk, detailOf(Walk::FromFirstNot)},
    {"apply", Shape::Apply},
};

constexpr const char *plainNames[] = {
    "rem",
    "abs",
    "min",
    "max",
    "fix",
    "float",
    "sqrt",
    "log",
    "exp",
    "sin",
    "cos",
    "atan",
    "expt",
    "logand",
    "logior",
    "logxor",
    "lognot",
    "~",
    "lsh",
    "boole",
    "gcd",
    "lcm",
    "append",
    "reverse",
    "nth",
    "last",
    "length",
    "vl-list-length",
    "vl-list*",
    "member",
    "assoc",
    "subst",
    "vl-position",
    "vl-remove",
    "cadar",
    "cddar",
    "caadr",
    "cdadr",
    "cadddr",
    "caaar",
    "strcat",
    "strlen",
    "substr",
    "strcase",
    "ascii",
    "chr",
    "itoa",
    "atoi",
    "atof",
    "wcmatch",
    "vl-string->list",
    "vl-list->string",
    "vl-string-elt",
    "vl-string-search",
    "vl-string-position",
    "vl-string-subst",
    "vl-string-translate",
    "vl-string-trim",
    "vl-string-left-trim",
    "vl-string-right-trim",
    "polar",
    "distance",
    "angle",
    "type",
    "boundp",
    "vl-princ-to-string",
    "vl-prin1-to-string",
    "vl-symbol-name",
    "vl-symbol-value",
    "ssname",
    "sslength",
    "ssmemb",
    "vl-catch-all-error-p",
    "vl-catch-all-error-message",
};

constexpr const char *callbackNames[] = {
    "vl-sort",
    "vl-sort-i",
    "vl-catch-all-apply",
};

} // namespace

Shapes::Shapes(Interpreter &interpreter)
{
    for (const ShapeRow &row : shapeRows)
        add(interpreter, row.name, row.shape, row.detail);
    for (const char *name : plainNames)
        add(interpreter, name, Shape::Plain, 0);
    for (const char *name : callbackNames)
        add(interpreter, name, Shape::Callback, 0);
}

void Shapes::add(Interpreter &interpreter, const char *name, Shape shape, unsigned detail)
{
    const Value held = interpreter.variable(name);
    if (held.tag() != Tag::Native)
        return;
    m_known.emplace(&held.asNative(), KnownBuiltin{shape, detail, &held.asNative()});
    m_held.push_back(held);
}

const KnownBuiltin *Shapes::find(const Value &held) const
{
    if (held.tag() != Tag::Native)
        return nullptr;
    const auto found = m_known.find(&held.asNative());
    return found == m_known.end() ? nullptr : &found->second;
}

} // namespace host::lisp::compiled
