#pragma once

#include "tarvo/export.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <vector>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

/// Eight slots that are looked at in one step, in two versions: with the vector unit that every x86-64 has,
/// and without. They lie in one line of the processor's cache.
struct alignas(32) CSlotGroup
{
    static constexpr std::size_t kCount = 8;

    std::uint32_t slots[kCount];

    /// A bit for each slot, the first in the lowest, whose bits under \p mask are \p wanted.
    unsigned Equal(std::uint32_t mask, std::uint32_t wanted) const
    {
#if defined(__SSE2__)
        const auto* const p = reinterpret_cast<const __m128i*>(slots);
        const __m128i under = _mm_set1_epi32(static_cast<int>(mask));
        const __m128i all = _mm_set1_epi32(static_cast<int>(wanted));
        const auto half = [=](const __m128i* four) {
            return _mm_cmpeq_epi32(_mm_and_si128(_mm_load_si128(four), under), all);
        };
        const __m128i eight = _mm_packs_epi32(half(p), half(p + 1));
        return static_cast<unsigned>(_mm_movemask_epi8(_mm_packs_epi16(eight, _mm_setzero_si128())));
#else
        unsigned bits = 0;
        for (unsigned i = 0; i < kCount; ++i)
            bits |= unsigned{(slots[i] & mask) == wanted} << i;
        return bits;
#endif
    }
};

/// Finds records by the hash of their keys. A slot takes four bytes: the record's number (CRecordArena) and,
/// in the bits that are left, as much of the hash, so that nearly every record looked at is the one asked for
/// and the table, four fifths full, stays in the processor's cache. Throws std::bad_alloc.
class TARVO_API CRefTable
{
public:
    using Ref = std::uint32_t;

    /// Makes all slots free, room for \p count records with numbers up to \p most.
    void Reset(std::size_t count, Ref most);
    /// Makes all slots free.
    void Clear() { std::fill(m_arrGroup.begin(), m_arrGroup.end(), CSlotGroup()); }
    /// Whether there is room for \p count records in all, and for the number \p ref.
    bool HasRoom(std::size_t count) const { return count <= m_nRoom; }
    bool HasRoomFor(Ref ref) const { return (ref + std::uint64_t{1}) >> m_nRefBits == 0; }
    std::size_t GetMemory() const { return m_arrGroup.capacity() * sizeof(CSlotGroup); }

    /// Lets the place of \p hash come from memory while the caller does something else.
    void Prefetch(std::uint32_t hash) const
    {
        if (!m_arrGroup.empty())
            __builtin_prefetch(&m_arrGroup[HomeOf(hash)], 1);
    }
    /// The slot of the record with \p hash for which isWanted(ref) holds, or the free one where it belongs.
    /// There must have been a Reset.
    template <class IsWanted>
    std::size_t Find(std::uint32_t hash, IsWanted isWanted) const
    {
        const Slot mask = TagMask(), tag = TagOf(hash);
        for (std::size_t home = HomeOf(hash);; home = home + 1 == m_arrGroup.size() ? 0 : home + 1)
        {
            const CSlotGroup& group = m_arrGroup[home];
            const std::size_t first = home * kGroup;
            for (unsigned found = group.Equal(mask, tag); found != 0; found &= found - 1)
            {
                const auto i = static_cast<unsigned>(std::countr_zero(found));
                if (const Slot slot = group.slots[i]; slot != 0 && isWanted((slot & ~mask) - 1))
                    return first + i;
            }
            if (const unsigned free = group.Equal(~Slot{0}, 0); free != 0)
                return first + static_cast<unsigned>(std::countr_zero(free));
        }
    }
    bool IsFree(std::size_t slot) const { return SlotAt(slot) == 0; }
    Ref At(std::size_t slot) const { return (SlotAt(slot) & ~TagMask()) - 1; }
    void Put(std::size_t slot, std::uint32_t hash, Ref ref)
    {
        m_arrGroup[slot / kGroup].slots[slot % kGroup] = TagOf(hash) | (ref + 1);
    }
    /// Puts a record in that is known not to be there.
    void Add(std::uint32_t hash, Ref ref)
    {
        Put(Find(hash, [](Ref) { return false; }), hash, ref);
    }

private:
    /// A number plus one in the lower m_nRefBits, bits of the hash above them; 0 is a free slot.
    using Slot = std::uint32_t;

    static constexpr std::size_t kGroup = CSlotGroup::kCount;
    Slot TagMask() const { return static_cast<Slot>(~std::uint64_t{0} << m_nRefBits); }
    Slot TagOf(std::uint32_t hash) const { return static_cast<Slot>(std::uint64_t{hash} << m_nRefBits); }
    Slot SlotAt(std::size_t slot) const { return m_arrGroup[slot / kGroup].slots[slot % kGroup]; }
    /// The group where a record belongs; when that is full, it is in the next one.
    std::size_t HomeOf(std::uint32_t hash) const { return std::uint64_t{hash} * m_arrGroup.size() >> 32; }

    std::vector<CSlotGroup> m_arrGroup;
    std::size_t m_nRoom = 0; ///< records that there is room for
    unsigned m_nRefBits = 0;
};
