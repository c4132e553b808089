#include "platform/codepage_utf8.h"

#include "platform/codepage_utf8_blocks.h"

#include <algorithm>

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
Progress<std::uint8_t, Unit> decode_one_by_one(Progress<std::uint8_t, Unit> at, const std::uint8_t* stop,
                                               const std::uint8_t* end)
{
    while (at.in < stop)
    {
        const char32_t c = read_character(at.in, end);
        if (c >= 0x10000)
        {
            *at.out++ = static_cast<Unit>(0xD7C0 + (c >> 10));
            *at.out++ = static_cast<Unit>(0xDC00 + (c & 0x3FF));
        }
        else
            *at.out++ = static_cast<Unit>(c);
    }
    return at;
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

char* put_character(char32_t c, char* out)
{
    const auto trail = [](char32_t bits) { return static_cast<char>(0x80 | (bits & 0x3F)); };
    if (c < 0x80)
        *out++ = static_cast<char>(c);
    else if (c < 0x800)
    {
        *out++ = static_cast<char>(0xC0 | c >> 6);
        *out++ = trail(c);
    }
    else
    {
        if (c < 0x10000)
            *out++ = static_cast<char>(0xE0 | c >> 12);
        else
        {
            *out++ = static_cast<char>(0xF0 | c >> 18);
            *out++ = trail(c >> 12);
        }
        *out++ = trail(c >> 6);
        *out++ = trail(c);
    }
    return out;
}
} // namespace

template <class Unit>
Progress<std::uint8_t, Unit> decode_utf8(Progress<std::uint8_t, Unit> at, const std::uint8_t* stop,
                                         const std::uint8_t* end)
{
    while (at.in < stop)
    {
        at = decode_utf8_blocks(at, stop, end);
        at = decode_one_by_one(at, at.in + std::min(block_size, stop - at.in), end);
    }
    return at;
}

template <class Unit>
Progress<Unit, char> encode_utf8(Progress<Unit, char> at, const Unit* stop, const Unit* end)
{
    while (at.in < stop)
    {
        at = encode_utf8_blocks(at, stop, end);
        const Unit* const piece = at.in + std::min<std::ptrdiff_t>(16, stop - at.in);
        while (at.in < piece)
        {
            const char32_t c = read_character(at.in, end);
            at.out = put_character(c, at.out);
        }
    }
    return at;
}

template Progress<std::uint8_t, char16_t> decode_utf8(Progress<std::uint8_t, char16_t>, const std::uint8_t*,
                                                      const std::uint8_t*);
template Progress<std::uint8_t, wchar_t> decode_utf8(Progress<std::uint8_t, wchar_t>, const std::uint8_t*,
                                                     const std::uint8_t*);
template Progress<char16_t, char> encode_utf8(Progress<char16_t, char>, const char16_t*, const char16_t*);
template Progress<wchar_t, char> encode_utf8(Progress<wchar_t, char>, const wchar_t*, const wchar_t*);
} // namespace platform::codepage
