#include "tarvo/settings/HostProfile.h"

#include <afxwin.h>

namespace HostProfile
{
bool GetIdentity(CString& company, CString& profileName)
{
    const CWinApp* pApp = AfxGetApp();
    if (!pApp)
        return false;
    company = pApp->m_pszRegistryKey;
    profileName = pApp->m_pszProfileName;
    return true;
}

bool ReadInt(const wchar_t* section, const wchar_t* entry, int& value)
{
    CWinApp* pApp = AfxGetApp();
    if (pApp)
        value = static_cast<int>(pApp->GetProfileInt(section, entry, value));
    return pApp != nullptr;
}

bool ReadText(const wchar_t* section, const wchar_t* entry, const wchar_t* defaultText, CString& value)
{
    CWinApp* pApp = AfxGetApp();
    if (pApp)
        value = pApp->GetProfileString(section, entry, defaultText);
    return pApp != nullptr;
}

bool WriteInt(const wchar_t* section, const wchar_t* entry, int nValue)
{
    CWinApp* pApp = AfxGetApp();
    return pApp && pApp->WriteProfileInt(section, entry, nValue);
}

bool WriteText(const wchar_t* section, const wchar_t* entry, const wchar_t* text)
{
    CWinApp* pApp = AfxGetApp();
    return pApp && pApp->WriteProfileString(section, entry, text);
}
} // namespace HostProfile
