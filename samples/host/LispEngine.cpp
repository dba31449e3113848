#include "LispEngine.h"

#include "Chains.h"

#include <QFile>

#include <cstdio>

namespace sample {

// [functions]
void LispEngine::defineFunction(const OdString &name, Handler handler)
{
    if (!isSupplied("CKvLispEngine::defineFunction"))
        return;
    m_functions.removeAll(name.toUpper());
    m_functions.append(name.toUpper());
    m_lisp.define(name, [this, name, handler](const Value::List &arguments) { return call(name, handler, arguments); });
}

Value LispEngine::call(const QString &name, Handler handler, const Value::List &arguments)
{
    m_calls.push_back({chainOf(arguments), {}});
    const int code = handler(); // never throws; fetches its arguments and sets its result here
    const Value result = m_calls.back().result;
    m_calls.pop_back();
    if (code == kRtError)
        throw LispError{QStringLiteral("bad argument: ") + name};
    if (code == kRtCancel)
        throw LispError{QStringLiteral("cancelled: ") + name};
    return result;
}
// [/functions]

void LispEngine::undefineFunction(const OdString &name)
{
    if (m_functions.removeAll(name.toUpper()) > 0)
        m_lisp.undefine(name);
}

void LispEngine::forgetFunctions()
{
    for (const QString &name : m_functions)
        m_lisp.undefine(name);
    m_functions.clear();
}

OdResBuf *LispEngine::arguments()
{
    return m_calls.empty() ? nullptr : m_calls.back().arguments.get();
}

void LispEngine::releaseArguments(OdResBuf *first)
{
    if (!first || m_calls.empty())
        return;
    OdResBufPtr &arguments = m_calls.back().arguments;
    if (arguments.get() == first)
        arguments.reset();
    for (OdResBuf *link = arguments.get(); link; link = link->next()) {
        if (link->next() == first)
            link->takeNext();
    }
}

void LispEngine::setResult(const Value &value)
{
    if (!m_calls.empty())
        m_calls.back().result = value;
}

void LispEngine::returnList(OdResBufPtr chain)
{
    const Value::List values = valuesOf(chain.get());
    setResult(values.empty() ? Value() : values.front());
}

void LispEngine::setSymbol(const OdString &name, const OdResBuf &value)
{
    const Value::List values = valuesOf(&value);
    m_lisp.set(name, values.empty() ? Value() : values.front());
}

bool LispEngine::loadFile(const OdString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        print(u'\n' + path + QStringLiteral(" cannot be read"));
        return false;
    }
    try {
        run(QString::fromUtf8(file.readAll()));
        return true;
    } catch (const LispError &error) { // it would pass through the module otherwise
        print(QStringLiteral("\n; error: ") + error.text);
        return false;
    }
}

void LispEngine::print(const OdString &text)
{
    std::fputs(text.toUtf8().constData(), stdout);
}

} // namespace sample
