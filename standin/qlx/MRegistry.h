#pragma once

#include "qlx/qlx_export.h"

#include <afxstr.h>

namespace qlx::lib
{
/// The host's place in the registry.
class QLX_API MRegistry
{
public:
    /// The key of the host's settings below HKEY_CURRENT_USER, with a backslash at its end, so that
    /// "HKEY_CURRENT_USER\" + MyGetRegistryKey() + section is a key path:
    /// "Software\<company>\<profile name>\". It is the registered one, else the application object's;
    /// empty when there is neither.
    static CString MyGetRegistryKey();

    /// Reads the text of a value by the full path of its key, up to its first null. Returns 1, or 0
    /// with \p text untouched when there is no such key or value.
    static int MyGetProfileString(const wchar_t* path, const wchar_t* valueName, CString& text);

    /// Registers the key that MyGetRegistryKey answers, for programs without an application object; a
    /// backslash is added when it ends in none. The last call wins, null or empty takes it back.
    static void SetRegistryKey(const wchar_t* key);
};
} // namespace qlx::lib
