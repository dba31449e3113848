#include "platform/kernel/OdResBuf.h"

#include <cmath>

OdResBuf::~OdResBuf()
{
    for (OdResBufPtr rest = std::move(m_next); rest;)
        rest = rest->takeNext();
}

OdResBufPtr OdResBuf::newString(int type, const OdString &value)
{
    OdResBufPtr link = newRb(type);
    link->m_value = value;
    return link;
}

OdResBufPtr OdResBuf::newInteger(int type, qint64 value)
{
    OdResBufPtr link = newRb(type);
    link->m_value = value;
    return link;
}

OdResBufPtr OdResBuf::newReal(int type, double value)
{
    OdResBufPtr link = newRb(type);
    link->m_value = value;
    return link;
}

OdResBufPtr OdResBuf::newPoint(int type, const OdGePoint3d &value)
{
    OdResBufPtr link = newRb(type);
    link->m_value = value;
    return link;
}

OdString OdResBuf::getString() const
{
    const auto *text = std::get_if<OdString>(&m_value);
    return text ? *text : OdString();
}

qint64 OdResBuf::getInteger() const
{
    if (const auto *number = std::get_if<qint64>(&m_value))
        return *number;
    const auto *real = std::get_if<double>(&m_value);
    // Beyond this the cast has no defined result.
    constexpr double limit = 9.2e18;
    return real && std::abs(*real) < limit ? static_cast<qint64>(*real) : 0;
}

double OdResBuf::getDouble() const
{
    if (const auto *real = std::get_if<double>(&m_value))
        return *real;
    const auto *number = std::get_if<qint64>(&m_value);
    return number ? static_cast<double>(*number) : 0.0;
}

OdGePoint3d OdResBuf::getPoint3d() const
{
    const auto *point = std::get_if<OdGePoint3d>(&m_value);
    return point ? *point : OdGePoint3d();
}

OdResBuf *OdResBuf::setNext(OdResBufPtr next)
{
    m_next = std::move(next);
    return m_next.get();
}
