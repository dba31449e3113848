#pragma once

#include "host/lisp/Interpreter.h"

#include <new>

namespace host::lisp {

/// A stretch at the top of the value stack: the arguments of one call, then the saved values of its locals. Whatever is
/// in it goes when the frame ends.
class Interpreter::ValueFrame
{
public:
    explicit ValueFrame(Interpreter &interpreter) : m_interpreter(interpreter), m_base(interpreter.m_stackTop) {}
    ~ValueFrame()
    {
        while (m_interpreter.m_stackTop != m_base)
            (--m_interpreter.m_stackTop)->~Value();
    }
    ValueFrame(const ValueFrame &) = delete;
    ValueFrame &operator=(const ValueFrame &) = delete;

    Value *values() const noexcept { return m_base; }
    std::size_t size() const noexcept { return static_cast<std::size_t>(m_interpreter.m_stackTop - m_base); }

    void push(Value value)
    {
        if (m_interpreter.m_stackTop == m_interpreter.m_stackEnd)
            m_interpreter.raiseStackOverflow();
        new (m_interpreter.m_stackTop) Value(std::move(value));
        ++m_interpreter.m_stackTop;
    }

private:
    Interpreter &m_interpreter;
    Value *m_base;
};

} // namespace host::lisp
