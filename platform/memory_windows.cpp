#include "platform/memory.h"

#include <windows.h>

#include <cstdlib>
#include <new>

// The heap gives what is freed back to the system at once, and each page that is taken anew costs a fault
// and 4 KB of zeros: for a large language file half as much time as reading it takes. So some blocks are
// kept, enough for one language while it makes way for another.
namespace platform::memory
{
namespace
{
constexpr USHORT kMostSpare = 32; ///< blocks, 8 MB

/// Any thread may take and give. There is no destructor: what other static objects give back later than the
/// end of the program's own is kept, and goes with the process.
class SpareBlocks
{
public:
    SpareBlocks() { InitializeSListHead(&m_list); }
    SpareBlocks(const SpareBlocks&) = delete;
    SpareBlocks& operator=(const SpareBlocks&) = delete;

    void* take() { return InterlockedPopEntrySList(&m_list); }
    bool keep(char* block)
    {
        if (QueryDepthSList(&m_list) >= kMostSpare)
            return false;
        InterlockedPushEntrySList(&m_list, new (block) SLIST_ENTRY);
        return true;
    }

private:
    SLIST_HEADER m_list;
};

/// Frees them when the module goes.
struct AtTheEnd
{
    SpareBlocks& blocks;
    ~AtTheEnd()
    {
        while (void* const block = blocks.take())
            std::free(block);
    }
};

SpareBlocks& spare()
{
    static SpareBlocks blocks;
    static const AtTheEnd end{blocks};
    return blocks;
}
} // namespace

// Large pages would need the right to lock memory, which users do not have.
char* take(std::size_t bytes)
{
    void* memory = bytes == kBlock ? spare().take() : nullptr;
    if (!memory)
        memory = std::malloc(bytes);
    if (!memory)
        throw std::bad_alloc();
    return static_cast<char*>(memory);
}

void give_back(char* memory, std::size_t bytes) noexcept
{
    if (!memory || bytes != kBlock || !spare().keep(memory))
        std::free(memory);
}

std::size_t taken_outside_heap() noexcept { return 0; }
} // namespace platform::memory
