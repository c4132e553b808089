#include "tarvo/lang/TextArena.h"

#include <algorithm>
#include <new>

namespace
{
constexpr std::size_t kShared = 2048; ///< units of a block for small texts
}

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
        AddBlock(count > kShared / 4 ? count : kShared);
    m_nLast = m_nUsed;
    m_nUsed += count;
    return m_arrBlock.back().get() + m_nLast;
}

char16_t* CTextArena::TrimLast(std::size_t count)
{
    m_nUsed = m_nLast + count;
    if (m_nLast == 0 && m_nBlock > kShared)
    {
        // The text stands alone in its block.
        const std::size_t keep = std::max<std::size_t>(count, 1);
        if (void* shorter = std::realloc(m_arrBlock.back().get(), keep * sizeof(char16_t)))
        {
            static_cast<void>(m_arrBlock.back().release());
            m_arrBlock.back().reset(static_cast<char16_t*>(shorter));
            m_nSize -= m_nBlock - keep;
            m_nBlock = keep;
        }
    }
    return m_arrBlock.back().get() + m_nLast;
}

std::u16string_view CTextArena::Copy(std::u16string_view text)
{
    char16_t* copy = Add(text.size());
    std::copy(text.begin(), text.end(), copy);
    return {copy, text.size()};
}
