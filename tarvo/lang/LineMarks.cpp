#include "tarvo/lang/LineMarks.h"

#include <algorithm>
#include <bit>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace initext
{
namespace
{
constexpr std::ptrdiff_t kBlock = 64;

/// One bit for each unit of a block.
struct BlockMarks
{
    std::uint64_t control = 0, equals = 0, quotes = 0, slashes = 0;
};

#if defined(__SSE2__)
std::uint64_t bits(__m128i low, __m128i high)
{
    return static_cast<std::uint64_t>(_mm_movemask_epi8(_mm_packs_epi16(low, high)));
}

BlockMarks MarkBlock(const char16_t* p)
{
    const __m128i controls = _mm_set1_epi16(static_cast<short>(0xFFF0)), zero = _mm_setzero_si128();
    const __m128i equals = _mm_set1_epi16('='), quote = _mm_set1_epi16('"'), slash = _mm_set1_epi16('/');
    BlockMarks marks;
    for (int at = 0; at < kBlock; at += 16)
    {
        const __m128i a = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p + at));
        const __m128i b = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p + at + 8));
        marks.control |= bits(_mm_cmpeq_epi16(_mm_and_si128(a, controls), zero),
                              _mm_cmpeq_epi16(_mm_and_si128(b, controls), zero))
                         << at;
        marks.equals |= bits(_mm_cmpeq_epi16(a, equals), _mm_cmpeq_epi16(b, equals)) << at;
        marks.quotes |= bits(_mm_cmpeq_epi16(a, quote), _mm_cmpeq_epi16(b, quote)) << at;
        marks.slashes |= bits(_mm_cmpeq_epi16(a, slash), _mm_cmpeq_epi16(b, slash)) << at;
    }
    return marks;
}
#else
BlockMarks MarkBlock(const char16_t* p)
{
    BlockMarks marks;
    for (int at = 0; at < kBlock; ++at)
    {
        marks.control |= std::uint64_t{p[at] < 16} << at;
        marks.equals |= std::uint64_t{p[at] == u'='} << at;
        marks.quotes |= std::uint64_t{p[at] == u'"'} << at;
        marks.slashes |= std::uint64_t{p[at] == u'/'} << at;
    }
    return marks;
}
#endif

/// The last units of a text, fewer than a block: what is missing counts as an end.
BlockMarks MarkRest(const char16_t* p, std::ptrdiff_t count)
{
    char16_t padded[kBlock] = {};
    std::copy_n(p, count, padded);
    return MarkBlock(padded);
}
} // namespace

const char16_t* MarkLine(const char16_t* first, const char16_t* last, LineMarks& marks)
{
    for (; first != last; first += std::min(kBlock, last - first))
    {
        const BlockMarks block = last - first >= kBlock ? MarkBlock(first) : MarkRest(first, last - first);
        const std::uint64_t before =
            ~block.control & (block.control - 1); // all bits when there is no control
        if (const std::uint64_t equals = block.equals & before; equals && !marks.equals)
            marks.equals = first + std::countr_zero(equals);
        if (const std::uint64_t quotes = block.quotes & before)
        {
            if (!marks.quote)
                marks.quote = first + std::countr_zero(quotes);
            marks.lastQuote = first + 63 - std::countl_zero(quotes);
        }
        marks.slash |= (block.slashes & before) != 0;
        if (block.control)
            return std::min(first + std::countr_zero(block.control), last);
    }
    return last;
}

LineMarks MarkLine(units::view line)
{
    const char16_t* const end = line.data() + line.size();
    LineMarks marks;
    for (const char16_t* p = MarkLine(line.data(), end, marks); p != end;)
        p = MarkLine(p + 1, end, marks);
    return marks;
}
} // namespace initext
