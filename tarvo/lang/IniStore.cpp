#include "tarvo/lang/IniStore.h"

#include <algorithm>

namespace
{
/// Of a key in a section, from the hashes of their names.
std::uint32_t HashOf(std::uint32_t section, std::uint32_t key) { return section * 0x9E3779B1u + key; }
} // namespace

template <class Visit>
void CIniStore::ForEach(const Entries& entries, Visit visit) const
{
    for (Ref ref = entries.first; ref != IniEntry::kNone; ref = At(ref).m_nNext)
        if (At(ref).m_nSection != IniEntry::kNone)
            visit(At(ref), ref);
}

CIniStore::CIniStore(const CIniStore& source)
{
    for (const Section& from : source.m_arrSection)
    {
        CKeyTable& to = Make(from->Name());
        to.m_entries = source.CopyEntries(*from, m_texts, to.m_nSection);
        m_nEntries += to.m_entries.count;
    }
    Index(m_nEntries);
}

CKeyTable& CIniStore::Sorted(std::size_t index) const
{
    if (!m_bSorted)
        std::sort(m_arrSection.begin(), m_arrSection.end(), [](const Section& a, const Section& b) {
            return units::compare(a->Name(), b->Name()) < 0;
        });
    m_bSorted = true;
    return *m_arrSection[index];
}

template <class Name>
CKeyTable* CIniStore::FindSection(const Name& name, std::uint32_t hash) const
{
    if (m_arrSection.empty())
        return nullptr;
    const std::size_t slot =
        m_sections.Find(hash, [&](Ref ref) { return units::equal(SectionAt(ref).Name(), name); });
    return m_sections.IsFree(slot) ? nullptr : &SectionAt(m_sections.At(slot));
}

CKeyTable& CIniStore::Make(units::view name)
{
    const std::uint32_t hash = units::hash(name);
    if (CKeyTable* const known = FindSection(name, hash))
        return *known;
    // A table takes whole pointers, so that the next one is aligned as they are.
    constexpr std::size_t kWhole = alignof(CKeyTable);
    const std::size_t size = sizeof(CKeyTable) + name.size() * sizeof(char16_t);
    Ref ref;
    char* const room = m_names.Take((size + kWhole - 1) / kWhole * kWhole, ref);
    units::copy(name, reinterpret_cast<char16_t*>(room + sizeof(CKeyTable)));
    if (!m_sections.HasRoom(m_arrSection.size() + 1) || !m_sections.HasRoomFor(ref))
    {
        m_sections.Reset(2 * m_arrSection.size() + 1, m_names.GetMost());
        for (const Section& section : m_arrSection)
            m_sections.Add(section->m_nHash, section->m_nSection);
    }
    m_arrSection.emplace_back(new (room) CKeyTable(*this, ref, name));
    m_bSorted = false;
    m_sections.Add(hash, ref);
    return *m_arrSection.back();
}

template <class Key, class IsSection>
std::size_t CIniStore::SlotOf(const Key& key, std::uint32_t hash, IsSection isSection) const
{
    return m_table.Find(hash, [&](Ref ref) {
        // The rest of an entry comes from memory together with its front.
        const IniEntry& entry = At(ref);
        __builtin_prefetch(entry.Units() + 32);
        __builtin_prefetch(entry.Units() + 64);
        return units::equal(entry.Key(), key) && isSection(entry.m_nSection);
    });
}

template <class Key>
std::size_t CIniStore::SlotOf(const CKeyTable& section, const Key& key, std::uint32_t hash) const
{
    return SlotOf(key, hash, [&](Ref ref) { return ref == section.m_nSection; });
}

CKeyTable* CIniStore::Find(units::asked name) const { return FindSection(name, units::hash(name)); }

const IniEntry* CIniStore::Find(const CKeyTable& section, units::asked key) const
{
    if (m_nEntries == 0)
        return nullptr;
    const std::size_t slot = SlotOf(section, key, HashOf(section.m_nHash, units::hash(key)));
    return m_table.IsFree(slot) ? nullptr : &At(m_table.At(slot));
}

const IniEntry* CIniStore::Find(units::asked name, units::asked key, CKeyTable*& table) const
{
    const std::uint32_t nameHash = units::hash(name);
    if (m_nEntries != 0)
    {
        const std::size_t slot = SlotOf(key, HashOf(nameHash, units::hash(key)), [&](Ref ref) {
            table = &SectionAt(ref);
            return units::equal(table->Name(), name);
        });
        if (!m_table.IsFree(slot))
            return &At(m_table.At(slot));
    }
    table = FindSection(name, nameHash);
    return nullptr;
}

std::vector<const IniEntry*> CIniStore::ListEntries(const CKeyTable& section) const
{
    std::vector<const IniEntry*> list;
    list.reserve(section.m_entries.count);
    ForEach(section.m_entries, [&list](const IniEntry& entry, Ref) { list.push_back(&entry); });
    return list;
}

void CIniStore::Set(CKeyTable& section, const units::view& key, const units::view& value)
{
    Reserve(m_nEntries + 1);
    const std::uint32_t hash = HashOf(section.m_nHash, units::hash(key));
    std::size_t slot = SlotOf(section, key, hash);
    IniEntry* const old = m_table.IsFree(slot) ? nullptr : &At(m_table.At(slot));
    Entries& entries = section.m_entries;
    if (old)
    {
        // Written into the old place where it fits: a value that changes often takes no more memory.
        const std::size_t before = old->GetTextSize();
        if (old->Assign(value))
        {
            entries.textSize -= before - old->GetTextSize();
            return;
        }
    }
    const Ref ref = Write(m_texts, section.m_nSection, key, value);
    if (!m_table.HasRoomFor(ref))
    {
        Index(2 * m_nEntries);
        slot = SlotOf(section, key, hash);
    }
    m_table.Put(slot, hash, ref);
    if (old)
        Drop(entries, *old);
    else
        ++m_nEntries;
    Link(m_texts, entries, ref);
    section.m_arrOrder.clear();
}

CIniStore::Ref CIniStore::Write(CRecordArena& texts, Ref section, const units::view& key,
                                const units::view& value)
{
    Ref ref;
    const std::size_t size = sizeof(IniEntry) + (key.size() + value.size()) * sizeof(char16_t);
    new (texts.Take(CRecordArena::RoundUp(size), ref)) IniEntry(section, key, value);
    return ref;
}

void CIniStore::Link(CRecordArena& texts, Entries& entries, Ref ref)
{
    const auto at = [&texts](Ref r) -> IniEntry& { return *reinterpret_cast<IniEntry*>(texts.At(r)); };
    (entries.last == IniEntry::kNone ? entries.first : at(entries.last).m_nNext) = ref;
    entries.last = ref;
    ++entries.count;
    entries.textSize += at(ref).GetTextSize();
}

void CIniStore::Drop(Entries& entries, IniEntry& entry)
{
    --entries.count;
    entries.textSize -= entry.GetTextSize();
    entry.m_nSection = IniEntry::kNone;
}

void CIniStore::Reserve(std::size_t count)
{
    if (!m_table.HasRoom(count))
        Index(std::max(count, 2 * m_nEntries));
}

/// Makes room for \p count entries.
void CIniStore::Index(std::size_t count)
{
    m_table.Reset(count, m_texts.GetMost());
    FillTable();
}

void CIniStore::FillTable()
{
    for (const Section& section : m_arrSection)
        ForEach(section->m_entries, [&](const IniEntry& entry, Ref ref) {
            m_table.Add(HashOf(section->m_nHash, units::hash(entry.Key())), ref);
        });
}

CIniStore::Entries CIniStore::CopyEntries(const CKeyTable& from, CRecordArena& texts, Ref section) const
{
    Entries copies;
    ForEach(from.m_entries, [&](const IniEntry& entry, Ref) {
        Link(texts, copies, Write(texts, section, entry.Key(), entry.Value()));
    });
    return copies;
}

std::size_t CIniStore::GetLiveSize() const
{
    std::size_t size = m_nEntries * sizeof(IniEntry);
    for (const Section& section : m_arrSection)
        size += section->m_entries.textSize * sizeof(char16_t);
    return size;
}

void CIniStore::Tidy()
{
    if (m_texts.GetMemory() < m_nTidyAt)
        return;
    if (GetLiveSize() < m_texts.GetMemory() / 2)
        MoveTogether();
    m_nTidyAt = std::max(kTidyLeast, 2 * m_texts.GetMemory());
}

void CIniStore::MoveTogether()
{
    CRecordArena texts;
    std::vector<Entries> moved;
    moved.reserve(m_arrSection.size());
    for (const Section& section : m_arrSection)
        moved.push_back(CopyEntries(*section, texts, section->m_nSection));
    m_table.Reset(m_nEntries + 1, texts.GetMost());
    // Nothing fails from here on.
    m_texts = std::move(texts);
    for (std::size_t i = 0; i < moved.size(); ++i)
    {
        m_arrSection[i]->m_entries = moved[i];
        m_arrSection[i]->m_arrOrder.clear();
    }
    FillTable();
}

std::string CIniStore::Serialize() const
{
    constexpr units::view kMark = u"\uFEFF", kOpen = u"[", kClose = u"]\r\n", kIs = u" = \"",
                          kEnd = u"\"\r\n", kBlank = u"\r\n";
    std::size_t size = kMark.size();
    for (const Section& table : m_arrSection)
        size += table->m_entries.textSize + table->m_nName + kOpen.size() + kClose.size() + kBlank.size() +
                table->m_entries.count * (kIs.size() + kEnd.size());
    std::string bytes(size * sizeof(char16_t), '\0');
    char* out = units::put(bytes.data(), kMark);
    for (std::size_t s = 0; s < m_arrSection.size(); ++s)
    {
        const CKeyTable& table = Sorted(s);
        out = units::put(units::put(units::put(out, kOpen), table.Name()), kClose);
        for (std::size_t i = 0; i < static_cast<std::size_t>(table.GetCount()); ++i)
        {
            const IniEntry& entry = table.Sorted(i);
            out = units::put(units::put(units::put(units::put(out, entry.Key()), kIs), entry.Value()), kEnd);
        }
        out = units::put(out, kBlank);
    }
    return bytes;
}
