#include "demo/host/Deflate.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace
{
constexpr std::size_t kWindow = 32768;
constexpr std::size_t kMinMatch = 3;
constexpr std::size_t kMaxMatch = 258;
constexpr int kMaxChain = 64; // candidates looked at for one match

class BitWriter
{
public:
    explicit BitWriter(std::vector<unsigned char>& out) : m_out(out) {}
    /// The lowest bit goes first, as everything but a Huffman code does.
    void Bits(unsigned value, int count)
    {
        m_pending |= value << m_count;
        for (m_count += count; m_count >= 8; m_count -= 8, m_pending >>= 8)
            m_out.push_back(static_cast<unsigned char>(m_pending));
    }
    /// A Huffman code goes highest bit first.
    void Code(unsigned code, int count)
    {
        unsigned reversed = 0;
        for (int i = 0; i < count; ++i)
            reversed |= ((code >> i) & 1u) << (count - 1 - i);
        Bits(reversed, count);
    }
    void Flush()
    {
        if (m_count > 0)
            m_out.push_back(static_cast<unsigned char>(m_pending));
        m_pending = 0;
        m_count = 0;
    }

private:
    std::vector<unsigned char>& m_out;
    std::uint32_t m_pending = 0;
    int m_count = 0;
};

// A length or distance is a symbol and extra bits that count upwards from the symbol's base.
struct Range
{
    unsigned base;
    int extra;
};
constexpr std::array<Range, 29> kLengths{
    {{3, 0},  {4, 0},  {5, 0},  {6, 0},   {7, 0},   {8, 0},   {9, 0},   {10, 0},  {11, 1}, {13, 1},
     {15, 1}, {17, 1}, {19, 2}, {23, 2},  {27, 2},  {31, 2},  {35, 3},  {43, 3},  {51, 3}, {59, 3},
     {67, 4}, {83, 4}, {99, 4}, {115, 4}, {131, 5}, {163, 5}, {195, 5}, {227, 5}, {258, 0}}};
constexpr std::array<Range, 30> kDistances{
    {{1, 0},     {2, 0},     {3, 0},     {4, 0},      {5, 1},      {7, 1},     {9, 2},     {13, 2},
     {17, 3},    {25, 3},    {33, 4},    {49, 4},     {65, 5},     {97, 5},    {129, 6},   {193, 6},
     {257, 7},   {385, 7},   {513, 8},   {769, 8},    {1025, 9},   {1537, 9},  {2049, 10}, {3073, 10},
     {4097, 11}, {6145, 11}, {8193, 12}, {12289, 12}, {16385, 13}, {24577, 13}}};

template <std::size_t N>
unsigned symbol_of(const std::array<Range, N>& ranges, std::size_t value)
{
    const auto above =
        std::upper_bound(ranges.begin(), ranges.end(), value,
                         [](std::size_t wanted, const Range& range) { return wanted < range.base; });
    return static_cast<unsigned>(above - ranges.begin() - 1);
}

void write_symbol(BitWriter& out, unsigned symbol)
{
    if (symbol < 144)
        out.Code(0x30 + symbol, 8);
    else if (symbol < 256)
        out.Code(0x190 + symbol - 144, 9);
    else if (symbol < 280)
        out.Code(symbol - 256, 7);
    else
        out.Code(0xC0 + symbol - 280, 8);
}

void write_match(BitWriter& out, std::size_t length, std::size_t distance)
{
    const unsigned lengthSymbol = symbol_of(kLengths, length);
    write_symbol(out, 257 + lengthSymbol);
    out.Bits(static_cast<unsigned>(length) - kLengths[lengthSymbol].base, kLengths[lengthSymbol].extra);
    const unsigned distanceSymbol = symbol_of(kDistances, distance);
    out.Code(distanceSymbol, 5);
    out.Bits(static_cast<unsigned>(distance) - kDistances[distanceSymbol].base,
             kDistances[distanceSymbol].extra);
}

/// Earlier places with the same next three bytes, newest first.
class MatchFinder
{
public:
    explicit MatchFinder(std::span<const unsigned char> bytes)
        : m_bytes(bytes), m_newest(kSlots, -1), m_older(bytes.size(), -1)
    {
    }
    void Add(std::size_t at)
    {
        if (at + kMinMatch > m_bytes.size())
            return;
        std::ptrdiff_t& newest = m_newest[SlotOf(at)];
        m_older[at] = newest;
        newest = static_cast<std::ptrdiff_t>(at);
    }
    /// The longest match for the bytes at \p at; its length is 0 when there is none.
    std::size_t Find(std::size_t at, std::size_t& distance) const
    {
        const std::size_t limit = std::min(kMaxMatch, m_bytes.size() - at);
        if (limit < kMinMatch)
            return 0;
        std::size_t best = 0;
        int tries = kMaxChain;
        for (std::ptrdiff_t from = m_newest[SlotOf(at)]; from >= 0 && tries-- > 0; from = m_older[from])
        {
            if (at - from > kWindow)
                break;
            const auto tail = m_bytes.subspan(at, limit);
            const auto end = std::mismatch(tail.begin(), tail.end(), m_bytes.begin() + from).first;
            const auto length = static_cast<std::size_t>(end - tail.begin());
            if (length > best)
            {
                best = length;
                distance = at - static_cast<std::size_t>(from);
            }
            if (best == limit)
                break;
        }
        return best < kMinMatch ? 0 : best;
    }

private:
    static constexpr std::size_t kSlots = 1u << 15;
    std::size_t SlotOf(std::size_t at) const
    {
        const std::uint32_t three = m_bytes[at] | m_bytes[at + 1] << 8 | m_bytes[at + 2] << 16;
        return (three * 2654435761u) >> 17;
    }
    std::span<const unsigned char> m_bytes;
    std::vector<std::ptrdiff_t> m_newest;
    std::vector<std::ptrdiff_t> m_older;
};

std::uint32_t adler32(std::span<const unsigned char> bytes)
{
    std::uint32_t a = 1;
    std::uint32_t b = 0;
    for (const unsigned char byte : bytes)
    {
        a = (a + byte) % 65521;
        b = (b + a) % 65521;
    }
    return b << 16 | a;
}
} // namespace

std::vector<unsigned char> deflate_zlib(std::span<const unsigned char> bytes)
{
    std::vector<unsigned char> result{0x78, 0x01}; // 32 KiB window; the check bits make it a multiple of 31
    BitWriter out(result);
    out.Bits(1, 1); // the last block
    out.Bits(1, 2); // fixed codes
    MatchFinder finder(bytes);
    for (std::size_t at = 0; at < bytes.size();)
    {
        std::size_t distance = 0;
        const std::size_t length = finder.Find(at, distance);
        if (length > 0)
            write_match(out, length, distance);
        else
            write_symbol(out, bytes[at]);
        for (const std::size_t end = at + std::max<std::size_t>(length, 1); at < end; ++at)
            finder.Add(at);
    }
    write_symbol(out, 256);
    out.Flush();
    const std::uint32_t check = adler32(bytes);
    for (int shift = 24; shift >= 0; shift -= 8)
        result.push_back(static_cast<unsigned char>(check >> shift));
    return result;
}
