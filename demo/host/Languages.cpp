#include "demo/host/Languages.h"

#include <cwchar>

const std::array<DemoLanguage, 6> kLanguages{{
    {L"English", L"English", L"English", L"_us", 1252},
    {L"Korean", L"한국어", L"Korean", L"_kr", 949},
    {L"Japanese", L"日本語", L"Japanese", L"_jp", 932},
    {L"Chinese", L"简体中文", L"Chinese", L"_ch", 936},
    {L"Russian", L"Русский", L"Russia", L"_rus", 1251},
    {L"Global", L"Global", L"Global", L"_gb", 1252},
}};

std::optional<int> find_language(const std::wstring& name)
{
    for (std::size_t i = 0; i < kLanguages.size(); ++i)
    {
        if (_wcsicmp(kLanguages[i].name, name.c_str()) == 0)
            return static_cast<int>(i);
    }
    return std::nullopt;
}

CString language_file(const CString& programFolder, const CString& project, int language)
{
    const DemoLanguage& entry = kLanguages.at(static_cast<std::size_t>(language));
    return programFolder + L"\\Language\\" + entry.folder + L"\\ctrl_" + project + entry.suffix + L".ini";
}
