#pragma once

#include "tarvo/export.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

/// Where the units that take a script apart stand in a text: for each block of 64 units a bit for each unit,
/// the first in the lowest.
class TARVO_API CScriptMarks
{
public:
    struct Block
    {
        std::uint64_t breaks;
        std::uint64_t quotes;
        std::uint64_t commas;
        std::uint64_t separators; ///< commas, spaces and tabs; in a text of several lines its breaks too
    };
    static constexpr std::size_t Count = 64;

    CScriptMarks() = default;
    /// Of one line, whatever stands in it.
    explicit CScriptMarks(std::u16string_view line);

    /// Of a text that has grown at its end to \p length units; there are Count more that can be looked at.
    /// What was said about units before \p needed is forgotten.
    void Grow(const char16_t* text, std::size_t length, std::size_t needed);

    /// The bits of Count units from \p at on, of the kind that \p bits picks from a block. Those behind the
    /// text's end mean nothing.
    template <class Bits>
    std::uint64_t From(std::size_t at, Bits bits) const
    {
        const Block* const block = m_blocks.data() + (at / Count - m_first);
        const unsigned shift = at % Count;
        return bits(block[0]) >> shift | bits(block[1]) << 1 << (Count - 1 - shift);
    }

    /// The first place in [\p at, \p end) that has such a bit, or \p end.
    template <class Bits>
    std::size_t Find(std::size_t at, std::size_t end, Bits bits) const
    {
        for (; at < end; at += Count)
            if (const std::uint64_t found = From(at, bits))
                return std::min(at + static_cast<std::size_t>(std::countr_zero(found)), end);
        return end;
    }

private:
    std::vector<Block> m_blocks; ///< two empty ones at the end, so that From has its two everywhere
    std::size_t m_first = 0;     ///< the number of the first
    std::size_t m_done = 0;      ///< the number of the first that was not full
};
