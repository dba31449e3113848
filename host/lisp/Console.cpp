#include "host/lisp/Console.h"

#include "host/lisp/Paths.h"

namespace host::lisp {

std::string Console::findFile(const std::string &name)
{
    std::error_code error;
    return !name.empty() && std::filesystem::exists(toPath(name), error) ? name : std::string();
}

Value Console::systemVariable(std::string_view)
{
    return {};
}

} // namespace host::lisp
