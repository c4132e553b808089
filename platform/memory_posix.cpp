#include "platform/memory.h"

#include <cstdlib>
#include <memory>
#include <new>
#include <sys/mman.h>

namespace platform::memory
{
namespace
{
constexpr std::size_t kLargePage = std::size_t{2} << 20;

/// A block of a few large pages begins with one. In a larger one those inside are enough, and the C library
/// takes it from what was given back before, which it does not do for one that must begin at such a place.
void* take_large(std::size_t bytes)
{
    void* const memory =
        bytes < 4 * kLargePage
            ? std::aligned_alloc(kLargePage, (bytes + kLargePage - 1) / kLargePage * kLargePage)
            : std::malloc(bytes);
    void* first = memory;
    if (memory && std::align(kLargePage, kLargePage, first, bytes))
        ::madvise(first, bytes / kLargePage * kLargePage, MADV_HUGEPAGE);
    return memory;
}
} // namespace

char* take(std::size_t bytes)
{
    void* const memory = bytes >= kLargePage ? take_large(bytes) : std::malloc(bytes);
    if (!memory)
        throw std::bad_alloc();
    return static_cast<char*>(memory);
}

void give_back(char* memory, std::size_t) noexcept { std::free(memory); }
} // namespace platform::memory
