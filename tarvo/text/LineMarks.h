#pragma once

#include "tarvo/export.h"
#include "tarvo/text/Units.h"

/// The characters that take a line of a language or message file apart, found in one pass over it.
namespace textline
{
/// Where they stand in a line; null for one that is not there.
struct LineMarks
{
    const char16_t* equals = nullptr;    ///< the first "="
    const char16_t* quote = nullptr;     ///< the first double quote
    const char16_t* lastQuote = nullptr; ///< the last one, the first when there is one only
    bool slash = false;                  ///< a "/" stands somewhere, so a remark may
};

/// Adds the marks of [\p first, \p last) to \p marks, up to the first unit below 16, which it returns
/// (line feed, carriage return and NUL are there, and tab); \p last when there is none.
TARVO_API const char16_t* MarkLine(const char16_t* first, const char16_t* last, LineMarks& marks);

/// The marks of a whole line, whatever stands in it.
TARVO_API LineMarks MarkLine(units::view line);
} // namespace textline
