#pragma once

#include <cstdint>

namespace host::lisp {

// 32-bit arithmetic that wraps around, as the dialect's integers do, without undefined behaviour.

inline std::int32_t wrapped(std::int64_t number) noexcept
{
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(number));
}

inline std::int32_t wrappingAdd(std::int32_t left, std::int32_t right) noexcept
{
    return wrapped(std::int64_t{left} + right);
}

inline std::int32_t wrappingSubtract(std::int32_t left, std::int32_t right) noexcept
{
    return wrapped(std::int64_t{left} - right);
}

inline std::int32_t wrappingMultiply(std::int32_t left, std::int32_t right) noexcept
{
    return wrapped(std::int64_t{left} * right);
}

/// `right` is not zero.
inline std::int32_t wrappingDivide(std::int32_t left, std::int32_t right) noexcept
{
    return wrapped(std::int64_t{left} / right);
}

/// `right` is not zero.
inline std::int32_t wrappingRemainder(std::int32_t left, std::int32_t right) noexcept
{
    return wrapped(std::int64_t{left} % right);
}

} // namespace host::lisp
