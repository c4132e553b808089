#include "platform/codepage_page.h"

#include "platform/codepage_tables.h"

#include <algorithm>
#include <array>
#include <cstring>
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

void unpack_single_byte(const std::vector<std::uint16_t>& units, Page& page)
{
    page.units = std::make_unique<std::uint16_t[]>(2 * all_units);
    for (std::size_t i = 0; i < all_units; ++i)
    {
        page.units[2 * i] = units[i & 0xFF];
        page.units[2 * i + 1] = units[i >> 8];
    }
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
        unpack_single_byte(units, page);
    unpack_encoder(packed, leads, units, page);
    return page;
}

template <class Unit>
using Decoding = Progress<std::uint8_t, Unit>;

void put_pair(const std::uint16_t* pair, char16_t* out) { std::memcpy(out, pair, 2 * sizeof *pair); }

void put_pair(const std::uint16_t* pair, wchar_t* out)
{
    out[0] = static_cast<wchar_t>(pair[0]);
    out[1] = static_cast<wchar_t>(pair[1]);
}

template <class Unit>
Decoding<Unit> decode_single(const Page& page, Decoding<Unit> at, const std::uint8_t* stop)
{
    const std::uint16_t* const units = page.units.get();
    auto [p, out] = at;
    for (; stop - p >= block_size; p += block_size, out += block_size)
    {
        if (Block(p).ascii())
        {
            widen_block(p, out);
            continue;
        }
        for (std::ptrdiff_t i = 0; i < block_size; i += 2)
        {
            put_pair(units + 2 * (p[i] | p[i + 1] << 8), out + i);
        }
    }
    while (p < stop)
        *out++ = static_cast<Unit>(units[2 * *p++]);
    return {p, out};
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
Decoding<Unit> decode_one_by_one(const Page& page, Decoding<Unit> at, const std::uint8_t* stop,
                                 const std::uint8_t* end)
{
    while (at.in < stop)
    {
        const unsigned first = *at.in++;
        unsigned second = 0;
        if (at.in < end && *at.in && page.leads.holds(static_cast<std::uint8_t>(first)))
            second = *at.in++;
        *at.out++ = static_cast<Unit>(page.units[first | second << 8]);
    }
    return at;
}

/// Decodes the \p count characters that begin at the set bits. Always eight at a time: what is too much is
/// overwritten later, and still inside the room of the block.
template <class Unit>
void decode_at(const std::uint16_t* units, const std::uint8_t* p, std::uint64_t begins, std::size_t count,
               Unit* out)
{
    const auto next = [&] {
        const std::uint8_t* const c = p + lowest_bit(begins);
        begins &= begins - 1;
        *out++ = static_cast<Unit>(units[c[0] | c[1] << 8]);
    };
    for (const Unit* const last = out + count; out < last;)
    {
        next(), next(), next(), next();
        next(), next(), next(), next();
    }
}

template <class Unit>
Decoding<Unit> decode_double(const Page& page, Decoding<Unit> at, const std::uint8_t* stop,
                             const std::uint8_t* end)
{
    // Copied, so that no store through out can be taken for a change of it.
    const ByteSet lead_set = page.leads;
    const std::uint16_t* const units = page.units.get();
    // One byte more than the block, which the last character may need.
    while (stop - at.in >= block_size && end - at.in > block_size)
    {
        const std::uint8_t* const p = at.in;
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
        const std::uint64_t leads = true_leads(block.in(lead_set));
        const std::uint64_t begins = ~(leads << 1);
        const std::size_t count = count_bits(begins);
        decode_at(units, p, begins, count, at.out);
        at = {p + block_size + (leads >> 63), at.out + count};
    }
    return decode_one_by_one(page, at, stop, end);
}

template <class Unit>
Progress<Unit, char> encode_single(const std::uint16_t* bytes, Progress<Unit, char> at, const Unit* end)
{
    for (; end - at.in >= 16; at.in += 16, at.out += 16)
        if (!narrow16(at.in, at.out))
            for (int i = 0; i < 16; ++i)
                at.out[i] = static_cast<char>(bytes[static_cast<char16_t>(at.in[i])]);
    while (at.in < end)
        *at.out++ = static_cast<char>(bytes[static_cast<char16_t>(*at.in++)]);
    return at;
}

template <class Unit>
Progress<Unit, char> encode_double(const std::uint16_t* table, Progress<Unit, char> at, const Unit* end)
{
    const Unit* p = at.in;
    char* out = at.out;
    const auto put = [&](Unit unit) {
        const unsigned bytes = table[static_cast<char16_t>(unit)];
        // Two always: the room is larger than the result, and a byte too much is overwritten.
        out[0] = static_cast<char>(bytes);
        out[1] = static_cast<char>(bytes >> 8);
        out += 1 + (bytes > 0xFF);
    };
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
    return {p, out};
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
Decoding<Unit> decode_page(const Page& page, Decoding<Unit> at, const std::uint8_t* stop,
                           const std::uint8_t* end)
{
    return page.double_byte ? decode_double(page, at, stop, end) : decode_single(page, at, stop);
}

template <class Unit>
Progress<Unit, char> encode_page(const Page& page, Progress<Unit, char> at, const Unit* end)
{
    return page.double_byte ? encode_double(page.bytes.get(), at, end)
                            : encode_single(page.bytes.get(), at, end);
}

template Decoding<char16_t> decode_page(const Page&, Decoding<char16_t>, const std::uint8_t*,
                                        const std::uint8_t*);
template Decoding<wchar_t> decode_page(const Page&, Decoding<wchar_t>, const std::uint8_t*,
                                       const std::uint8_t*);
template Progress<char16_t, char> encode_page(const Page&, Progress<char16_t, char>, const char16_t*);
template Progress<wchar_t, char> encode_page(const Page&, Progress<wchar_t, char>, const wchar_t*);
} // namespace platform::codepage
