#pragma once

#include "tarvo/export.h"
#include "tarvo/lang/IniEntry.h"
#include "tarvo/text/Units.h"

#include <cstdint>
#include <vector>

class CIniStore;

/// The keys and values of one section, as XIni::GetSection hands them out. It belongs to its document and
/// stays at its address until the document is cleared. Keys are compared exactly, with letter case.
class TARVO_API CKeyTable
{
public:
    CKeyTable(const CKeyTable&) = delete;
    CKeyTable& operator=(const CKeyTable&) = delete;

    CString GetName() const { return units::to_string(Name()); }
    int GetCount() const { return static_cast<int>(m_entries.count); }
    /// 1 and the value of \p key, or 0 with \p value as it was.
    int Lookup(const wchar_t* key, CString& value) const;
    /// Key and value number \p index, 0 to GetCount() - 1, in the ordinal order of the keys.
    void GetAt(int index, CString& key, CString& value) const;
    /// Inserts \p key or gives it a new value.
    void SetAt(const wchar_t* key, const wchar_t* value);

    /// The same over units. What Name, Find and Sorted give is valid until the next change.
    units::view Name() const { return {reinterpret_cast<const char16_t*>(this + 1), m_nName}; }
    const IniEntry* Find(units::asked key) const;
    const IniEntry& Sorted(std::size_t index) const;
    void Set(units::view key, units::view value);

private:
    friend class CIniStore;

    /// A chain through IniEntry::m_nNext in the order of adding, those that were replaced among them.
    struct Entries
    {
        IniEntry::Ref first = IniEntry::kNone;
        IniEntry::Ref last = IniEntry::kNone;
        std::uint32_t count = 0;  ///< without those that were replaced
        std::size_t textSize = 0; ///< units of the keys and values of these
    };

    /// The name's units have to be put behind the table.
    CKeyTable(CIniStore& store, IniEntry::Ref section, units::view name)
        : m_pStore(&store), m_nSection(section), m_nHash(units::hash(name)),
          m_nName(static_cast<std::uint32_t>(name.size()))
    {
    }

    CIniStore* m_pStore;
    IniEntry::Ref m_nSection; ///< what its entries name it by
    std::uint32_t m_nHash;    ///< of the name
    std::uint32_t m_nName;
    Entries m_entries;
    /// In the order of the keys, made when asked for; empty when out of date.
    mutable std::vector<const IniEntry*> m_arrOrder;
};
