#include "tarvo/restools/NameIndex.h"

#include "tarvo/text/Units.h"

#include <bit>
#include <utility>

std::size_t CNameIndex::SlotOf(std::u16string_view name) const
{
    const std::size_t mask = m_slots.size() - 1;
    std::size_t slot = units::hash(name) & mask;
    while (m_slots[slot] != none && !units::equal(m_names[m_slots[slot]], name))
        slot = (slot + 1) & mask;
    return slot;
}

void CNameIndex::BuildFrom(std::vector<std::u16string_view> names)
{
    m_names = std::move(names);
    const std::size_t count = m_names.size();
    m_slots.assign(std::bit_ceil(count * 2 + 2), none);
    m_ranks.resize(count);

    // First the rank of each position and, at a name's first occurrence, how many there are.
    std::vector<std::uint32_t> firsts(count);
    m_groupOf.assign(count, 0);
    for (std::size_t i = 0; i < count; ++i)
    {
        std::uint32_t& first = m_slots[SlotOf(m_names[i])];
        if (first == none)
            first = static_cast<std::uint32_t>(i);
        firsts[i] = first;
        m_ranks[i] = m_groupOf[first]++;
    }
    // Then counts become places.
    std::uint32_t place = 0;
    for (std::size_t i = 0; i < count; ++i)
        if (firsts[i] == i)
            place += std::exchange(m_groupOf[i], place);
    m_positions.resize(count);
    for (std::size_t i = 0; i < count; ++i)
        m_positions[m_groupOf[firsts[i]] + m_ranks[i]] = static_cast<std::uint32_t>(i);
    m_built = true;
}

int CNameIndex::Find(std::u16string_view name, std::size_t rank) const
{
    const std::uint32_t first = m_slots[SlotOf(name)];
    if (first == none)
        return -1;
    const std::size_t at = m_groupOf[first] + rank;
    // Equal names stand side by side, so the entry at the wanted rank has this name or there is none.
    if (at >= m_positions.size() || m_ranks[m_positions[at]] != rank || m_names[m_positions[at]] != name)
        return -1;
    return static_cast<int>(m_positions[at]);
}
