#pragma once

#include "platform/memory.h"
#include "tarvo/export.h"

#include <cstddef>
#include <type_traits>
#include <vector>

/// Memory for the records of one script, which go all at once. It is asked for in pieces that grow, the large
/// ones in large pages: single lists would be touched page by page for the first time. Throws std::bad_alloc.
class TARVO_API CRecordPool
{
public:
    /// \p bytes, not yet set, aligned for any type.
    void* Take(std::size_t bytes);
    /// Bytes taken from the system, used or not.
    std::size_t GetMemory() const { return m_nSize; }

private:
    std::vector<platform::memory::Piece> m_arrBlock;
    char* m_pNext = nullptr; ///< in the newest block
    std::size_t m_nLeft = 0; ///< bytes from there on
    std::size_t m_nSize = 0;
};

/// Takes the memory of a list from a pool, or without one from the system.
template <class T>
struct CRecordAllocator
{
    using value_type = T;
    using propagate_on_container_copy_assignment = std::true_type;
    using propagate_on_container_move_assignment = std::true_type;
    using propagate_on_container_swap = std::true_type;

    explicit CRecordAllocator(CRecordPool* from = nullptr) : pool(from) {}
    template <class Other>
    CRecordAllocator(const CRecordAllocator<Other>& other) : pool(other.pool)
    {
    }
    T* allocate(std::size_t count)
    {
        const std::size_t bytes = count * sizeof(T);
        return static_cast<T*>(pool ? pool->Take(bytes) : platform::memory::take(bytes));
    }
    void deallocate(T* items, std::size_t count)
    {
        if (!pool)
            platform::memory::give_back(reinterpret_cast<char*>(items), count * sizeof(T));
    }
    bool operator==(const CRecordAllocator& other) const { return pool == other.pool; }

    CRecordPool* pool; ///< outlives all that is in it
};
