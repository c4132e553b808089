#include "tarvo/lang/KeyTable.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <functional>
#include <numeric>

namespace
{
constexpr std::size_t kShort = 128;

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
    if (m_arrTag.size() <= kShort)
    {
        const char16_t* const tags = m_arrTag.data();
        const char16_t* const end = tags + m_arrTag.size();
        for (const char16_t* p = units::find(tags, end, tag); p != end; p = units::find(p + 1, end, tag))
            if (IniEntry& entry = m_arrEntry[static_cast<std::size_t>(p - tags)];
                units::equal(entry.Key(), key))
                return &entry;
        return nullptr;
    }
    const std::size_t mask = m_arrSlot.size() - 1;
    for (std::size_t slot = hash & mask; m_arrSlot[slot] != 0; slot = (slot + 1) & mask)
    {
        const std::size_t i = m_arrSlot[slot] - 1;
        if (m_arrTag[i] == tag && units::equal(m_arrEntry[i].Key(), key))
            return &m_arrEntry[i];
    }
    return nullptr;
}

const IniEntry& CKeyTable::Sorted(std::size_t index) const
{
    if (m_arrOrder.size() != m_arrEntry.size())
    {
        m_arrOrder.resize(m_arrEntry.size());
        std::iota(m_arrOrder.begin(), m_arrOrder.end(), 0u);
        const auto before = [this](std::uint32_t a, std::uint32_t b) {
            return units::compare(m_arrEntry[a].Key(), m_arrEntry[b].Key()) < 0;
        };
        std::sort(m_arrOrder.begin(), m_arrOrder.end(), before);
    }
    return m_arrEntry[m_arrOrder[index]];
}

void CKeyTable::Set(units::view key, units::view value)
{
    const std::uint32_t hash = units::hash(key);
    if (IniEntry* entry = Find(key, hash))
    {
        Assign(*entry, value);
        return;
    }
    const units::view keyCopy = m_pTexts->Copy(key);
    const units::view valueCopy = m_pTexts->Copy(value);
    Insert({keyCopy.data(), valueCopy.data(), static_cast<std::uint32_t>(key.size()),
            static_cast<std::uint32_t>(value.size())},
           hash);
}

void CKeyTable::Assign(IniEntry& entry, units::view value)
{
    // Written into the old place where it fits: a value that changes often takes no more memory. The
    // field of a line with a remark can reach back into the key.
    m_nTextSize = m_nTextSize - entry.valueLength + value.size();
    const std::less<> before;
    const bool apart = !before(entry.value, entry.key + entry.keyLength) ||
                       !before(entry.key, entry.value + entry.valueLength);
    if (value.size() <= entry.valueLength && apart)
        std::copy(value.begin(), value.end(), const_cast<char16_t*>(entry.value));
    else
        entry.value = m_pTexts->Copy(value).data();
    entry.valueLength = static_cast<std::uint32_t>(value.size());
}

void CKeyTable::Merge(const std::vector<IniEntry>& entries)
{
    if (m_arrEntry.empty())
    {
        m_arrEntry.reserve(entries.size());
        m_arrTag.reserve(entries.size());
    }
    for (const IniEntry& entry : entries)
    {
        const std::uint32_t hash = units::hash(entry.Key());
        if (IniEntry* known = Find(entry.Key(), hash))
        {
            m_nTextSize = m_nTextSize - known->valueLength + entry.valueLength;
            known->value = entry.value;
            known->valueLength = entry.valueLength;
        }
        else
            Insert(entry, hash);
    }
}

void CKeyTable::Insert(const IniEntry& entry, std::uint32_t hash)
{
    m_nTextSize += entry.keyLength + entry.valueLength;
    m_arrEntry.push_back(entry);
    m_arrTag.push_back(TagOf(hash));
    const std::size_t count = m_arrEntry.size();
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
    for (std::size_t i = 0; i < m_arrEntry.size(); ++i)
    {
        std::size_t slot = units::hash(m_arrEntry[i].Key()) & mask;
        while (m_arrSlot[slot] != 0)
            slot = (slot + 1) & mask;
        m_arrSlot[slot] = static_cast<std::uint32_t>(i + 1);
    }
}

void CKeyTable::CopyEntries(const CKeyTable& source)
{
    m_arrEntry = source.m_arrEntry;
    m_arrTag = source.m_arrTag;
    m_arrSlot = source.m_arrSlot;
    m_nTextSize = source.m_nTextSize;
}

char16_t* CKeyTable::MoveTexts(char16_t* room)
{
    for (IniEntry& entry : m_arrEntry)
    {
        char16_t* const value = std::copy_n(entry.key, entry.keyLength, room);
        char16_t* const end = std::copy_n(entry.value, entry.valueLength, value);
        entry.key = room;
        entry.value = value;
        room = end;
    }
    return room;
}
