#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>

// Whether the sanitizer of addresses is at work, which compilers say in ways of their own.
#if defined(__SANITIZE_ADDRESS__)
#define ORTAKIT_ADDRESSES_ARE_WATCHED true
#elif defined(__clang__)
#define ORTAKIT_ADDRESSES_ARE_WATCHED __has_feature(address_sanitizer)
#else
#define ORTAKIT_ADDRESSES_ARE_WATCHED false
#endif

namespace host::lisp {

/// How much memory the Lisp values of this thread take and how much they may take. One count for all interpreters of
/// the thread, because a value has no way to its interpreter. Objects count themselves; what they hold outside (text,
/// members) is counted by whoever puts it there. While no evaluation runs there is no limit.
class Heap
{
public:
    /// Throws the Lisp error "out of memory (limit ... MB)" when so much more may not be taken.
    static void check(std::size_t bytes)
    {
        if (static_cast<std::int64_t>(bytes) > s_left) [[unlikely]]
            refuse();
    }
    /// Whether check() would let so much be taken.
    static bool hasRoomFor(std::size_t bytes) noexcept { return static_cast<std::int64_t>(blockOf(bytes)) <= s_left; }
    static void add(std::size_t bytes) noexcept { s_left -= static_cast<std::int64_t>(bytes); }
    static void remove(std::size_t bytes) noexcept { s_left += static_cast<std::int64_t>(bytes); }
    /// check() and add() for what was made already and is about to be kept.
    static void take(std::size_t bytes)
    {
        check(bytes);
        add(bytes);
    }
    static std::int64_t used() noexcept { return s_limit - s_left; }
    static std::int64_t limit() noexcept { return s_limit; }

    /// What the allocator takes for an object.
    static constexpr std::size_t blockOf(std::size_t bytes) { return (bytes + 8 + 15) / 16 * 16; }

    /// Another limit for a while.
    class Limit
    {
    public:
        explicit Limit(std::int64_t bytes) noexcept : m_before(s_limit) { set(bytes); }
        ~Limit() { set(m_before); }
        Limit(const Limit &) = delete;
        Limit &operator=(const Limit &) = delete;

    private:
        static void set(std::int64_t bytes) noexcept
        {
            s_left += bytes - s_limit;
            s_limit = bytes;
        }
        std::int64_t m_before;
    };

    static constexpr std::int64_t unlimited = INT64_MAX / 4;

private:
    [[noreturn]] static void refuse();

    // One addition for each object: the accesses must not cost a call. (The library is there when the program starts.)
    [[gnu::tls_model("initial-exec")]] static thread_local constinit std::int64_t s_left;
    [[gnu::tls_model("initial-exec")]] static thread_local constinit std::int64_t s_limit;
};

/// Memory for small objects: places of one size, which are used again and never given back to the system. One store for
/// all interpreters of the thread and for each size.
template <std::size_t Size>
class SmallBlocks
{
public:
    static void *take()
    {
        if (s_free) [[likely]]
            return std::exchange(s_free, *static_cast<void **>(s_free));
        if (s_next == s_end) [[unlikely]]
            getMore();
        return std::exchange(s_next, s_next + Size);
    }
    static void give(void *block) noexcept
    {
        *static_cast<void **>(block) = s_free;
        s_free = block;
    }

private:
    static void getMore();

    [[gnu::tls_model("initial-exec")]] static thread_local constinit void *s_free;      ///< each leads to the next
    [[gnu::tls_model("initial-exec")]] static thread_local constinit std::byte *s_next; ///< never used so far
    [[gnu::tls_model("initial-exec")]] static thread_local constinit std::byte *s_end;
};

/// Pairs, of which half fill a line of the processor's cache.
inline constexpr std::size_t pairSize = 32;
/// Short strings.
inline constexpr std::size_t stringSize = 40;
extern template class SmallBlocks<pairSize>;
extern template class SmallBlocks<stringSize>;

/// A block for an object. Under the sanitizer all come from its own allocator, so that it sees what happens to them.
[[gnu::always_inline]] inline void *takeBlock(std::size_t size)
{
    if (!ORTAKIT_ADDRESSES_ARE_WATCHED && size <= pairSize)
        return SmallBlocks<pairSize>::take();
    if (!ORTAKIT_ADDRESSES_ARE_WATCHED && size <= stringSize)
        return SmallBlocks<stringSize>::take();
    return ::operator new(size);
}
/// Gives it back, by the same size.
[[gnu::always_inline]] inline void giveBlock(void *block, std::size_t size) noexcept
{
    if (!ORTAKIT_ADDRESSES_ARE_WATCHED && size <= pairSize)
        SmallBlocks<pairSize>::give(block);
    else if (!ORTAKIT_ADDRESSES_ARE_WATCHED && size <= stringSize)
        SmallBlocks<stringSize>::give(block);
    else
        ::operator delete(block);
}

/// Counts what something that is no Lisp object keeps for a program, until it goes.
class HeapShare
{
public:
    HeapShare() = default;
    ~HeapShare() { Heap::remove(m_bytes); }
    HeapShare(const HeapShare &) = delete;
    HeapShare &operator=(const HeapShare &) = delete;

    /// Throws when there is no room for more; the share is as it was then.
    void grow(std::size_t bytes)
    {
        Heap::take(bytes);
        m_bytes += bytes;
    }
    void release() noexcept
    {
        Heap::remove(m_bytes);
        m_bytes = 0;
    }

private:
    std::size_t m_bytes = 0;
};

} // namespace host::lisp
