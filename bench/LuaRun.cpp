#include "bench/LuaRun.h"

#include <lua.hpp>

namespace bench {

struct LuaProgram::Private
{
    lua_State *lua = luaL_newstate();
    int body = 0;
    bool isReady = false;
};

LuaProgram::LuaProgram(const std::string &setup, const std::string &body) : d(std::make_unique<Private>())
{
    luaL_openlibs(d->lua);
    d->isReady = luaL_dostring(d->lua, setup.c_str()) == LUA_OK && luaL_loadstring(d->lua, body.c_str()) == LUA_OK;
    if (d->isReady)
        d->body = luaL_ref(d->lua, LUA_REGISTRYINDEX);
}

LuaProgram::~LuaProgram()
{
    lua_close(d->lua);
}

bool LuaProgram::run()
{
    if (!d->isReady)
        return false;
    lua_rawgeti(d->lua, LUA_REGISTRYINDEX, d->body);
    return lua_pcall(d->lua, 0, 0, 0) == LUA_OK;
}

} // namespace bench
