#pragma once

#include "tarvo/lang/KeyTable.h"

#include <deque>
#include <string>

/// The sections of one INI document: found by exact name, listed in ordinal order, each at an address of
/// its own for as long as the store lives. The entries of all of them
/// share the memory of one arena, so loading allocates nothing for single keys.
class CIniStore
{
public:
    CIniStore() = default;
    CIniStore(const CIniStore& source);
    CIniStore& operator=(const CIniStore&) = delete;

    std::size_t GetCount() const { return m_arrSection.size(); }
    /// Number \p index in the order of the names.
    CKeyTable& Sorted(std::size_t index) const;
    CKeyTable* Find(units::view name) const;
    /// Makes the section when it is missing.
    CKeyTable& Make(units::view name);
    /// The section of this copy that stands for \p table of \p source, from which it was copied.
    CKeyTable* Twin(const CIniStore& source, const CKeyTable* table);

    /// Moves the entries together when most of their memory holds replaced ones. Not during a parse.
    void Tidy();

    /// The whole document as UTF-16LE with its mark, sections and keys in order.
    std::string Serialize() const;

private:
    struct Slot
    {
        std::uint32_t hash;
        CKeyTable* table; ///< null in a free slot
    };

    std::size_t GetSize() const;
    void Index(std::size_t slots);
    Slot& Place(std::uint32_t hash);

    static constexpr std::size_t kTidyLeast = 65536;

    CTextArena m_texts;
    std::size_t m_nTidyAt = kTidyLeast; ///< units in m_texts from which a look at their use is due
    mutable std::deque<CKeyTable> m_arrSection;
    std::vector<Slot> m_arrSlot;
    mutable std::vector<std::uint32_t> m_arrOrder;
};
