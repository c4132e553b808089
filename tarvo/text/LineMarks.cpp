#include "tarvo/text/LineMarks.h"

#include "tarvo/text/UnitBlock.h"

#include <algorithm>
#include <bit>

namespace textline
{
namespace
{
constexpr std::ptrdiff_t kBlock = CUnitBlock::kCount;

struct BlockMarks
{
    explicit BlockMarks(const CUnitBlock& block)
        : control(block.Below16()), equals(block.Equal(u'=')), quotes(block.Equal(u'"')),
          slashes(block.Equal(u'/'))
    {
    }
    std::uint64_t control, equals, quotes, slashes;
};

/// The last units of a text, fewer than a block: what is missing counts as an end.
BlockMarks MarkRest(const char16_t* p, std::ptrdiff_t count)
{
    char16_t padded[kBlock] = {};
    std::copy_n(p, count, padded);
    return BlockMarks(CUnitBlock(padded));
}
} // namespace

const char16_t* MarkLine(const char16_t* first, const char16_t* last, LineMarks& marks)
{
    for (; first != last; first += std::min(kBlock, last - first))
    {
        const BlockMarks block =
            last - first >= kBlock ? BlockMarks(CUnitBlock(first)) : MarkRest(first, last - first);
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
} // namespace textline
