#include "tarvo/restools/ScriptArena.h"

#include <algorithm>

namespace
{
constexpr std::size_t kLeast = std::size_t{4} << 10; ///< bytes of a block
constexpr std::size_t kMost = std::size_t{2} << 20;
} // namespace

void* CScriptArena::Take(std::size_t bytes, std::size_t alignment)
{
    const std::size_t at = (m_nUsed + alignment - 1) / alignment * alignment;
    if (at <= m_nBlock && bytes <= m_nBlock - at && !m_arrBlock.empty())
    {
        m_nUsed = at + bytes;
        return m_arrBlock.back().get() + at;
    }
    const std::size_t size = std::max(bytes, std::clamp(m_nMemory / 2, kLeast, kMost));
    m_arrBlock.push_back(platform::memory::take_piece(size));
    m_nBlock = size;
    m_nUsed = bytes;
    m_nMemory += size;
    return m_arrBlock.back().get();
}

std::u16string_view CScriptArena::Copy(std::u16string_view text)
{
    char16_t* const copy = Add(text.size());
    std::copy(text.begin(), text.end(), copy);
    return {copy, text.size()};
}
