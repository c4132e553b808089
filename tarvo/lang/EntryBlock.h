#pragma once

#include "tarvo/export.h"
#include "tarvo/lang/IniEntry.h"
#include "tarvo/text/Units.h"

#include <cstdint>
#include <cstdlib>
#include <memory>

/// The name of a section, a tag of 16 bits for each key and the entries, one after the other in one piece
/// of memory: a look-up waits for this piece and for the entry it finds. Throws std::bad_alloc.
class TARVO_API CEntryBlock
{
public:
    explicit CEntryBlock(units::view name);

    units::view GetName() const { return {GetUnits(), m_nName}; }
    std::size_t GetCount() const { return m_nCount; }
    char16_t GetTag(std::size_t index) const { return GetTags()[index]; }
    /// A bit for each of the first 64 entries whose tag is \p tag.
    std::uint64_t FindTag(char16_t tag) const;
    /// Entry number \p index, 0 to GetCount() - 1, in the order of adding.
    IniEntry& operator[](std::size_t index) { return GetEntries()[index]; }
    const IniEntry& operator[](std::size_t index) const { return GetEntries()[index]; }

    /// Makes room for \p count entries at least.
    void Reserve(std::size_t count);
    void Add(IniEntry entry, char16_t tag);
    /// Takes over all entries of \p source; there must be none yet.
    void CopyEntries(const CEntryBlock& source);

private:
    struct Free
    {
        void operator()(char16_t* p) const { std::free(p); }
    };

    /// Tags are looked at in steps of this many, the last of them past their end.
    static constexpr std::size_t kStep = 16;

    static constexpr std::size_t RoundUp(std::size_t count, std::size_t to)
    {
        return (count + to - 1) / to * to;
    }
    /// Units before the entries of a block with room for \p count of them; whole words.
    std::size_t GetHead(std::size_t count) const { return RoundUp(m_nName, 4) + RoundUp(count, kStep); }
    char16_t* GetUnits() const { return m_pUnits.get(); }
    char16_t* GetTags() const { return GetUnits() + RoundUp(m_nName, 4); }
    IniEntry* GetEntries() const { return reinterpret_cast<IniEntry*>(GetUnits() + GetHead(m_nCapacity)); }

    std::unique_ptr<char16_t, Free> m_pUnits;
    std::size_t m_nName;
    std::size_t m_nCount = 0;
    std::size_t m_nCapacity = 0;
};
