#pragma once

#include <QMap>
#include <QString>

#include <functional>
#include <variant>
#include <vector>

namespace sample {

/// The name of a symbol, in upper case.
struct Symbol
{
    QString name;
};

/// A value of the toy Lisp: nil (also the empty list), an integer, a real, a string, a symbol (T among them) or a list.
struct Value
{
    using List = std::vector<Value>;
    std::variant<std::monostate, qint64, double, QString, Symbol, List> data;

    bool isNil() const { return data.index() == 0; }
};

Value truth(bool is);

/// As Lisp writes it.
QString printed(const Value &value);

/// Ends the evaluation of everything around it. Never thrown through the module: the host's functions that the module
/// calls catch it.
struct LispError
{
    QString text;
};

/// All the forms in `text`. Throws LispError where it is no Lisp.
Value::List read(const QString &text);

/// A Lisp just large enough to call the module: strings, numbers, quote, setq, progn, list and what is defined.
class Lisp
{
public:
    using Function = std::function<Value(const Value::List &arguments)>;

    // Names in any case.
    void define(const QString &name, const Function &function);
    void undefine(const QString &name);
    void set(const QString &name, const Value &value);

    /// The value of the last of `forms`. Throws LispError.
    Value evaluate(const Value::List &forms);

private:
    Value valueOf(const Value &form);
    Value call(const QString &name, const Value::List &form);

    QMap<QString, Function> m_functions;
    QMap<QString, Value> m_variables;
};

} // namespace sample
