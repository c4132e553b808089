#include "tarvo/lang/IniStore.h"

#include <algorithm>
#include <cstring>
#include <numeric>

CIniStore::CIniStore(const CIniStore& source)
{
    char16_t* room = m_texts.Add(source.GetSize());
    for (const CKeyTable& from : source.m_arrSection)
    {
        CKeyTable& to = Make(from.Name());
        to.CopyEntries(from);
        room = to.MoveTexts(room);
    }
}

CKeyTable& CIniStore::Sorted(std::size_t index) const
{
    if (m_arrOrder.size() != m_arrSection.size())
    {
        m_arrOrder.resize(m_arrSection.size());
        std::iota(m_arrOrder.begin(), m_arrOrder.end(), 0u);
        const auto before = [this](std::uint32_t a, std::uint32_t b) {
            return units::compare(m_arrSection[a].Name(), m_arrSection[b].Name()) < 0;
        };
        std::sort(m_arrOrder.begin(), m_arrOrder.end(), before);
    }
    return m_arrSection[m_arrOrder[index]];
}

CKeyTable* CIniStore::Find(units::view name) const
{
    if (m_arrSlot.empty())
        return nullptr;
    const std::uint32_t hash = units::hash(name);
    const std::size_t mask = m_arrSlot.size() - 1;
    for (std::size_t i = hash & mask; m_arrSlot[i].table; i = (i + 1) & mask)
        if (m_arrSlot[i].hash == hash && units::equal(m_arrSlot[i].table->Name(), name))
            return m_arrSlot[i].table;
    return nullptr;
}

CKeyTable& CIniStore::Make(units::view name)
{
    if (CKeyTable* table = Find(name))
        return *table;
    if (m_arrSection.size() + 1 > m_arrSlot.size() / 4 * 3)
        Index(std::max<std::size_t>(8, 2 * m_arrSlot.size()));
    CKeyTable& made = m_arrSection.emplace_back(name, m_texts);
    const std::uint32_t hash = units::hash(name);
    Place(hash) = {hash, &made};
    return made;
}

CKeyTable* CIniStore::Twin(const CIniStore& source, const CKeyTable* table)
{
    for (std::size_t i = 0; i < source.m_arrSection.size(); ++i)
        if (&source.m_arrSection[i] == table)
            return &m_arrSection[i];
    return nullptr;
}

void CIniStore::Index(std::size_t slots)
{
    std::vector<Slot> old(slots, Slot{0, nullptr});
    old.swap(m_arrSlot);
    for (const Slot& slot : old)
        if (slot.table)
            Place(slot.hash) = slot;
}

CIniStore::Slot& CIniStore::Place(std::uint32_t hash)
{
    const std::size_t mask = m_arrSlot.size() - 1;
    std::size_t slot = hash & mask;
    while (m_arrSlot[slot].table)
        slot = (slot + 1) & mask;
    return m_arrSlot[slot];
}

std::size_t CIniStore::GetSize() const
{
    std::size_t size = 0;
    for (const CKeyTable& table : m_arrSection)
        size += table.GetSize();
    return size;
}

void CIniStore::Tidy()
{
    if (m_texts.GetSize() < m_nTidyAt)
        return;
    const std::size_t live = GetSize();
    if (live < m_texts.GetSize() / 2)
    {
        CTextArena fresh;
        char16_t* room = fresh.Add(live);
        for (CKeyTable& table : m_arrSection)
            room = table.MoveTexts(room);
        m_texts = std::move(fresh);
    }
    m_nTidyAt = std::max(kTidyLeast, 2 * m_texts.GetSize());
}

namespace
{
char* Put(char* out, units::view text)
{
    std::memcpy(out, text.data(), text.size() * sizeof(char16_t));
    return out + text.size() * sizeof(char16_t);
}
} // namespace

std::string CIniStore::Serialize() const
{
    constexpr units::view kMark = u"\uFEFF", kOpen = u"[", kClose = u"]\r\n", kIs = u" = \"",
                          kEnd = u"\"\r\n", kBlank = u"\r\n";
    std::size_t size = kMark.size();
    for (const CKeyTable& table : m_arrSection)
        size += table.GetTextSize() + table.Name().size() + kOpen.size() + kClose.size() + kBlank.size() +
                static_cast<std::size_t>(table.GetCount()) * (kIs.size() + kEnd.size());
    std::string bytes(size * sizeof(char16_t), '\0');
    char* out = Put(bytes.data(), kMark);
    for (std::size_t s = 0; s < m_arrSection.size(); ++s)
    {
        const CKeyTable& table = Sorted(s);
        out = Put(Put(Put(out, kOpen), table.Name()), kClose);
        for (std::size_t i = 0; i < static_cast<std::size_t>(table.GetCount()); ++i)
        {
            const IniEntry& entry = table.Sorted(i);
            out = Put(Put(Put(Put(out, entry.Key()), kIs), entry.Value()), kEnd);
        }
        out = Put(out, kBlank);
    }
    return bytes;
}
