#include "tarvo/intl/InternationalUtil.h"

#include "tarvo/intl/FontRules.h"
#include "tarvo/msg/MSGFunction.h"

#include "qlx/qlx_lib.h"

namespace
{
constexpr wchar_t kGulim[] = L"\xAD74\xB9BC";

/// A setting's text, empty when it is missing.
CString Setting(const wchar_t* name)
{
    const CString path = L"HKEY_CURRENT_USER\\" + qlx::lib::MRegistry::MyGetRegistryKey() + L"ENV_GENERAL";
    CString text;
    qlx::lib::MRegistry::MyGetProfileString(path, name, text);
    return text;
}

CString FaceSetting(const wchar_t* name)
{
    const CString face = Setting(name);
    return face.IsEmpty() ? CString(kGulim) : face;
}
} // namespace

CString CInternationalUtil::GetDlgFontName() { return FaceSetting(L"DlgFontName_Std"); }

int CInternationalUtil::GetDlgFontSize() { return FontRules::ToSize(Setting(L"DlgFontSize_Std")); }

CString CInternationalUtil::GetDlgTextFontName()
{
    CString face = FaceSetting(L"DlgFontName_Eng");
    face = CMSGFunction::GetFont(); // the catalogue has the last word: its face has the language's letters
    return face;
}

int CInternationalUtil::GetDlgTextFontSize() { return FontRules::ToTextSize(Setting(L"DlgFontSize_Eng")); }
