#pragma once

#include "tarvo/lang/XIni.h"

#include <map>
#include <string>

/// What a document holds, by a reader of its own that is as plain as the rules: one string per step.
using IniModel = std::map<std::wstring, std::map<std::wstring, std::wstring>>;

inline std::wstring model_trim(std::wstring text)
{
    const wchar_t* const kSpace =
        L"\t\n\v\f\r \x85\xA0\x1680\x2000\x2001\x2002\x2003\x2004\x2005\x2006\x2007\x2008"
        L"\x2009\x200A\x2028\x2029\x202F\x205F\x3000";
    text.erase(0, text.find_first_not_of(kSpace));
    text.erase(text.find_last_not_of(kSpace) + 1);
    return text;
}

inline void model_line(IniModel& model, std::map<std::wstring, std::wstring>*& section,
                       const std::wstring& line)
{
    if (line.empty())
        return;
    if (line[0] == L'[' && line[line.size() - 1] == L']')
    {
        const std::wstring name = line == L"[" ? L"" : model_trim(line.substr(1, line.size() - 2));
        section = name.empty() ? nullptr : &model[name];
        return;
    }
    if (line[0] == L';' || !section)
        return;
    std::wstring key = line.substr(0, line.find(L'='));
    if (key == line)
    {
        (*section)[line] = L"";
        return;
    }
    if (line[0] == L'[')
        return;
    if (key.find(L"/**/") != std::wstring::npos)
        key = key.substr(key.find(L"/**/") + 4);
    key = model_trim(key);
    const std::wstring field = line.substr(line.size() - (line.size() - key.size() - 1));
    // "No quote" is -1 in the rules, which npos is when one is added to it.
    const std::size_t first = field.find(L'"');
    std::size_t last = field.rfind(L'"');
    if (first == last)
        last = field.size();
    (*section)[key] = field.substr(first + 1, last - (first + 1));
}

inline IniModel model_of(std::wstring text)
{
    IniModel model;
    std::map<std::wstring, std::wstring>* section = nullptr;
    text = text.substr(0, text.find(L'\0')) + L"\n";
    for (std::size_t end; (end = text.find(L'\n')) != std::wstring::npos; text.erase(0, end + 1))
    {
        std::wstring line;
        for (std::size_t i = 0; i < end; ++i)
            if (text[i] != L'\r')
                line += text[i];
        model_line(model, section, model_trim(line));
    }
    return model;
}

/// The same from a document.
inline IniModel contents_of(const XIni& ini)
{
    IniModel model;
    for (int s = 0; s < ini.GetSectionCount(); ++s)
    {
        const CKeyTable& table = ini.GetSectionAt(s);
        auto& section = model[table.GetName().GetString()];
        CString key, value;
        for (int i = 0; i < table.GetCount(); ++i)
        {
            table.GetAt(i, key, value);
            section[key.GetString()] = value.GetString();
        }
    }
    return model;
}

/// Keys that a written line does not give back: it would be a comment, no data, or lose its front.
inline bool comes_back(const std::wstring& key)
{
    return key.empty() || (key[0] != L';' && key[0] != L'[' && key.find(L"/**/") == std::wstring::npos);
}

/// Takes out of \p model what a saved file cannot give back: such keys, and the keys that they become.
inline void drop_what_cannot_come_back(IniModel& model, IniModel& reread)
{
    for (auto& [name, section] : model)
        for (auto it = section.begin(); it != section.end();)
        {
            const std::wstring key = it->first;
            if (comes_back(key))
            {
                ++it;
                continue;
            }
            it = section.erase(it);
            const std::size_t marker = key.find(L"/**/");
            if (marker == std::wstring::npos)
                continue;
            const std::wstring tail = model_trim(key.substr(marker + 4));
            reread[name].erase(tail);
            if (section.erase(tail))
                it = section.begin();
        }
}
