#pragma once

#include "tarvo/export.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <optional>
#include <string_view>

/// How a text file writes its characters; the numbers are fixed.
enum class TextEncoding
{
    Ansi = 0, ///< the system's ANSI code page
    Utf16BigEndian = 1,
    Utf16LittleEndian = 2,
    Utf8 = 3
};

/// What the first bytes of a file say.
struct CTextMark
{
    TextEncoding encoding = TextEncoding::Ansi;
    std::size_t length = 0; ///< bytes of the mark: 0, 2 or 3
};

/// Recognises a byte-order mark. Everything without one is ANSI, also EF BB with anything but BF behind.
TARVO_API CTextMark FindTextMark(std::string_view bytes);

/// Decodes UTF-8 leniently into \p out, which has room for bytes.size() units; gives the units written.
/// The count of leading one bits of a byte decides: none is the byte itself, two and three take one and
/// two more bytes, whose prefix is not checked; one, four and more give U+FFFD without taking another
/// byte, so a four-byte sequence gives four of them. A sequence cut off by the end gives nothing.
TARVO_API std::size_t DecodeLenientUtf8(std::string_view bytes, char16_t* out);

/// Decodes the whole characters that \p bytes begins with into \p out, which has room for bytes.size()
/// units, and takes them off \p bytes: what stays, at most two bytes, is a character whose rest follows in
/// the file. In ANSI nothing stays, so there \p bytes are whole lines.
TARVO_API std::size_t DecodeTextPart(TextEncoding encoding, std::string_view& bytes, char16_t* out);

/// A whole text in UTF-16 units, in one block that owns itself.
class CTextUnits
{
public:
    CTextUnits() = default;
    std::u16string_view View() const { return {m_units.get(), m_length}; }

private:
    friend TARVO_API std::optional<CTextUnits> DecodeText(std::string_view bytes);
    struct Free
    {
        void operator()(char16_t* p) const { std::free(p); }
    };
    std::unique_ptr<char16_t[], Free> m_units;
    std::size_t m_length = 0;
};

/// Decodes the bytes of a text file by their mark, the mark dropped and every line break kept. A line
/// break is never part of a longer character: each line of an ANSI text is decoded by itself. An odd last
/// byte of UTF-16 is dropped. Nothing when there is no memory for it.
TARVO_API std::optional<CTextUnits> DecodeText(std::string_view bytes);

/// Walks over the lines of a decoded text. One line feed, one carriage return or one pair of both left
/// over from the line before is passed over, then everything up to the next break is the line. So a
/// final break gives no extra line, and LF CR counts as two breaks.
class CTextLines
{
public:
    CTextLines() = default;
    explicit CTextLines(std::u16string_view text) : m_text(text) {}

    /// Gives the next line without its break; false at the end.
    TARVO_API bool Next(std::u16string_view& line);
    /// The number of the line last given, from 1, counted as an editor counts them.
    std::size_t LineNumber() const { return m_lineNumber; }

private:
    std::u16string_view m_text; ///< what is left, from the break behind the line last given
    std::size_t m_lineNumber = 1;
};
