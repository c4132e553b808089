#include "tarvo/text/TextArena.h"

#include <algorithm>
#include <new>

namespace
{
constexpr std::size_t kLeast = 2048; ///< units of a block for small texts
constexpr std::size_t kMost = 32768;
} // namespace

void CTextArena::AddBlock(std::size_t count)
{
    m_arrBlock.emplace_back(static_cast<char16_t*>(std::malloc(count * sizeof(char16_t))));
    if (!m_arrBlock.back())
    {
        m_arrBlock.pop_back();
        throw std::bad_alloc();
    }
    m_nBlock = count;
    m_nUsed = 0;
    m_nSize += count;
}

char16_t* CTextArena::Add(std::size_t count)
{
    if (m_arrBlock.empty() || count > m_nBlock - m_nUsed)
        AddBlock(std::max(count, std::clamp(m_nSize / 8, kLeast, kMost)));
    m_nUsed += count;
    return m_arrBlock.back().get() + m_nUsed - count;
}

std::u16string_view CTextArena::Copy(std::u16string_view text)
{
    char16_t* copy = Add(text.size());
    std::copy(text.begin(), text.end(), copy);
    return {copy, text.size()};
}
