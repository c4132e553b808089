#include "tarvo/lang/IniEntry.h"

#include <algorithm>

IniEntry::IniEntry(CTextArena& texts, units::view key, units::view value)
    : m_p(texts.Add(kHead + key.size() + value.size()))
{
    SetLength(0, key.size());
    SetLength(1, value.size());
    std::copy(value.begin(), value.end(), std::copy(key.begin(), key.end(), m_p + kHead));
}

bool IniEntry::Assign(units::view value)
{
    if (value.size() > Length(1))
        return false;
    std::copy(value.begin(), value.end(), m_p + kHead + KeyLength());
    SetLength(1, value.size());
    return true;
}

char16_t* IniEntry::MoveTo(char16_t* room)
{
    char16_t* const end = std::copy_n(m_p, GetSize(), room);
    m_p = room;
    return end;
}
