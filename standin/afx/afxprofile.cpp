#include "afxapp.h"
#include "platform/handles.h"

#include <cstdlib>
#include <memory>

/// The application's settings: values of HKEY_CURRENT_USER\Software\<key>\<profile>\<section>, or lines of
/// an INI file.

namespace
{
struct KeyCloser
{
    using pointer = HKEY;
    void operator()(HKEY hKey) const { ::RegCloseKey(hKey); }
};
using unique_key = std::unique_ptr<HKEY, KeyCloser>;

HKEY CreateKey(HKEY hParent, LPCTSTR lpszName)
{
    HKEY hKey = nullptr;
    const LSTATUS status = ::RegCreateKeyExW(hParent, lpszName, 0, nullptr, REG_OPTION_NON_VOLATILE,
                                             KEY_READ | KEY_WRITE, nullptr, &hKey, nullptr);
    return status == ERROR_SUCCESS ? hKey : nullptr;
}

/// The bytes of a value whose type is \p dwWanted; false when it is absent or of another type.
bool ReadValue(HKEY hKey, LPCTSTR lpszEntry, DWORD dwWanted, std::unique_ptr<BYTE[]>& data, DWORD& dwCount)
{
    DWORD dwType = 0;
    if (!hKey || ::RegQueryValueExW(hKey, lpszEntry, nullptr, &dwType, nullptr, &dwCount) != ERROR_SUCCESS ||
        dwType != dwWanted)
        return false;
    data = std::make_unique<BYTE[]>(dwCount + sizeof(WCHAR));
    return ::RegQueryValueExW(hKey, lpszEntry, nullptr, &dwType, data.get(), &dwCount) == ERROR_SUCCESS;
}

BOOL WriteValue(HKEY hKey, LPCTSTR lpszEntry, DWORD dwType, const void* pData, DWORD dwCount)
{
    return hKey && ::RegSetValueExW(hKey, lpszEntry, 0, dwType, static_cast<const BYTE*>(pData), dwCount) ==
                       ERROR_SUCCESS;
}

/// GetPrivateProfileString tells a cut text only by its length.
CString ReadIniText(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszDefault, LPCTSTR lpszFile)
{
    CString strValue;
    for (DWORD dwRoom = 1024;; dwRoom *= 2)
    {
        const DWORD dwLength =
            ::GetPrivateProfileStringW(lpszSection, lpszEntry, lpszDefault ? lpszDefault : L"",
                                       strValue.GetBuffer(static_cast<int>(dwRoom)), dwRoom, lpszFile);
        strValue.ReleaseBufferSetLength(static_cast<int>(dwLength));
        if (dwLength < dwRoom - 1 || dwRoom > 0x100000)
            return strValue;
    }
}
} // namespace

void CWinApp::SetRegistryKey(LPCTSTR lpszRegistryKey)
{
    std::free(const_cast<LPTSTR>(m_pszRegistryKey));
    m_pszRegistryKey = ::_wcsdup(lpszRegistryKey);
    std::free(const_cast<LPTSTR>(m_pszProfileName));
    m_pszProfileName = ::_wcsdup(m_pszAppName ? m_pszAppName : L"");
}

void CWinApp::SetRegistryKey(UINT nIDRegistryKey)
{
    CString strKey;
    if (strKey.LoadString(nIDRegistryKey))
        SetRegistryKey(strKey.GetString());
}

HKEY CWinApp::GetAppRegistryKey()
{
    if (!m_pszRegistryKey || !m_pszProfileName)
        return nullptr;
    CString strPath;
    strPath.Format(L"Software\\%s\\%s", m_pszRegistryKey, m_pszProfileName);
    return CreateKey(HKEY_CURRENT_USER, strPath);
}

HKEY CWinApp::GetSectionKey(LPCTSTR lpszSection)
{
    const unique_key app(GetAppRegistryKey());
    return app ? CreateKey(app.get(), lpszSection) : nullptr;
}

UINT CWinApp::GetProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nDefault)
{
    if (!m_pszRegistryKey)
        return ::GetPrivateProfileIntW(lpszSection, lpszEntry, nDefault, m_pszProfileName);
    const unique_key section(GetSectionKey(lpszSection));
    std::unique_ptr<BYTE[]> data;
    DWORD dwCount = 0;
    if (!ReadValue(section.get(), lpszEntry, REG_DWORD, data, dwCount) || dwCount != sizeof(DWORD))
        return static_cast<UINT>(nDefault);
    return *reinterpret_cast<const DWORD*>(data.get());
}

CString CWinApp::GetProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszDefault)
{
    if (!m_pszRegistryKey)
        return ReadIniText(lpszSection, lpszEntry, lpszDefault, m_pszProfileName);
    const unique_key section(GetSectionKey(lpszSection));
    std::unique_ptr<BYTE[]> data;
    DWORD dwCount = 0;
    if (!ReadValue(section.get(), lpszEntry, REG_SZ, data, dwCount))
        return CString(lpszDefault);
    reinterpret_cast<WCHAR*>(data.get())[dwCount / sizeof(WCHAR)] = 0; // stored texts need not end with one
    return CString(reinterpret_cast<const WCHAR*>(data.get()));
}

BOOL CWinApp::GetProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE* ppData, UINT* pBytes)
{
    *ppData = nullptr;
    *pBytes = 0;
    if (m_pszRegistryKey)
    {
        const unique_key section(GetSectionKey(lpszSection));
        std::unique_ptr<BYTE[]> data;
        DWORD dwCount = 0;
        if (!ReadValue(section.get(), lpszEntry, REG_BINARY, data, dwCount))
            return FALSE;
        *ppData = data.release();
        *pBytes = dwCount;
        return TRUE;
    }
    // In the file each byte is two letters from A, the low half first.
    const CString strText = GetProfileString(lpszSection, lpszEntry);
    if (strText.IsEmpty() || strText.GetLength() % 2 != 0)
        return FALSE;
    const int nCount = strText.GetLength() / 2;
    auto data = std::make_unique<BYTE[]>(static_cast<size_t>(nCount));
    for (int i = 0; i < nCount; ++i)
        data[static_cast<size_t>(i)] =
            static_cast<BYTE>(((strText[2 * i + 1] - L'A') << 4) + (strText[2 * i] - L'A'));
    *ppData = data.release();
    *pBytes = static_cast<UINT>(nCount);
    return TRUE;
}

BOOL CWinApp::WriteProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nValue)
{
    if (m_pszRegistryKey)
        return WriteValue(unique_key(GetSectionKey(lpszSection)).get(), lpszEntry, REG_DWORD, &nValue,
                          sizeof(nValue));
    CString strValue;
    strValue.Format(L"%d", nValue);
    return ::WritePrivateProfileStringW(lpszSection, lpszEntry, strValue, m_pszProfileName);
}

BOOL CWinApp::WriteProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszValue)
{
    if (!m_pszRegistryKey)
        return ::WritePrivateProfileStringW(lpszSection, lpszEntry, lpszValue, m_pszProfileName);
    if (!lpszEntry)
    {
        const unique_key app(GetAppRegistryKey());
        return app && ::RegDeleteTreeW(app.get(), lpszSection) == ERROR_SUCCESS;
    }
    const unique_key section(GetSectionKey(lpszSection));
    if (!lpszValue)
        return section && ::RegDeleteValueW(section.get(), lpszEntry) == ERROR_SUCCESS;
    return WriteValue(section.get(), lpszEntry, REG_SZ, lpszValue,
                      static_cast<DWORD>((::wcslen(lpszValue) + 1) * sizeof(WCHAR)));
}

BOOL CWinApp::WriteProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE pData, UINT nBytes)
{
    if (m_pszRegistryKey)
        return WriteValue(unique_key(GetSectionKey(lpszSection)).get(), lpszEntry, REG_BINARY, pData, nBytes);
    CString strText;
    for (UINT i = 0; i < nBytes; ++i)
    {
        strText.AppendChar(static_cast<WCHAR>(L'A' + (pData[i] & 0x0F)));
        strText.AppendChar(static_cast<WCHAR>(L'A' + (pData[i] >> 4)));
    }
    return WriteProfileString(lpszSection, lpszEntry, strText);
}
