#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// What text files ask of a code page beside plain conversion.
namespace page_rules
{
/// The longest front of \p bytes, at most \p most of them, that cuts no character. Not empty unless bytes
/// are: what is no character is cut anywhere.
std::size_t whole_characters(int page, std::string_view bytes, std::size_t most);

/// Encodes as WideCharToMultiByte does with these flags. Nothing for an unknown page, for flags that the
/// page does not take and for a text that they refuse.
std::optional<std::string> encode(int page, unsigned flags, std::wstring_view text);
} // namespace page_rules
