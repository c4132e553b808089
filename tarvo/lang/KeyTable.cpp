#include "tarvo/lang/KeyTable.h"

#include "tarvo/lang/IniStore.h"

#include <algorithm>

int CKeyTable::Lookup(const wchar_t* key, CString& value) const
{
    const IniEntry* entry = Find(units::ask(key));
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

const IniEntry* CKeyTable::Find(units::asked key) const { return m_pStore->Find(*this, key); }

void CKeyTable::Set(units::view key, units::view value) { m_pStore->Set(*this, key, value); }

const IniEntry& CKeyTable::Sorted(std::size_t index) const
{
    if (m_arrOrder.empty())
    {
        m_arrOrder = m_pStore->ListEntries(*this);
        std::sort(m_arrOrder.begin(), m_arrOrder.end(), [](const IniEntry* a, const IniEntry* b) {
            return units::compare(a->Key(), b->Key()) < 0;
        });
    }
    return *m_arrOrder[index];
}
