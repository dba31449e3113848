#pragma once

#include <atomic>
#include <exception>
#include <mutex>
#include <thread>
#include <vector>

namespace host::view {

/// Calls `work` with each number below `count`, on so many threads, the caller's own among them, and returns when all
/// is done. Which thread gets which number is left open, so what is done for one must not depend on the others. An
/// exception ends the work, and is thrown again here.
template <class Work>
void inParallel(std::size_t count, int threads, const Work &work)
{
    std::atomic<std::size_t> next = 0;
    std::exception_ptr failure;
    std::mutex failing;
    const auto run = [&] {
        try {
            for (std::size_t i = next++; i < count; i = next++)
                work(i);
        } catch (...) {
            const std::scoped_lock lock(failing);
            failure = std::current_exception();
            next = count;
        }
    };
    std::vector<std::jthread> helpers;
    for (std::size_t i = 1; i < std::min(count, static_cast<std::size_t>(std::max(threads, 1))); ++i)
        helpers.emplace_back(run);
    run();
    helpers.clear();
    if (failure)
        std::rethrow_exception(failure);
}

} // namespace host::view
