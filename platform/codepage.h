#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// The one border between bytes and wide text.
///
/// Wide text is a sequence of UTF-16 code units on every platform. Where `wchar_t` is wider than 16
/// bits it still holds one code unit (never above 0xFFFF), so that lengths, orderings and cut-offs are
/// the same everywhere. The conversions follow the Windows rules for flags 0, and give the same on every
/// platform:
/// - Bytes that are no character become the page's default character ('?', in 932 U+30FB, in UTF-8
///   U+FFFD). A lead byte takes whatever byte follows with it, a line feed too, but never a NUL.
/// - A unit that the page has not becomes its best fit (U+FF21 an 'A') or '?', each half of a surrogate
///   pair by itself. So encoding what was decoded need not give the same bytes.
///
/// Pages: 949, 932, 936, 950, 1250 to 1258, 874, 437, 65001, and 0 for the system's ANSI page. On
/// Windows every other page that the system has works in the forms that return a string. Nothing throws
/// but std::bad_alloc. The override of the ANSI page belongs to the one thread that the library runs on;
/// everything else may be called from any thread.
namespace platform::codepage
{
inline constexpr int ansi = 0;
inline constexpr int utf8 = 65001;

/// The page that 0 stands for in this process: the override if one is set, else the system's.
/// Natively the system's goes with locale::system_language() (Korean 949, Japanese 932, Chinese 936, in
/// Taiwan, Hong Kong and Macau 950, Russian 1251, every other 1252), asked once for the process.
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
