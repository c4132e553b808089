#include "tarvo/settings/Registry.h"

#include "platform/codepage.h"
#include "platform/registry.h"
#include "tarvo/settings/HostApp.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>

namespace registry = platform::registry;

namespace
{
struct KeyCloser
{
    void operator()(HKEY hKey) const { registry::close(hKey); }
};
using CKey = std::unique_ptr<std::remove_pointer_t<HKEY>, KeyCloser>;

/// The component of \p path that begins at \p pos; pos then stands behind the backslash that ends it.
std::wstring NextComponent(std::wstring_view path, std::size_t& pos)
{
    const std::size_t end = path.find(L'\\', pos);
    std::wstring part(path.substr(pos, end - pos));
    pos = end + 1;
    return part;
}

CKey OpenKey(const wchar_t* path, int bReadOnly) { return CKey(CRegistry::GetRegistryKey(path, bReadOnly)); }

/// The bytes of a value, asked for by size first. False when it is missing or changed in between.
bool ReadBytes(HKEY hKey, const wchar_t* valueName, std::string& bytes)
{
    std::size_t nSize = 0;
    if (!registry::query(hKey, valueName, nullptr, nSize))
        return false;
    bytes.assign(nSize + 1, '\0'); // one more, as a pointer to nothing would ask for the size again
    if (!registry::query(hKey, valueName, bytes.data(), nSize))
        return false;
    bytes.resize(nSize);
    return true;
}

/// Where a setting of the host is; empty without a host.
CString SectionPath(int bCompany, int bLocalMachine, const wchar_t* section)
{
    const CString strPath = bCompany ? CRegistry::GetRegistryCompanyPath(bLocalMachine)
                                     : CRegistry::GetRegistryAppPath(bLocalMachine);
    return strPath.IsEmpty() ? strPath : strPath + L"\\" + section;
}

/// Writes with \p write(path) under both roots; the local machine's result does not count.
template <class Write>
int WriteUnderBothRoots(int bCompany, const wchar_t* section, Write write)
{
    const CString strMachine = SectionPath(bCompany, 1, section);
    if (!strMachine.IsEmpty())
        write(strMachine);
    const CString strUser = SectionPath(bCompany, 0, section);
    return strUser.IsEmpty() ? 0 : write(strUser);
}
} // namespace

CString CRegistry::GetRegistryCompanyPath(int bLocalMachine)
{
    CString strCompany, strProfileName, strPath;
    if (!CHostApp::GetIdentity(strCompany, strProfileName) || strCompany.IsEmpty())
        return strPath;
    if (bLocalMachine)
        strPath.Format(L"%s\\SOFTWARE\\%s", L"HKEY_LOCAL_MACHINE", strCompany.GetString());
    else
        strPath.Format(L"%s\\Software\\%s", L"HKEY_CURRENT_USER", strCompany.GetString());
    return strPath;
}

CString CRegistry::GetRegistryAppPath(int bLocalMachine)
{
    CString strCompany, strProfileName, strPath;
    const CString strCompanyPath = GetRegistryCompanyPath(bLocalMachine);
    if (strCompanyPath.IsEmpty() || !CHostApp::GetIdentity(strCompany, strProfileName) ||
        strProfileName.IsEmpty())
        return strPath;
    strPath.Format(L"%s\\%s", strCompanyPath.GetString(), strProfileName.GetString());
    return strPath;
}

HKEY CRegistry::GetRegistryKey(const wchar_t* path, int bReadOnly)
{
    std::wstring strPath(path ? path : L"");
    if (strPath.empty())
        return nullptr;
    if (strPath.back() != L'\\')
        strPath += L'\\';
    std::size_t pos = 0;
    const std::optional<registry::Root> root = registry::root_by_name(NextComponent(strPath, pos));
    if (!root || pos == strPath.size())
        return nullptr;
    CKey key(registry::root(*root)); // closing a predefined key is harmless
    while (key && pos < strPath.size())
    {
        const std::wstring strName = NextComponent(strPath, pos);
        key.reset(bReadOnly ? registry::open(key.get(), strName.c_str())
                            : registry::create(key.get(), strName.c_str()));
    }
    return key.release();
}

int CRegistry::GetProfileIntW(const wchar_t* keyPath, const wchar_t* valueName, int& value)
{
    const CKey key = OpenKey(keyPath, 1);
    unsigned char bytes[4] = {};
    std::size_t nSize = sizeof bytes;
    if (!key || !registry::query(key.get(), valueName, bytes, nSize))
        return 0;
    value =
        static_cast<int>(bytes[0] | bytes[1] << 8 | bytes[2] << 16 | static_cast<unsigned>(bytes[3]) << 24);
    return 1;
}

int CRegistry::GetProfileStringW(const wchar_t* keyPath, const wchar_t* valueName, CString& value)
{
    const CKey key = OpenKey(keyPath, 1);
    std::string bytes;
    if (!key || !ReadBytes(key.get(), valueName, bytes))
        return 0;
    value = platform::codepage::from_utf16le(bytes).c_str();
    return 1;
}

int CRegistry::WriteProfileInt(const wchar_t* keyPath, const wchar_t* valueName, int value)
{
    const CKey key = OpenKey(keyPath, 0);
    unsigned char bytes[4];
    for (int i = 0; i < 4; ++i)
        bytes[i] = static_cast<unsigned char>(static_cast<unsigned>(value) >> (8 * i));
    return key && registry::set(key.get(), valueName, registry::type_dword, bytes, sizeof bytes);
}

int CRegistry::WriteProfileStringW(const wchar_t* keyPath, const wchar_t* valueName, const wchar_t* value)
{
    const CKey key = OpenKey(keyPath, 0);
    if (!key)
        return 0;
    if (!value)
        return registry::remove_value(key.get(), valueName);
    const std::wstring_view text(value);
    const std::string bytes =
        platform::codepage::to_utf16le(std::wstring_view(value, text.size() + 1)); // with its null
    return registry::set(key.get(), valueName, registry::type_string, bytes.data(), bytes.size());
}

int CRegistry::AppGetProfileInt(const wchar_t* section, const wchar_t* entry, int nDefault)
{
    int nValue = 0;
    for (const int bLocalMachine : {0, 1})
    {
        const CString strPath = SectionPath(0, bLocalMachine, section);
        if (!strPath.IsEmpty() && GetProfileIntW(strPath, entry, nValue))
            return nValue;
    }
    return nDefault;
}

CString CRegistry::AppGetProfileString(const wchar_t* section, const wchar_t* entry,
                                       const wchar_t* lpszDefault, int bCompany)
{
    CString strValue;
    for (const int bLocalMachine : {0, 1})
    {
        const CString strPath = SectionPath(bCompany, bLocalMachine, section);
        if (strPath.IsEmpty())
            return CString();
        if (GetProfileStringW(strPath, entry, strValue))
            return strValue;
    }
    return CString(lpszDefault);
}

int CRegistry::AppWriteProfileInt(const wchar_t* section, const wchar_t* entry, int nValue)
{
    return WriteUnderBothRoots(0, section,
                               [&](const wchar_t* path) { return WriteProfileInt(path, entry, nValue); });
}

int CRegistry::AppWriteProfileString(const wchar_t* section, const wchar_t* entry, const wchar_t* lpszValue,
                                     int bCompany)
{
    return WriteUnderBothRoots(
        bCompany, section, [&](const wchar_t* path) { return WriteProfileStringW(path, entry, lpszValue); });
}
