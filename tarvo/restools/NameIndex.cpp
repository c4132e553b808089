#include "tarvo/restools/NameIndex.h"

#include "tarvo/text/Units.h"

#include <bit>
#include <numeric>
#include <utility>

namespace
{
std::size_t First(std::uint64_t slot) { return static_cast<std::uint32_t>(slot); }
} // namespace

std::size_t CNameIndex::SlotOf(std::u16string_view name, std::uint32_t hash) const
{
    const std::size_t mask = m_slots.size() - 1;
    std::size_t slot = hash & mask;
    while (m_slots[slot] != none &&
           (m_slots[slot] >> 32 != hash || !units::equal(m_names[First(m_slots[slot])], name)))
        slot = (slot + 1) & mask;
    return slot;
}

void CNameIndex::BuildFrom(std::vector<std::u16string_view> names)
{
    m_names = std::move(names);
    const std::size_t count = m_names.size();
    m_slots.assign(std::bit_ceil(count * 2 + 2), none);
    m_ranks.clear();

    std::vector<std::uint32_t> firsts; // by position, once a name is there twice
    for (std::size_t i = 0; i < count; ++i)
    {
        const std::uint32_t hash = units::hash(m_names[i]);
        std::uint64_t& slot = m_slots[SlotOf(m_names[i], hash)];
        if (slot == none)
            slot = std::uint64_t{hash} << 32 | i;
        else if (firsts.empty())
        {
            firsts.resize(count);
            std::iota(firsts.begin(), firsts.end(), 0u);
        }
        if (!firsts.empty())
            firsts[i] = static_cast<std::uint32_t>(First(slot));
    }
    if (!firsts.empty())
        GroupBy(firsts);
    m_built = true;
}

void CNameIndex::GroupBy(const std::vector<std::uint32_t>& firsts)
{
    const std::size_t count = firsts.size();
    // First the rank of each position and, at a name's first occurrence, how many there are.
    m_ranks.resize(count);
    m_groupOf.assign(count, 0);
    for (std::size_t i = 0; i < count; ++i)
        m_ranks[i] = m_groupOf[firsts[i]]++;
    // Then counts become places.
    std::uint32_t place = 0;
    for (std::size_t i = 0; i < count; ++i)
        if (firsts[i] == i)
            place += std::exchange(m_groupOf[i], place);
    m_positions.resize(count);
    for (std::size_t i = 0; i < count; ++i)
        m_positions[m_groupOf[firsts[i]] + m_ranks[i]] = static_cast<std::uint32_t>(i);
}

int CNameIndex::Find(std::u16string_view name, std::size_t rank) const
{
    const std::uint64_t slot = m_slots[SlotOf(name, units::hash(name))];
    if (slot == none)
        return -1;
    if (IsUnique())
        return rank == 0 ? static_cast<int>(First(slot)) : -1;
    const std::size_t at = m_groupOf[First(slot)] + rank;
    // Equal names stand side by side, so the entry at the wanted rank has this name or there is none.
    if (at >= m_positions.size() || m_ranks[m_positions[at]] != rank ||
        !units::equal(m_names[m_positions[at]], name))
        return -1;
    return static_cast<int>(m_positions[at]);
}
