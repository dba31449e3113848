#include "host/lisp/Console.h"

#include "host/lisp/Paths.h"

namespace host::lisp {

std::string Console::findFile(const std::string &name)
{
    std::error_code error;
    return !name.empty() && std::filesystem::exists(toPath(name), error) ? name : std::string();
}

std::string Console::findProgram(std::span<const std::string> names, LoadedBy)
{
    for (const std::string &name : names)
        if (std::string path = findFile(name); !path.empty())
            return path;
    return {};
}

Value Console::systemVariable(std::string_view)
{
    return {};
}

} // namespace host::lisp
