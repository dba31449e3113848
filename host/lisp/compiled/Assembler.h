#pragma once

#include "host/lisp/compiled/Code.h"

#include <algorithm>
#include <optional>

namespace host::lisp::compiled {

/// A place in code that is not made yet.
struct Label
{
    std::size_t number;
};

inline Word wordOf(Value &cell)
{
    Word word;
    word.cell = &cell;
    return word;
}

inline Word wordOf(const Value &value)
{
    Word word;
    word.value = &value;
    return word;
}

inline Word wordOf(Symbol &symbol)
{
    Word word;
    word.symbol = &symbol;
    return word;
}

inline Word wordOf(const Site &site)
{
    Word word;
    word.site = &site;
    return word;
}

inline Word wordOf(const NativeFunction &native)
{
    Word word;
    word.native = &native;
    return word;
}

inline Word wordOf(std::size_t number)
{
    Word word;
    word.number = number;
    return word;
}

/// Puts instructions one behind the other and keeps count of the stack that they take.
class Assembler
{
public:
    explicit Assembler(Code &code) : m_code(code) {}

    /// An instruction by its operation; `change` is what it leaves more on the stack, or less.
    void begin(Operation operation, int change)
    {
        Word word;
        word.operation = operation;
        m_last = m_code.words.size();
        m_code.words.push_back(word);
        moveDepth(change);
    }
    /// Its next word.
    void add(Word word) { m_code.words.push_back(word); }
    /// Its next word, which is where a label will be placed.
    void add(Label label)
    {
        m_uses.push_back({m_code.words.size(), label.number});
        m_code.words.push_back(wordOf(std::size_t{0}));
    }

    Label newLabel()
    {
        m_places.push_back(0);
        return {m_places.size() - 1};
    }
    void place(Label label)
    {
        m_places[label.number] = m_code.words.size();
        m_reached = m_code.words.size();
    }

    /// Takes the instruction put last back when it is this one, of two words, and nothing jumps behind it: its operand.
    std::optional<Word> takeBack(Operation operation, int change)
    {
        const bool isIt = m_code.words.size() == m_last + 2 && m_code.words[m_last].operation == operation;
        if (!isIt || m_reached == m_code.words.size())
            return std::nullopt;
        const Word operand = m_code.words.back();
        m_code.words.resize(m_last);
        moveDepth(-change);
        return operand;
    }

    /// Values on the stack at this place.
    int depth() const noexcept { return m_depth; }
    /// Where another way comes in that has as many on the stack.
    void setDepth(int depth) { m_depth = depth; }
    void moveDepth(int change)
    {
        m_depth += change;
        m_code.stackNeed = std::max(m_code.stackNeed, static_cast<std::size_t>(std::max(m_depth, 0)));
    }

    /// When all is there: turns labels into addresses.
    void finish()
    {
        m_code.words.shrink_to_fit();
        for (const Use &use : m_uses)
            m_code.words[use.word].target = m_code.words.data() + m_places[use.label];
    }

private:
    struct Use
    {
        std::size_t word;
        std::size_t label;
    };
    Code &m_code;
    std::vector<std::size_t> m_places;
    std::vector<Use> m_uses;
    std::size_t m_last = 0;    ///< where the last instruction begins
    std::size_t m_reached = 0; ///< the last place of a label
    int m_depth = 0;
};

} // namespace host::lisp::compiled
