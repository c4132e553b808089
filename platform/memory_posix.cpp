#include "platform/memory.h"

#include <cstdlib>
#include <new>

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
} // namespace platform::memory
