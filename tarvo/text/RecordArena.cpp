#include "tarvo/text/RecordArena.h"

#include <algorithm>
#include <new>
#include <utility>

namespace
{
constexpr std::size_t kFirstBlock = std::size_t{4} << 10; ///< bytes; the next ones grow
/// As long as places have numbers: a longer record has a block of its own and begins at its front.
constexpr std::size_t kMostBlock = CRecordArena::kGrain << 16;
static_assert(kMostBlock == platform::memory::kBlock);
} // namespace

std::size_t CRecordArena::GetMemory() const
{
    std::size_t bytes = m_arrBlock.capacity() * sizeof(Block);
    for (const Block& block : m_arrBlock)
        bytes += block.size;
    return bytes;
}

void CRecordArena::NextBlock(std::size_t least)
{
    while (m_nBlock < m_arrBlock.size() && m_arrBlock[m_nBlock].size - m_arrBlock[m_nBlock].used < least)
        ++m_nBlock;
    if (m_nBlock < m_arrBlock.size())
        return;
    if (m_arrBlock.size() > 0xFFFF)
        throw std::bad_alloc();
    const std::size_t usual =
        m_arrBlock.empty() ? kFirstBlock : std::min(2 * m_arrBlock.back().size, kMostBlock);
    const std::size_t size = std::max(usual, least);
    m_arrBlock.push_back({platform::memory::take_piece(size), size, 0});
}

void CRecordArena::Clear()
{
    for (Block& block : m_arrBlock)
        block.used = 0;
    m_nBlock = 0;
}

void CRecordArena::Trim()
{
    const bool isUsed = m_nBlock < m_arrBlock.size() && m_arrBlock[m_nBlock].used != 0;
    m_arrBlock.erase(m_arrBlock.begin() + static_cast<std::ptrdiff_t>(m_nBlock + (isUsed ? 1 : 0)),
                     m_arrBlock.end());
}
