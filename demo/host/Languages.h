#pragma once
#include <afxstr.h>

#include <array>
#include <optional>
#include <string>

/// One language of the product: its name in English, under which it is asked for, its name in itself,
/// where its files lie and the code page of those that are 8-bit text.
struct DemoLanguage
{
    const wchar_t* name;
    const wchar_t* ownName;
    const wchar_t* folder;
    const wchar_t* suffix;
    int codePage;
};

/// By language number, 0 to 5.
extern const std::array<DemoLanguage, 6> kLanguages;
inline constexpr int kEnglish = 0;
inline constexpr int kGlobal = 5;

/// The number of the language with this name, in any letter case; nothing when there is none.
std::optional<int> find_language(const std::wstring& name);

/// Where a module's texts in one language lie: <program folder>\Language\<folder>\ctrl_<project><suffix>.ini.
CString language_file(const CString& programFolder, const CString& project, int language);
