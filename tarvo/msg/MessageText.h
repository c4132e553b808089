#pragma once

#include "tarvo/export.h"
#include "tarvo/text/LineMarks.h"
#include "tarvo/text/Units.h"

#include <cstddef>

/// How the text of a message file and of a font file is taken apart: functions from text to text.
namespace msgtext
{
/// Takes a line of a message file apart. The key ends at the first "="; a remark before it ends with "/**/".
/// The field of the value is counted from the line's end by the length of the trimmed key, so in «A = x» it
/// is «= x»; files quote their texts, which makes that harmless. The value lies between the first and the
/// last double quote of the field; with one quote it is what follows it, with none the whole field.
/// \p marks is what textline::MarkLine finds in the line.
/// False for a line that is blank or begins with ";" or "[": it has no entry, any other has one.
TARVO_API bool ParseEntry(units::view line, const textline::LineMarks& marks, units::view& key,
                          units::view& value);

/// True when Unescape may change the text.
TARVO_API bool HasEscapes(units::view value);

/// Replaces \n, \t and \r by what they name, then "" by one quote, then \\ by one backslash, each over the
/// whole text: in «\\n» the second backslash belongs to the n. The text is changed where it stands; the
/// result is its new length.
TARVO_API std::size_t Unescape(char16_t* text, std::size_t count);

/// Takes one line of a font file in: «FONT=face name» or «SIZE=points», the key in any letter case but
/// without blanks around it, the face name to the line's end, of the size the number at its front. Lines
/// that are empty, begin with ";", "/" or "[" or say something else change nothing.
TARVO_API void ReadFontLine(units::view line, CString& fontName, int& fontSize);
} // namespace msgtext
