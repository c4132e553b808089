#include "platform/codepage_utf8_decode_blocks.h"

#ifdef TARVO_HAS_SHUFFLE
#include <tmmintrin.h>
#endif

namespace platform::codepage
{
namespace
{
template <class Unit>
using Decoding = Progress<std::uint8_t, Unit>;

/// Without the shuffle instruction: plain ASCII only.
template <class Unit>
Decoding<Unit> decode_ascii_blocks(Decoding<Unit> at, const std::uint8_t* stop, const std::uint8_t* end)
{
    for (; another_block(at.in, stop, end) && Block(at.in).ascii();
         at = {at.in + block_size, at.out + block_size})
        widen_block(at.in, at.out);
    return at;
}

#ifdef TARVO_HAS_SHUFFLE

/// For each choice of eight units, the shuffle that moves the chosen ones together, and their number.
struct Choices
{
    alignas(16) std::uint8_t shuffle[256][16] = {};
    std::uint8_t count[256] = {};

    constexpr Choices()
    {
        for (int choice = 0; choice < 256; ++choice)
        {
            for (int unit = 0; unit < 8; ++unit)
                if (choice >> unit & 1)
                {
                    std::uint8_t* const to = shuffle[choice] + 2 * count[choice]++;
                    to[0] = static_cast<std::uint8_t>(2 * unit);
                    to[1] = static_cast<std::uint8_t>(2 * unit + 1);
                }
        }
    }
};
constexpr Choices choices;

/// A block's bytes by what they are in UTF-8. As signed numbers the bytes from 0x80 up are negative, and
/// one comparison for each border tells them apart.
class Utf8Block
{
public:
    explicit Utf8Block(const std::uint8_t* bytes) : m_bytes(bytes)
    {
        for (int i = 0; i < 4; ++i)
            m_part[i] = _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes) + i);
        m_trails = from_80_below(0xC0);
        const std::uint64_t below_e0 = from_80_below(0xE0);
        m_leads2 = below_e0 & ~m_trails;
        m_leads3 = high() & ~below_e0;
    }

    std::uint64_t trails() const { return m_trails; }
    bool has_two_byte_characters() const { return m_leads2 != 0; }

    /// Whether every character that begins here is in its one right form, as far as the block goes. The
    /// block must begin with a character.
    bool well_formed() const
    {
        const std::uint64_t expected = (m_leads2 | m_leads3) << 1 | m_leads3 << 2;
        return expected == m_trails && !has_other_byte() && !has_long_form_or_surrogate();
    }

    int whole() const { return whole_characters(m_leads2, m_leads3); }

private:
    std::uint64_t from_80_below(int border) const
    {
        const __m128i limit = _mm_set1_epi8(static_cast<char>(border));
        std::uint64_t mask = 0;
        for (int i = 0; i < 4; ++i)
            mask |= bits(_mm_cmplt_epi8(m_part[i], limit)) << 16 * i;
        return mask;
    }

    std::uint64_t high() const
    {
        std::uint64_t mask = 0;
        for (int i = 0; i < 4; ++i)
            mask |= bits(m_part[i]) << 16 * i;
        return mask;
    }

    /// 0xC0, 0xC1 or one from 0xF0 up.
    bool has_other_byte() const
    {
        const __m128i c0 = _mm_set1_epi8(static_cast<char>(0xC0)),
                      ef = _mm_set1_epi8(static_cast<char>(0xEF));
        const __m128i not_lowest = _mm_set1_epi8(static_cast<char>(0xFE));
        __m128i found = _mm_setzero_si128();
        for (const __m128i& part : m_part)
        {
            found = _mm_or_si128(found, _mm_subs_epu8(part, ef));
            found = _mm_or_si128(found, _mm_cmpeq_epi8(_mm_and_si128(part, not_lowest), c0));
        }
        return _mm_movemask_epi8(_mm_cmpeq_epi8(found, _mm_setzero_si128())) != 0xFFFF;
    }

    /// 0xE0 before a trail byte below 0xA0, 0xED before another.
    bool has_long_form_or_surrogate() const
    {
        const __m128i e0 = _mm_set1_epi8(static_cast<char>(0xE0)),
                      ed = _mm_set1_epi8(static_cast<char>(0xED));
        const __m128i a0 = _mm_set1_epi8(static_cast<char>(0xA0));
        __m128i found = _mm_setzero_si128();
        for (int i = 0; i < 4; ++i)
        {
            const __m128i next = _mm_loadu_si128(reinterpret_cast<const __m128i*>(m_bytes + 1 + 16 * i));
            const __m128i low = _mm_cmplt_epi8(next, a0);
            found = _mm_or_si128(found, _mm_and_si128(low, _mm_cmpeq_epi8(m_part[i], e0)));
            found = _mm_or_si128(found, _mm_andnot_si128(low, _mm_cmpeq_epi8(m_part[i], ed)));
        }
        return _mm_movemask_epi8(found) != 0;
    }

    static std::uint64_t bits(__m128i bytes) { return static_cast<std::uint32_t>(_mm_movemask_epi8(bytes)); }

    const std::uint8_t* m_bytes;
    __m128i m_part[4];
    std::uint64_t m_trails, m_leads2, m_leads3;
};

inline void store8(__m128i units, char16_t* out) { _mm_storeu_si128(reinterpret_cast<__m128i*>(out), units); }

inline void store8(__m128i units, wchar_t* out)
{
    auto* const to = reinterpret_cast<__m128i*>(out);
    _mm_storeu_si128(to, _mm_unpacklo_epi16(units, _mm_setzero_si128()));
    _mm_storeu_si128(to + 1, _mm_unpackhi_epi16(units, _mm_setzero_si128()));
}

/// The units of the characters that would begin at each of eight places, from the bytes there, one place
/// on and two places on, each in 16 bits; of the latter two the low six bits.
template <bool two_byte>
__m128i units_at(__m128i first, __m128i second, __m128i third)
{
    const auto choose = [](__m128i mask, __m128i yes, __m128i no) {
        return _mm_or_si128(_mm_and_si128(mask, yes), _mm_andnot_si128(mask, no));
    };
    const __m128i of_three =
        _mm_or_si128(_mm_or_si128(_mm_slli_epi16(first, 12), _mm_slli_epi16(second, 6)), third);
    __m128i longer = of_three;
    if constexpr (two_byte)
    {
        const __m128i low_five = _mm_and_si128(first, _mm_set1_epi16(0x1F));
        const __m128i of_two = _mm_or_si128(_mm_slli_epi16(low_five, 6), second);
        longer = choose(_mm_cmpgt_epi16(first, _mm_set1_epi16(0xDF)), of_three, of_two);
    }
    return choose(_mm_cmplt_epi16(first, _mm_set1_epi16(0x80)), first, longer);
}

/// Computes a unit at every place of the block and keeps those where a character begins. Eight are written
/// each time: what is too much is overwritten later, and still inside the room of the block.
template <bool two_byte, class Unit>
__attribute__((target("ssse3"))) Unit* decode_block(const std::uint8_t* p, std::uint64_t begins, Unit* out)
{
    const __m128i zero = _mm_setzero_si128(), low_six = _mm_set1_epi8(0x3F);
    for (int i = 0; i < block_size; i += 16)
    {
        const auto* const from = p + i;
        const __m128i first = _mm_loadu_si128(reinterpret_cast<const __m128i*>(from));
        const __m128i second =
            _mm_and_si128(low_six, _mm_loadu_si128(reinterpret_cast<const __m128i*>(from + 1)));
        const __m128i third =
            _mm_and_si128(low_six, _mm_loadu_si128(reinterpret_cast<const __m128i*>(from + 2)));
        const __m128i units[] = {
            units_at<two_byte>(_mm_unpacklo_epi8(first, zero), _mm_unpacklo_epi8(second, zero),
                               _mm_unpacklo_epi8(third, zero)),
            units_at<two_byte>(_mm_unpackhi_epi8(first, zero), _mm_unpackhi_epi8(second, zero),
                               _mm_unpackhi_epi8(third, zero))};
        for (const __m128i& eight : units)
        {
            const std::size_t choice = begins & 0xFF;
            begins >>= 8;
            const auto* const shuffle = reinterpret_cast<const __m128i*>(choices.shuffle[choice]);
            store8(_mm_shuffle_epi8(eight, _mm_load_si128(shuffle)), out);
            out += choices.count[choice];
        }
    }
    return out;
}

template <class Unit>
Decoding<Unit> decode_shuffled(Decoding<Unit> at, const std::uint8_t* stop, const std::uint8_t* end)
{
    while (another_block(at.in, stop, end))
    {
        if (Block(at.in).ascii())
        {
            widen_block(at.in, at.out);
            at = {at.in + block_size, at.out + block_size};
            continue;
        }
        const Utf8Block block(at.in);
        if (!block.well_formed())
            break;
        const int whole = block.whole();
        const std::uint64_t begins = ~block.trails() & ~std::uint64_t{0} >> (block_size - whole);
        at = {at.in + whole, block.has_two_byte_characters() ? decode_block<true>(at.in, begins, at.out)
                                                             : decode_block<false>(at.in, begins, at.out)};
    }
    return at;
}

#endif
} // namespace

template <class Unit>
std::span<const Utf8BlockDecoder<Unit>> utf8_block_decoders()
{
#ifdef TARVO_HAS_SHUFFLE
    static constexpr Utf8BlockDecoder<Unit> all[] = {decode_utf8_blocks_avx512, decode_shuffled,
                                                     decode_ascii_blocks};
    static const std::size_t unknown_here = has_avx512() ? 0 : __builtin_cpu_supports("ssse3") ? 1 : 2;
    return std::span(all).subspan(unknown_here);
#else
    static constexpr Utf8BlockDecoder<Unit> all[] = {decode_ascii_blocks};
    return all;
#endif
}

template <class Unit>
Decoding<Unit> decode_utf8_blocks(Decoding<Unit> at, const std::uint8_t* stop, const std::uint8_t* end)
{
    return utf8_block_decoders<Unit>().front()(at, stop, end);
}

template Decoding<char16_t> decode_utf8_blocks(Decoding<char16_t>, const std::uint8_t*, const std::uint8_t*);
template Decoding<wchar_t> decode_utf8_blocks(Decoding<wchar_t>, const std::uint8_t*, const std::uint8_t*);
template std::span<const Utf8BlockDecoder<char16_t>> utf8_block_decoders();
template std::span<const Utf8BlockDecoder<wchar_t>> utf8_block_decoders();
} // namespace platform::codepage
