#include "platform/codepage.h"

#include "platform/codepage_system.h"

#include <windows.h>

#include <algorithm>

namespace platform::codepage
{
namespace
{
/// The system's calls count in int; longer input goes through them in pieces of at most this.
constexpr std::size_t piece = std::size_t{1} << 30;

UINT page_of(int page) { return static_cast<UINT>(page == ansi ? ansi_page() : page); }

/// How many of \p bytes make a piece: all, or up to a byte that no page uses inside a character.
std::size_t cut(std::string_view bytes)
{
    if (bytes.size() <= piece)
        return bytes.size();
    std::size_t at = piece;
    while (at > 1 && static_cast<unsigned char>(bytes[at - 1]) >= 0x30)
        --at;
    return at > 1 ? at : piece;
}

/// The same for text: a piece never ends between the halves of a surrogate pair.
std::size_t cut(std::u16string_view text)
{
    if (text.size() <= piece)
        return text.size();
    return (text[piece - 1] & 0xFC00) == 0xD800 ? piece - 1 : piece;
}

std::optional<std::size_t> encode_into(int page, std::u16string_view text, char* out, std::size_t room)
{
    if (!known(page))
        return std::nullopt;
    const UINT cp = page_of(page);
    std::size_t written = 0;
    while (!text.empty())
    {
        const std::size_t units = cut(text);
        const int n = WideCharToMultiByte(cp, 0, reinterpret_cast<const wchar_t*>(text.data()),
                                          static_cast<int>(units), out ? out + written : nullptr,
                                          out ? static_cast<int>(std::min(room - written, 2 * piece - 1)) : 0,
                                          nullptr, nullptr);
        if (n <= 0)
            return std::nullopt;
        written += static_cast<std::size_t>(n);
        text.remove_prefix(units);
    }
    return written;
}
} // namespace

int system_ansi_page() { return static_cast<int>(GetACP()); }

bool known(int page) { return page == ansi || IsValidCodePage(static_cast<UINT>(page)); }

std::optional<std::size_t> decode(int page, std::string_view bytes, char16_t* out)
{
    if (!known(page))
        return std::nullopt;
    const UINT cp = page_of(page);
    std::size_t written = 0;
    while (!bytes.empty())
    {
        const std::size_t size = cut(bytes);
        const int n = MultiByteToWideChar(cp, 0, bytes.data(), static_cast<int>(size),
                                          reinterpret_cast<wchar_t*>(out) + written, static_cast<int>(size));
        if (n <= 0)
            return std::nullopt;
        written += static_cast<std::size_t>(n);
        bytes.remove_prefix(size);
    }
    return written;
}

std::optional<std::wstring> decode(int page, std::string_view bytes)
{
    std::wstring text(bytes.size(), L'\0');
    const std::optional<std::size_t> n = decode(page, bytes, reinterpret_cast<char16_t*>(text.data()));
    if (!n)
        return std::nullopt;
    text.resize(*n);
    return text;
}

std::optional<std::size_t> encode(int page, std::u16string_view text, char* out)
{
    return encode_into(page, text, out, encoded_bound(text.size()));
}

std::optional<std::string> encode(int page, std::wstring_view text)
{
    const std::u16string_view units(reinterpret_cast<const char16_t*>(text.data()), text.size());
    const std::optional<std::size_t> size = encode_into(page, units, nullptr, 0);
    if (!size)
        return std::nullopt;
    std::string bytes(*size, '\0');
    if (!encode_into(page, units, bytes.data(), bytes.size()))
        return std::nullopt;
    return bytes;
}
} // namespace platform::codepage
