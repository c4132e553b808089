#pragma once

#include <afxwin.h>

#include <string_view>
#include <vector>

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

/// A window's class name, in \p buffer.
inline std::wstring_view ClassName(HWND window, wchar_t (&buffer)[128])
{
    const int length = ::GetClassNameW(window, buffer, 128);
    return {buffer, static_cast<std::size_t>(length > 0 ? length : 0)};
}

/// True when a window's class has exactly this name, with letter case.
inline bool IsOfClass(HWND window, std::wstring_view name)
{
    wchar_t buffer[128];
    return ClassName(window, buffer) == name;
}

/// The windows below a window at any depth, in z-order, as they are now. What is sent to one of them may
/// destroy others.
inline std::vector<HWND> DescendantsOf(HWND window)
{
    std::vector<HWND> found;
    ::EnumChildWindows(
        window,
        [](HWND child, LPARAM list) -> BOOL {
            reinterpret_cast<std::vector<HWND>*>(list)->push_back(child);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&found));
    return found;
}

/// Its direct children only.
inline std::vector<HWND> ChildrenOf(HWND window)
{
    std::vector<HWND> found = DescendantsOf(window);
    std::erase_if(found, [window](HWND child) { return ::GetAncestor(child, GA_PARENT) != window; });
    return found;
}
