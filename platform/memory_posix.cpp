#include "platform/memory.h"
#include "platform/spare_ranges_posix.h"

#include <atomic>
#include <cstdint>
#include <cstdlib>
#include <new>
#include <sys/mman.h>

#if __has_include(<sanitizer/asan_interface.h>)
#include <sanitizer/asan_interface.h>
#else
#define ASAN_POISON_MEMORY_REGION(first, size)
#define ASAN_UNPOISON_MEMORY_REGION(first, size)
#endif

// Large pieces lie in large pages, which are touched for the first time by one fault instead of five hundred,
// and what is given back is kept for the next ones. The C library's heap would begin them anywhere and at
// times give them back to the system: reading the same file again then takes half as long again.
namespace platform::memory
{
namespace
{
constexpr std::size_t kLargePage = std::size_t{2} << 20;
constexpr std::size_t kGrain = std::size_t{64} << 10;      ///< bytes; smaller pieces are the C library's
constexpr std::size_t kMostSpare = std::size_t{128} << 20; ///< bytes: two large scripts

std::size_t round_up(std::size_t bytes, std::size_t size) { return (bytes + size - 1) / size * size; }

/// They go with the process.
constinit SpareRanges spare(kMostSpare);
constinit std::atomic<std::size_t> taken = 0; ///< bytes of large pieces
constinit std::atomic<bool> is_mapped = false;

/// What nobody uses is out of bounds to the address sanitizer.
void keep_or_unmap(char* memory, std::size_t size) noexcept
{
    if (size == 0)
        return;
    ASAN_POISON_MEMORY_REGION(memory, size);
    if (spare.keep(memory, size))
        return;
    ASAN_UNPOISON_MEMORY_REGION(memory, size);
    ::munmap(memory, size);
}

/// New memory as long as whole large pages; null when there is none.
char* map(std::size_t size)
{
    // Somewhere in what is asked for begins a large page.
    void* const all =
        ::mmap(nullptr, size + kLargePage, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (all == MAP_FAILED)
        return nullptr;
    const auto address = reinterpret_cast<std::uintptr_t>(all);
    const std::size_t before = round_up(address, kLargePage) - address;
    char* const first = static_cast<char*>(all) + before;
    if (before != 0)
        ::munmap(all, before);
    ::munmap(first + size, kLargePage - before);
    // A program that needs little does not pay for zeros in all of the first page.
    if (is_mapped.exchange(true) || size > kLargePage)
        ::madvise(first, size, MADV_HUGEPAGE);
    return first;
}

char* take_large(std::size_t bytes)
{
    const std::size_t size = round_up(bytes, kGrain);
    char* memory = spare.take(size);
    if (!memory)
    {
        const std::size_t pages = round_up(size, kLargePage);
        memory = map(pages);
        if (!memory)
            return nullptr;
        keep_or_unmap(memory + size, pages - size);
    }
    ASAN_UNPOISON_MEMORY_REGION(memory, bytes);
    taken += size;
    return memory;
}
} // namespace

char* take(std::size_t bytes)
{
    if (bytes > PTRDIFF_MAX)
        throw std::bad_alloc();
    char* const memory = bytes < kGrain ? static_cast<char*>(std::malloc(bytes)) : take_large(bytes);
    if (!memory)
        throw std::bad_alloc();
    return memory;
}

void give_back(char* memory, std::size_t bytes) noexcept
{
    if (!memory || bytes < kGrain)
        return std::free(memory);
    const std::size_t size = round_up(bytes, kGrain);
    taken -= size;
    keep_or_unmap(memory, size);
}

std::size_t taken_outside_heap() noexcept { return taken; }
} // namespace platform::memory
