#pragma once

#include "tarvo/lang/XIni.h"
#include "tests/support/print.h"

#include <string>

/// "[section] key=value; key=value; [next] ..." in the document's order.
inline std::wstring dump(const XIni& ini)
{
    std::wstring text;
    for (int i = 0; i < ini.GetSectionCount(); ++i)
    {
        const CKeyTable& table = ini.GetSectionAt(i);
        text += (text.empty() ? L"[" : L" [") + std::wstring(table.GetName()) + L"]";
        CString key, value;
        for (int k = 0; k < table.GetCount(); ++k)
        {
            table.GetAt(k, key, value);
            text += L" " + std::wstring(key) + L"=" + std::wstring(value) + L";";
        }
    }
    return text;
}

inline int parse(XIni& ini, const std::wstring& text)
{
    return ini.OpenMemory(text.c_str(), static_cast<int>(text.size()));
}

inline int parse_bytes(XIni& ini, const std::string& bytes)
{
    return ini.OpenMemory(reinterpret_cast<const unsigned char*>(bytes.data()),
                          static_cast<int>(bytes.size()));
}
