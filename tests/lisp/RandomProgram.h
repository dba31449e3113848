#pragma once

#include <cstdint>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace host::lisp::test {

/// Choices taken from bytes, and behind the last from numbers that follow from them.
class Choices
{
public:
    explicit Choices(std::span<const std::uint8_t> bytes) : m_bytes(bytes)
    {
        for (const std::uint8_t byte : bytes)
            m_state = (m_state ^ byte) * 0x100000001B3U;
    }
    /// Below `count`, which is not 0.
    std::uint32_t below(std::uint32_t count)
    {
        if (m_position < m_bytes.size())
            return m_bytes[m_position++] % count;
        m_state = m_state * 6364136223846793005U + 1442695040888963407U;
        return static_cast<std::uint32_t>(m_state >> 33U) % count;
    }
    bool oneIn(std::uint32_t count) { return below(count) == 0; }
    std::string_view of(std::initializer_list<std::string_view> texts) { return texts.begin()[below(texts.size())]; }

private:
    std::span<const std::uint8_t> m_bytes;
    std::size_t m_position = 0;
    std::uint64_t m_state = 0xCBF29CE484222325U;
};

/// Programs of all that the compiler makes something of: calls, recursion, special forms, arithmetic, lists, texts,
/// errors and their being caught, variables with the names of functions, functions defined anew while they run. They
/// end: each call and each round takes from the variable `fuel`. A line feed stands where there is room for one, since
/// errors name lines.
class RandomProgram
{
public:
    explicit RandomProgram(Choices choices) : m_choices(choices) {}

    /// One form of the top level a text, to be run in turn.
    std::vector<std::string> forms();

private:
    std::string form(int depth);
    std::string list(std::string_view head, std::initializer_list<std::string> items);
    std::string forms(int depth);
    std::string atom();
    std::string variable();
    std::string function();
    std::string parameters();
    std::string literal();
    std::string numbers(int depth);
    std::string test(int depth);
    std::string specialForm(int depth);
    std::string loop(int depth);
    std::string call(int depth);
    std::string callback(int depth);
    std::string callee(int depth);
    std::string items(int depth);
    std::string ofLists(int depth);
    std::string ofTexts(int depth);
    std::string mischief(int depth);
    std::string definition(int depth);
    std::string lambda(int depth);

    Choices m_choices;
};

} // namespace host::lisp::test
