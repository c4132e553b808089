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
    /// Of one line, whatever stands in it. It must outlive its marks.
    explicit CScriptMarks(std::u16string_view line);

    /// Of a text that has grown at its end to \p length units; there are Count more that can be looked at.
    /// What was said about units before \p needed is forgotten.
    void Grow(const char16_t* text, std::size_t length, std::size_t needed);

    /// The text whose places these are.
    const char16_t* Text() const { return m_text; }

    /// What is said of the Count units from \p at on. Bits behind the text's end mean nothing.
    Block At(std::size_t at) const
    {
        const Block* const block = m_blocks.data() + (at / Count - m_first);
        const unsigned shift = at % Count;
        const auto both = [shift](std::uint64_t low, std::uint64_t high) {
            return low >> shift | high << 1 << (Count - 1 - shift);
        };
        return {both(block[0].breaks, block[1].breaks), both(block[0].quotes, block[1].quotes),
                both(block[0].commas, block[1].commas), both(block[0].separators, block[1].separators)};
    }

    /// The first place in [\p at, \p end) that has a bit among those that \p bits takes from a block; \p end
    /// when there is none.
    template <class Bits>
    std::size_t Find(std::size_t at, std::size_t end, Bits bits) const
    {
        for (; at < end; at += Count)
            if (const std::uint64_t found = bits(At(at)))
                return std::min(at + static_cast<std::size_t>(std::countr_zero(found)), end);
        return end;
    }

private:
    const char16_t* m_text = nullptr;
    std::vector<Block> m_blocks; ///< two empty ones at the end, so that At has its two everywhere
    std::size_t m_first = 0;     ///< the number of the first
    std::size_t m_done = 0;      ///< the number of the first that was not full
};
