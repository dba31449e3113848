#pragma once

// The bodies of Value that every evaluation runs through, and that therefore must be seen where they are called.
// Included by Value.h alone.

#include "host/lisp/Value.h"

namespace host::lisp {

inline Value Value::integer(std::int32_t number) noexcept
{
    Value value(Tag::Integer);
    value.m_integer = number;
    return value;
}

inline Value Value::real(double number) noexcept
{
    Value value(Tag::Real);
    value.m_real = number;
    return value;
}

inline Value Value::symbol(Symbol &symbol) noexcept
{
    Value value(Tag::Symbol);
    value.m_symbol = &symbol;
    return value;
}

inline Value Value::entityName(std::uint64_t id) noexcept
{
    Value value(Tag::EntityName);
    value.m_id = id;
    return value;
}

inline Value Value::adopt(Tag tag, Object *object) noexcept
{
    Value value(tag);
    value.m_object = object;
    return value;
}

inline Value Value::adopt(Cons *pair) noexcept
{
    Value value(Tag::Cons);
    value.m_object = &pair->car.m_head;
    return value;
}

inline Value Value::cons(Value car, Value cdr)
{
    return adopt(new Cons(car, cdr));
}

inline void Value::retain() const noexcept
{
    if (tag() >= Tag::String)
        ++m_object->references;
}

inline void Value::release() noexcept
{
    if (tag() >= Tag::String && --m_object->references == 0)
        destroyObject(tag(), m_object);
}

inline const Cons &Value::asCons() const noexcept
{
    assert(isCons());
    return *reinterpret_cast<const Cons *>(m_object);
}

inline StringObject &Value::asStringObject() const noexcept
{
    assert(isString());
    return *static_cast<StringObject *>(m_object);
}

inline const std::string &Value::asString() const noexcept
{
    return asStringObject().text;
}

inline SelectionSet &Value::asSelectionSet() const noexcept
{
    assert(isSelectionSet());
    return *static_cast<SelectionSet *>(m_object);
}

inline const HostObject &Value::asHostObject() const noexcept
{
    assert(tag() == Tag::HostObject);
    return *static_cast<const HostObject *>(m_object);
}

inline CaughtError &Value::asCaughtError() const noexcept
{
    assert(tag() == Tag::CaughtError);
    return *static_cast<CaughtError *>(m_object);
}

namespace detail {
inline const Value nil;
}

inline const Value &Value::car() const noexcept
{
    return isCons() ? asCons().car : detail::nil;
}

inline const Value &Value::cdr() const noexcept
{
    return isCons() ? asCons().cdr : detail::nil;
}

} // namespace host::lisp
