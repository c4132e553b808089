#include "tarvo/restools/ScriptMarkers.h"

#include "tarvo/text/PackedUnits.h"

// Not on Windows: there the compiler does not align what it keeps on the stack as these instructions need it.
#if defined(__x86_64__) && !defined(_WIN32)
#define TARVO_HAS_WIDE_MARKER 1
// The compiler takes the undefined values inside its own header for mistakes.
#ifndef __clang__
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"
#endif
#include <immintrin.h>
#endif

namespace
{
constexpr std::size_t Block = CScriptMarks::Block;
static_assert(Block == CUnitBlock::kCount);

void Mark(const char16_t* units, std::size_t count, const CScriptMarkWords& out)
{
    for (std::size_t block = 0; block < count; ++block)
    {
        const CPackedUnits packed(units + block * Block);
        out.breaks[block] = packed.AnyOf('\n', '\r');
        out.quotes[block] = packed.AnyOf('"');
        out.commas[block] = packed.AnyOf(',');
        out.separators[block] = packed.AnyOf(',', ' ', '\t');
    }
}

#ifdef TARVO_HAS_WIDE_MARKER
// Runs only where the processor has these instructions, and can be part of nothing that runs elsewhere.
#define TARVO_AVX512 __attribute__((target("avx512f,avx512bw")))

/// 32 units, those above 255 as 255.
TARVO_AVX512 inline __m256i Pack(const char16_t* units)
{
    return _mm512_cvtusepi16_epi8(_mm512_loadu_si512(units));
}

TARVO_AVX512 inline std::uint64_t Are(__m512i bytes, char character)
{
    return _mm512_cmpeq_epi8_mask(bytes, _mm512_set1_epi8(character));
}

TARVO_AVX512 void MarkWide(const char16_t* units, std::size_t count, const CScriptMarkWords& out)
{
    for (std::size_t block = 0; block < count; ++block, units += Block)
    {
        const __m512i bytes =
            _mm512_inserti64x4(_mm512_castsi256_si512(Pack(units)), Pack(units + Block / 2), 1);
        const std::uint64_t commas = Are(bytes, ',');
        out.breaks[block] = Are(bytes, '\n') | Are(bytes, '\r');
        out.quotes[block] = Are(bytes, '"');
        out.commas[block] = commas;
        out.separators[block] = commas | Are(bytes, ' ') | Are(bytes, '\t');
    }
}
#endif
} // namespace

std::span<const ScriptMarker> ScriptMarkers()
{
#ifdef TARVO_HAS_WIDE_MARKER
    static constexpr ScriptMarker all[] = {MarkWide, Mark};
    static const std::size_t unknownHere = __builtin_cpu_supports("avx512bw") ? 0 : 1;
    return std::span(all).subspan(unknownHere);
#else
    static constexpr ScriptMarker all[] = {Mark};
    return all;
#endif
}
