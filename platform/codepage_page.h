#pragma once

#include "platform/codepage_block.h"

#include <memory>
#include <string_view>

/// The native conversions of the pages that are tables. UTF-8 is codepage_utf8.h.
namespace platform::codepage
{
/// A page ready for use: one load gives the answer for any character.
struct Page
{
    bool double_byte;
    ByteSet leads;
    /// Of a single-byte page 256 units. Of a double-byte page 65,536, by first | second << 8, and for a
    /// first byte that is no lead byte the same unit whatever the second is.
    std::unique_ptr<std::uint16_t[]> units;
    /// By unit: the one byte, or first | second << 8 (no second byte is 0).
    std::unique_ptr<std::uint16_t[]> bytes;
};

/// Null for a page that is no table. The tables are made on first use and stay.
const Page* find_page(int page);

/// \p Unit is char16_t or wchar_t. \p out has room for bytes.size() units.
template <class Unit>
std::size_t decode_page(const Page& page, std::string_view bytes, Unit* out);

/// \p out has room for encoded_bound(text.size()) bytes.
template <class Unit>
std::size_t encode_page(const Page& page, std::basic_string_view<Unit> text, char* out);
} // namespace platform::codepage
