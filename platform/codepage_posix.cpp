#include "platform/codepage.h"

#include "platform/codepage_page.h"
#include "platform/codepage_utf8.h"

#include <cstdlib>

namespace platform::codepage
{
namespace
{
int g_override = 0;

/// The ANSI page that Windows gives the language of a locale name such as "ko_KR.UTF-8".
int page_of_locale(std::string_view name)
{
    static constexpr struct
    {
        std::string_view begin;
        int page;
    } pages[] = {{"ko", 949},    {"ja", 932}, {"zh_TW", 950}, {"zh_HK", 950},
                 {"zh_MO", 950}, {"zh", 936}, {"ru", 1251}};
    for (const auto& known_name : pages)
        if (name.starts_with(known_name.begin))
            return known_name.page;
    return 1252;
}

int system_page()
{
    for (const char* variable : {"LC_ALL", "LC_CTYPE", "LANG"})
        if (const char* value = std::getenv(variable); value && *value)
            return page_of_locale(value);
    return 1252;
}

template <class Unit>
std::optional<std::size_t> decode_into(int page, std::string_view bytes, Unit* out)
{
    if (page == ansi)
        page = ansi_page();
    if (page == utf8)
        return decode_utf8(bytes, out);
    if (const Page* table = find_page(page))
        return decode_page(*table, bytes, out);
    return std::nullopt;
}

template <class Unit>
std::optional<std::size_t> encode_into(int page, std::basic_string_view<Unit> text, char* out)
{
    if (page == ansi)
        page = ansi_page();
    if (page == utf8)
        return encode_utf8(text, out);
    if (const Page* table = find_page(page))
        return encode_page(*table, text, out);
    return std::nullopt;
}
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

bool known(int page) { return page == ansi || page == utf8 || find_page(page); }

std::optional<std::size_t> decode(int page, std::string_view bytes, char16_t* out)
{
    return decode_into(page, bytes, out);
}

std::optional<std::wstring> decode(int page, std::string_view bytes)
{
    std::wstring text(bytes.size(), L'\0');
    const std::optional<std::size_t> units = decode_into(page, bytes, text.data());
    if (!units)
        return std::nullopt;
    text.resize(*units);
    return text;
}

std::optional<std::size_t> encode(int page, std::u16string_view text, char* out)
{
    return encode_into(page, text, out);
}

std::optional<std::string> encode(int page, std::wstring_view text)
{
    std::string bytes(encoded_bound(text.size()), '\0');
    const std::optional<std::size_t> size = encode_into(page, text, bytes.data());
    if (!size)
        return std::nullopt;
    bytes.resize(*size);
    return bytes;
}
} // namespace platform::codepage
