#pragma once

#include <afxwin.h>

#include <string_view>

/// A window's text, whole.
inline CString WindowText(HWND window)
{
    CString text;
    const int length = ::GetWindowTextLengthW(window);
    if (length > 0)
    {
        const int copied = ::GetWindowTextW(window, text.GetBuffer(length), length + 1);
        text.ReleaseBuffer(copied);
    }
    return text;
}

/// True when a window's class has exactly this name, with letter case.
inline bool IsOfClass(HWND window, std::wstring_view name)
{
    wchar_t text[128];
    const int length = ::GetClassNameW(window, text, 128);
    return length > 0 && std::wstring_view(text, static_cast<std::size_t>(length)) == name;
}
