#pragma once

#include "platform/codepage_block.h"

#include <memory>

/// The native conversions of the pages that are tables. UTF-8 is codepage_utf8.h.
namespace platform::codepage
{
/// A page ready for use: one load gives the answer for any character.
struct Page
{
    bool double_byte;
    ByteSet leads;
    /// Two bytes are always looked up at once, by first | second << 8. Of a double-byte page the unit of
    /// the character that begins with first, whatever second is if first is no lead byte: 65,536 units. Of
    /// a single-byte page the units of both: 65,536 pairs.
    std::unique_ptr<std::uint16_t[]> units;
    /// By unit: the one byte, or first | second << 8 (no second byte is 0).
    std::unique_ptr<std::uint16_t[]> bytes;
};

/// Null for a page that is no table. The tables are made on first use and stay.
const Page* find_page(int page);

/// Decodes the characters that begin before \p stop; the last may reach past it, but not past \p end,
/// the end of the whole text. \p Unit is char16_t or wchar_t. There is room for a unit for each byte up
/// to where the last character ends.
template <class Unit>
Progress<std::uint8_t, Unit> decode_page(const Page& page, Progress<std::uint8_t, Unit> at,
                                         const std::uint8_t* stop, const std::uint8_t* end);

/// Encodes the units up to \p end. There is room for encoded_bound() of them.
template <class Unit>
Progress<Unit, char> encode_page(const Page& page, Progress<Unit, char> at, const Unit* end);
} // namespace platform::codepage
