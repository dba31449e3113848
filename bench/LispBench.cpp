// The Lisp engine beside Lua 5.4, doing the same: calls, a counting loop, building a list, searching one.

#include "bench/LuaRun.h"
#include "bench/Ratios.h"
#include "host/lisp/Console.h"
#include "host/lisp/Interpreter.h"

#include <benchmark/benchmark.h>

using host::lisp::Interpreter;

namespace {

class SilentConsole final : public host::lisp::Console
{
public:
    void write(std::string_view) override {}
};

/// The same work in both languages: what is run once, and what is measured.
struct Task
{
    const char *name;
    const char *lispSetup;
    const char *lisp;
    const char *luaSetup;
    const char *lua;
};

const Task tasks[] = {
    {"fib", "(defun fib (n) (if (< n 2) n (+ (fib (- n 1)) (fib (- n 2)))))", "(fib 22)",
     "function fib(n) if n < 2 then return n end return fib(n - 1) + fib(n - 2) end", "fib(22)"},
    {"loop", "(defun counting (/ i) (setq i 0) (while (< i 200000) (setq i (1+ i))))", "(counting)",
     "function counting() i = 0 while i < 200000 do i = i + 1 end end", "counting()"},
    {"list", "(defun build (/ i l) (setq i 0) (repeat 50000 (setq l (cons i l) i (1+ i))) (length l))", "(build)",
     "function build() local l = nil for i = 1, 50000 do l = {i, l} end "
     "local n = 0 while l do n = n + 1 l = l[2] end return n end",
     "build()"},
    {"assoc",
     "(setq i 0) (repeat 300 (setq table (cons (cons i i) table) i (1+ i)))"
     "(defun find (/ n) (setq n 0) (repeat 300 (assoc n table) (setq n (1+ n))))",
     "(find)",
     "t = nil for i = 0, 299 do t = {{i, i}, t} end "
     "local function assoc(n, l) while l do if l[1][1] == n then return l[1] end l = l[2] end end "
     "function find() for n = 0, 299 do assoc(n, t) end end",
     "find()"},
};

void runLisp(benchmark::State &state, const Task &task)
{
    SilentConsole console;
    Interpreter interpreter(console);
    interpreter.run(task.lispSetup);
    for (auto _ : state) {
        if (!interpreter.run(task.lisp).ok())
            return state.SkipWithError("the program failed");
    }
}

#ifdef ORTAKIT_HAS_LUA
void runLua(benchmark::State &state, const Task &task)
{
    bench::LuaProgram program(task.luaSetup, task.lua);
    for (auto _ : state) {
        if (!program.run())
            return state.SkipWithError("the program failed");
    }
}
#endif

} // namespace

int main(int argc, char **argv)
{
    std::vector<bench::Ratio> ratios;
    for (const Task &task : tasks) {
        const std::string name = task.name;
        benchmark::RegisterBenchmark((name + "InLisp").c_str(), runLisp, task)->Unit(benchmark::kMillisecond);
#ifdef ORTAKIT_HAS_LUA
        benchmark::RegisterBenchmark((name + "InLua").c_str(), runLua, task)->Unit(benchmark::kMillisecond);
#endif
        ratios.push_back({name + "InLisp", name + "InLua"});
    }
    return bench::runWithRatios(argc, argv, ratios);
}
