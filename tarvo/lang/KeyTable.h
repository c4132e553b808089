#pragma once

#include "tarvo/export.h"
#include "tarvo/lang/EntryBlock.h"
#include "tarvo/text/TextArena.h"
#include "tarvo/text/Units.h"

#include <cstdint>
#include <vector>

/// The keys and values of one section, as XIni::GetSection hands them out. It belongs to its document and
/// stays at its address until the document is cleared. Keys are compared exactly, with letter case.
class TARVO_API CKeyTable
{
public:
    CKeyTable(units::view name, CTextArena& texts) : m_block(name), m_pTexts(&texts) {}
    CKeyTable(const CKeyTable&) = delete;
    CKeyTable& operator=(const CKeyTable&) = delete;

    CString GetName() const { return units::to_string(Name()); }
    int GetCount() const { return static_cast<int>(m_block.GetCount()); }
    /// 1 and the value of \p key, or 0 with \p value as it was.
    int Lookup(const wchar_t* key, CString& value) const;
    /// Key and value number \p index, 0 to GetCount() - 1, in the ordinal order of the keys.
    void GetAt(int index, CString& key, CString& value) const;
    /// Inserts \p key or gives it a new value.
    void SetAt(const wchar_t* key, const wchar_t* value);

    /// The same over units. What Name, Find and Sorted give is valid until the next change.
    units::view Name() const { return m_block.GetName(); }
    const IniEntry* Find(units::view key) const;
    const IniEntry& Sorted(std::size_t index) const;
    void Set(units::view key, units::view value);
    /// An entry in this document's arena, which is to be merged.
    IniEntry MakeEntry(units::view key, units::view value) { return {*m_pTexts, key, value}; }
    /// Takes entries in; the last of several with one key wins.
    void Merge(const std::vector<IniEntry>& entries);
    /// Units of all keys and values.
    std::size_t GetTextSize() const { return m_nTextSize; }
    /// Units that the entries take in the arena.
    std::size_t GetSize() const { return m_nTextSize + m_block.GetCount() * IniEntry::kHead; }
    /// Takes over the entries of another document's table; MoveTexts has to follow.
    void CopyEntries(const CKeyTable& source);
    /// Moves every entry to \p room, which has GetSize() units, and returns what lies behind them.
    char16_t* MoveTexts(char16_t* room);

private:
    IniEntry* Find(units::view key, std::uint32_t hash);
    void Insert(IniEntry entry, std::uint32_t hash);
    void Index(std::size_t slots);

    CEntryBlock m_block;
    CTextArena* m_pTexts;
    std::size_t m_nTextSize = 0;
    /// Positions plus one by hash, open addressing; only sections of more than kShort keys have it.
    std::vector<std::uint32_t> m_arrSlot;
    /// Positions in the order of the keys, made when asked for; shorter than the block when out of date.
    mutable std::vector<std::uint32_t> m_arrOrder;
};
