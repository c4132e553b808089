#include "platform/memory.h"

#include <cstdlib>
#include <memory>
#include <new>
#include <sys/mman.h>

namespace platform::memory
{
char* take(std::size_t bytes)
{
    void* const memory = std::malloc(bytes);
    if (!memory)
        throw std::bad_alloc();
    return static_cast<char*>(memory);
}

void give_back(char* memory, std::size_t) noexcept { std::free(memory); }

void expect_use(void* block, std::size_t size)
{
    constexpr std::size_t page = std::size_t{2} << 20;
    if (std::align(page, page, block, size) != nullptr) // else it holds no whole one
        ::madvise(block, size / page * page, MADV_HUGEPAGE);
}
} // namespace platform::memory
