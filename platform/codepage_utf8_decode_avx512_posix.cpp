#include "platform/codepage_utf8_decode_blocks.h"

#ifdef TARVO_HAS_SHUFFLE
// The compiler takes the undefined values inside its own header for mistakes.
#pragma GCC diagnostic ignored "-Wuninitialized"
#ifndef __clang__
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"
#endif
#include <immintrin.h>

// Runs only where the processor has these instructions, and can be part of nothing that runs elsewhere.
#define TARVO_AVX512 __attribute__((target("avx512f,avx512bw,avx512vbmi2,popcnt")))

namespace platform::codepage
{
namespace
{
/// A block's bytes by what they are in UTF-8, a bit for each.
struct Kinds
{
    std::uint64_t high, trails, leads2, leads3;
    std::uint64_t wrong; ///< begins a character above U+FFFF, too long a form or a surrogate, or none at all

    bool well_formed() const { return wrong == 0 && ((leads2 | leads3) << 1 | leads3 << 2) == trails; }
};

TARVO_AVX512 inline __m512i load(const std::uint8_t* p) { return _mm512_loadu_si512(p); }

TARVO_AVX512 inline __m512i each(int byte) { return _mm512_set1_epi8(static_cast<char>(byte)); }

/// As signed numbers the bytes from 0x80 up are negative.
TARVO_AVX512 inline Kinds kinds_of(const std::uint8_t* p)
{
    const __m512i bytes = load(p);
    const std::uint64_t high = _mm512_movepi8_mask(bytes);
    const std::uint64_t trails = _mm512_cmplt_epi8_mask(bytes, each(0xC0));
    const std::uint64_t below_e0 = _mm512_cmplt_epi8_mask(bytes, each(0xE0));
    const std::uint64_t c0_or_c1 = _mm512_cmpeq_epi8_mask(_mm512_and_si512(bytes, each(0xFE)), each(0xC0));
    const std::uint64_t above_ef = _mm512_cmpgt_epu8_mask(bytes, each(0xEF));
    const std::uint64_t before_low = _mm512_cmplt_epi8_mask(load(p + 1), each(0xA0));
    const std::uint64_t long_form = _mm512_cmpeq_epi8_mask(bytes, each(0xE0)) & before_low;
    const std::uint64_t surrogate = _mm512_cmpeq_epi8_mask(bytes, each(0xED)) & ~before_low;
    return {high, trails, below_e0 & ~trails, high & ~below_e0, c0_or_c1 | above_ef | long_form | surrogate};
}

TARVO_AVX512 inline void store32(__m512i units, char16_t* out) { _mm512_storeu_si512(out, units); }

TARVO_AVX512 inline void store32(__m512i units, wchar_t* out)
{
    _mm512_storeu_si512(out, _mm512_cvtepu16_epi32(_mm512_castsi512_si256(units)));
    _mm512_storeu_si512(out + 16, _mm512_cvtepu16_epi32(_mm512_extracti64x4_epi64(units, 1)));
}

/// 32 bytes, each in 16 bits.
TARVO_AVX512 inline __m512i widen32(const std::uint8_t* p)
{
    return _mm512_cvtepu8_epi16(_mm256_loadu_si256(reinterpret_cast<const __m256i*>(p)));
}

/// Computes the unit of the character that would begin at each of 32 places and keeps those where one begins.
/// 32 are written each time: what is too much is overwritten later, and still inside the room of the block.
template <class Unit>
TARVO_AVX512 inline Unit* decode32(const std::uint8_t* p, std::uint32_t begins, std::uint32_t of_one,
                                   std::uint32_t of_two, Unit* out)
{
    const __m512i low_six = _mm512_set1_epi16(0x3F), low_five = _mm512_set1_epi16(0x1F);
    const __m512i first = widen32(p);
    const __m512i second = _mm512_and_si512(widen32(p + 1), low_six);
    const __m512i third = _mm512_and_si512(widen32(p + 2), low_six);
    __m512i units = _mm512_or_si512(_mm512_slli_epi16(second, 6), third);
    units = _mm512_or_si512(units, _mm512_slli_epi16(first, 12));
    const __m512i lead2 = _mm512_slli_epi16(_mm512_and_si512(first, low_five), 6);
    units = _mm512_mask_blend_epi16(of_two, units, _mm512_or_si512(lead2, second));
    units = _mm512_mask_blend_epi16(of_one, units, first);
    store32(_mm512_maskz_compress_epi16(begins, units), out);
    return out + __builtin_popcount(begins);
}

std::uint32_t lower(std::uint64_t bits) { return static_cast<std::uint32_t>(bits); }
std::uint32_t upper(std::uint64_t bits) { return static_cast<std::uint32_t>(bits >> 32); }

template <class Unit>
TARVO_AVX512 Progress<std::uint8_t, Unit> decode_blocks(Progress<std::uint8_t, Unit> at,
                                                        const std::uint8_t* stop, const std::uint8_t* end)
{
    while (another_block(at.in, stop, end))
    {
        if (_mm512_movepi8_mask(load(at.in)) == 0) // plain ASCII
        {
            store32(widen32(at.in), at.out);
            store32(widen32(at.in + 32), at.out + 32);
            at = {at.in + block_size, at.out + block_size};
            continue;
        }
        const Kinds kinds = kinds_of(at.in);
        if (!kinds.well_formed())
            break;
        const int whole = whole_characters(kinds.leads2, kinds.leads3);
        const std::uint64_t begins = ~kinds.trails & ~std::uint64_t{0} >> (block_size - whole);
        at.out = decode32(at.in, lower(begins), lower(~kinds.high), lower(kinds.leads2), at.out);
        at.out = decode32(at.in + 32, upper(begins), upper(~kinds.high), upper(kinds.leads2), at.out);
        at.in += whole;
    }
    return at;
}
} // namespace

bool has_avx512()
{
    return __builtin_cpu_supports("avx512bw") && __builtin_cpu_supports("avx512vbmi2") &&
           __builtin_cpu_supports("popcnt");
}

// What is declared for all processors cannot use these instructions itself.
template <class Unit>
Progress<std::uint8_t, Unit> decode_utf8_blocks_avx512(Progress<std::uint8_t, Unit> at,
                                                       const std::uint8_t* stop, const std::uint8_t* end)
{
    return decode_blocks(at, stop, end);
}

template Progress<std::uint8_t, char16_t> decode_utf8_blocks_avx512(Progress<std::uint8_t, char16_t>,
                                                                    const std::uint8_t*, const std::uint8_t*);
template Progress<std::uint8_t, wchar_t> decode_utf8_blocks_avx512(Progress<std::uint8_t, wchar_t>,
                                                                   const std::uint8_t*, const std::uint8_t*);
} // namespace platform::codepage
#endif
