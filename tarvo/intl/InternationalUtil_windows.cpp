#include "tarvo/intl/InternationalUtil.h"

#include "tarvo/intl/FontRules.h"
#include "tarvo/intl/GlobalFontMgr.h"
#include "tarvo/intl/WindowText_windows.h"

#include <afxwin.h>

int CInternationalUtil::GetLogFont(CWnd* window, const wchar_t* face, int points, LOGFONTW& font)
{
    const HWND handle = window ? window->m_hWnd : nullptr;
    if (!handle)
        return 0;
    const HDC device = ::GetDC(handle);
    const int dotsPerInch = ::GetDeviceCaps(device, LOGPIXELSY);
    ::ReleaseDC(handle, device);
    font = CGlobalFontMgr::Describe(face, FontRules::Height(points, dotsPerInch));
    return 1;
}

void CInternationalUtil::AdjustStaticControlHeight(CWnd* dialog)
{
    const HWND parent = dialog ? dialog->m_hWnd : nullptr;
    if (!parent)
        return;
    for (const HWND child : ChildrenOf(parent))
    {
        const auto style = static_cast<unsigned>(::GetWindowLongPtrW(child, GWL_STYLE));
        if (FontRules::IsPicture(style) || !IsOfClass(child, L"Static"))
            continue;
        CRect place;
        ::GetWindowRect(child, place);
        const int height = FontRules::LabelHeight(place.Height(), WindowText(child));
        if (height == place.Height())
            continue;
        place.bottom = place.top + height;
        dialog->ScreenToClient(place);
        ::MoveWindow(child, place.left, place.top, place.Width(), place.Height(), TRUE);
    }
}

namespace
{
/// Sends a shared font to each child of a dialog that is of a class and wanted.
template <class Wanted>
void SendFont(CWnd* dialog, const wchar_t* face, int points, const wchar_t* className, Wanted wanted)
{
    LOGFONTW description;
    if (!CInternationalUtil::GetLogFont(dialog, face, points, description))
        return;
    const HFONT font = CGlobalFontMgr::GetFont(description);
    if (!font)
        return;
    for (const HWND child : ChildrenOf(dialog->m_hWnd))
        if (IsOfClass(child, className) && wanted(child))
            ::SendMessageW(child, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
}
} // namespace

void CInternationalUtil::ChangeButtonFont(CWnd* dialog, const wchar_t* face, int points)
{
    SendFont(dialog, face, points, L"Button", [](HWND button) { return WindowText(button) == L"..."; });
}

void CInternationalUtil::ChangeEditBoxFont(CWnd* dialog, const wchar_t* face, int points)
{
    SendFont(dialog, face, points, L"Edit", [](HWND) { return true; });
}
