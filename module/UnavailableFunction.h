#pragma once

#include "platform/rx/OdString.h"

#include <algorithm>
#include <cstddef>

namespace ortakit {

/// The name of a Lisp function as a template argument: a handler is called without arguments and would not know it.
template <std::size_t length>
struct LispName
{
    // Not explicit: a literal in a template argument list converts.
    constexpr LispName(const char (&literal)[length]) { std::copy_n(literal, length, text); }

    constexpr QLatin1StringView view() const { return {text, qsizetype(length) - 1}; }

    char text[length] = {};
};

/// Says on the command line of the active document that `name` is not available; returns the code for an error.
int sayUnavailable(QLatin1StringView name);

/// Handler of a function that the product names and this build does not have.
template <LispName name>
int unavailable()
{
    return sayUnavailable(name.view());
}

} // namespace ortakit
