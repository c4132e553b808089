#pragma once

#include "tarvo/export.h"
#include "tarvo/text/Units.h"

#include <cstddef>
#include <string>
#include <string_view>

/// How the text of a resource header is taken apart: words and directives, without a table.
namespace headertext
{
/// The longest word, in units. What is longer is cut there, and the rest of the word passed over, so that
/// the words behind it keep their places.
inline constexpr std::size_t kMostWord = 1023;

/// Up to three words in a row.
struct Words
{
    int count = 0;
    units::view word[3];
};

/// Reads up to three words separated by white space (platform/letters.h; line ends included) from \p text, as
/// the C library's scan format "%s %s %s" takes them. A NUL ends the text.
TARVO_API Words ReadWords(units::view text);

/// Walks over the directives of a header text: reads words, then goes on at the next '#'.
class TARVO_API CDirectives
{
public:
    explicit CDirectives(units::view text) : m_text(text) {}

    /// The words at the next directive, first those that the text begins with; false behind the last. The
    /// step to the next one begins as many units behind the words' beginning as words were read, far
    /// fewer than the words are long: a '#' inside them is a directive again.
    bool Next(Words& words);

private:
    units::view m_text;
    bool m_bAtEnd = false;
};

/// Walks over the lines of an 8-bit header file, each byte one unit. A line longer than a word may be comes
/// in pieces; Ctrl-Z ends the file, as where the C library reads text.
class TARVO_API CHeaderLines
{
public:
    explicit CHeaderLines(std::string_view bytes) : m_bytes(bytes) {}
    bool Next(units::view& line);

private:
    std::string_view m_bytes;
    std::u16string m_line;
};
} // namespace headertext
