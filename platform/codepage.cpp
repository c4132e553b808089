#include "platform/codepage.h"

#include <cstring>

namespace platform::codepage
{
std::wstring from_utf16le(std::string_view bytes)
{
    std::wstring text(bytes.size() / 2, L'\0');
    for (std::size_t i = 0; i < text.size(); ++i)
        text[i] = static_cast<wchar_t>(static_cast<unsigned char>(bytes[2 * i]) |
                                       static_cast<unsigned char>(bytes[2 * i + 1]) << 8);
    return text;
}

std::string to_utf16le(std::wstring_view text)
{
    std::string bytes(text.size() * 2, '\0');
    for (std::size_t i = 0; i < text.size(); ++i)
    {
        bytes[2 * i] = static_cast<char>(text[i] & 0xFF);
        bytes[2 * i + 1] = static_cast<char>(text[i] >> 8 & 0xFF);
    }
    return bytes;
}
} // namespace platform::codepage
