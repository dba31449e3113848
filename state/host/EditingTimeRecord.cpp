#include "state/host/EditingTimeRecord.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace ortakit {

namespace {

constexpr int trackedCode = 280;
constexpr int idleLimitCode = 90;
constexpr int hoursCode = 40;
constexpr int lastActivityCode = 1;

/// The links of a record one after the other. What cannot be taken ends it.
class LinkReader
{
public:
    explicit LinkReader(const OdResBuf *chain) : m_link(chain) {}

    bool isGood() const { return m_isGood; }

    qint64 integer(int code, qint64 smallest, qint64 largest)
    {
        const OdResBuf *link = takeNumber(code);
        const qint64 value = link ? link->getInteger() : smallest;
        m_isGood = m_isGood && value >= smallest && value <= largest;
        return value;
    }

    double real(int code, double largest)
    {
        const OdResBuf *link = takeNumber(code);
        const double value = link ? link->getDouble() : 0;
        m_isGood = m_isGood && std::isfinite(value) && value >= 0 && value <= largest;
        return value;
    }

    qint64 decimalText(int code)
    {
        const OdResBuf *link = take(code);
        bool isNumber = false;
        const qint64 value = link ? link->getString().toLongLong(&isNumber) : 0;
        m_isGood = m_isGood && isNumber;
        return value;
    }

private:
    const OdResBuf *take(int code)
    {
        m_isGood = m_isGood && m_link && m_link->restype() == code;
        return m_isGood ? std::exchange(m_link, m_link->next()) : nullptr;
    }

    /// A host gives what it cannot read as a number as text.
    const OdResBuf *takeNumber(int code)
    {
        const OdResBuf *link = take(code);
        m_isGood = m_isGood && link->getString().isEmpty();
        return link;
    }

    const OdResBuf *m_link;
    bool m_isGood = true;
};

} // namespace

OdResBufPtr editingTimeChain(const EditingTime &time)
{
    OdResBufPtr chain = OdResBuf::newInteger(trackedCode, time.isTracked ? 1 : 0);
    chain->setNext(OdResBuf::newInteger(idleLimitCode, time.idleLimitMinutes))
        ->setNext(OdResBuf::newReal(hoursCode, std::clamp(time.hours, 0.0, mostEditingHours)))
        ->setNext(OdResBuf::newString(lastActivityCode, QString::number(time.lastActivity)));
    return chain;
}

std::optional<EditingTime> editingTimeFromChain(const OdResBuf *chain)
{
    using Limit = std::numeric_limits<qint32>;
    LinkReader links(chain);
    EditingTime time;
    time.isTracked = links.integer(trackedCode, 0, 1) == 1;
    time.idleLimitMinutes = qint32(links.integer(idleLimitCode, Limit::min(), Limit::max()));
    time.hours = links.real(hoursCode, mostEditingHours);
    time.lastActivity = links.decimalText(lastActivityCode);
    return links.isGood() ? std::optional(time) : std::nullopt;
}

EditingTime EditingTimeChange::applied(EditingTime time, qint64 now) const
{
    if (isTracked.value_or(false) && !time.isTracked)
        time.lastActivity = now;
    time.isTracked = isTracked.value_or(time.isTracked);
    time.idleLimitMinutes = idleLimitMinutes.value_or(time.idleLimitMinutes);
    time.hours = isReset ? 0 : time.hours;
    return time;
}

} // namespace ortakit
