#pragma once

#include "tarvo/export.h"
#include "tarvo/text/TextArena.h"
#include "tarvo/text/Units.h"

#include <cstdint>
#include <cstring>

/// One key of a section with its value: two lengths, the key's units and the value's, one after the other
/// in the document's arena, which owns them. What a look-up finds stands in one place.
class TARVO_API IniEntry
{
public:
    IniEntry(CTextArena& texts, units::view key, units::view value);

    units::view Key() const { return {m_p + kHead, KeyLength()}; }
    units::view Value() const { return {m_p + kHead + KeyLength(), Length(1)}; }
    /// Units of key and value.
    std::size_t GetTextSize() const { return std::size_t{KeyLength()} + Length(1); }
    /// Units in the arena: those of the texts and so many more.
    static constexpr std::size_t kHead = 2 * sizeof(std::uint32_t) / sizeof(char16_t);
    std::size_t GetSize() const { return kHead + GetTextSize(); }

    /// Writes \p value over the old one; false, and nothing done, when it is longer than that.
    bool Assign(units::view value);
    /// Moves to \p room, which has GetSize() units, and returns what lies behind them.
    char16_t* MoveTo(char16_t* room);

private:
    std::uint32_t KeyLength() const { return Length(0); }
    std::uint32_t Length(std::size_t index) const
    {
        std::uint32_t length;
        std::memcpy(&length, m_p + 2 * index, sizeof length);
        return length;
    }
    void SetLength(std::size_t index, std::size_t length)
    {
        const auto stored = static_cast<std::uint32_t>(length);
        std::memcpy(m_p + 2 * index, &stored, sizeof stored);
    }

    char16_t* m_p;
};
