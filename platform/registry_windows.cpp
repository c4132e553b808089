#include "platform/registry.h"

#include <windows.h>

namespace platform::registry
{
HKEY root(Root which)
{
    // Predefined keys are their numbers, sign-extended to a handle.
    return reinterpret_cast<HKEY>(static_cast<LONG_PTR>(static_cast<LONG>(which)));
}

HKEY open(HKEY parent, const wchar_t* name)
{
    HKEY key = nullptr;
    return ::RegOpenKeyExW(parent, name, 0, KEY_READ, &key) == ERROR_SUCCESS ? key : nullptr;
}

HKEY create(HKEY parent, const wchar_t* name)
{
    HKEY key = nullptr;
    const LSTATUS status = ::RegCreateKeyExW(parent, name ? name : L"", 0, nullptr, REG_OPTION_NON_VOLATILE,
                                             KEY_READ | KEY_WRITE, nullptr, &key, nullptr);
    return status == ERROR_SUCCESS ? key : nullptr;
}

void close(HKEY key)
{
    if (key)
        ::RegCloseKey(key);
}

bool query(HKEY key, const wchar_t* value, void* data, std::size_t& size, std::uint32_t* type)
{
    DWORD bytes = size > MAXDWORD ? MAXDWORD : static_cast<DWORD>(size);
    DWORD found = 0;
    const LSTATUS status = ::RegQueryValueExW(key, value, nullptr, &found, static_cast<BYTE*>(data), &bytes);
    if (status != ERROR_SUCCESS)
        return false;
    size = bytes;
    if (type)
        *type = found;
    return true;
}

bool set(HKEY key, const wchar_t* value, std::uint32_t type, const void* data, std::size_t size)
{
    return size <= MAXDWORD && ::RegSetValueExW(key, value, 0, type, static_cast<const BYTE*>(data),
                                                static_cast<DWORD>(size)) == ERROR_SUCCESS;
}

bool remove_value(HKEY key, const wchar_t* value) { return ::RegDeleteValueW(key, value) == ERROR_SUCCESS; }

bool remove_tree(HKEY parent, const wchar_t* name)
{
    // Without a name the call would empty the parent itself.
    return name && *name && ::RegDeleteTreeW(parent, name) == ERROR_SUCCESS;
}
} // namespace platform::registry
