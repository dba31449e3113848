#include "host/lisp/Error.h"

#include <new>
#include <stdexcept>

namespace host::lisp {

static std::string placeText(const std::string &file, int line)
{
    if (line <= 0)
        return file;
    return file.empty() ? "line " + std::to_string(line) : file + ":" + std::to_string(line);
}

std::string messageOf(const std::exception &exception)
{
    const bool isTooLarge = dynamic_cast<const std::bad_alloc *>(&exception) != nullptr ||
                            dynamic_cast<const std::length_error *>(&exception) != nullptr;
    return isTooLarge ? "out of memory" : exception.what();
}

std::string Error::summary() const
{
    std::string text = m_message;
    if (!function.empty())
        text += " in (" + function + ")";
    if (argument > 0)
        text += ", argument " + std::to_string(argument);
    if (const std::string place = placeText(file, line); !place.empty())
        text += " (" + place + ")";
    return text;
}

std::string Error::report() const
{
    std::string text = summary();
    for (const CallSite &call : chain) {
        text += "\n  in " + call.function;
        if (const std::string place = placeText(call.file, call.line); !place.empty())
            text += ", called at " + place;
    }
    if (callsLeftOut > 0)
        text += "\n  and " + std::to_string(callsLeftOut) + " more";
    return text;
}

} // namespace host::lisp
