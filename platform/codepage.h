#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// The one border between bytes and wide text.
///
/// Wide text is a sequence of UTF-16 code units on every platform. Where `wchar_t` is wider than 16
/// bits it still holds one code unit (never above 0xFFFF), so that lengths, orderings and cut-offs are
/// the same everywhere. The conversions follow the Windows rules for flags 0: invalid bytes become the
/// page's default character (U+FFFD in UTF-8), unmappable text its best fit or '?'.
///
/// Pages: 949, 932, 936, 950, 1250 to 1258, 874, 437, 65001, and 0 for the system's ANSI page. On
/// Windows every page that the system knows works. Nothing throws but std::bad_alloc.
namespace platform::codepage
{
inline constexpr int ansi = 0;
inline constexpr int utf8 = 65001;

/// The page that 0 stands for in this process: the override if one is set, else the system's.
/// Natively the system's is chosen by the locale's language as Windows would choose it (ko 949, ja 932,
/// zh_CN 936, zh_TW 950, ru 1251, else 1252).
int ansi_page();

/// Makes \p page stand for the system's ANSI page in this process; 0 takes the override back.
/// False, and nothing changes, when the page is not known.
bool set_ansi_page(int page);

/// True for a page that decode and encode accept.
bool known(int page);

/// Decodes all of \p bytes, NULs included, into \p out, which has room for bytes.size() units (no page
/// gives more units than bytes). Returns the units written, or nothing for an unknown page.
std::optional<std::size_t> decode(int page, std::string_view bytes, char16_t* out);
std::optional<std::wstring> decode(int page, std::string_view bytes);

/// The most bytes that \p units units can become in any page.
constexpr std::size_t encoded_bound(std::size_t units) { return 3 * units; }

/// Encodes all of \p text, NULs included, into \p out, which has room for encoded_bound(size) bytes.
/// Returns the bytes written, or nothing for an unknown page. A lone surrogate becomes U+FFFD in UTF-8.
std::optional<std::size_t> encode(int page, std::u16string_view text, char* out);
std::optional<std::string> encode(int page, std::wstring_view text);

/// UTF-16LE bytes to units and back; an odd last byte is dropped. Lone surrogates stay as they are.
std::wstring from_utf16le(std::string_view bytes);
std::string to_utf16le(std::wstring_view text);
} // namespace platform::codepage
