#include "demo/host/WindowPicture.h"

#include <algorithm>
#include <cwchar>
#include <memory>
#include <type_traits>

namespace
{
template <auto Close>
struct closer
{
    template <class H>
    void operator()(H h) const
    {
        Close(h);
    }
};
using unique_bitmap = std::unique_ptr<std::remove_pointer_t<HBITMAP>, closer<DeleteObject>>;
using unique_memory_dc = std::unique_ptr<std::remove_pointer_t<HDC>, closer<DeleteDC>>;

constexpr std::uint32_t kUncovered = 0xFFFFFF;

void paste_window(Picture& picture, HWND hwnd, POINT origin)
{
    RECT place{};
    GetWindowRect(hwnd, &place);
    const int width = place.right - place.left;
    const int height = place.bottom - place.top;
    RedrawWindow(hwnd, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);

    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height; // rows from the top
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    const HDC source = GetWindowDC(hwnd);
    const unique_memory_dc memory(CreateCompatibleDC(source));
    void* bits = nullptr;
    const unique_bitmap bitmap(CreateDIBSection(memory.get(), &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    if (bitmap)
    {
        const HGDIOBJ before = SelectObject(memory.get(), bitmap.get());
        BitBlt(memory.get(), 0, 0, width, height, source, 0, 0, SRCCOPY);
        GdiFlush();
        const auto* pixels = static_cast<const std::uint32_t*>(bits);
        for (int y = 0; y < height; ++y)
        {
            for (int x = 0; x < width; ++x)
                picture.At(place.left - origin.x + x, place.top - origin.y + y) =
                    pixels[static_cast<std::size_t>(y) * width + x] & 0xFFFFFF;
        }
        SelectObject(memory.get(), before);
    }
    ReleaseDC(hwnd, source);
}

BOOL CALLBACK collect_window(HWND hwnd, LPARAM to)
{
    RECT place{};
    if (IsWindowVisible(hwnd) && GetWindowRect(hwnd, &place) && !IsRectEmpty(&place))
        reinterpret_cast<std::vector<HWND>*>(to)->push_back(hwnd);
    return TRUE;
}

std::wstring text_of(HWND hwnd)
{
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(hwnd)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(GetWindowTextW(hwnd, text.data(), static_cast<int>(text.size()))));
    return text;
}

SIZE measure(HWND hwnd, const std::wstring& text, int width, UINT format)
{
    const HDC dc = GetDC(hwnd);
    const auto font = reinterpret_cast<HFONT>(SendMessageW(hwnd, WM_GETFONT, 0, 0));
    const HGDIOBJ before = SelectObject(dc, font ? font : GetStockObject(SYSTEM_FONT));
    RECT needed{0, 0, width, 0};
    DrawTextW(dc, text.c_str(), -1, &needed, DT_CALCRECT | format);
    SelectObject(dc, before);
    ReleaseDC(hwnd, dc);
    return {needed.right, needed.bottom};
}

/// Room that a button needs beside its text, by kind: the box, the frame.
int button_margin(LONG_PTR style)
{
    switch (style & BS_TYPEMASK)
    {
    case BS_CHECKBOX:
    case BS_AUTOCHECKBOX:
    case BS_RADIOBUTTON:
    case BS_AUTORADIOBUTTON:
        return GetSystemMetrics(SM_CXMENUCHECK) + 6;
    case BS_GROUPBOX:
        return 20;
    default:
        return 8;
    }
}

bool is_cut(HWND child, const wchar_t* className, const std::wstring& text)
{
    RECT room{};
    GetClientRect(child, &room);
    if (std::wcscmp(className, L"Static") == 0)
    {
        const SIZE needed = measure(child, text, room.right, DT_WORDBREAK);
        return needed.cx > room.right || needed.cy > room.bottom;
    }
    const LONG_PTR style = GetWindowLongPtrW(child, GWL_STYLE);
    const SIZE needed = measure(child, text, room.right, DT_SINGLELINE);
    return needed.cx + button_margin(style) > room.right;
}

/// Something of a control lies where its window has no room.
bool is_outside(HWND dialog, HWND child)
{
    RECT room{};
    RECT place{};
    GetClientRect(dialog, &room);
    GetWindowRect(child, &place);
    MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&place), 2);
    return place.left < room.left || place.top < room.top || place.right > room.right ||
           place.bottom > room.bottom;
}
} // namespace

std::vector<HWND> visible_windows()
{
    std::vector<HWND> topFirst;
    EnumThreadWindows(GetCurrentThreadId(), collect_window, reinterpret_cast<LPARAM>(&topFirst));
    std::reverse(topFirst.begin(), topFirst.end());
    return topFirst;
}

Picture take_picture(const std::vector<HWND>& windows)
{
    RECT bounds{};
    for (const HWND hwnd : windows)
    {
        RECT place{};
        GetWindowRect(hwnd, &place);
        UnionRect(&bounds, &bounds, &place);
    }
    if (IsRectEmpty(&bounds))
        return {};
    Picture picture(bounds.right - bounds.left, bounds.bottom - bounds.top, kUncovered);
    for (const HWND hwnd : windows)
        paste_window(picture, hwnd, {bounds.left, bounds.top});
    return picture;
}

std::vector<std::wstring> find_cut_texts(HWND dialog)
{
    std::vector<std::wstring> found;
    for (HWND child = GetWindow(dialog, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
    {
        wchar_t className[32] = L"";
        GetClassNameW(child, className, 32);
        const bool label = std::wcscmp(className, L"Static") == 0;
        const bool button = std::wcscmp(className, L"Button") == 0;
        const bool picture = label && (GetWindowLongPtrW(child, GWL_STYLE) & SS_TYPEMASK) == SS_ICON;
        const std::wstring text = text_of(child);
        const bool texted = (label || button) && !picture && !text.empty();
        if ((texted && is_cut(child, className, text)) ||
            (IsWindowVisible(child) && is_outside(dialog, child)))
            found.push_back(std::to_wstring(GetDlgCtrlID(child)) + L": " + text);
    }
    return found;
}
