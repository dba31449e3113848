#include "host/kernel/lisp/ResBufConversion.h"

#include "host/kernel/lisp/LispConversion.h"
#include "host/kernel/platform/ChainBuilder.h"
#include "host/lisp/Interpreter.h"

#include <limits>

namespace host::kernel {

namespace {

using lisp::Value;

constexpr int lastGroupCode = 1071;

bool hasReal(const Value &list)
{
    for (const Value &item : lisp::ListItems(list))
        if (item.isReal())
            return true;
    return false;
}

/// Where a list stands that is being written.
struct OpenList
{
    Value rest;
};

class ChainWriter
{
public:
    explicit ChainWriter(std::vector<Value> &selections) : m_selections(selections) {}

    /// Writes a value whole. A stack of its own instead of recursion: lists may be nested deeper than the machine's.
    void write(const Value &value)
    {
        begin(value);
        while (!m_open.empty()) {
            const Value rest = m_open.back().rest;
            if (rest.isCons()) {
                m_open.back().rest = rest.cdr();
                begin(rest.car());
            } else {
                m_open.pop_back();
                end(rest);
            }
        }
    }
    OdResBufPtr take() { return m_chain.take(); }

private:
    void begin(const Value &value)
    {
        const bool mayBeGroup = !m_open.empty() && value.isCons() && value.car().isInteger();
        if (value.isCons() && (mayBeGroup || !isPoint(value))) {
            m_chain.append(OdResBuf::newRb(OdResBuf::kRtListBegin));
            m_open.push_back({value});
        } else {
            m_chain.append(atom(value));
        }
    }

    void end(const Value &tail)
    {
        if (tail.isTrue())
            m_chain.append(atom(tail));
        m_chain.append(OdResBuf::newRb(tail.isTrue() ? OdResBuf::kRtDottedPair : OdResBuf::kRtListEnd));
    }

    static bool isPoint(const Value &value)
    {
        return pointFrom(value).has_value() && hasReal(value) && isProper(value);
    }

    static bool isProper(const Value &list)
    {
        const Value *rest = &list;
        while (rest->isCons())
            rest = &rest->cdr();
        return rest->isNil();
    }

    static OdResBufPtr integerLink(std::int32_t number)
    {
        const bool isShort =
            number >= std::numeric_limits<qint16>::min() && number <= std::numeric_limits<qint16>::max();
        return OdResBuf::newInteger(isShort ? OdResBuf::kRtShort : OdResBuf::kRtLong, number);
    }

    OdResBufPtr atom(const Value &value)
    {
        switch (value.tag()) {
        case lisp::Tag::Nil:
            return OdResBuf::newRb(OdResBuf::kRtNil);
        case lisp::Tag::Integer:
            return integerLink(value.asInteger());
        case lisp::Tag::Real:
            return OdResBuf::newReal(OdResBuf::kRtReal, value.asReal());
        case lisp::Tag::String:
            return OdResBuf::newString(OdResBuf::kRtString, QString::fromStdString(value.asString()));
        case lisp::Tag::EntityName:
            return OdResBuf::newInteger(OdResBuf::kRtEntityName, static_cast<qint64>(value.asEntityName()));
        case lisp::Tag::SelectionSet:
            m_selections.push_back(value);
            return OdResBuf::newInteger(OdResBuf::kRtPickSet, static_cast<qint64>(m_selections.size()));
        case lisp::Tag::Symbol:
            return symbolLink(value);
        case lisp::Tag::Cons: {
            const drawing::Vec3 point = *pointFrom(value);
            const bool isFlat = lisp::listLength(value) == 2;
            return OdResBuf::newPoint(isFlat ? OdResBuf::kRtPoint : OdResBuf::kRtPoint3d, {point.x, point.y, point.z});
        }
        case lisp::Tag::Function:
        case lisp::Tag::Native:
        case lisp::Tag::File:
        case lisp::Tag::CaughtError:
        case lisp::Tag::HostObject:
            break;
        }
        throw lisp::Error("bad argument type");
    }

    static OdResBufPtr symbolLink(const Value &value)
    {
        const std::string &name = value.asSymbol().name();
        if (name == "T")
            return OdResBuf::newRb(OdResBuf::kRtTrue);
        return OdResBuf::newString(OdResBuf::kRtSymbol, fromUtf8(name));
    }

    std::vector<Value> &m_selections;
    ChainBuilder m_chain;
    std::vector<OpenList> m_open;
};

Value groupValue(const OdResBuf &link)
{
    const int code = link.restype();
    Value value;
    switch (drawing::tagType(code)) {
    case drawing::TagType::Real: {
        const OdGePoint3d point = link.getPoint3d();
        const bool isPoint = drawing::isPointCode(code) && (point != OdGePoint3d{} || link.getDouble() == 0.0);
        value = isPoint ? Value::point(point.x, point.y, point.z) : Value::real(link.getDouble());
        break;
    }
    case drawing::TagType::Int16:
    case drawing::TagType::Int32:
    case drawing::TagType::Int64:
    case drawing::TagType::Bool:
        value = Value::integer(static_cast<std::int32_t>(link.getInteger()));
        break;
    default:
        value = toLisp(link.getString());
    }
    return Value::cons(Value::integer(code), value);
}

Value atomFrom(const OdResBuf &link, lisp::Interpreter &interpreter, const std::vector<Value> &selections)
{
    const OdGePoint3d point = link.getPoint3d();
    switch (link.restype()) {
    case OdResBuf::kRtNil:
        return {};
    case OdResBuf::kRtTrue:
        return interpreter.t();
    case OdResBuf::kRtShort:
    case OdResBuf::kRtLong:
        return Value::integer(static_cast<std::int32_t>(link.getInteger()));
    case OdResBuf::kRtReal:
    case OdResBuf::kRtAngle:
        return Value::real(link.getDouble());
    case OdResBuf::kRtString:
        return toLisp(link.getString());
    case OdResBuf::kRtSymbol:
        return interpreter.symbol(link.getString().toStdString());
    case OdResBuf::kRtPoint:
        return Value::point(point.x, point.y);
    case OdResBuf::kRtPoint3d:
        return Value::point(point.x, point.y, point.z);
    case OdResBuf::kRtEntityName:
        return Value::entityName(static_cast<std::uint64_t>(link.getInteger()));
    case OdResBuf::kRtPickSet: {
        const auto place = static_cast<std::size_t>(link.getInteger());
        return place >= 1 && place <= selections.size() ? selections[place - 1] : Value();
    }
    default:
        return link.restype() <= lastGroupCode ? groupValue(link) : Value();
    }
}

/// The list of what was collected since its begin. Closed by a dotted pair, the last item is the tail.
Value closedList(std::vector<Value> items, bool isDotted)
{
    lisp::ListBuilder list;
    const bool hasTail = isDotted && items.size() >= 2;
    for (std::size_t i = 0; i + (hasTail ? 1 : 0) < items.size(); ++i)
        list.append(items[i]);
    if (hasTail)
        list.setTail(items.back());
    return list.take();
}

} // namespace

OdResBufPtr chainFromValues(const std::vector<Value> &values, std::vector<Value> &selections)
{
    ChainWriter writer(selections);
    for (const Value &value : values)
        writer.write(value);
    return writer.take();
}

OdResBufPtr chainFromValues(const std::vector<Value> &values)
{
    std::vector<Value> selections;
    return chainFromValues(values, selections);
}

Value valueFromChain(const OdResBuf *&link, lisp::Interpreter &interpreter, const std::vector<Value> &selections)
{
    std::vector<std::vector<Value>> open;
    while (link) {
        const OdResBuf &current = *link;
        link = link->next();
        const int type = current.restype();
        if (type == OdResBuf::kRtListBegin) {
            open.emplace_back();
            continue;
        }
        const bool isEnd = type == OdResBuf::kRtListEnd || type == OdResBuf::kRtDottedPair;
        if (isEnd && open.empty())
            return {};
        Value value;
        if (isEnd) {
            value = closedList(std::move(open.back()), type == OdResBuf::kRtDottedPair);
            open.pop_back();
        } else {
            value = atomFrom(current, interpreter, selections);
        }
        if (open.empty())
            return value;
        open.back().push_back(std::move(value));
    }
    // The chain ends inside of lists: they end with it.
    while (!open.empty()) {
        Value value = closedList(std::move(open.back()), false);
        open.pop_back();
        if (open.empty())
            return value;
        open.back().push_back(std::move(value));
    }
    return {};
}

} // namespace host::kernel
