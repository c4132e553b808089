#include "tarvo/settings/HostApp.h"

#include "tarvo/settings/HostProfile.h"
#include "tarvo/settings/Registry.h"

namespace
{
struct Registered
{
    bool bThere = false;
    CString strCompany, strProfileName;
};

/// Made on first use: settings are read while the library is still being loaded.
Registered& GetRegistered()
{
    static Registered registered;
    return registered;
}

/// Where the framework keeps a section of the profile.
CString SectionPath(const wchar_t* section) { return CRegistry::GetRegistryAppPath(0) + L"\\" + section; }
} // namespace

void CHostApp::Register(const wchar_t* company, const wchar_t* profileName)
{
    Registered& registered = GetRegistered();
    registered.bThere = company != nullptr;
    registered.strCompany = company;
    registered.strProfileName = profileName;
}

bool CHostApp::GetIdentity(CString& company, CString& profileName)
{
    const Registered& registered = GetRegistered();
    if (registered.bThere)
    {
        company = registered.strCompany;
        profileName = registered.strProfileName;
        return true;
    }
    company.Empty();
    profileName.Empty();
    return HostProfile::GetIdentity(company, profileName);
}

int CHostApp::ReadInt(const wchar_t* section, const wchar_t* entry, int nDefault)
{
    int nValue = nDefault;
    if (GetRegistered().bThere)
        CRegistry::GetProfileIntW(SectionPath(section), entry, nValue);
    else
        HostProfile::ReadInt(section, entry, nValue);
    return nValue;
}

CString CHostApp::ReadText(const wchar_t* section, const wchar_t* entry, const wchar_t* defaultText)
{
    CString strValue(defaultText);
    if (GetRegistered().bThere)
        CRegistry::GetProfileStringW(SectionPath(section), entry, strValue);
    else
        HostProfile::ReadText(section, entry, defaultText, strValue);
    return strValue;
}

int CHostApp::WriteInt(const wchar_t* section, const wchar_t* entry, int nValue)
{
    if (GetRegistered().bThere)
        return CRegistry::WriteProfileInt(SectionPath(section), entry, nValue);
    return HostProfile::WriteInt(section, entry, nValue);
}

int CHostApp::WriteText(const wchar_t* section, const wchar_t* entry, const wchar_t* text)
{
    if (GetRegistered().bThere)
        return CRegistry::WriteProfileStringW(SectionPath(section), entry, text);
    return HostProfile::WriteText(section, entry, text);
}
