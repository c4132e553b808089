#include "platform/codepage_utf8.h"

#include "platform/codepage_block.h"

namespace platform::codepage
{
namespace
{
constexpr char32_t replacement = 0xFFFD;

bool is_trail(unsigned byte) { return (byte & 0xC0) == 0x80; }

/// Reads one character at \p p and moves past it, or past what becomes one U+FFFD.
char32_t read_character(const std::uint8_t*& p, const std::uint8_t* end)
{
    const unsigned lead = *p++;
    if (lead < 0x80)
        return lead;
    if (lead < 0xC2 || lead > 0xF4)
        return replacement;
    const int trails = lead < 0xE0 ? 1 : lead < 0xF0 ? 2 : 3;
    if (end - p < trails)
    {
        p = end;
        return replacement;
    }
    if (!is_trail(*p))
        return replacement;
    char32_t c = (lead & 0x3Fu >> trails) << 6 | (*p++ & 0x3F);
    if ((trails == 2 && (c < 0x20 || c >> 5 == 0xD800 >> 11)) || (trails == 3 && (c < 0x10 || c > 0x10F)))
        return replacement;
    for (int i = 1; i < trails; ++i)
    {
        if (!is_trail(*p))
            return replacement;
        c = c << 6 | (*p++ & 0x3F);
    }
    return c;
}

template <class Unit>
char32_t read_character(const Unit*& p, const Unit* end)
{
    const char32_t c = static_cast<char16_t>(*p++);
    if (c < 0xD800 || c > 0xDFFF)
        return c;
    if (c < 0xDC00 && p < end && (static_cast<char16_t>(*p) & 0xFC00) == 0xDC00)
        return 0x10000 + ((c & 0x3FF) << 10) + (static_cast<char16_t>(*p++) & 0x3FF);
    return replacement;
}
} // namespace

template <class Unit>
std::size_t decode_utf8(std::string_view bytes, Unit* out)
{
    Unit* const begin = out;
    const auto* p = reinterpret_cast<const std::uint8_t*>(bytes.data());
    const std::uint8_t* const end = p + bytes.size();
    while (p < end)
    {
        const char32_t c = read_character(p, end);
        if (c >= 0x10000)
        {
            *out++ = static_cast<Unit>(0xD7C0 + (c >> 10));
            *out++ = static_cast<Unit>(0xDC00 + (c & 0x3FF));
        }
        else
            *out++ = static_cast<Unit>(c);
    }
    return static_cast<std::size_t>(out - begin);
}

template <class Unit>
std::size_t encode_utf8(std::basic_string_view<Unit> text, char* out)
{
    const char* const begin = out;
    const Unit* p = text.data();
    const Unit* const end = p + text.size();
    while (p < end)
    {
        const char32_t c = read_character(p, end);
        if (c < 0x80)
        {
            *out++ = static_cast<char>(c);
            continue;
        }
        constexpr unsigned marks[] = {0, 0xC0, 0xE0, 0xF0};
        const int trails = c < 0x800 ? 1 : c < 0x10000 ? 2 : 3;
        *out++ = static_cast<char>(marks[trails] | c >> 6 * trails);
        for (int k = trails - 1; k >= 0; --k)
            *out++ = static_cast<char>(0x80 | (c >> 6 * k & 0x3F));
    }
    return static_cast<std::size_t>(out - begin);
}

template std::size_t decode_utf8(std::string_view, char16_t*);
template std::size_t decode_utf8(std::string_view, wchar_t*);
template std::size_t encode_utf8(std::u16string_view, char*);
template std::size_t encode_utf8(std::wstring_view, char*);
} // namespace platform::codepage
