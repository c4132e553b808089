#include "platform/locale.h"

#include <cstdlib>

namespace platform::locale
{
namespace
{
/// The language of the first variable that is set and not empty, as the C library chooses a locale.
std::uint16_t language_of(const char* first, const char* second, const char* third)
{
    for (const char* name : {first, second, third})
    {
        const char* text = std::getenv(name);
        if (text && *text)
            return language_by_name(text);
    }
    return 0;
}
} // namespace

std::wstring system_language()
{
    constexpr std::uint16_t english = 0x0409;
    const std::uint16_t named = language_of("LC_ALL", "LC_CTYPE", "LANG");
    const unsigned id = named ? named : english;
    std::wstring digits;
    for (int shift = 12; shift >= 0; shift -= 4)
        digits += L"0123456789abcdef"[(id >> shift) & 15];
    return digits;
}

std::uint16_t user_interface_language() { return language_of("LC_ALL", "LC_MESSAGES", "LANG"); }
} // namespace platform::locale
