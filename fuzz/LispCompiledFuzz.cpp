// Programs of a generator that takes its choices from any bytes, run as compiled code and by the evaluator.

#include "tests/lisp/BothWays.h"
#include "tests/lisp/RandomProgram.h"

#include <cstdio>
#include <cstdlib>

using namespace host::lisp::test;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::vector<std::string> texts = RandomProgram(Choices({data, size})).forms();
    const std::optional<std::string> expected = resultOf(texts, false);
    const std::optional<std::string> given = resultOf(texts, true);
    if (!expected || !given || *expected == *given)
        return 0;
    for (const std::string &text : texts)
        std::puts(text.c_str());
    std::printf("---- evaluated\n%s---- compiled\n%s", expected->c_str(), given->c_str());
    std::abort();
}
