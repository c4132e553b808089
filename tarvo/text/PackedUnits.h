#pragma once

#include "tarvo/text/UnitBlock.h"

/// The 64 units of a block once more, for several questions about characters from 1 to 254: packed to a byte
/// each, they are answered in half the time. Two versions of the same call, as with CUnitBlock.
class CPackedUnits
{
public:
#if defined(__SSE2__)
    explicit CPackedUnits(const char16_t* units)
        : m_first(Pack(units)), m_second(Pack(units + 16)), m_third(Pack(units + 32)),
          m_last(Pack(units + 48))
    {
    }

    /// A bit for each unit that is one of these.
    template <class... Characters>
    std::uint64_t AnyOf(Characters... characters) const
    {
        const auto bits = [=](__m128i bytes) {
            return static_cast<unsigned>(
                _mm_movemask_epi8((_mm_cmpeq_epi8(bytes, _mm_set1_epi8(characters)) | ...)));
        };
        return std::uint64_t{bits(m_last) << 16 | bits(m_third)} << 32 |
               (bits(m_second) << 16 | bits(m_first));
    }

private:
    // Units above 254 become 0 or 255.
    static __m128i Pack(const char16_t* units)
    {
        const auto* const p = reinterpret_cast<const __m128i*>(units);
        return _mm_packus_epi16(_mm_loadu_si128(p), _mm_loadu_si128(p + 1));
    }

    __m128i m_first, m_second, m_third, m_last;
#else
    explicit CPackedUnits(const char16_t* units) : m_block(units) {}

    /// A bit for each unit that is one of these.
    template <class... Characters>
    std::uint64_t AnyOf(Characters... characters) const
    {
        return (m_block.Equal(static_cast<char16_t>(characters)) | ...);
    }

private:
    CUnitBlock m_block;
#endif
};
