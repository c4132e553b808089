#include "platform/codepage.h"

#include "platform/codepage_page.h"
#include "platform/codepage_system.h"
#include "platform/codepage_utf8.h"
#include "platform/locale.h"

#include <algorithm>

namespace platform::codepage
{
namespace
{
/// Everything that a page does: UTF-8, or a table.
struct Converter
{
    const Page* table;

    template <class Unit>
    Progress<std::uint8_t, Unit> decode(Progress<std::uint8_t, Unit> at, const std::uint8_t* stop,
                                        const std::uint8_t* end) const
    {
        return table ? decode_page(*table, at, stop, end) : decode_utf8(at, stop, end);
    }

    template <class Unit>
    Progress<Unit, char> encode(Progress<Unit, char> at, const Unit* stop, const Unit* end) const
    {
        return table ? encode_page(*table, at, stop) : encode_utf8(at, stop, end);
    }
};

std::optional<Converter> find(int page)
{
    if (page == ansi)
        page = ansi_page();
    if (page == utf8)
        return Converter{nullptr};
    if (const Page* table = find_page(page))
        return Converter{table};
    return std::nullopt;
}

/// Fills a string by \p step, which converts a piece of at most \p piece and returns where it came to. The
/// string grows by pieces, so that the zeros it is filled with first do not leave the cache.
template <class In, class Out, class Step>
std::basic_string<Out> convert_by_pieces(const In* begin, const In* end, std::size_t room_of_one, Step step)
{
    constexpr std::ptrdiff_t piece = 0x2000;
    std::basic_string<Out> result;
    std::size_t used = 0;
    for (const In* p = begin; p < end;)
    {
        const In* const stop = p + std::min(piece, end - p);
        result.resize(used + room_of_one * static_cast<std::size_t>(stop - p + 1));
        const Progress<In, Out> at = step(Progress<In, Out>{p, result.data() + used}, stop);
        used = static_cast<std::size_t>(at.out - result.data());
        if (p == begin && at.in < end)
        {
            // What the first piece became tells about how much the whole will become.
            const double ratio = static_cast<double>(used) / static_cast<double>(at.in - begin);
            const auto whole = static_cast<double>(end - begin + piece);
            result.reserve(static_cast<std::size_t>(1.05 * ratio * whole) + room_of_one * piece);
        }
        p = at.in;
    }
    result.resize(used);
    return result;
}

const std::uint8_t* unsigned_bytes(const char* bytes) { return reinterpret_cast<const std::uint8_t*>(bytes); }
} // namespace

int page_of_language(std::wstring_view language)
{
    static constexpr struct
    {
        std::wstring_view language;
        int page;
    } pages[] = {{L"0412", 949}, {L"0411", 932}, {L"0804", 936}, {L"1004", 936},
                 {L"0404", 950}, {L"0c04", 950}, {L"1404", 950}, {L"0419", 1251}};
    for (const auto& row : pages)
        if (row.language == language)
            return row.page;
    return 1252;
}

int system_ansi_page()
{
    static const int page = page_of_language(locale::system_language());
    return page;
}

bool known(int page) { return find(page).has_value(); }

std::optional<std::size_t> decode(int page, std::string_view bytes, char16_t* out)
{
    const std::optional<Converter> converter = find(page);
    if (!converter)
        return std::nullopt;
    const std::uint8_t* const begin = unsigned_bytes(bytes.data());
    const std::uint8_t* const end = begin + bytes.size();
    return static_cast<std::size_t>(
        converter->decode(Progress<std::uint8_t, char16_t>{begin, out}, end, end).out - out);
}

std::optional<std::wstring> decode(int page, std::string_view bytes)
{
    const std::optional<Converter> converter = find(page);
    if (!converter)
        return std::nullopt;
    const std::uint8_t* const begin = unsigned_bytes(bytes.data());
    const std::uint8_t* const end = begin + bytes.size();
    return convert_by_pieces<std::uint8_t, wchar_t>(
        begin, end, 1, [&](auto at, const std::uint8_t* stop) { return converter->decode(at, stop, end); });
}

std::optional<std::size_t> encode(int page, std::u16string_view text, char* out)
{
    const std::optional<Converter> converter = find(page);
    if (!converter)
        return std::nullopt;
    const char16_t* const end = text.data() + text.size();
    return static_cast<std::size_t>(
        converter->encode(Progress<char16_t, char>{text.data(), out}, end, end).out - out);
}

std::optional<std::string> encode(int page, std::wstring_view text)
{
    const std::optional<Converter> converter = find(page);
    if (!converter)
        return std::nullopt;
    const wchar_t* const end = text.data() + text.size();
    return convert_by_pieces<wchar_t, char>(
        text.data(), end, encoded_bound(1),
        [&](auto at, const wchar_t* stop) { return converter->encode(at, stop, end); });
}
} // namespace platform::codepage
