#pragma once

#include "platform/memory.h"
#include "tarvo/export.h"

#include <cstddef>
#include <string_view>
#include <type_traits>
#include <vector>

/// Memory for what is kept of one script, texts and records, which stay where they are until all of them go
/// at once. It is asked for in blocks that grow up to a large page: single lists would be touched page by
/// page for the first time. Throws std::bad_alloc.
class TARVO_API CScriptArena
{
public:
    /// \p bytes, not yet set, at a place for things of \p alignment, a power of two.
    void* Take(std::size_t bytes, std::size_t alignment);
    /// Room for \p count units, not yet set.
    char16_t* Add(std::size_t count)
    {
        return static_cast<char16_t*>(Take(count * sizeof(char16_t), alignof(char16_t)));
    }
    std::u16string_view Copy(std::u16string_view text);
    /// Bytes taken from the system, used or not.
    std::size_t GetMemory() const { return m_nMemory; }

private:
    std::vector<platform::memory::Piece> m_arrBlock;
    std::size_t m_nBlock = 0; ///< bytes of the newest block
    std::size_t m_nUsed = 0;  ///< of these, bytes given out
    std::size_t m_nMemory = 0;
};

/// Takes the memory of a list from an arena, or without one from the system.
template <class T>
struct CScriptAllocator
{
    using value_type = T;
    using propagate_on_container_copy_assignment = std::true_type;
    using propagate_on_container_move_assignment = std::true_type;
    using propagate_on_container_swap = std::true_type;

    explicit CScriptAllocator(CScriptArena* from = nullptr) : arena(from) {}
    template <class Other>
    CScriptAllocator(const CScriptAllocator<Other>& other) : arena(other.arena)
    {
    }
    T* allocate(std::size_t count)
    {
        const std::size_t bytes = count * sizeof(T);
        return static_cast<T*>(arena ? arena->Take(bytes, alignof(T)) : platform::memory::take(bytes));
    }
    void deallocate(T* items, std::size_t count)
    {
        if (!arena)
            platform::memory::give_back(reinterpret_cast<char*>(items), count * sizeof(T));
    }
    bool operator==(const CScriptAllocator& other) const { return arena == other.arena; }

    CScriptArena* arena; ///< outlives all that is in it
};
