#pragma once

#include "tarvo/export.h"

#include <cstddef>
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
