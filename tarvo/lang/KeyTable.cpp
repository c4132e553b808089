#include "tarvo/lang/KeyTable.h"

#include <algorithm>
#include <bit>
#include <numeric>

namespace
{
constexpr std::size_t kShort = 64; ///< as many as a block looks through at once

char16_t TagOf(std::uint32_t hash) { return static_cast<char16_t>(hash >> 16); }
} // namespace

int CKeyTable::Lookup(const wchar_t* key, CString& value) const
{
    const IniEntry* entry = Find(CUnits(key));
    if (!entry)
        return 0;
    value = units::to_string(entry->Value());
    return 1;
}

void CKeyTable::GetAt(int index, CString& key, CString& value) const
{
    const IniEntry& entry = Sorted(static_cast<std::size_t>(index));
    key = units::to_string(entry.Key());
    value = units::to_string(entry.Value());
}

void CKeyTable::SetAt(const wchar_t* key, const wchar_t* value) { Set(CUnits(key), CUnits(value)); }

const IniEntry* CKeyTable::Find(units::view key) const
{
    return const_cast<CKeyTable*>(this)->Find(key, units::hash(key));
}

IniEntry* CKeyTable::Find(units::view key, std::uint32_t hash)
{
    const char16_t tag = TagOf(hash);
    if (m_block.GetCount() <= kShort)
    {
        for (std::uint64_t found = m_block.FindTag(tag); found != 0; found &= found - 1)
            if (IniEntry& entry = m_block[static_cast<std::size_t>(std::countr_zero(found))];
                units::equal(entry.Key(), key))
                return &entry;
        return nullptr;
    }
    const std::size_t mask = m_arrSlot.size() - 1;
    for (std::size_t slot = hash & mask; m_arrSlot[slot] != 0; slot = (slot + 1) & mask)
    {
        const std::size_t i = m_arrSlot[slot] - 1;
        if (m_block.GetTag(i) == tag && units::equal(m_block[i].Key(), key))
            return &m_block[i];
    }
    return nullptr;
}

const IniEntry& CKeyTable::Sorted(std::size_t index) const
{
    if (m_arrOrder.size() != m_block.GetCount())
    {
        m_arrOrder.resize(m_block.GetCount());
        std::iota(m_arrOrder.begin(), m_arrOrder.end(), 0u);
        const auto before = [this](std::uint32_t a, std::uint32_t b) {
            return units::compare(m_block[a].Key(), m_block[b].Key()) < 0;
        };
        std::sort(m_arrOrder.begin(), m_arrOrder.end(), before);
    }
    return m_block[m_arrOrder[index]];
}

void CKeyTable::Set(units::view key, units::view value)
{
    const std::uint32_t hash = units::hash(key);
    IniEntry* const known = Find(key, hash);
    if (!known)
        return Insert(MakeEntry(key, value), hash);
    // Written into the old place where it fits: a value that changes often takes no more memory.
    m_nTextSize -= known->GetTextSize();
    if (!known->Assign(value))
        *known = MakeEntry(key, value);
    m_nTextSize += known->GetTextSize();
}

void CKeyTable::Merge(const std::vector<IniEntry>& entries)
{
    if (m_block.GetCount() == 0)
        m_block.Reserve(entries.size());
    for (const IniEntry entry : entries)
    {
        const std::uint32_t hash = units::hash(entry.Key());
        IniEntry* const known = Find(entry.Key(), hash);
        if (!known)
        {
            Insert(entry, hash);
            continue;
        }
        m_nTextSize += entry.GetTextSize() - known->GetTextSize();
        *known = entry;
    }
}

void CKeyTable::Insert(IniEntry entry, std::uint32_t hash)
{
    m_nTextSize += entry.GetTextSize();
    m_block.Add(entry, TagOf(hash));
    const std::size_t count = m_block.GetCount();
    if (count <= kShort)
        return;
    if (count > m_arrSlot.size() / 4 * 3)
        return Index(std::bit_ceil(2 * count));
    const std::size_t mask = m_arrSlot.size() - 1;
    std::size_t slot = hash & mask;
    while (m_arrSlot[slot] != 0)
        slot = (slot + 1) & mask;
    m_arrSlot[slot] = static_cast<std::uint32_t>(count);
}

void CKeyTable::Index(std::size_t slots)
{
    m_arrSlot.assign(slots, 0);
    const std::size_t mask = slots - 1;
    for (std::size_t i = 0; i < m_block.GetCount(); ++i)
    {
        std::size_t slot = units::hash(m_block[i].Key()) & mask;
        while (m_arrSlot[slot] != 0)
            slot = (slot + 1) & mask;
        m_arrSlot[slot] = static_cast<std::uint32_t>(i + 1);
    }
}

void CKeyTable::CopyEntries(const CKeyTable& source)
{
    m_block.CopyEntries(source.m_block);
    m_arrSlot = source.m_arrSlot;
    m_nTextSize = source.m_nTextSize;
}

char16_t* CKeyTable::MoveTexts(char16_t* room)
{
    for (std::size_t i = 0; i < m_block.GetCount(); ++i)
        room = m_block[i].MoveTo(room);
    return room;
}
