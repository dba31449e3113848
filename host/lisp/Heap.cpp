#include "host/lisp/Heap.h"

#include "host/lisp/Error.h"

namespace host::lisp {

thread_local constinit std::int64_t Heap::s_left = Heap::unlimited;
thread_local constinit std::int64_t Heap::s_limit = Heap::unlimited;

void Heap::refuse()
{
    constexpr std::int64_t megabyte = 1024 * 1024;
    throw Error("out of memory (limit " + std::to_string(s_limit / megabyte) + " MB)");
}

} // namespace host::lisp
