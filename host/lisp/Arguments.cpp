#include "host/lisp/Arguments.h"

#include "host/lisp/File.h"
#include "host/lisp/Interpreter.h"
#include "host/lisp/Printer.h"

namespace host::lisp {

const std::string &Arguments::string(std::size_t index) const
{
    if (!(*this)[index].isString())
        badType(index, "stringp");
    return m_values[index].asString();
}

Symbol &Arguments::symbol(std::size_t index) const
{
    if (!(*this)[index].isSymbol())
        badType(index, "symbolp");
    return m_values[index].asSymbol();
}

std::int32_t Arguments::integer(std::size_t index) const
{
    if (!(*this)[index].isInteger())
        badType(index, "fixnump:");
    return m_values[index].asInteger();
}

double Arguments::real(std::size_t index) const
{
    return number(index).asReal();
}

const Value &Arguments::number(std::size_t index) const
{
    if (!(*this)[index].isNumber())
        badType(index, "numberp:");
    return m_values[index];
}

const Value &Arguments::list(std::size_t index) const
{
    if (!(*this)[index].isList())
        badType(index, "listp");
    return (*this)[index];
}

Point Arguments::point(std::size_t index) const
{
    double numbers[3] = {0, 0, 0};
    std::size_t count = 0;
    const Value *rest = &(*this)[index];
    for (; rest->isCons() && count < 3 && rest->car().isNumber(); rest = &rest->cdr())
        numbers[count++] = rest->car().asReal();
    if (rest->isTrue() || count < 2)
        badType(index, "2D/3D point:");
    return {numbers[0], numbers[1], numbers[2], count == 3};
}

std::uint64_t Arguments::entity(std::size_t index) const
{
    if (!(*this)[index].isEntityName())
        badType(index, "lentityp");
    return m_values[index].asEntityName();
}

SelectionSet &Arguments::selectionSet(std::size_t index) const
{
    if (!(*this)[index].isSelectionSet())
        badType(index, "lselsetp");
    return m_values[index].asSelectionSet();
}

File &Arguments::file(std::size_t index) const
{
    if ((*this)[index].tag() != Tag::File || !m_values[index].asFile().isOpen())
        badType(index, "streamp");
    return m_values[index].asFile();
}

std::string Arguments::stringOr(std::size_t index, std::string_view otherwise) const
{
    return has(index) ? string(index) : std::string(otherwise);
}

std::int32_t Arguments::integerOr(std::size_t index, std::int32_t otherwise) const
{
    return has(index) ? integer(index) : otherwise;
}

double Arguments::realOr(std::size_t index, double otherwise) const
{
    return has(index) ? real(index) : otherwise;
}

Value Arguments::boolean(bool truth) const noexcept
{
    return m_interpreter.boolean(truth);
}

void Arguments::fail(std::string message) const
{
    throw Error(std::move(message));
}

static Error argumentError(std::size_t index, std::string message)
{
    Error error(std::move(message));
    error.argument = static_cast<int>(index) + 1;
    return error;
}

void Arguments::badType(std::size_t index, std::string_view predicate) const
{
    throw argumentError(index, "bad argument type: " + std::string(predicate) + " " + toShortText((*this)[index]));
}

void Arguments::badValue(std::size_t index, std::string_view what) const
{
    std::string message = "bad argument value: ";
    if (!what.empty())
        message += std::string(what) + " ";
    throw argumentError(index, message + toShortText((*this)[index]));
}

} // namespace host::lisp
