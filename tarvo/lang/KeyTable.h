#pragma once

#include "tarvo/export.h"
#include "tarvo/text/TextArena.h"
#include "tarvo/text/Units.h"

#include <cstdint>
#include <vector>

/// One key of a section with its value; both texts live in the document's arena.
struct IniEntry
{
    const char16_t* key;
    const char16_t* value;
    std::uint32_t keyLength;
    std::uint32_t valueLength;

    units::view Key() const { return {key, keyLength}; }
    units::view Value() const { return {value, valueLength}; }
};

/// The keys and values of one section, as XIni::GetSection hands them out. It belongs to its document and
/// stays at its address until the document is cleared. Keys are compared exactly, with letter case.
class TARVO_API CKeyTable
{
public:
    CKeyTable(units::view name, CTextArena& texts) : m_strName(name), m_pTexts(&texts) {}
    CKeyTable(const CKeyTable&) = delete;
    CKeyTable& operator=(const CKeyTable&) = delete;

    CString GetName() const { return units::to_string(m_strName); }
    int GetCount() const { return static_cast<int>(m_arrEntry.size()); }
    /// 1 and the value of \p key, or 0 with \p value as it was.
    int Lookup(const wchar_t* key, CString& value) const;
    /// Key and value number \p index, 0 to GetCount() - 1, in the ordinal order of the keys.
    void GetAt(int index, CString& key, CString& value) const;
    /// Inserts \p key or gives it a new value.
    void SetAt(const wchar_t* key, const wchar_t* value);

    /// The same over units. What Name, Find and Sorted give is valid until the next change.
    units::view Name() const { return m_strName; }
    const IniEntry* Find(units::view key) const;
    const IniEntry& Sorted(std::size_t index) const;
    void Set(units::view key, units::view value);
    /// Inserts entries whose texts are in the arena already; the last of several with one key wins.
    void Merge(const std::vector<IniEntry>& entries);
    /// Units that keys and values take.
    std::size_t GetTextSize() const { return m_nTextSize; }
    /// Takes over the entries of another document's table; MoveTexts has to follow.
    void CopyEntries(const CKeyTable& source);
    /// Moves every text to \p room, which has GetTextSize units, and returns what lies behind them.
    char16_t* MoveTexts(char16_t* room);

private:
    IniEntry* Find(units::view key, std::uint32_t hash);
    void Insert(const IniEntry& entry, std::uint32_t hash);
    void Assign(IniEntry& entry, units::view value);
    void Index(std::size_t slots);

    // What a look-up in a short section reads stands first, in one line of the processor's cache.
    alignas(64) units::view m_strName;
    /// 16 bits of each key's hash: a short section is searched by running over these.
    std::vector<char16_t> m_arrTag;
    std::vector<IniEntry> m_arrEntry;
    CTextArena* m_pTexts;
    /// Positions plus one by hash, open addressing; only sections of more than kShort keys have it.
    std::vector<std::uint32_t> m_arrSlot;
    /// Positions in the order of the keys, made when asked for; shorter than m_arrEntry when out of date.
    mutable std::vector<std::uint32_t> m_arrOrder;
    std::size_t m_nTextSize = 0;
};
