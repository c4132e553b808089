#include "tarvo/intl/LocaleLib.h"

#include "platform/locale.h"
#include "tarvo/intl/LocaleRules.h"

#include <string>

namespace
{
constexpr const wchar_t* pszEnglish = L"0409";
constexpr const wchar_t* pszJapanese = L"0411";
constexpr const wchar_t* pszKorean = L"0412";
constexpr const wchar_t* pszRussian = L"0419";

struct LanguageRow
{
    unsigned short nId;
    const wchar_t* pszLanguage;
};

constexpr LanguageRow aUILanguages[] = {
    {1042, pszKorean},
    {1033, pszEnglish},
    {1041, pszJapanese},
    {1049, pszRussian},
};
} // namespace

namespace LocaleRules
{
CString UILanguage(unsigned short id, const CString& systemLocale)
{
    for (const LanguageRow& row : aUILanguages)
        if (row.nId == id)
            return row.pszLanguage;
    return systemLocale;
}

int IsKorean(const CString& language) { return language == pszKorean; }
} // namespace LocaleRules

// The order holds: the second depends on the first.
CString CLocaleLib::csLocale = CLocaleLib::GetSystemLocale();
int CLocaleLib::bKorean = LocaleRules::IsKorean(CLocaleLib::csLocale);
int CLocaleLib::bKoreanUILanguage = LocaleRules::IsKorean(CLocaleLib::GetUILanguage());

CString CLocaleLib::GetSystemLocale()
{
    const std::wstring language = platform::locale::system_language();
    return CString(language.c_str());
}

unsigned short CLocaleLib::GetUserDefaultUILanguage() { return platform::locale::user_interface_language(); }

CString CLocaleLib::GetUILanguage()
{
    return LocaleRules::UILanguage(GetUserDefaultUILanguage(), GetSystemLocale());
}

int CLocaleLib::IsEnglish() { return csLocale == pszEnglish; }
int CLocaleLib::IsJapanese() { return csLocale == pszJapanese; }
int CLocaleLib::IsKorean() { return LocaleRules::IsKorean(csLocale); }
int CLocaleLib::IsRussian() { return csLocale == pszRussian; }
