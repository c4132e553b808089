#include "tarvo/restools/ScriptMarks.h"

#include "tarvo/text/UnitBlock.h"

namespace
{
static_assert(CScriptMarks::Count == CUnitBlock::kCount);

CScriptMarks::Block MarkUnits(const char16_t* units)
{
    const CUnitBlock block(units);
    CScriptMarks::Block marks;
    marks.breaks = block.Equal(u'\n') | block.Equal(u'\r');
    marks.quotes = block.Equal(u'"');
    marks.commas = block.Equal(u',');
    marks.separators = marks.commas | block.Equal(u' ') | block.Equal(u'\t');
    return marks;
}
} // namespace

CScriptMarks::CScriptMarks(std::u16string_view line) : m_blocks(line.size() / Count + 3)
{
    Block* out = m_blocks.data();
    for (; line.size() >= Count; line.remove_prefix(Count))
        *out++ = MarkUnits(line.data());
    char16_t padded[Count] = {};
    std::copy(line.begin(), line.end(), padded);
    *out = MarkUnits(padded);
}

void CScriptMarks::Grow(const char16_t* text, std::size_t length, std::size_t needed)
{
    const std::size_t first = needed / Count;
    m_blocks.erase(m_blocks.begin(), m_blocks.begin() + static_cast<std::ptrdiff_t>(
                                                            std::min(first - m_first, m_blocks.size())));
    m_first = first;
    const std::size_t end = (length + Count - 1) / Count;
    m_blocks.resize(end - first + 2);
    for (std::size_t number = std::max(m_done, first); number < end; ++number)
    {
        Block& block = m_blocks[number - first] = MarkUnits(text + number * Count);
        block.separators |= block.breaks;
    }
    m_done = length / Count;
}
