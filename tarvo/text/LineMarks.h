#pragma once

#include "tarvo/export.h"
#include "tarvo/text/Units.h"

#include <cstddef>
#include <cstdint>

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

/// Goes through a text that stays as it is. It notes where such characters stand some lines ahead, 64 units
/// in one step, so that how long each line is does not matter.
class TARVO_API CLineMarker
{
public:
    explicit CLineMarker(units::view text = {}) : m_pAhead(text.data()), m_pEnd(text.data() + text.size()) {}

    /// Adds the marks of [\p first, \p last) to \p marks, up to the first unit below 16, which it returns
    /// (line feed, carriage return and NUL are there, and tab); \p last when there is none. \p first does not
    /// go back.
    const char16_t* Mark(const char16_t* first, const char16_t* last, LineMarks& marks);

private:
    static constexpr std::size_t kAhead = 1024; ///< units
    static constexpr std::size_t kAtATime = 8;

    bool LookAhead();

    const char16_t* m_pNoted = nullptr; ///< where what is noted begins
    const char16_t* m_pAhead;           ///< where it ends
    const char16_t* m_pEnd;
    std::size_t m_nNext = 0;
    std::size_t m_nCount = 0;
    std::uint16_t m_arrPlace[kAhead + kAtATime]; ///< behind m_pNoted
};

/// The marks of a whole line, whatever stands in it.
TARVO_API LineMarks MarkLine(units::view line);
} // namespace textline
