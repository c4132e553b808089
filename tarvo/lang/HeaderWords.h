#pragma once

#include "tarvo/export.h"

#include <cstddef>
#include <string>
#include <string_view>

/// Up to three words separated by white space, as the C library's scan format "%s %s %s" takes them, but
/// each held in a buffer of limited size: what is longer is cut there, and the rest of the word passed
/// over, so that the words behind it keep their places.
class TARVO_API CThreeWords
{
public:
    explicit CThreeWords(std::size_t most) : m_most(most) {}
    std::wstring_view Word(int number) const { return m_words[number]; }

protected:
    /// Reads words from \p units, an indexable text of \p count units, from \p at on. A NUL ends the
    /// text. Returns how many words there were, 0 to 3.
    template <class Units>
    int ReadWords(const Units& units, std::size_t at, std::size_t count);

private:
    std::wstring m_words[3];
    std::size_t m_most;
};

/// Walks over the directives of a UTF-16LE header text.
class TARVO_API CHeaderWords : public CThreeWords
{
public:
    CHeaderWords(const unsigned char* data, std::size_t count, std::size_t most)
        : CThreeWords(most), m_data(data), m_count(count)
    {
    }
    /// Reads up to three words from here and returns how many.
    int Read();
    /// Moves by as many units as words were read, then to the next '#'. False when there is none. The
    /// step is far shorter than the words: a '#' inside them is found again as a directive.
    bool SkipToDirective();

private:
    const unsigned char* m_data;
    std::size_t m_count;
    std::size_t m_at = 0;
    int m_read = 0;
};

/// Walks over the lines of an 8-bit header file, each byte one unit. A line longer than the buffer comes
/// in pieces.
class TARVO_API CHeaderLines : public CThreeWords
{
public:
    CHeaderLines(std::string_view bytes, std::size_t most) : CThreeWords(most), m_bytes(bytes), m_most(most)
    {
    }
    bool Next();
    /// Reads up to three words of the line and returns how many.
    int Read();

private:
    std::string_view m_bytes;
    std::string_view m_line;
    std::size_t m_most;
};
