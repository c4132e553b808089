#pragma once

#include "platform/codepage_block.h"

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
/// Decodes the characters that begin before \p stop; the last may reach past it, but not past \p end,
/// the end of the whole text. \p Unit is char16_t or wchar_t. There is room for a unit for each byte up
/// to where the last character ends.
template <class Unit>
Progress<std::uint8_t, Unit> decode_utf8(Progress<std::uint8_t, Unit> at, const std::uint8_t* stop,
                                         const std::uint8_t* end);

/// Encodes the characters that begin before \p stop, the last perhaps with a unit behind it, but none from
/// \p end on. There is room for encoded_bound() of the units and one more.
template <class Unit>
Progress<Unit, char> encode_utf8(Progress<Unit, char> at, const Unit* stop, const Unit* end);
} // namespace platform::codepage
