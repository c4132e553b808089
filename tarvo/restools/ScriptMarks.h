#pragma once

#include "tarvo/export.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <vector>

/// Where the units that take a script apart stand in a text: of each kind a bit for each unit, the first in
/// the lowest bit of the first byte.
class TARVO_API CScriptMarks
{
public:
    /// What is said of some units, a bit for each, the first in the lowest.
    struct Seen
    {
        std::uint64_t breaks;
        std::uint64_t quotes;
        std::uint64_t commas;
        std::uint64_t separators; ///< commas, spaces and tabs; in a text of several lines its breaks too
    };
    /// As many units are seen at once, wherever they begin: eight bytes without those bits of the first that
    /// come before. Bits from there on mean nothing when they are clear.
    static constexpr std::size_t Count = 57;
    /// As many units are marked at once.
    static constexpr std::size_t Block = 64;

    CScriptMarks() = default;
    /// Of one line, whatever stands in it. It must outlive its marks.
    explicit CScriptMarks(std::u16string_view line);

    /// Of a text that has grown at its end to \p length units; there are Block more that can be looked at.
    /// What was said about units before \p needed is forgotten.
    void Grow(const char16_t* text, std::size_t length, std::size_t needed);

    /// The text whose places these are.
    const char16_t* Text() const { return m_text; }

    /// What is said of the Count units from \p at on. Bits behind the text's end mean nothing.
    Seen At(std::size_t at) const
    {
        const char* const byte = reinterpret_cast<const char*>(m_words.data()) + (at / 8 - 8 * m_first);
        const auto bits = [=, this](std::size_t kind) {
            std::uint64_t word;
            std::memcpy(&word, byte + kind * m_stride * sizeof word, sizeof word);
            return word >> at % 8;
        };
        return {bits(Breaks), bits(Quotes), bits(Commas), bits(Separators)};
    }

    /// The first place in [\p at, \p end) that has a bit among those that \p bits takes from what is seen; \p
    /// end when there is none.
    template <class Bits>
    std::size_t Find(std::size_t at, std::size_t end, Bits bits) const
    {
        constexpr std::uint64_t known = (std::uint64_t{1} << Count) - 1;
        for (; at < end; at += Count)
            if (const std::uint64_t found = bits(At(at)) & known)
                return std::min(at + static_cast<std::size_t>(std::countr_zero(found)), end);
        return end;
    }

private:
    enum Kind : std::size_t
    {
        Separators,
        Quotes,
        Commas,
        Breaks,
        Kinds
    };
    std::uint64_t* WordsOf(std::size_t kind) { return m_words.data() + kind * m_stride; }
    void MakeRoom(std::size_t blocks, std::size_t kept, std::size_t passed);
    void MarkFrom(std::size_t block, const char16_t* units, std::size_t count);

    const char16_t* m_text = nullptr;
    std::vector<std::uint64_t> m_words; ///< those of each kind, then room up to m_stride
    std::size_t m_stride = 0;           ///< words
    std::size_t m_first = 0;            ///< the number of the first block
    std::size_t m_done = 0;             ///< the number of the first that was not full
};
