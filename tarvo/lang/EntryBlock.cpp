#include "tarvo/lang/EntryBlock.h"

#include <algorithm>
#include <cstring>
#include <new>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace
{
char16_t* Allocate(std::size_t bytes)
{
    void* const p = std::malloc(bytes);
    if (!p)
        throw std::bad_alloc();
    return static_cast<char16_t*>(p);
}

/// A bit for each of the 16 units at \p p that is \p unit.
unsigned EqualUnits(const char16_t* p, char16_t unit)
{
#if defined(__SSE2__)
    const __m128i wanted = _mm_set1_epi16(static_cast<short>(unit));
    const __m128i low = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p));
    const __m128i high = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p + 8));
    return static_cast<unsigned>(
        _mm_movemask_epi8(_mm_packs_epi16(_mm_cmpeq_epi16(low, wanted), _mm_cmpeq_epi16(high, wanted))));
#else
    unsigned bits = 0;
    for (int i = 0; i < 16; ++i)
        bits |= unsigned{p[i] == unit} << i;
    return bits;
#endif
}
} // namespace

CEntryBlock::CEntryBlock(units::view name)
    : m_pUnits(Allocate((name.size() + 4) * sizeof(char16_t))), m_nName(name.size())
{
    std::copy(name.begin(), name.end(), GetUnits());
}

void CEntryBlock::Reserve(std::size_t count)
{
    if (count <= m_nCapacity)
        return;
    const std::size_t head = GetHead(count);
    std::unique_ptr<char16_t, Free> grown(Allocate(head * sizeof(char16_t) + count * sizeof(IniEntry)));
    char16_t* const tags = std::copy(GetUnits(), GetTags() + m_nCount, grown.get());
    std::fill(tags, grown.get() + head, u'\0');
    std::memcpy(static_cast<void*>(grown.get() + head), GetEntries(), m_nCount * sizeof(IniEntry));
    m_pUnits = std::move(grown);
    m_nCapacity = count;
}

std::uint64_t CEntryBlock::FindTag(char16_t tag) const
{
    static_assert(kStep == 16);
    std::uint64_t found = 0;
    const std::size_t count = std::min<std::size_t>(m_nCount, 64);
    for (std::size_t i = 0; i < count; i += kStep)
        found |= std::uint64_t{EqualUnits(GetTags() + i, tag)} << i;
    return count == 64 ? found : found & ((std::uint64_t{1} << count) - 1);
}

void CEntryBlock::Add(IniEntry entry, char16_t tag)
{
    if (m_nCount == m_nCapacity)
        Reserve(std::max<std::size_t>(4, 2 * m_nCapacity));
    GetTags()[m_nCount] = tag;
    new (GetEntries() + m_nCount) IniEntry(entry);
    ++m_nCount;
}

void CEntryBlock::CopyEntries(const CEntryBlock& source)
{
    Reserve(source.m_nCount);
    for (std::size_t i = 0; i < source.m_nCount; ++i)
        Add(source[i], source.GetTag(i));
}
