#include "tarvo/restools/ScriptMarks.h"

#include "tarvo/restools/ScriptMarkers.h"

#include <algorithm>

namespace
{
constexpr std::size_t wordsBehind = 2; // so that eight bytes can be read everywhere
} // namespace

CScriptMarks::CScriptMarks(std::u16string_view line) : m_text(line.data())
{
    const std::size_t whole = line.size() / Block;
    MakeRoom(whole + 1 + wordsBehind, 0, 0);
    MarkFrom(0, line.data(), whole);
    char16_t padded[Block] = {};
    const std::u16string_view rest = line.substr(whole * Block);
    std::copy(rest.begin(), rest.end(), padded);
    MarkFrom(whole, padded, 1);
}

void CScriptMarks::Grow(const char16_t* text, std::size_t length, std::size_t needed)
{
    m_text = text;
    const std::size_t first = needed / Block;
    const std::size_t end = (length + Block - 1) / Block;
    const std::size_t next = std::max(m_done, first); // block to be marked
    MakeRoom(end - first + wordsBehind, next - first, first - m_first);
    m_first = first;
    MarkFrom(next - first, text + next * Block, end - next);
    for (std::size_t block = next - first; block < end - first; ++block)
        WordsOf(Separators)[block] |= WordsOf(Breaks)[block];
    for (std::size_t kind = 0; kind < Kinds; ++kind)
        std::fill_n(WordsOf(kind) + (end - first), wordsBehind, 0);
    m_done = length / Block;
}

// Passes over blocks and keeps those behind them, with room for more.
void CScriptMarks::MakeRoom(std::size_t blocks, std::size_t kept, std::size_t passed)
{
    const std::size_t stride = std::max(m_stride, std::bit_ceil(blocks));
    std::vector<std::uint64_t> wider(stride == m_stride ? 0 : Kinds * stride);
    for (std::size_t kind = 0; kept != 0 && kind < Kinds; ++kind)
    {
        const std::uint64_t* const from = WordsOf(kind) + passed;
        std::copy(from, from + kept, wider.empty() ? WordsOf(kind) : wider.data() + kind * stride);
    }
    if (!wider.empty())
        m_words.swap(wider);
    m_stride = stride;
}

void CScriptMarks::MarkFrom(std::size_t block, const char16_t* units, std::size_t count)
{
    static const ScriptMarker fastest = ScriptMarkers().front();
    fastest(units, count,
            {WordsOf(Breaks) + block, WordsOf(Quotes) + block, WordsOf(Commas) + block,
             WordsOf(Separators) + block});
}
