#pragma once

#include "tarvo/lang/KeyTable.h"
#include "tarvo/text/RecordArena.h"
#include "tarvo/text/RefTable.h"

#include <memory>
#include <string>
#include <vector>

/// The sections and entries of one INI document. A section is found by its exact name and stays at an
/// address of its own for as long as the store lives. One table finds the entries of all sections, by the
/// hashes of both names: a look-up waits for a slot and for the entry, which names its section, and loading
/// allocates nothing for single keys or sections.
class CIniStore
{
public:
    CIniStore() = default;
    CIniStore(const CIniStore& source);
    CIniStore& operator=(const CIniStore&) = delete;

    std::size_t GetCount() const { return m_arrSection.size(); }
    /// Of all sections.
    std::size_t GetEntryCount() const { return m_nEntries; }
    /// Number \p index in the order of the names.
    CKeyTable& Sorted(std::size_t index) const;
    CKeyTable* Find(units::asked name) const;
    /// Makes the section when it is missing.
    CKeyTable& Make(units::view name);

    /// Null when it is missing.
    const IniEntry* Find(const CKeyTable& section, units::asked key) const;
    /// The same by the section's name; \p table is the section, null when it is missing.
    const IniEntry* Find(units::asked name, units::asked key, CKeyTable*& table) const;
    /// In the order of adding.
    std::vector<const IniEntry*> ListEntries(const CKeyTable& section) const;

    void Set(CKeyTable& section, const units::view& key, const units::view& value);
    /// Makes room for \p count entries in all, for which Set then does no more than it must.
    void Reserve(std::size_t count);
    /// Moves the entries together when most of their memory holds replaced ones.
    void Tidy();

    /// The whole document as UTF-16LE with its mark, sections and keys in order.
    std::string Serialize() const;

private:
    using Ref = IniEntry::Ref;
    using Entries = CKeyTable::Entries;
    struct Destroy
    {
        void operator()(CKeyTable* table) const { table->~CKeyTable(); }
    };
    using Section = std::unique_ptr<CKeyTable, Destroy>;

    CKeyTable& SectionAt(Ref ref) const { return *reinterpret_cast<CKeyTable*>(m_names.At(ref)); }
    template <class Name>
    CKeyTable* FindSection(const Name& name, std::uint32_t hash) const;
    IniEntry& At(Ref ref) const { return *reinterpret_cast<IniEntry*>(m_texts.At(ref)); }
    /// The slot of a key's entry, or the free one where it belongs.
    template <class Key, class IsSection>
    std::size_t SlotOf(const Key& key, std::uint32_t hash, IsSection isSection) const;
    template <class Key>
    std::size_t SlotOf(const CKeyTable& section, const Key& key, std::uint32_t hash) const;
    /// Calls visit(entry, ref) for each that was not replaced.
    template <class Visit>
    void ForEach(const Entries& entries, Visit visit) const;
    static Ref Write(CRecordArena& texts, Ref section, const units::view& key, const units::view& value);
    static void Link(CRecordArena& texts, Entries& entries, Ref ref);
    static void Drop(Entries& entries, IniEntry& entry);
    Entries CopyEntries(const CKeyTable& from, CRecordArena& texts, Ref section) const;
    void Index(std::size_t count);
    void FillTable();
    std::size_t GetLiveSize() const;
    void MoveTogether();

    static constexpr std::size_t kTidyLeast = std::size_t{128} << 10;

    CRecordArena m_names; ///< the sections, each with its name behind it
    CRecordArena m_texts; ///< the entries
    CRefTable m_sections;
    CRefTable m_table;
    std::size_t m_nEntries = 0;
    std::size_t m_nTidyAt = kTidyLeast; ///< bytes in m_texts from which a look at their use is due
    mutable std::vector<Section> m_arrSection;
    mutable bool m_bSorted = true; ///< by name
};
