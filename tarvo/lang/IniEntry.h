#pragma once

#include "tarvo/text/RecordArena.h"
#include "tarvo/text/Units.h"

#include <cstdint>

/// One key of a section with its value: the units of both stand behind it in the document's memory, so that
/// what a look-up finds is in one place.
class IniEntry
{
public:
    using Ref = CRecordArena::Ref;
    static constexpr Ref kNone = 0xFFFFFFFF;

    units::view Key() const { return {Units(), m_nKey}; }
    units::view Value() const { return {Units() + m_nKey, m_nValue}; }
    /// Units of key and value.
    std::size_t GetTextSize() const { return std::size_t{m_nKey} + m_nValue; }

private:
    friend class CIniStore;

    IniEntry(Ref section, const units::view& key, const units::view& value)
        : m_nSection(section), m_nKey(static_cast<std::uint32_t>(key.size())),
          m_nValue(static_cast<std::uint32_t>(value.size()))
    {
        units::copy(value, units::copy(key, Units()));
    }
    char16_t* Units() const { return reinterpret_cast<char16_t*>(const_cast<IniEntry*>(this) + 1); }
    /// Writes \p value over the old one; false, and nothing done, when it is longer than that.
    bool Assign(const units::view& value)
    {
        if (value.size() > m_nValue)
            return false;
        units::copy(value, Units() + m_nKey);
        m_nValue = static_cast<std::uint32_t>(value.size());
        return true;
    }

    Ref m_nSection;      ///< kNone when another entry has the key now
    Ref m_nNext = kNone; ///< the next one of the section
    std::uint32_t m_nKey;
    std::uint32_t m_nValue;
};
