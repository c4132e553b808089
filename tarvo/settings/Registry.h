#pragma once

#include "platform/handles.h"
#include "tarvo/export.h"

#include <afxstr.h>

/// The one door to the system registry. Every key is named by one path that begins with a root name,
/// "HKEY_CURRENT_USER\Software\...": HKEY_CLASSES_ROOT, HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE,
/// HKEY_USERS or HKEY_CURRENT_CONFIG, in any letter case. A trailing backslash means nothing, a null
/// path or name is an empty one. All operations are static and answer 1 for success and 0 for
/// failure; nothing throws. Where the platform has no registry, platform/registry.h keeps one.
///
/// The Profile operations take any key path. The App operations work on the host's own settings
/// (tarvo/settings/HostApp.h): a section is a sub-key below the host's profile, which is looked for
/// under the current user first and under the local machine second.
class TARVO_API CRegistry
{
public:
    CRegistry() = default;
    CRegistry(const CRegistry&) = default;
    CRegistry& operator=(const CRegistry&) = default;
    virtual ~CRegistry() = default;

    /// "HKEY_CURRENT_USER\Software\" or "HKEY_LOCAL_MACHINE\SOFTWARE\" and the host's company; empty
    /// without a host or a company. The two spellings are deliberate: callers see the texts.
    static CString GetRegistryCompanyPath(int bLocalMachine);
    /// The company path, a backslash and the host's profile name; empty when either is missing.
    static CString GetRegistryAppPath(int bLocalMachine);

    /// Opens a key, for reading when \p bReadOnly is not 0, else for reading and writing, creating what
    /// is missing. Null when a component cannot be opened, for an unknown root and for a root alone. The
    /// caller closes the key (RegCloseKey; natively platform::registry::close).
    static HKEY GetRegistryKey(const wchar_t* path, int bReadOnly);

    /// Reads a DWORD. \p value is untouched unless 1 is returned. The stored type is not examined: any
    /// value of at most 4 bytes is taken, missing bytes as 0.
    static int GetProfileIntW(const wchar_t* keyPath, const wchar_t* valueName, int& value);
    /// Reads a text up to its first null. \p value is untouched unless 1 is returned. The stored type is
    /// not examined: the value's bytes are taken as characters, an odd last byte is dropped.
    static int GetProfileStringW(const wchar_t* keyPath, const wchar_t* valueName, CString& value);
    /// Writes a DWORD, creating missing keys.
    static int WriteProfileInt(const wchar_t* keyPath, const wchar_t* valueName, int value);
    /// Writes text with its terminating null, creating missing keys; a null \p value deletes the entry
    /// (0 when there was none).
    static int WriteProfileStringW(const wchar_t* keyPath, const wchar_t* valueName, const wchar_t* value);

    /// The host's setting; \p nDefault when it is under neither root or there is no host.
    static int AppGetProfileInt(const wchar_t* section, const wchar_t* entry, int nDefault);
    /// The host's setting, with \p bCompany not 0 below the company instead of the profile. \p lpszDefault
    /// (null is empty) when it is under neither root. Without a host the result is empty, not the
    /// default: callers tell by that.
    static CString AppGetProfileString(const wchar_t* section, const wchar_t* entry,
                                       const wchar_t* lpszDefault, int bCompany);
    /// Writes under both roots. Only the current user's result counts: a user without rights to the local
    /// machine must not fail.
    static int AppWriteProfileInt(const wchar_t* section, const wchar_t* entry, int nValue);
    /// The same for text; a null \p lpszValue deletes the entry.
    static int AppWriteProfileString(const wchar_t* section, const wchar_t* entry, const wchar_t* lpszValue,
                                     int bCompany);
};
