#include "platform/locale.h"

#include <windows.h>

namespace platform::locale
{
std::wstring system_language()
{
    wchar_t text[32] = L"";
    const int size = ::GetLocaleInfoW(LOCALE_SYSTEM_DEFAULT, LOCALE_ILANGUAGE, text, 32);
    return size > 0 ? std::wstring(text) : std::wstring();
}

std::uint16_t user_interface_language()
{
    // By name: systems without the call exist, and there the library must still load.
    using Call = LANGID(WINAPI*)();
    const HMODULE kernel = ::GetModuleHandleW(L"KERNEL32.DLL");
    const FARPROC found = kernel ? ::GetProcAddress(kernel, "GetUserDefaultUILanguage") : nullptr;
    return found ? reinterpret_cast<Call>(reinterpret_cast<void*>(found))() : std::uint16_t(0);
}
} // namespace platform::locale
