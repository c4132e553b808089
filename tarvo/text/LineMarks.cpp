#include "tarvo/text/LineMarks.h"

#include "platform/codepage_block.h"
#include "tarvo/text/UnitBlock.h"

#include <algorithm>
#include <bit>

namespace textline
{
namespace
{
constexpr std::size_t kBlock = CUnitBlock::kCount;

/// A bit for each unit of a block that Mark has to look at.
std::uint64_t MarksOf(const char16_t* units) { return CUnitBlock(units).Below16Or(u'=', u'"', u'/'); }

std::uint64_t MarksOfRest(const char16_t* units, std::size_t count)
{
    char16_t padded[kBlock] = {};
    std::copy_n(units, count, padded);
    return MarksOf(padded) & ((std::uint64_t{1} << count) - 1);
}
} // namespace

bool CLineMarker::LookAhead()
{
    m_pNoted = m_pAhead;
    m_nNext = m_nCount = 0;
    const std::size_t size = std::min(kAhead, static_cast<std::size_t>(m_pEnd - m_pNoted));
    for (std::size_t at = 0; at < size; at += kBlock)
    {
        std::uint64_t marks =
            size - at < kBlock ? MarksOfRest(m_pNoted + at, size - at) : MarksOf(m_pNoted + at);
        std::uint16_t* place = m_arrPlace + m_nCount;
        m_nCount += platform::codepage::count_bits(marks);
        // Eight at a time, whether there are as many or not: most blocks have no more.
        for (; marks != 0; place += kAtATime)
#pragma GCC unroll 8
            for (std::size_t i = 0; i < kAtATime; ++i, marks &= marks - 1)
                place[i] = static_cast<std::uint16_t>(at + static_cast<unsigned>(std::countr_zero(marks)));
    }
    m_pAhead = m_pNoted + size;
    return size != 0;
}

const char16_t* CLineMarker::Mark(const char16_t* first, const char16_t* last, LineMarks& marks)
{
    for (;; ++m_nNext)
    {
        if (m_nNext == m_nCount)
        {
            if (m_pAhead >= last || !LookAhead())
                return last;
            --m_nNext;
            continue;
        }
        const char16_t* const at = m_pNoted + m_arrPlace[m_nNext];
        if (at < first)
            continue;
        if (at >= last)
            return last;
        if (*at == u'=')
        {
            if (!marks.equals)
                marks.equals = at;
        }
        else if (*at == u'"')
        {
            if (!marks.quote)
                marks.quote = at;
            marks.lastQuote = at;
        }
        else if (*at == u'/')
            marks.slash = true;
        else
            return at;
    }
}

LineMarks MarkLine(units::view line)
{
    const char16_t* const end = line.data() + line.size();
    CLineMarker marker(line);
    LineMarks marks;
    for (const char16_t* p = marker.Mark(line.data(), end, marks); p != end;)
        p = marker.Mark(p + 1, end, marks);
    return marks;
}
} // namespace textline
