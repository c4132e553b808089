#pragma once

#include "platform/letters.h"
#include "tarvo/export.h"

#include <afxstr.h>

#include <cstdint>
#include <memory>
#include <string_view>

/// Stored text is UTF-16 units of 16 bits on every platform, half of what wide text takes natively. Here
/// is what the readers of files need over such runs: four units are looked at in one step.
namespace units
{
using view = std::u16string_view;

/// The first unit of [\p first, \p last) that equals \p unit; \p last when there is none.
TARVO_API const char16_t* find(const char16_t* first, const char16_t* last, char16_t unit);
/// The first line feed or carriage return.
TARVO_API const char16_t* find_break(const char16_t* first, const char16_t* last);

TARVO_API std::uint32_t hash(view text);
/// Below, equal to or above zero by the first unit that differs, then by length.
TARVO_API int compare(view a, view b);
TARVO_API bool equal(view a, view b);
TARVO_API bool equal_no_case(view a, view b);
/// \p text without the white space (platform::letters::is_space) at both ends.
inline view trim(view text)
{
    while (!text.empty() && platform::letters::is_space(text.back()))
        text.remove_suffix(1);
    while (!text.empty() && platform::letters::is_space(text.front()))
        text.remove_prefix(1);
    return text;
}

/// The same units as a string of the framework.
TARVO_API CString to_string(view text);
/// Puts \p count units at \p out, one wide character each.
TARVO_API void widen(const char16_t* text, std::size_t count, wchar_t* out);
/// Puts \p count wide characters (each one unit) at \p out.
TARVO_API void narrow(const wchar_t* text, std::size_t count, char16_t* out);
} // namespace units

/// A wide text held as units while a call lasts. Null is an empty text.
class TARVO_API CUnits
{
public:
    explicit CUnits(const wchar_t* psz);
    CUnits(const CUnits&) = delete;
    CUnits& operator=(const CUnits&) = delete;

    operator units::view() const { return m_view; }

private:
    static constexpr std::size_t kShort = 120;
    char16_t m_szShort[kShort];
    std::unique_ptr<char16_t[]> m_pLong;
    units::view m_view;
};
