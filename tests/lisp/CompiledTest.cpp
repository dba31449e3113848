// Compiled code does what the evaluator does.

#include "tests/lisp/BothWays.h"
#include "tests/lisp/LispBench.h"
#include "tests/lisp/RandomProgram.h"

#include <cstdlib>

using namespace host::lisp;
using namespace host::lisp::test;

namespace {

std::string joined(const std::vector<std::string> &texts)
{
    std::string all;
    for (const std::string &text : texts)
        all += text + "\n";
    return all;
}

/// ORTAKIT_LISP_PROGRAMS says how many programs, ORTAKIT_LISP_SEED from which on.
std::uint32_t numberOr(const char *name, std::uint32_t otherwise)
{
    const char *text = std::getenv(name);
    return text ? static_cast<std::uint32_t>(std::strtoul(text, nullptr, 10)) : otherwise;
}

TEST(Compiled, RandomProgramsGiveTheSame)
{
    const std::uint32_t first = numberOr("ORTAKIT_LISP_SEED", 1);
    const std::uint32_t count = numberOr("ORTAKIT_LISP_PROGRAMS", 300);
    std::uint32_t compared = 0;
    for (std::uint32_t seed = first; seed != first + count && !HasFailure(); ++seed) {
        const std::uint8_t bytes[] = {std::uint8_t(seed), std::uint8_t(seed >> 8U), std::uint8_t(seed >> 16U)};
        const std::vector<std::string> texts = RandomProgram(Choices(bytes)).forms();
        const std::optional<std::string> expected = resultOf(texts, false);
        const std::optional<std::string> given = resultOf(texts, true);
        compared += expected && given ? 1 : 0;
        if (expected && given) {
            EXPECT_EQ(*given, *expected) << "seed " << seed << "\n" << joined(texts);
        }
    }
    EXPECT_GT(compared, count * 3 / 4) << "most of them end by themselves";
}

} // namespace
