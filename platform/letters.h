#pragma once

/// Letter case and white space of single UTF-16 units, the same on every platform and in every locale.
namespace platform::letters
{
/// Two units are a pair when the Unicode character database makes each the other's simple
/// mapping, as the system's ordinal comparison has it. Letters whose mapping does not lead back keep their
/// form (dotless and dotted i of Turkish, sharp s, final sigma, the Kelvin and Angstrom signs, the
/// digraphs that begin a title), and so do characters beyond U+FFFF.
wchar_t upper(wchar_t ch) noexcept;
wchar_t lower(wchar_t ch) noexcept;

/// What two units have in common that are equal without regard to case: the small letter.
inline wchar_t fold(wchar_t ch) noexcept
{
    const auto n = static_cast<unsigned>(ch);
    if (n < 0x80)
        return n - L'A' < 26u ? static_cast<wchar_t>(n + 32) : ch;
    return lower(ch);
}

/// White space: U+0009 to U+000D, U+0020, U+0085, U+00A0, U+1680, U+2000 to U+200A, U+2028, U+2029,
/// U+202F, U+205F and U+3000.
constexpr bool is_space(wchar_t ch) noexcept
{
    const auto n = static_cast<unsigned>(ch);
    if (n < 0x80)
        return n == 0x20 || n - 9 < 5;
    if (n > 0x3000) // most letters of most languages that need more than ASCII
        return false;
    return n == 0x85 || n == 0xA0 || n == 0x1680 || n - 0x2000 < 11 || n == 0x2028 || n == 0x2029 ||
           n == 0x202F || n == 0x205F || n == 0x3000;
}
} // namespace platform::letters
