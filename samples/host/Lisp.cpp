#include "Lisp.h"

#include <QRegularExpression>
#include <QStringList>

namespace sample {

namespace {

constexpr int deepest = 200; // lists in lists: beyond it a text is nothing that a person wrote

/// Words of Lisp: a bracket, a quote, a string with its marks, or anything up to the next of these.
QStringList wordsOf(const QString &text)
{
    static const QRegularExpression word(QStringLiteral(R"re(;[^\n]*|[()']|"(?:[^"\\]|\\.)*"|[^\s()'";]+|")re"));
    QStringList words;
    for (auto found = word.globalMatch(text); found.hasNext();)
        words.append(found.next().captured());
    words.removeIf([](const QString &comment) { return comment.startsWith(u';'); });
    return words;
}

QString unescaped(QString text)
{
    static const QRegularExpression escape(QStringLiteral(R"(\\(.))"));
    text.replace(QStringLiteral("\\n"), QStringLiteral("\n"));
    return text.replace(escape, QStringLiteral("\\1"));
}

Value atomOf(const QString &word)
{
    if (word.startsWith(u'"')) {
        if (word.size() < 2)
            throw LispError{QStringLiteral("a string has no end")};
        return {unescaped(word.sliced(1, word.size() - 2))};
    }
    bool isNumber = false;
    if (const qint32 integer = word.toInt(&isNumber); isNumber)
        return {qint64(integer)};
    if (const double real = word.toDouble(&isNumber); isNumber)
        return {real};
    if (word.compare(QStringLiteral("nil"), Qt::CaseInsensitive) == 0)
        return {};
    return {Symbol{word.toUpper()}};
}

class Reader
{
public:
    explicit Reader(const QString &text) : m_words(wordsOf(text)) {}

    bool isAtEnd() const { return m_place == m_words.size(); }

    Value next(int depth = 0)
    {
        if (isAtEnd() || depth > deepest)
            throw LispError{QStringLiteral("a list has no end, or is too deep")};
        const QString word = m_words[m_place++];
        if (word == u"'")
            return {Value::List{{Symbol{QStringLiteral("QUOTE")}}, next(depth + 1)}};
        if (word == u")")
            throw LispError{QStringLiteral("a bracket closes nothing")};
        return word == u"(" ? list(depth) : atomOf(word);
    }

private:
    Value list(int depth)
    {
        Value::List values;
        while (isAtEnd() || m_words[m_place] != u")")
            values.push_back(next(depth + 1));
        ++m_place;
        return values.empty() ? Value() : Value{values};
    }

    QStringList m_words;
    qsizetype m_place = 0;
};

QString printedString(QString text)
{
    text.replace(u'\\', QStringLiteral("\\\\")).replace(u'"', QStringLiteral("\\\""));
    return u'"' + text.replace(u'\n', QStringLiteral("\\n")) + u'"';
}

QString printedList(const Value::List &list)
{
    QStringList texts;
    for (const Value &value : list)
        texts.append(printed(value));
    return u'(' + texts.join(u' ') + u')';
}

} // namespace

Value truth(bool is)
{
    return is ? Value{Symbol{QStringLiteral("T")}} : Value();
}

QString printed(const Value &value)
{
    if (const auto *integer = std::get_if<qint64>(&value.data))
        return QString::number(*integer);
    if (const auto *real = std::get_if<double>(&value.data))
        return QString::number(*real);
    if (const auto *text = std::get_if<QString>(&value.data))
        return printedString(*text);
    if (const auto *symbol = std::get_if<Symbol>(&value.data))
        return symbol->name;
    const auto *list = std::get_if<Value::List>(&value.data);
    return list ? printedList(*list) : QStringLiteral("nil");
}

Value::List read(const QString &text)
{
    Reader reader(text);
    Value::List forms;
    while (!reader.isAtEnd())
        forms.push_back(reader.next());
    return forms;
}

void Lisp::define(const QString &name, const Function &function)
{
    m_functions[name.toUpper()] = function;
}

void Lisp::undefine(const QString &name)
{
    m_functions.remove(name.toUpper());
}

void Lisp::set(const QString &name, const Value &value)
{
    m_variables[name.toUpper()] = value;
}

Value Lisp::evaluate(const Value::List &forms)
{
    Value last;
    for (const Value &form : forms)
        last = valueOf(form);
    return last;
}

Value Lisp::valueOf(const Value &form)
{
    if (const auto *symbol = std::get_if<Symbol>(&form.data))
        return symbol->name == u"T" ? form : m_variables.value(symbol->name);
    const auto *list = std::get_if<Value::List>(&form.data);
    if (!list)
        return form;
    const auto *head = std::get_if<Symbol>(&list->front().data);
    if (!head)
        throw LispError{QStringLiteral("bad function: ") + printed(list->front())};
    if (head->name == u"QUOTE" && list->size() == 2)
        return list->back();
    if (head->name == u"PROGN")
        return evaluate({list->begin() + 1, list->end()});
    return call(head->name, *list);
}

Value Lisp::call(const QString &name, const Value::List &form)
{
    const bool isSetq = name == u"SETQ";
    Value::List arguments;
    for (std::size_t i = 1; i < form.size(); ++i)
        arguments.push_back(isSetq && i % 2 == 1 ? form[i] : valueOf(form[i]));
    if (name == u"LIST")
        return arguments.empty() ? Value() : Value{arguments};
    for (std::size_t i = 0; isSetq && i + 1 < arguments.size(); i += 2)
        m_variables[printed(arguments[i])] = arguments[i + 1];
    if (isSetq)
        return arguments.empty() ? Value() : arguments.back();
    // A copy: the call may take the function away, as the unloading of the module does.
    const Function function = m_functions.value(name);
    if (!function)
        throw LispError{QStringLiteral("no function definition: ") + name};
    return function(arguments);
}

} // namespace sample
