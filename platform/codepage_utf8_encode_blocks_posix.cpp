#include "platform/codepage_utf8_blocks.h"

#ifdef TARVO_HAS_SHUFFLE
#include <tmmintrin.h>
#endif

namespace platform::codepage
{
namespace
{
template <class Unit>
using Encoding = Progress<Unit, char>;

/// A shuffle writes 16 bytes for 4 units, which may be 4 bytes more than they have room for.
constexpr std::ptrdiff_t units_behind = 2;

template <class Unit>
bool another_16(const Unit* p, const Unit* stop, const Unit* end)
{
    return stop - p >= 16 && end - p >= 16 + units_behind;
}

/// Without the shuffle instruction: plain ASCII only.
template <class Unit>
Encoding<Unit> encode_ascii_blocks(Encoding<Unit> at, const Unit* stop, const Unit* end)
{
    while (another_16(at.in, stop, end) && narrow16(at.in, at.out))
        at = {at.in + 16, at.out + 16};
    return at;
}

#ifdef TARVO_HAS_SHUFFLE

/// Four characters stand in four 32-bit places, each with its bytes in the upper end of the lower three:
/// for each choice of lengths the shuffle that moves the bytes together, and their number. The choice has
/// a bit for each character of one byte, and in the upper half one for each of one or two.
struct Lengths
{
    alignas(16) std::uint8_t shuffle[256][16] = {};
    std::uint8_t count[256] = {};

    constexpr Lengths()
    {
        for (int choice = 0; choice < 256; ++choice)
            for (int character = 0; character < 4; ++character)
            {
                const int length = choice >> character & 1 ? 1 : choice >> (4 + character) & 1 ? 2 : 3;
                for (int byte = 3 - length; byte < 3; ++byte)
                    shuffle[choice][count[choice]++] = static_cast<std::uint8_t>(4 * character + byte);
            }
    }
};
constexpr Lengths lengths;

__m128i load8(const char16_t* units) { return _mm_loadu_si128(reinterpret_cast<const __m128i*>(units)); }

__m128i load8(const wchar_t* units)
{
    // The one instruction that makes 16 bits of 32 knows signed numbers only.
    const auto sign_extended = [units](int i) {
        const __m128i four = _mm_loadu_si128(reinterpret_cast<const __m128i*>(units) + i);
        return _mm_srai_epi32(_mm_slli_epi32(four, 16), 16);
    };
    return _mm_packs_epi32(sign_extended(0), sign_extended(1));
}

bool has_surrogate(__m128i units)
{
    const __m128i top = _mm_and_si128(units, _mm_set1_epi16(static_cast<short>(0xF800)));
    return _mm_movemask_epi8(_mm_cmpeq_epi16(top, _mm_set1_epi16(static_cast<short>(0xD800)))) != 0;
}

/// Four units, each in 32 bits.
__attribute__((target("ssse3"))) inline char* encode4(__m128i c, char* out)
{
    const __m128i one = _mm_cmplt_epi32(c, _mm_set1_epi32(0x80));
    const __m128i to_two = _mm_cmplt_epi32(c, _mm_set1_epi32(0x800));
    const __m128i last = _mm_slli_epi32(c, 16);
    const __m128i middle = _mm_and_si128(_mm_slli_epi32(c, 2), _mm_set1_epi32(0x3F00));
    const __m128i bits = _mm_or_si128(_mm_or_si128(_mm_srli_epi32(c, 12), middle),
                                      _mm_and_si128(last, _mm_set1_epi32(0x3F0000)));
    const __m128i marks_of_three = _mm_set1_epi32(0x8080E0), marks_of_two = _mm_set1_epi32(0x80C000);
    const __m128i marks =
        _mm_or_si128(_mm_and_si128(to_two, marks_of_two), _mm_andnot_si128(to_two, marks_of_three));
    const __m128i bytes =
        _mm_or_si128(_mm_and_si128(one, last), _mm_andnot_si128(one, _mm_or_si128(bits, marks)));
    const auto choice = static_cast<unsigned>(_mm_movemask_ps(_mm_castsi128_ps(one)) |
                                              _mm_movemask_ps(_mm_castsi128_ps(to_two)) << 4);
    const auto* const shuffle = reinterpret_cast<const __m128i*>(lengths.shuffle[choice]);
    _mm_storeu_si128(reinterpret_cast<__m128i*>(out), _mm_shuffle_epi8(bytes, _mm_load_si128(shuffle)));
    return out + lengths.count[choice];
}

template <class Unit>
__attribute__((target("ssse3"))) Encoding<Unit> encode_shuffled(Encoding<Unit> at, const Unit* stop,
                                                                const Unit* end)
{
    const __m128i zero = _mm_setzero_si128();
    while (another_16(at.in, stop, end))
    {
        if (narrow16(at.in, at.out))
        {
            at = {at.in + 16, at.out + 16};
            continue;
        }
        const __m128i a = load8(at.in), b = load8(at.in + 8);
        if (has_surrogate(a) || has_surrogate(b))
            break;
        at.out = encode4(_mm_unpacklo_epi16(a, zero), at.out);
        at.out = encode4(_mm_unpackhi_epi16(a, zero), at.out);
        at.out = encode4(_mm_unpacklo_epi16(b, zero), at.out);
        at.out = encode4(_mm_unpackhi_epi16(b, zero), at.out);
        at.in += 16;
    }
    return at;
}

#endif
} // namespace

template <class Unit>
Encoding<Unit> encode_utf8_blocks(Encoding<Unit> at, const Unit* stop, const Unit* end)
{
#ifdef TARVO_HAS_SHUFFLE
    if (__builtin_cpu_supports("ssse3"))
        return encode_shuffled(at, stop, end);
#endif
    return encode_ascii_blocks(at, stop, end);
}

template Encoding<char16_t> encode_utf8_blocks(Encoding<char16_t>, const char16_t*, const char16_t*);
template Encoding<wchar_t> encode_utf8_blocks(Encoding<wchar_t>, const wchar_t*, const wchar_t*);
} // namespace platform::codepage
