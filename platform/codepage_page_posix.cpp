#include "platform/codepage_page.h"

#include "platform/codepage_tables.h"

#include <algorithm>
#include <array>
#include <mutex>
#include <vector>

namespace platform::codepage
{
namespace
{
constexpr std::size_t all_units = 0x10000;

/// Appends \p count packed numbers; returns the first word behind them.
const std::uint16_t* unpack(const std::uint16_t* packed, std::size_t count, std::vector<std::uint16_t>& out)
{
    for (const std::size_t end = out.size() + count; out.size() < end;)
    {
        constexpr auto kind_bits = static_cast<std::uint16_t>(Run::kind_bits);
        const auto kind = static_cast<Run>(*packed & kind_bits);
        const int length = *packed++ & ~kind_bits;
        for (int i = 0; i < length; ++i)
            out.push_back(kind == Run::literal  ? packed[i]
                          : kind == Run::rising ? static_cast<std::uint16_t>(*packed + i)
                                                : *packed);
        packed += kind == Run::literal ? length : 1;
    }
    return packed;
}

std::vector<std::uint8_t> lead_bytes(const PackedPage& packed)
{
    std::vector<std::uint8_t> leads;
    for (const ByteRange& range : packed.leads)
        for (int b = range.first; b <= range.last; ++b)
            leads.push_back(static_cast<std::uint8_t>(b));
    return leads;
}

/// One range as it is; of two ranges, 0x81 to 0x9F and 0xE0 to 0xFC, the bit that makes them one.
ByteSet set_of(const std::array<ByteRange, 2>& ranges)
{
    const ByteRange& a = ranges[0];
    const ByteRange& b = ranges[1];
    if (b.first > b.last)
        return {0, a.first, static_cast<std::uint8_t>(a.last - a.first)};
    return {0x20, static_cast<std::uint8_t>(a.first ^ 0x20),
            static_cast<std::uint8_t>((b.last ^ 0x20) - (a.first ^ 0x20))};
}

void unpack_double_byte(const std::vector<std::uint8_t>& leads, const std::vector<std::uint16_t>& units,
                        Page& page)
{
    page.units = std::make_unique<std::uint16_t[]>(all_units);
    for (std::size_t i = 0; i < all_units; ++i)
        page.units[i] = units[i & 0xFF];
    for (std::size_t row = 0; row < leads.size(); ++row)
        for (std::size_t second = 0; second < 256; ++second)
            page.units[leads[row] | second << 8] = units[256 + 256 * row + second];
}

void unpack_encoder(const PackedPage& packed, const std::vector<std::uint8_t>& leads,
                    const std::vector<std::uint16_t>& units, Page& page)
{
    page.bytes = std::make_unique<std::uint16_t[]>(all_units);
    std::fill_n(page.bytes.get(), all_units, std::uint16_t{'?'});
    // Backwards, so that of several characters for a unit the first one stays.
    for (std::size_t row = leads.size(); row-- > 0;)
        for (unsigned second = 255; second > 0; --second)
            page.bytes[units[256 + 256 * row + second]] =
                static_cast<std::uint16_t>(leads[row] | second << 8);
    for (unsigned b = 256; b-- > 0;)
        if (leads.empty() || !page.leads.holds(static_cast<std::uint8_t>(b)))
            page.bytes[units[b]] = static_cast<std::uint16_t>(b);

    const std::uint16_t* at = packed.encode.data();
    for (const std::uint16_t* const end = at + packed.encode.size(); at < end;)
    {
        const std::size_t first = *at++, count = *at++;
        std::vector<std::uint16_t> bytes;
        at = unpack(at, count, bytes);
        for (std::size_t i = 0; i < count; ++i)
            page.bytes[first + i] =
                bytes[i] < 0x100 ? bytes[i] : static_cast<std::uint16_t>(bytes[i] >> 8 | bytes[i] << 8);
    }
}

Page unpack_page(const PackedPage& packed)
{
    const std::vector<std::uint8_t> leads = lead_bytes(packed);
    std::vector<std::uint16_t> units;
    unpack(packed.decode.data(), 256 * (1 + leads.size()), units);

    Page page{!leads.empty(), {}, nullptr, nullptr};
    if (page.double_byte)
    {
        page.leads = set_of(packed.leads);
        unpack_double_byte(leads, units, page);
    }
    else
    {
        page.units = std::make_unique<std::uint16_t[]>(256);
        std::copy_n(units.begin(), 256, page.units.get());
    }
    unpack_encoder(packed, leads, units, page);
    return page;
}

const std::uint8_t* unsigned_bytes(std::string_view bytes)
{
    return reinterpret_cast<const std::uint8_t*>(bytes.data());
}

template <class Unit>
void widen_block(const std::uint8_t* bytes, Unit* out)
{
    for (std::size_t i = 0; i < block_size; i += 16)
        widen16(bytes + i, out + i);
}

template <class Unit>
std::size_t decode_single(const Page& page, std::string_view bytes, Unit* out)
{
    const std::uint16_t* const units = page.units.get();
    const std::uint8_t* p = unsigned_bytes(bytes);
    const std::uint8_t* const end = p + bytes.size();
    for (; end - p >= static_cast<std::ptrdiff_t>(block_size); p += block_size, out += block_size)
    {
        if (Block(p).ascii())
            widen_block(p, out);
        else
            for (std::size_t i = 0; i < block_size; ++i)
                out[i] = static_cast<Unit>(units[p[i]]);
    }
    while (p < end)
        *out++ = static_cast<Unit>(units[*p++]);
    return bytes.size();
}

/// Of the bytes that could be lead bytes those that are, when a character begins at the first of them: in
/// each row of such bytes every other one, from the row's begin. A row begins where a character does,
/// because the byte before it is none.
std::uint64_t true_leads(std::uint64_t candidates)
{
    constexpr std::uint64_t even = 0x5555555555555555u;
    const std::uint64_t begins = candidates & ~(candidates << 1);
    // The carry of the addition runs through the rows that begin at an even place, and clears them.
    const std::uint64_t even_rows = candidates & ~(candidates + (begins & even));
    return (even_rows & even) | (candidates & ~even_rows & ~even);
}

template <class Unit>
struct Progress
{
    const std::uint8_t* bytes;
    Unit* out;
};

/// Decodes the characters that begin before \p stop; the last may reach past it, but not past \p end.
template <class Unit>
Progress<Unit> decode_one_by_one(const Page& page, Progress<Unit> at, const std::uint8_t* stop,
                                 const std::uint8_t* end)
{
    while (at.bytes < stop)
    {
        const unsigned first = *at.bytes++;
        unsigned second = 0;
        if (at.bytes < end && *at.bytes && page.leads.holds(static_cast<std::uint8_t>(first)))
            second = *at.bytes++;
        *at.out++ = static_cast<Unit>(page.units[first | second << 8]);
    }
    return at;
}

template <class Unit>
std::size_t decode_double(const Page& page, std::string_view bytes, Unit* out)
{
    const std::uint16_t* const units = page.units.get();
    Progress<Unit> at{unsigned_bytes(bytes), out};
    const std::uint8_t* const end = at.bytes + bytes.size();
    while (end - at.bytes > static_cast<std::ptrdiff_t>(block_size))
    {
        const std::uint8_t* const p = at.bytes;
        const Block block(p);
        if (block.ascii())
        {
            widen_block(p, at.out);
            at = {p + block_size, at.out + block_size};
            continue;
        }
        // A lead byte takes no NUL with it. Texts have none, so this may be slow.
        if (block.has_nul() || p[block_size] == 0)
        {
            at = decode_one_by_one(page, at, p + block_size, end);
            continue;
        }
        // Walking from lead byte to lead byte would wait for each byte to be loaded. So the places where
        // characters begin are found all at once, and the loads depend on nothing.
        const std::uint64_t leads = true_leads(block.in(page.leads));
        std::uint64_t begins = ~(leads << 1);
        const std::size_t count = count_bits(begins);
        for (std::size_t i = 0; i < count; i += 4)
            for (std::size_t k = i; k < i + 4; ++k)
            {
                const std::uint8_t* const c = p + lowest_bit(begins);
                at.out[k] = static_cast<Unit>(units[c[0] | c[1] << 8]);
                begins &= begins - 1;
            }
        at = {p + block_size + (leads >> 63), at.out + count};
    }
    return static_cast<std::size_t>(decode_one_by_one(page, at, end, end).out - out);
}
} // namespace

const Page* find_page(int page)
{
    struct Slot
    {
        std::once_flag once;
        Page page;
    };
    // Never freed: a conversion may still be asked for while statics are destroyed.
    static std::vector<Slot>& slots = *new std::vector<Slot>(packed_pages.size());
    for (std::size_t i = 0; i < packed_pages.size(); ++i)
        if (packed_pages[i].page == page)
        {
            std::call_once(slots[i].once, [i] { slots[i].page = unpack_page(packed_pages[i]); });
            return &slots[i].page;
        }
    return nullptr;
}

template <class Unit>
std::size_t decode_page(const Page& page, std::string_view bytes, Unit* out)
{
    return page.double_byte ? decode_double(page, bytes, out) : decode_single(page, bytes, out);
}

template <class Unit>
std::size_t encode_page(const Page& page, std::basic_string_view<Unit> text, char* out)
{
    const std::uint16_t* const table = page.bytes.get();
    const char* const begin = out;
    const auto put = [&out, table](Unit unit) {
        const unsigned bytes = table[static_cast<char16_t>(unit)];
        out[0] = static_cast<char>(bytes);
        out[1] = static_cast<char>(bytes >> 8);
        out += 1 + (bytes > 0xFF);
    };
    const Unit* p = text.data();
    const Unit* const end = p + text.size();
    for (; end - p >= 16; p += 16)
    {
        if (narrow16(p, out))
            out += 16;
        else
            for (int i = 0; i < 16; ++i)
                put(p[i]);
    }
    while (p < end)
        put(*p++);
    return static_cast<std::size_t>(out - begin);
}

template std::size_t decode_page(const Page&, std::string_view, char16_t*);
template std::size_t decode_page(const Page&, std::string_view, wchar_t*);
template std::size_t encode_page(const Page&, std::u16string_view, char*);
template std::size_t encode_page(const Page&, std::wstring_view, char*);
} // namespace platform::codepage
