#pragma once

#include "platform/memory.h"
#include "tarvo/export.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

/// Memory for records that stay where they are until all of them go at once, each known by a number of 32
/// bits. Throws std::bad_alloc.
class TARVO_API CRecordArena
{
public:
    /// Where a record is: the block in the upper 16 bits, its place there in grains in the lower.
    using Ref = std::uint32_t;

    static constexpr std::size_t kGrain = sizeof(std::uint32_t); ///< bytes

    static constexpr std::size_t RoundUp(std::size_t bytes) { return (bytes + kGrain - 1) / kGrain * kGrain; }

    /// Room for \p bytes, whole grains, not yet set.
    char* Take(std::size_t bytes, Ref& ref)
    {
        if (m_nBlock == m_arrBlock.size() || m_arrBlock[m_nBlock].size - m_arrBlock[m_nBlock].used < bytes)
            NextBlock(bytes);
        Block& block = m_arrBlock[m_nBlock];
        ref = static_cast<Ref>(m_nBlock << 16 | block.used / kGrain);
        block.used += bytes;
        return block.bytes.get() + block.used - bytes;
    }
    char* At(Ref ref) const { return m_arrBlock[ref >> 16].bytes.get() + (ref & 0xFFFF) * kGrain; }

    /// No record has a higher number.
    Ref GetMost() const { return m_arrBlock.empty() ? 0 : static_cast<Ref>((m_arrBlock.size() << 16) - 1); }
    /// Bytes taken from the system, used or not, and those that stand for the blocks themselves.
    std::size_t GetMemory() const;
    /// Calls visit(first, last, ref) for what each block has in use, \p ref being that of \p first.
    template <class Visit>
    void ForEachBlock(Visit visit) const
    {
        for (std::size_t i = 0; i < m_arrBlock.size(); ++i)
        {
            char* const first = m_arrBlock[i].bytes.get();
            visit(first, first + m_arrBlock[i].used, static_cast<Ref>(i << 16));
        }
    }

    /// Drops all records and keeps the memory for the next ones; Trim gives back what is not in use.
    void Clear();
    void Trim();

private:
    struct Block
    {
        platform::memory::Piece bytes;
        std::size_t size;
        std::size_t used;
    };

    void NextBlock(std::size_t least);

    std::vector<Block> m_arrBlock;
    std::size_t m_nBlock = 0; ///< the block that is being filled; those behind it are empty
};
