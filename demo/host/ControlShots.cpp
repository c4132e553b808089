#include "demo/host/ControlShots.h"

#include "demo/host/WindowPicture.h"

#include <algorithm>
#include <commctrl.h>
#include <map>
#include <memory>
#include <type_traits>

namespace
{
std::wstring class_of(HWND window)
{
    wchar_t name[64] = L"";
    GetClassNameW(window, name, 64);
    return name;
}

std::wstring text_of(HWND window)
{
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

std::wstring lines_of(HWND window, UINT countMessage, UINT lengthMessage, UINT textMessage)
{
    std::wstring all;
    const auto count = static_cast<int>(SendMessageW(window, countMessage, 0, 0));
    for (WPARAM i = 0; static_cast<int>(i) < count; ++i)
    {
        std::wstring line(static_cast<std::size_t>(SendMessageW(window, lengthMessage, i, 0)) + 1, L'\0');
        SendMessageW(window, textMessage, i, reinterpret_cast<LPARAM>(line.data()));
        all += L" | " + line.substr(0, line.find(L'\0'));
    }
    return all;
}

std::wstring tabs_of(HWND window)
{
    std::wstring all;
    for (int i = 0; i < TabCtrl_GetItemCount(window); ++i)
    {
        wchar_t text[260] = L"";
        TCITEMW item{};
        item.mask = TCIF_TEXT;
        item.pszText = text;
        item.cchTextMax = 260;
        SendMessageW(window, TCM_GETITEMW, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&item));
        all += L" | " + std::wstring(text);
    }
    return all;
}

std::wstring shown_text(HWND window)
{
    const std::wstring name = class_of(window);
    if (name == L"ComboBox")
        return text_of(window) + lines_of(window, CB_GETCOUNT, CB_GETLBTEXTLEN, CB_GETLBTEXT);
    if (name == L"ListBox")
        return lines_of(window, LB_GETCOUNT, LB_GETTEXTLEN, LB_GETTEXT);
    return name == WC_TABCONTROLW ? tabs_of(window) : text_of(window);
}

std::wstring key_of(const std::wstring& name, HWND top, HWND window)
{
    if (window == top)
        return name;
    return key_of(name, top, GetAncestor(window, GA_PARENT)) + L"/" + std::to_wstring(GetDlgCtrlID(window));
}

/// The part of the window's picture where a control lies.
Picture part_of(const Picture& whole, HWND top, HWND window)
{
    RECT frame{};
    RECT place{};
    GetWindowRect(top, &frame);
    GetWindowRect(window, &place);
    const int left = std::max<int>(place.left - frame.left, 0);
    const int upper = std::max<int>(place.top - frame.top, 0);
    const int right = std::min<int>(place.right - frame.left, whole.width);
    const int lower = std::min<int>(place.bottom - frame.top, whole.height);
    Picture part(std::max(right - left, 0), std::max(lower - upper, 0), 0);
    for (int y = 0; y < part.height; ++y)
    {
        for (int x = 0; x < part.width; ++x)
            part.At(x, y) = whole.pixels[static_cast<std::size_t>(upper + y) * whole.width + left + x];
    }
    return part;
}

BOOL CALLBACK collect_visible(HWND window, LPARAM to)
{
    if (IsWindowVisible(window))
        reinterpret_cast<std::vector<HWND>*>(to)->push_back(window);
    return TRUE;
}

/// The name that the font file itself gives; empty for bitmap fonts.
std::wstring full_name(HDC dc)
{
    const UINT size = GetOutlineTextMetricsW(dc, 0, nullptr);
    if (size == 0)
        return {};
    std::vector<std::uint64_t> bytes(size / sizeof(std::uint64_t) + 1);
    auto* const metrics = reinterpret_cast<OUTLINETEXTMETRICW*>(bytes.data());
    GetOutlineTextMetricsW(dc, size, metrics);
    const auto offset = reinterpret_cast<std::uintptr_t>(metrics->otmpFullName);
    return reinterpret_cast<const wchar_t*>(reinterpret_cast<const char*>(metrics) + offset);
}

std::wstring describe(HDC dc)
{
    wchar_t face[LF_FACESIZE] = L"";
    TEXTMETRICW metrics{};
    GetTextFaceW(dc, LF_FACESIZE, face);
    GetTextMetricsW(dc, &metrics);
    std::wstring name = face;
    if (const std::wstring file = full_name(dc); !file.empty() && file != name)
        name += L" (" + file + L")"; // another family stands in for the face
    return name + L", " + std::to_wstring(metrics.tmHeight) + L" px";
}

std::map<std::wstring, const ControlShot*> by_key(const std::vector<ControlShot>& shots)
{
    std::map<std::wstring, const ControlShot*> found;
    for (const ControlShot& shot : shots)
        found.emplace(shot.key, &shot);
    return found;
}
} // namespace

std::vector<ControlShot> take_controls(const std::wstring& name, HWND window)
{
    SetFocus(nullptr);
    std::vector<HWND> windows{window};
    EnumChildWindows(window, collect_visible, reinterpret_cast<LPARAM>(&windows));
    const Picture whole = take_picture({window});
    std::vector<ControlShot> shots;
    std::map<std::wstring, int> met;
    for (const HWND control : windows)
    {
        std::wstring key = key_of(name, window, control);
        if (const int again = met[key]++)
            key += L"#" + std::to_wstring(again);
        shots.push_back({key, shown_text(control), mapped_font(control), part_of(whole, window, control)});
    }
    return shots;
}

std::vector<std::wstring> compare_controls(const std::vector<ControlShot>& wanted,
                                           const std::vector<ControlShot>& found)
{
    const auto others = by_key(found);
    std::vector<std::wstring> differences;
    for (const ControlShot& shot : wanted)
    {
        const auto other = others.find(shot.key);
        if (other == others.end())
            differences.push_back(shot.key + L" is not there");
        else if (other->second->text != shot.text)
            differences.push_back(shot.key + L" shows \"" + other->second->text + L"\", not \"" + shot.text +
                                  L"\"");
        else if (other->second->font != shot.font)
            differences.push_back(shot.key + L" has the font " + other->second->font + L", not " + shot.font);
        else if (other->second->picture.width != shot.picture.width ||
                 other->second->picture.pixels != shot.picture.pixels)
            differences.push_back(shot.key + L" looks different");
    }
    return differences;
}

int count_changed_texts(const std::vector<ControlShot>& before, const std::vector<ControlShot>& after)
{
    const auto others = by_key(after);
    return static_cast<int>(std::count_if(before.begin(), before.end(), [&](const ControlShot& shot) {
        const auto other = others.find(shot.key);
        return other != others.end() && other->second->text != shot.text;
    }));
}

std::wstring mapped_font(HWND window)
{
    const HDC dc = GetDC(window);
    const auto font = reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0));
    const HGDIOBJ before = SelectObject(dc, font ? font : GetStockObject(SYSTEM_FONT));
    std::wstring result = describe(dc);
    SelectObject(dc, before);
    ReleaseDC(window, dc);
    return result;
}
