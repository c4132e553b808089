#include "bench/support/allocations.h"

#include "platform/memory.h"

#include <malloc.h>

#include <atomic>
#include <cstdlib>
#include <new>

namespace
{
// Not counted up in one step: a locked addition would let every allocation measured wait for all before it.
std::atomic<long> count;
} // namespace

[[gnu::noinline]] void* operator new(std::size_t size)
{
    count.store(count.load(std::memory_order_relaxed) + 1, std::memory_order_relaxed);
    if (void* const p = std::malloc(size != 0 ? size : 1))
        return p;
    throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* p) noexcept { std::free(p); }
[[gnu::noinline]] void operator delete(void* p, std::size_t) noexcept { std::free(p); }

namespace bench
{
long allocations() { return count; }

double allocated_bytes()
{
    const struct mallinfo2 now = mallinfo2();
    return static_cast<double>(now.uordblks) + static_cast<double>(now.hblkhd) +
           static_cast<double>(platform::memory::taken_outside_heap());
}
} // namespace bench
