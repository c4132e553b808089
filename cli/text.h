#pragma once

#include <afxstr.h>

#include <string>
#include <string_view>
#include <vector>

namespace cli
{
/// Between the program's own UTF-8 and the library's wide text. A lone surrogate becomes U+FFFD.
std::wstring to_wide(std::string_view utf8);
std::string to_utf8(std::wstring_view wide);
void append_utf8(std::string& out, std::wstring_view wide);

inline std::wstring_view view(const CString& text)
{
    return {text.GetString(), static_cast<std::size_t>(text.GetLength())};
}

/// Words of \p text in lines of at most \p width characters, each after \p indent blanks; a line feed in
/// \p text begins a new paragraph, and a word wider than the line stands alone. Ends with a line feed.
std::string wrapped(std::string_view text, std::size_t indent, std::size_t width = 80);

/// Sets ANSI colours around names, or leaves them alone.
enum class Color
{
    error,
    section,
    name
};
std::string painted(bool wanted, Color color, std::string_view text);

/// The word of \p known that \p word most likely meant; empty when none is near.
std::string_view nearest(std::string_view word, const std::vector<std::string_view>& known);
} // namespace cli
