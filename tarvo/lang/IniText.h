#pragma once

#include "tarvo/export.h"
#include "tarvo/text/LineMarks.h"
#include "tarvo/text/Units.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

/// How the text of an INI document is taken apart: functions from text to text, without a document.
namespace initext
{
using textline::LineMarks;
using textline::MarkLine;

/// The kinds of lines, tried in the order blank, section, comment, data, other.
enum LINE_TYPE
{
    LINE_SECTION = 0, ///< begins with "[" and ends with "]"
    LINE_DATA = 1,    ///< holds "=" anywhere
    LINE_COMMENT = 2, ///< begins with ";"
    LINE_BLANK = 3,
    LINE_OTHER = 4
};

/// Reads the lines of a text that stays as it is.
class TARVO_API CLineReader
{
public:
    explicit CLineReader(units::view text) : m_p(text.data()), m_pEnd(m_p + text.size()), m_marker(text) {}

    /// The next line, trimmed, and its marks; false at the end of the text, which is a NUL or the bound. The
    /// line is valid until the next one: one with carriage returns inside is put together without them.
    bool ReadALine(units::view& line, LineMarks& marks);
    /// False while units are left, behind a NUL too.
    bool IsAtEnd() const { return m_p == m_pEnd; }

private:
    bool CloseUp(units::view& line);

    const char16_t* m_p;
    const char16_t* m_pEnd;
    textline::CLineMarker m_marker;
    std::u16string m_strClosed;
};

/// The kind of a trimmed line with its marks.
TARVO_API LINE_TYPE GetLineType(const units::view& line, const LineMarks& marks);

/// The name between the brackets of a section line, trimmed; empty when there is none.
TARVO_API units::view ParseSection(units::view line);

/// Splits a trimmed line with its marks at its first "=". A remark that ends with "/**/" is cut off the key's
/// front. The value lies between the first and the last double quote; with one quote it is what follows it,
/// with none the whole field. The field is counted from the line's end by the length of the trimmed key, so
/// in «key = x» it is «= x»; written files quote every value, which makes that harmless.
/// False for an empty line, a comment, a line that begins with "[" and one without "=".
TARVO_API bool ParseData(const units::view& line, const LineMarks& marks, units::view& key,
                         units::view& value);

/// The first character behind the blanks (U+0020) and tabs at \p psz.
TARVO_API const wchar_t* SkipWhiteSpace(const wchar_t* psz);

/// True when the bytes begin with the UTF-16LE byte-order mark, FF FE.
TARVO_API bool IsUnicodeFileHeader(std::string_view bytes);

/// \p text in \p codePage with its NUL, and its size in bytes with the NUL in \p size. Null for an unknown
/// page and for text that takes more than two bytes for each character.
TARVO_API std::unique_ptr<char[]> Unicode2Ascii(const wchar_t* text, int codePage, int& size);

/// The number at the front of \p psz as the C library's wcstoul reads it where long has 32 bits: white
/// space, a sign (minus negates without sign), digits of \p radix, 0 for the prefixes of C. 0 without a
/// number and for a radix other than 0 and 2 to 36; 0xFFFFFFFF when the number does not fit.
TARVO_API unsigned ToUnsigned(const wchar_t* psz, int radix);
} // namespace initext
