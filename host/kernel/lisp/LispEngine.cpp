#include "host/kernel/lisp/LispEngine.h"

#include "host/kernel/documents/Document.h"
#include "host/kernel/documents/Session.h"
#include "host/kernel/lisp/LispConversion.h"
#include "host/kernel/lisp/ObjectIds.h"
#include "host/kernel/lisp/ResBufConversion.h"
#include "host/kernel/platform/Services.h"
#include "host/lisp/Interpreter.h"
#include "platform/rx/OdError.h"

namespace host::kernel {

using lisp::Value;

/// One call, in order whatever the handler does: it works on its own document even when that is not the active one.
class LispEngine::CallScope
{
public:
    CallScope(LispEngine &engine, OdResBufPtr arguments) : m_engine(engine)
    {
        setActiveDocument(&engine.m_document);
        m_engine.m_calls.push_back({std::move(arguments), {}});
    }
    ~CallScope()
    {
        m_engine.m_calls.pop_back();
        if (m_engine.m_calls.empty())
            m_engine.m_selections.clear();
        // What was active before may be closed by now.
        setActiveDocument(m_engine.m_document.session().documents().active());
    }
    CallScope(const CallScope &) = delete;
    CallScope &operator=(const CallScope &) = delete;

private:
    LispEngine &m_engine;
};

void LispEngine::defineFunction(const OdString &name, Handler handler)
{
    m_document.interpreter().define(
        name.toStdString(),
        lisp::NativeClosure([this, name, handler](lisp::Arguments &args) { return call(name, handler, args); }),
        lisp::Arity::any(), lisp::NativeKind::External);
}

void LispEngine::undefineFunction(const OdString &name)
{
    m_document.interpreter().undefine(name.toStdString());
}

Value LispEngine::call(const QString &name, Handler handler, lisp::Arguments &args)
{
    OdResBufPtr chain = chainFromValues({args.begin(), args.end()}, m_selections);
    const CallScope scope(*this, std::move(chain));
    int code = kRtError;
    try {
        code = handler();
    } catch (const lisp::Error &) {
        throw;
    } catch (const std::exception &failure) {
        // A handler must not throw; what it says is told, and the program goes on as after any error.
        args.fail(name.toStdString() + ": " + lisp::messageOf(failure));
    } catch (const OdError &failure) {
        args.fail((name + QStringLiteral(": ") + failure.description()).toStdString());
    }
    if (code == kRtError)
        args.fail("bad argument: " + name.toStdString());
    if (code == kRtCancel)
        throw lisp::Error::cancelled();
    return m_calls.back().result;
}

OdResBuf *LispEngine::arguments()
{
    return m_calls.empty() ? nullptr : m_calls.back().arguments.get();
}

void LispEngine::releaseArguments(OdResBuf *first)
{
    if (!first || m_calls.empty())
        return;
    OdResBufPtr &chain = m_calls.back().arguments;
    if (chain.get() == first) {
        chain.reset();
        return;
    }
    for (OdResBuf *link = chain.get(); link; link = link->next()) {
        if (link->next() == first) {
            link->takeNext();
            return;
        }
    }
}

OdDbObjectIdArray LispEngine::selectionMembers(const OdResBuf &set) const
{
    const qint64 place = set.restype() == OdResBuf::kRtPickSet ? set.getInteger() : 0;
    if (place < 1 || place > qint64(m_selections.size()))
        return {};
    OdDbObjectIdArray members;
    for (const std::uint64_t name : m_selections[std::size_t(place - 1)].asSelectionSet().entities)
        members.emplace_back(name);
    return members;
}

void LispEngine::setResult(Value value)
{
    if (!m_calls.empty())
        m_calls.back().result = std::move(value);
}

void LispEngine::returnNil()
{
    setResult({});
}

void LispEngine::returnTrue()
{
    setResult(m_document.interpreter().t());
}

void LispEngine::returnInteger(qint32 value)
{
    setResult(Value::integer(value));
}

void LispEngine::returnReal(double value)
{
    setResult(Value::real(value));
}

void LispEngine::returnString(const OdString &value)
{
    setResult(toLisp(value));
}

void LispEngine::returnPoint(const OdGePoint3d &point)
{
    setResult(Value::point(point.x, point.y, point.z));
}

void LispEngine::returnEntityName(const OdDbObjectId &object)
{
    setResult(object.isNull() ? Value() : Value::entityName(object.number()));
}

void LispEngine::returnSelectionSet(const OdDbObjectIdArray &entities)
{
    setResult(entities.empty() ? Value() : toLisp(m_document.interpreter(), recordsFrom(m_document, entities)));
}

void LispEngine::returnList(OdResBufPtr chain)
{
    const OdResBuf *link = chain.get();
    setResult(valueFromChain(link, m_document.interpreter(), m_selections));
}

void LispEngine::setSymbol(const OdString &name, const OdResBuf &value)
{
    const OdResBuf *link = &value;
    m_document.interpreter().setVariable(name.toStdString(),
                                         valueFromChain(link, m_document.interpreter(), m_selections));
}

bool LispEngine::loadFile(const OdString &path)
{
    return m_document.loadLisp(path).ok;
}

void LispEngine::print(const OdString &text)
{
    m_document.print(text);
}

} // namespace host::kernel
