#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

/// Questions about 64 bytes at once, answered as one bit for each byte, and the copying of plain ASCII.
/// Two versions of the same calls: with the vector unit that every x86-64 has, and without.
namespace platform::codepage
{
/// How far a conversion has come: what it reads next and where it writes next.
template <class In, class Out>
struct Progress
{
    const In* in;
    Out* out;
};

constexpr std::ptrdiff_t block_size = 64;

/// Bytes b with (b ^ flip) - first <= span, modulo 256: one range, or two of which one bit makes one.
struct ByteSet
{
    std::uint8_t flip, first, span;
    bool holds(std::uint8_t b) const { return static_cast<std::uint8_t>((b ^ flip) - first) <= span; }
};

#ifdef __SSE2__

class Block
{
public:
    explicit Block(const std::uint8_t* bytes)
    {
        for (int i = 0; i < 4; ++i)
            m_bytes[i] = _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes) + i);
    }

    bool ascii() const
    {
        return _mm_movemask_epi8(_mm_or_si128(_mm_or_si128(m_bytes[0], m_bytes[1]),
                                              _mm_or_si128(m_bytes[2], m_bytes[3]))) == 0;
    }

    bool has_nul() const
    {
        const __m128i least =
            _mm_min_epu8(_mm_min_epu8(m_bytes[0], m_bytes[1]), _mm_min_epu8(m_bytes[2], m_bytes[3]));
        return _mm_movemask_epi8(_mm_cmpeq_epi8(least, _mm_setzero_si128())) != 0;
    }

    std::uint64_t in(const ByteSet& set) const
    {
        const __m128i flip = _mm_set1_epi8(static_cast<char>(set.flip));
        const __m128i first = _mm_set1_epi8(static_cast<char>(set.first));
        const __m128i span = _mm_set1_epi8(static_cast<char>(set.span));
        std::uint64_t mask = 0;
        for (int i = 0; i < 4; ++i)
        {
            const __m128i moved = _mm_sub_epi8(_mm_xor_si128(m_bytes[i], flip), first);
            const int bits = _mm_movemask_epi8(_mm_cmpeq_epi8(_mm_min_epu8(moved, span), moved));
            mask |= static_cast<std::uint64_t>(static_cast<std::uint32_t>(bits)) << 16 * i;
        }
        return mask;
    }

private:
    __m128i m_bytes[4];
};

inline void widen16(const std::uint8_t* bytes, char16_t* out)
{
    const __m128i v = _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes));
    auto* const to = reinterpret_cast<__m128i*>(out);
    _mm_storeu_si128(to, _mm_unpacklo_epi8(v, _mm_setzero_si128()));
    _mm_storeu_si128(to + 1, _mm_unpackhi_epi8(v, _mm_setzero_si128()));
}

inline void widen16(const std::uint8_t* bytes, wchar_t* out)
{
    const __m128i zero = _mm_setzero_si128();
    const __m128i v = _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes));
    const __m128i low = _mm_unpacklo_epi8(v, zero), high = _mm_unpackhi_epi8(v, zero);
    auto* const to = reinterpret_cast<__m128i*>(out);
    _mm_storeu_si128(to, _mm_unpacklo_epi16(low, zero));
    _mm_storeu_si128(to + 1, _mm_unpackhi_epi16(low, zero));
    _mm_storeu_si128(to + 2, _mm_unpacklo_epi16(high, zero));
    _mm_storeu_si128(to + 3, _mm_unpackhi_epi16(high, zero));
}

/// Writes 16 bytes whatever they are; true when all of them are the 16 units.
inline bool narrow16(const char16_t* units, char* out)
{
    const auto* const from = reinterpret_cast<const __m128i*>(units);
    const __m128i a = _mm_loadu_si128(from), b = _mm_loadu_si128(from + 1);
    const __m128i above = _mm_and_si128(_mm_or_si128(a, b), _mm_set1_epi16(static_cast<short>(0xFF80)));
    _mm_storeu_si128(reinterpret_cast<__m128i*>(out), _mm_packus_epi16(a, b));
    return _mm_movemask_epi8(_mm_cmpeq_epi8(above, _mm_setzero_si128())) == 0xFFFF;
}

inline bool narrow16(const wchar_t* units, char* out)
{
    const auto* const from = reinterpret_cast<const __m128i*>(units);
    const __m128i a = _mm_loadu_si128(from), b = _mm_loadu_si128(from + 1);
    const __m128i c = _mm_loadu_si128(from + 2), d = _mm_loadu_si128(from + 3);
    const __m128i all = _mm_or_si128(_mm_or_si128(a, b), _mm_or_si128(c, d));
    const __m128i above = _mm_and_si128(all, _mm_set1_epi32(static_cast<int>(0xFFFFFF80)));
    _mm_storeu_si128(reinterpret_cast<__m128i*>(out),
                     _mm_packus_epi16(_mm_packs_epi32(a, b), _mm_packs_epi32(c, d)));
    return _mm_movemask_epi8(_mm_cmpeq_epi8(above, _mm_setzero_si128())) == 0xFFFF;
}

#else

class Block
{
public:
    explicit Block(const std::uint8_t* bytes) : m_bytes(bytes) {}

    bool ascii() const
    {
        std::uint8_t all = 0;
        for (std::ptrdiff_t i = 0; i < block_size; ++i)
            all |= m_bytes[i];
        return all < 0x80;
    }

    bool has_nul() const
    {
        bool found = false;
        for (std::ptrdiff_t i = 0; i < block_size; ++i)
            found |= m_bytes[i] == 0;
        return found;
    }

    std::uint64_t in(const ByteSet& set) const
    {
        std::uint64_t mask = 0;
        for (std::ptrdiff_t i = 0; i < block_size; ++i)
            mask |= static_cast<std::uint64_t>(set.holds(m_bytes[i])) << i;
        return mask;
    }

private:
    const std::uint8_t* m_bytes;
};

template <class Unit>
void widen16(const std::uint8_t* bytes, Unit* out)
{
    for (int i = 0; i < 16; ++i)
        out[i] = static_cast<Unit>(bytes[i]);
}

template <class Unit>
bool narrow16(const Unit* units, char* out)
{
    std::uint32_t all = 0;
    for (int i = 0; i < 16; ++i)
    {
        all |= static_cast<std::uint32_t>(units[i]);
        out[i] = static_cast<char>(units[i]);
    }
    return all < 0x80;
}

#endif

template <class Unit>
void widen_block(const std::uint8_t* bytes, Unit* out)
{
    for (std::ptrdiff_t i = 0; i < block_size; i += 16)
        widen16(bytes + i, out + i);
}

/// How many bits are set; the compiler's own call is slower where the processor has no instruction that
/// every processor has.
inline std::size_t count_bits(std::uint64_t bits)
{
    bits -= bits >> 1 & 0x5555555555555555u;
    bits = (bits & 0x3333333333333333u) + (bits >> 2 & 0x3333333333333333u);
    bits = (bits + (bits >> 4)) & 0x0F0F0F0F0F0F0F0Fu;
    return bits * 0x0101010101010101u >> 56;
}

/// The index of the lowest set bit; 63 when none is set.
inline std::size_t lowest_bit(std::uint64_t bits)
{
    return static_cast<std::size_t>(std::countr_zero(bits | std::uint64_t{1} << 63));
}
} // namespace platform::codepage
