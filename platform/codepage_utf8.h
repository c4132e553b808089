#pragma once

#include <cstddef>
#include <string_view>

/// The native conversions of UTF-8, by the system's rules for flags 0:
/// - A byte that begins no character (0x80 to 0xC1, 0xF5 to 0xFF) is U+FFFD by itself.
/// - A lead byte and the trail bytes that follow it, up to the first that shows that no character can come
///   of them (too long a form, a surrogate, above U+10FFFF: that byte included), are one U+FFFD together;
///   a byte that is no trail byte is not taken in.
/// - A lead byte that asks for more bytes than the whole text still has makes one U+FFFD of all the rest,
///   whatever it is.
/// - Encoding, a lone surrogate is U+FFFD.
namespace platform::codepage
{
/// \p Unit is char16_t or wchar_t. \p out has room for bytes.size() units.
template <class Unit>
std::size_t decode_utf8(std::string_view bytes, Unit* out);

/// \p out has room for encoded_bound(text.size()) bytes.
template <class Unit>
std::size_t encode_utf8(std::basic_string_view<Unit> text, char* out);
} // namespace platform::codepage
