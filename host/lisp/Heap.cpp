#include "host/lisp/Heap.h"

#include "host/lisp/Error.h"

#include <algorithm>
#include <new>

#ifdef __linux__
#include <sys/mman.h>
#endif

namespace host::lisp {

thread_local constinit std::int64_t Heap::s_left = Heap::unlimited;
thread_local constinit std::int64_t Heap::s_limit = Heap::unlimited;

void Heap::refuse()
{
    constexpr std::int64_t megabyte = 1024 * 1024;
    throw Error("out of memory (limit " + std::to_string(s_limit / megabyte) + " MB)");
}

template <std::size_t Size>
thread_local constinit void *SmallBlocks<Size>::s_free = nullptr;
template <std::size_t Size>
thread_local constinit std::byte *SmallBlocks<Size>::s_next = nullptr;
template <std::size_t Size>
thread_local constinit std::byte *SmallBlocks<Size>::s_end = nullptr;

template <std::size_t Size>
void SmallBlocks<Size>::getMore()
{
    // Programs with few values take little; for many, the system has large pages, which are there sooner.
    constexpr std::size_t least = 64UL * 1024;
    constexpr std::size_t page = 2UL * 1024 * 1024;
    static thread_local std::size_t taken = 0;
    const std::size_t bytes = taken < page ? least : page;
    auto *memory = static_cast<std::byte *>(::operator new(bytes, std::align_val_t(bytes)));
#ifdef __linux__
    if (bytes == page)
        ::madvise(memory, bytes, MADV_HUGEPAGE);
#endif
    taken += bytes;
    s_next = memory;
    s_end = memory + bytes / Size * Size;
}

template class SmallBlocks<pairSize>;
template class SmallBlocks<stringSize>;

} // namespace host::lisp
