#include "platform/codepage.h"

#include <cstdlib>

namespace platform::codepage
{
namespace
{
int g_override = 0;

int page_of_locale(std::string_view name)
{
    if (name.starts_with("ko"))
        return 949;
    if (name.starts_with("ja"))
        return 932;
    if (name.starts_with("zh_TW"))
        return 950;
    if (name.starts_with("zh"))
        return 936;
    if (name.starts_with("ru"))
        return 1251;
    return 1252;
}

int system_page()
{
    for (const char* variable : {"LC_ALL", "LC_CTYPE", "LANG"})
        if (const char* value = std::getenv(variable); value && *value)
            return page_of_locale(value);
    return 1252;
}

/// Reads one character at \p at and moves past it, or past the longest beginning of one.
char32_t read_utf8(std::string_view bytes, std::size_t& at)
{
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
    const unsigned lead = byte(at++);
    if (lead < 0x80)
        return lead;
    if (lead < 0xC2 || lead > 0xF4)
        return 0xFFFD;
    const int trails = lead < 0xE0 ? 1 : lead < 0xF0 ? 2 : 3;
    char32_t c = lead & (0x3Fu >> trails);
    for (int i = 0; i < trails; ++i)
    {
        unsigned low = 0x80, high = 0xBF;
        if (i == 0)
        {
            low = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
            high = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
        }
        if (at >= bytes.size() || byte(at) < low || byte(at) > high)
            return 0xFFFD;
        c = c << 6 | (byte(at++) & 0x3F);
    }
    return c;
}

template <class Unit>
std::size_t decode_utf8(std::string_view bytes, Unit* out)
{
    Unit* const begin = out;
    for (std::size_t at = 0; at < bytes.size();)
    {
        const char32_t c = read_utf8(bytes, at);
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
    char* const begin = out;
    for (std::size_t i = 0; i < text.size(); ++i)
    {
        char32_t c = static_cast<char16_t>(text[i]);
        if ((c & 0xF800) == 0xD800)
        {
            if (c < 0xDC00 && i + 1 < text.size() && (static_cast<char16_t>(text[i + 1]) & 0xFC00) == 0xDC00)
                c = 0x10000 + ((c & 0x3FF) << 10) + (static_cast<char16_t>(text[++i]) & 0x3FF);
            else
                c = 0xFFFD;
        }
        if (c < 0x80)
        {
            *out++ = static_cast<char>(c);
            continue;
        }
        const int trails = c < 0x800 ? 1 : c < 0x10000 ? 2 : 3;
        constexpr unsigned marks[] = {0, 0xC0, 0xE0, 0xF0};
        *out++ = static_cast<char>(marks[trails] | c >> 6 * trails);
        for (int k = trails - 1; k >= 0; --k)
            *out++ = static_cast<char>(0x80 | (c >> 6 * k & 0x3F));
    }
    return static_cast<std::size_t>(out - begin);
}

int page_of(int page) { return page == ansi ? ansi_page() : page; }
} // namespace

int ansi_page()
{
    static const int system = system_page();
    return g_override ? g_override : system;
}

bool set_ansi_page(int page)
{
    if (page != ansi && !known(page))
        return false;
    g_override = page;
    return true;
}

bool known(int page) { return page_of(page) == utf8; }

std::optional<std::size_t> decode(int page, std::string_view bytes, char16_t* out)
{
    if (!known(page))
        return std::nullopt;
    return decode_utf8(bytes, out);
}

std::optional<std::wstring> decode(int page, std::string_view bytes)
{
    if (!known(page))
        return std::nullopt;
    std::wstring text(bytes.size(), L'\0');
    text.resize(decode_utf8(bytes, text.data()));
    return text;
}

std::optional<std::size_t> encode(int page, std::u16string_view text, char* out)
{
    if (!known(page))
        return std::nullopt;
    return encode_utf8(text, out);
}

std::optional<std::string> encode(int page, std::wstring_view text)
{
    if (!known(page))
        return std::nullopt;
    std::string bytes(encoded_bound(text.size()), '\0');
    bytes.resize(encode_utf8(text, bytes.data()));
    return bytes;
}
} // namespace platform::codepage
