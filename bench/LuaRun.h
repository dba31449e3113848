#pragma once

#include <memory>
#include <string>

namespace bench {

/// A program in Lua, an interpreter of known speed: read once, run many times.
class LuaProgram
{
public:
    /// `setup` is run once; `body` is what run() runs.
    LuaProgram(const std::string &setup, const std::string &body);
    ~LuaProgram();
    /// Whether it ran without an error.
    bool run();

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace bench
