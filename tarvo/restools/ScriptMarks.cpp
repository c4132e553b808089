#include "tarvo/restools/ScriptMarks.h"

#include "tarvo/text/PackedUnits.h"

#include <algorithm>

namespace
{
static_assert(CScriptMarks::Count == CUnitBlock::kCount);

inline CScriptMarks::Block MarkUnits(const char16_t* units)
{
    const CPackedUnits packed(units);
    return {packed.AnyOf('\n', '\r'), packed.AnyOf('"'), packed.AnyOf(','), packed.AnyOf(',', ' ', '\t')};
}

std::ptrdiff_t Distance(std::size_t blocks) { return static_cast<std::ptrdiff_t>(blocks); }
} // namespace

CScriptMarks::CScriptMarks(std::u16string_view line) : m_text(line.data()), m_blocks(line.size() / Count + 3)
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
    m_text = text;
    const std::size_t first = needed / Count;
    const std::size_t end = (length + Count - 1) / Count;
    std::size_t number = m_done; // of the block to be marked
    if (first < number)
        std::copy(m_blocks.begin() + Distance(first - m_first), m_blocks.begin() + Distance(number - m_first),
                  m_blocks.begin());
    number = std::max(number, first);
    m_first = first;
    if (m_blocks.size() < end - first + 2)
        m_blocks.resize(end - first + 2);
    Block* block = m_blocks.data() + (number - first);
    for (; number < end; ++number, ++block)
    {
        *block = MarkUnits(text + number * Count);
        block->separators |= block->breaks;
    }
    block[0] = block[1] = {};
    m_done = length / Count;
}
