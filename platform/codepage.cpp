#include "platform/codepage.h"

#include "platform/codepage_system.h"

namespace platform::codepage
{
namespace
{
int g_override = ansi;
} // namespace

int ansi_page() { return g_override != ansi ? g_override : system_ansi_page(); }

bool set_ansi_page(int page)
{
    if (page != ansi && !known(page))
        return false;
    g_override = page;
    return true;
}

// Local pointers in both: a byte that is stored could be part of anything that is reached through an object.

std::wstring from_utf16le(std::string_view bytes)
{
    std::wstring text(bytes.size() / 2, L'\0');
    const auto* const in = reinterpret_cast<const unsigned char*>(bytes.data());
    wchar_t* const out = text.data();
    for (std::size_t i = 0, size = text.size(); i < size; ++i)
        out[i] = static_cast<wchar_t>(in[2 * i] | in[2 * i + 1] << 8);
    return text;
}

std::string to_utf16le(std::wstring_view text)
{
    std::string bytes(2 * text.size(), '\0');
    const wchar_t* const in = text.data();
    char* const out = bytes.data();
    for (std::size_t i = 0, size = text.size(); i < size; ++i)
    {
        out[2 * i] = static_cast<char>(in[i]);
        out[2 * i + 1] = static_cast<char>(in[i] >> 8);
    }
    return bytes;
}
} // namespace platform::codepage
