#include "host/dwg/Problem.h"

#include <cstdio>

namespace host::dwg {

std::string Problem::message() const
{
    if (!isOfObject())
        return text;
    if (handle == 0)
        return type + ": " + text;
    char digits[20];
    std::snprintf(digits, sizeof digits, "%llX", static_cast<unsigned long long>(handle));
    return (type.empty() ? "object" : type) + " " + digits + ": " + text;
}

void Problems::add(Problem problem)
{
    ++m_counts[static_cast<std::size_t>(problem.kind)];
    m_lostObjects += problem.kind == Problem::Kind::Lost && problem.isOfObject() ? 1 : 0;
    if (m_list.size() < mostKept)
        m_list.push_back(std::move(problem));
}

} // namespace host::dwg
