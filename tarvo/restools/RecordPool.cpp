#include "tarvo/restools/RecordPool.h"

#include <algorithm>
#include <utility>

namespace
{
constexpr std::size_t kLeast = std::size_t{4} << 10; ///< bytes of a block
constexpr std::size_t kMost = std::size_t{2} << 20;
} // namespace

void* CRecordPool::Take(std::size_t bytes)
{
    bytes = (bytes + alignof(std::max_align_t) - 1) / alignof(std::max_align_t) * alignof(std::max_align_t);
    if (bytes > m_nLeft)
    {
        const std::size_t size = std::max(bytes, std::clamp(m_nSize, kLeast, kMost));
        m_arrBlock.push_back(platform::memory::take_piece(size));
        m_nLeft = size;
        m_nSize += size;
        m_pNext = m_arrBlock.back().get();
    }
    m_nLeft -= bytes;
    return std::exchange(m_pNext, m_pNext + bytes);
}
