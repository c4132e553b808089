#pragma once

#include <cstdint>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

/// Questions about 64 units at once, answered as one bit for each of them, the first in the lowest. Two
/// versions of the same calls: with the vector unit that every x86-64 has, and without.
class CUnitBlock
{
public:
    static constexpr int kCount = 64;

    /// Refers to the kCount units at \p units.
    explicit CUnitBlock(const char16_t* units) : m_pUnits(units) {}

#if defined(__SSE2__)
    std::uint64_t Equal(char16_t unit) const
    {
        return Ask([wanted = All(unit)](__m128i eight) { return _mm_cmpeq_epi16(eight, wanted); });
    }
    /// Units below 16 and those that are \p a, \p b or \p c.
    std::uint64_t Below16Or(char16_t a, char16_t b, char16_t c) const
    {
        return Ask([high = All(0xFFF0), a = All(a), b = All(b), c = All(c)](__m128i eight) {
            const __m128i low = _mm_cmpeq_epi16(_mm_and_si128(eight, high), _mm_setzero_si128());
            const __m128i one = _mm_or_si128(_mm_cmpeq_epi16(eight, a), _mm_cmpeq_epi16(eight, b));
            return _mm_or_si128(_mm_or_si128(low, one), _mm_cmpeq_epi16(eight, c));
        });
    }
    /// Units from \p first to \p last.
    std::uint64_t Between(char16_t first, char16_t last) const
    {
        return Ask([from = All(first), span = All(static_cast<char16_t>(last - first))](__m128i eight) {
            return _mm_cmpeq_epi16(_mm_subs_epu16(_mm_sub_epi16(eight, from), span), _mm_setzero_si128());
        });
    }

private:
    static __m128i All(char16_t unit) { return _mm_set1_epi16(static_cast<short>(unit)); }

    template <class Test>
    std::uint64_t Ask(Test test) const
    {
        const auto sixteen = [this, test](int at) {
            const auto* const p = reinterpret_cast<const __m128i*>(m_pUnits + at);
            const __m128i both = _mm_packs_epi16(test(_mm_loadu_si128(p)), test(_mm_loadu_si128(p + 1)));
            return std::uint64_t{static_cast<unsigned>(_mm_movemask_epi8(both))} << at;
        };
        return sixteen(0) | sixteen(16) | sixteen(32) | sixteen(48);
    }
#else
    std::uint64_t Equal(char16_t unit) const
    {
        return Ask([unit](char16_t other) { return other == unit; });
    }
    /// Units below 16 and those that are \p a, \p b or \p c.
    std::uint64_t Below16Or(char16_t a, char16_t b, char16_t c) const
    {
        return Ask([=](char16_t unit) { return unit < 16 || unit == a || unit == b || unit == c; });
    }
    /// Units from \p first to \p last.
    std::uint64_t Between(char16_t first, char16_t last) const
    {
        return Ask([first, last](char16_t unit) { return unit >= first && unit <= last; });
    }

private:
    template <class Test>
    std::uint64_t Ask(Test test) const
    {
        std::uint64_t answer = 0;
        for (int at = 0; at < kCount; ++at)
            answer |= std::uint64_t{test(m_pUnits[at])} << at;
        return answer;
    }
#endif

    const char16_t* m_pUnits;
};
