#include "tarvo/text/PageRules.h"

#include "platform/codepage.h"

#include <array>
#include <bit>

namespace page_rules
{
namespace
{
namespace codepage = platform::codepage;

constexpr unsigned error_at_invalid = 0x80;       // WC_ERR_INVALID_CHARS
constexpr unsigned no_best_fit = 0x400;           // WC_NO_BEST_FIT_CHARS
constexpr unsigned without_effect = 0x200 | 0x70; // composite characters and the default character

bool is_utf8(int page) { return (page == codepage::ansi ? codepage::ansi_page() : page) == codepage::utf8; }

// A lead byte makes one character of itself and the next byte.
std::array<bool, 256> lead_bytes(int page)
{
    std::array<bool, 256> is_lead = {};
    for (int i = 0x80; i < 0x100; ++i)
    {
        const char pair[2] = {static_cast<char>(i), 'A'};
        const auto units = codepage::decode(page, std::string_view(pair, 2));
        is_lead[static_cast<std::size_t>(i)] = units && units->size() == 1;
    }
    return is_lead;
}

std::size_t whole_pairs(int page, std::string_view bytes, std::size_t most)
{
    const std::array<bool, 256> is_lead = lead_bytes(page);
    std::size_t at = 0;
    std::size_t next = 0;
    while (next <= most && at != most)
    {
        at = next;
        next += is_lead[static_cast<unsigned char>(bytes[at])] ? 2 : 1;
    }
    return at;
}

std::size_t whole_sequences(std::string_view bytes, std::size_t most)
{
    for (std::size_t back = 0; back <= 3 && back < most; ++back)
    {
        const auto byte = static_cast<unsigned char>(bytes[most - back]);
        const auto ones = static_cast<std::size_t>(std::countl_one(byte));
        if (ones != 1)
            return ones > back ? most - back : most;
    }
    return most;
}

bool has_half_pair(std::wstring_view text)
{
    bool high = false;
    for (const wchar_t ch : text)
    {
        const bool low = (ch & 0xFC00) == 0xDC00;
        if (low != high)
            return true;
        high = (ch & 0xFC00) == 0xD800;
    }
    return high;
}

// Each unit that does not come back from the page as itself becomes '?'.
std::optional<std::string> encode_without_best_fit(int page, std::wstring_view text)
{
    auto bytes = codepage::encode(page, text);
    if (!bytes || codepage::decode(page, *bytes) == text)
        return bytes;
    bytes->clear();
    for (const wchar_t& ch : text)
    {
        const std::wstring_view one(&ch, 1);
        const auto encoded = codepage::encode(page, one);
        *bytes += encoded && codepage::decode(page, *encoded) == one ? *encoded : "?";
    }
    return bytes;
}
} // namespace

std::size_t whole_characters(int page, std::string_view bytes, std::size_t most)
{
    if (bytes.size() <= most)
        return bytes.size();
    return is_utf8(page) ? whole_sequences(bytes, most) : whole_pairs(page, bytes, most);
}

std::optional<std::string> encode(int page, unsigned flags, std::wstring_view text)
{
    if (flags == 0)
        return codepage::encode(page, text);
    if (is_utf8(page))
        return flags != error_at_invalid || has_half_pair(text) ? std::nullopt : codepage::encode(page, text);
    if ((flags & ~(no_best_fit | without_effect)) != 0)
        return std::nullopt;
    return (flags & no_best_fit) != 0 ? encode_without_best_fit(page, text) : codepage::encode(page, text);
}
} // namespace page_rules
