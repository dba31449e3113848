#include "Chains.h"

#include <limits>

namespace sample {

namespace {

/// Puts links behind each other.
class ChainMaker
{
public:
    void append(OdResBufPtr link)
    {
        if (!m_first)
            m_last = (m_first = std::move(link)).get();
        else
            m_last = m_last->setNext(std::move(link));
    }
    OdResBufPtr take() { return std::move(m_first); }

private:
    OdResBufPtr m_first;
    OdResBuf *m_last = nullptr;
};

// [values]
void appendValue(ChainMaker &chain, const Value &value)
{
    if (const auto *list = std::get_if<Value::List>(&value.data)) {
        chain.append(OdResBuf::newRb(OdResBuf::kRtListBegin));
        for (const Value &item : *list)
            appendValue(chain, item);
        chain.append(OdResBuf::newRb(OdResBuf::kRtListEnd));
    } else if (const auto *integer = std::get_if<qint64>(&value.data)) {
        using Short = std::numeric_limits<qint16>;
        const bool isShort = *integer >= Short::min() && *integer <= Short::max();
        chain.append(OdResBuf::newInteger(isShort ? OdResBuf::kRtShort : OdResBuf::kRtLong, *integer));
    } else if (const auto *real = std::get_if<double>(&value.data)) {
        chain.append(OdResBuf::newReal(OdResBuf::kRtReal, *real));
    } else if (const auto *text = std::get_if<QString>(&value.data)) {
        chain.append(OdResBuf::newString(OdResBuf::kRtString, *text));
    } else if (const auto *symbol = std::get_if<Symbol>(&value.data)) {
        chain.append(symbol->name == u"T" ? OdResBuf::newRb(OdResBuf::kRtTrue)
                                          : OdResBuf::newString(OdResBuf::kRtSymbol, symbol->name));
    } else {
        chain.append(OdResBuf::newRb(OdResBuf::kRtNil));
    }
}
// [/values]

Value valueOfLink(const OdResBuf &link)
{
    const OdGePoint3d point = link.getPoint3d();
    switch (link.restype()) {
    case OdResBuf::kRtShort:
    case OdResBuf::kRtLong:
        return {link.getInteger()};
    case OdResBuf::kRtReal:
    case OdResBuf::kRtAngle:
        return {link.getDouble()};
    case OdResBuf::kRtString:
        return {link.getString()};
    case OdResBuf::kRtPoint:
        return {Value::List{{point.x}, {point.y}}};
    case OdResBuf::kRtPoint3d:
        return {Value::List{{point.x}, {point.y}, {point.z}}};
    case OdResBuf::kRtSymbol:
        return {Symbol{link.getString().toUpper()}};
    default:
        return truth(link.restype() == OdResBuf::kRtTrue);
    }
}

} // namespace

OdResBufPtr chainOf(const Value::List &arguments)
{
    ChainMaker chain;
    for (const Value &argument : arguments)
        appendValue(chain, argument);
    return chain.take();
}

Value::List valuesOf(const OdResBuf *chain)
{
    std::vector<Value::List> open(1); // the innermost list at the end
    for (const OdResBuf *link = chain; link; link = link->next()) {
        const int type = link->restype();
        const bool isEnd = type == OdResBuf::kRtListEnd || type == OdResBuf::kRtDottedPair;
        if (type == OdResBuf::kRtListBegin) {
            open.emplace_back();
        } else if (!isEnd) {
            open.back().push_back(valueOfLink(*link));
        } else if (open.size() > 1) {
            const Value::List list = std::move(open.back());
            open.pop_back();
            open.back().push_back(list.empty() ? Value() : Value{list});
        }
    }
    return open.front();
}

} // namespace sample
