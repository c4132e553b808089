#include "tarvo/intl/DialogLayout_windows.h"

#include "tarvo/intl/DialogMemory_windows.h"
#include "tarvo/intl/LanguageWindow.h"
#include "tarvo/intl/ScreenPlace_windows.h"
#include "tarvo/intl/WindowText_windows.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace
{
CSize SizeOf(HWND window)
{
    CRect place;
    ::GetWindowRect(window, place);
    return place.Size();
}

bool IsLanguageWindow(HWND window)
{
    const CWnd* const known = CWnd::FromHandlePermanent(window);
    return known && dynamic_cast<const CLanguageWindow*>(known) != nullptr;
}

CRect ToRect(const TemplateLayout::Place& place)
{
    return {place.x, place.y, place.x + place.cx, place.y + place.cy};
}

CRect Sum(const CRect& place, const CRect& moves)
{
    return {place.left + moves.left, place.top + moves.top, place.right + moves.right,
            place.bottom + moves.bottom};
}

CRect Difference(const CRect& place, const CRect& from)
{
    return {place.left - from.left, place.top - from.top, place.right - from.right,
            place.bottom - from.bottom};
}

void Put(HWND window, const CRect& place, UINT flags)
{
    ::SetWindowPos(window, nullptr, place.left, place.top, std::max(place.Width(), 0),
                   std::max(place.Height(), 0), flags | SWP_NOZORDER | SWP_NOACTIVATE);
}

void SendFont(const std::vector<HWND>& windows, HFONT font)
{
    for (const HWND window : windows)
        if (::IsWindow(window))
            ::SendMessageW(window, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
}

bool SameFont(const LOGFONTW& left, const LOGFONTW& right)
{
    return std::memcmp(&left, &right, offsetof(LOGFONTW, lfFaceName)) == 0 &&
           ::lstrcmpiW(left.lfFaceName, right.lfFaceName) == 0;
}
} // namespace

void CDialogLayout::MadeFrom(LPCTSTR resource, const TemplateFont& font)
{
    m_strResource = IS_INTRESOURCE(resource) ? L"" : resource;
    m_nResource = IS_INTRESOURCE(resource) ? LOWORD(resource) : 0;
    m_setting = font;
}

void CDialogLayout::Open(HWND window, bool sizesItself)
{
    m_window = nullptr;
    m_sizesItself = sizesItself;
    m_scrolled = CPoint(0, 0);
    m_parts.clear();
    FreeFont();
    if (m_nResource == 0 && m_strResource.IsEmpty())
        return;
    m_window = window;
    m_units = UnitsOf(window);
    m_layout = {};
    AddParts();
    m_left = m_wanted = SizeOf(window);
}

/// Those that are not known yet.
void CDialogLayout::AddParts()
{
    std::erase_if(m_parts, [this](const Part& part) { return !IsThere(part); });
    for (const HWND child : ChildrenOf(m_window))
    {
        const auto known = [child](const Part& part) { return part.window == child; };
        if (std::any_of(m_parts.begin(), m_parts.end(), known))
            continue;
        const CRect place = PlaceOf(child);
        m_parts.push_back({child, ::GetDlgCtrlID(child), place, place, CRect(0, 0, 0, 0)});
    }
}

void CDialogLayout::Close()
{
    m_window = nullptr;
    m_nResource = 0;
    m_strResource.Empty();
    m_parts.clear();
    FreeFont();
}

void CDialogLayout::FreeFont()
{
    if (m_hFont)
        ::DeleteObject(std::exchange(m_hFont, nullptr));
}

bool CDialogLayout::IsThere(const Part& part) const
{
    return ::IsWindow(part.window) && ::GetAncestor(part.window, GA_PARENT) == m_window &&
           ::GetDlgCtrlID(part.window) == part.id;
}

CRect CDialogLayout::PlaceOf(HWND window) const
{
    CRect place;
    ::GetWindowRect(window, place);
    ::MapWindowPoints(nullptr, m_window, reinterpret_cast<POINT*>(&place), 2);
    return place + m_scrolled;
}

CSize CDialogLayout::GetTemplateSize() const
{
    const TemplateLayout::Place pixels = ToPixels(m_layout.window, m_units);
    return {pixels.cx, pixels.cy};
}

void CDialogLayout::NoteMoves(const CPoint& scrolled)
{
    m_scrolled = scrolled;
    for (Part& part : m_parts)
        part.moves = IsThere(part) ? Difference(PlaceOf(part.window), part.left) : CRect(0, 0, 0, 0);
}

void CDialogLayout::Settle()
{
    for (Part& part : m_parts)
        if (IsThere(part))
            part.left = Difference(PlaceOf(part.window), part.moves);
    m_scrolled = CPoint(0, 0);
}

bool CDialogLayout::LoadNew()
{
    const TemplateFont font = m_window ? GetDialogFont() : m_setting;
    if (font == m_setting)
        return false;
    CDialogTemplate memory;
    const LPCTSTR resource = m_nResource != 0 ? MAKEINTRESOURCEW(m_nResource) : m_strResource.GetString();
    if (!LoadWithFont(memory, resource, font))
        return false;
    const CTemplateLock lock(memory);
    const std::span<const unsigned char> bytes(reinterpret_cast<const unsigned char*>(lock.Get()),
                                               memory.m_dwTemplateSize);
    const std::optional<DialogMeasure> measure = MeasureTemplate(bytes);
    if (!measure || !ReadTemplateLayout(bytes, m_nextLayout))
        return false;
    m_setting = font;
    m_next = *measure;
    LOGFONTW now = {};
    const auto present = reinterpret_cast<HFONT>(::SendMessageW(m_window, WM_GETFONT, 0, 0));
    ::GetObjectW(present, sizeof now, &now);
    return m_next.units != m_units || !SameFont(now, m_next.font);
}

void CDialogLayout::Apply(const std::vector<HWND>& holders)
{
    const HFONT font = ::CreateFontIndirectW(&m_next.font);
    if (!font)
        return;
    m_layout = m_nextLayout;
    AddParts();
    FindItems();
    const CSize former = GetTemplateSize();
    m_formerUnits = std::exchange(m_units, m_next.units);
    const HFONT gone = std::exchange(m_hFont, font);
    // As when a dialog is made: the parts have no font when they are placed, which decides how high some
    // become.
    SendFont(holders, nullptr);
    if (gone)
        ::DeleteObject(gone);
    std::vector<CRect> before;
    for (const Part& part : m_parts)
        before.push_back(IsThere(part) ? PlaceOf(part.window) : CRect());
    const HWND window = m_window;
    ResizeWindow(former);
    if (!::IsWindow(window)) // closed by what it did when it was sized, and perhaps this object with it
        return;
    PlaceParts(before);
    SendFont(holders, font);
}

/// Which of the template's controls each part is: the one with its identifier, of several the one in its
/// place.
void CDialogLayout::FindItems()
{
    const DialogUnits made = UnitsOf(m_window);
    for (Part& part : m_parts)
        part.item = -1;
    for (std::size_t i = 0; i < m_layout.controls.size(); ++i)
    {
        const TemplateLayout::Control& control = m_layout.controls[i];
        const CPoint place = ToRect(ToPixels(control.place, made)).TopLeft();
        Part* found = nullptr;
        int count = 0;
        for (Part& part : m_parts)
        {
            if (part.item >= 0 || LOWORD(part.id) != LOWORD(control.id))
                continue;
            ++count;
            found =
                !found || (part.made.TopLeft() == place && found->made.TopLeft() != place) ? &part : found;
        }
        if (found && (count == 1 || found->made.TopLeft() == place))
            found->item = static_cast<int>(i);
    }
}

/// By what the template's size has changed, and by what the screen did not allow the last time. A dialog in
/// another window sizes itself as long as nobody else has.
void CDialogLayout::ResizeWindow(const CSize& former)
{
    m_wanted += GetTemplateSize() - former;
    const bool isChild = (::GetWindowLongPtrW(m_window, GWL_STYLE) & WS_CHILD) != 0;
    if (!m_sizesItself || (isChild && SizeOf(m_window) != m_left))
        return;
    const CSize by = m_wanted - m_left;
    WINDOWPLACEMENT placement = {};
    placement.length = sizeof placement;
    if ((::IsZoomed(m_window) || ::IsIconic(m_window)) && ::GetWindowPlacement(m_window, &placement))
    {
        placement.rcNormalPosition.right += by.cx;
        placement.rcNormalPosition.bottom += by.cy;
        if (::IsIconic(m_window))
            placement.showCmd = SW_SHOWMINNOACTIVE;
        m_left = m_wanted;
        ::SetWindowPlacement(m_window, &placement);
        return;
    }
    const CSize before = SizeOf(m_window);
    const HWND window = m_window;
    if (isChild)
        ::SetWindowPos(window, nullptr, 0, 0, m_wanted.cx, m_wanted.cy,
                       SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    else
        GrowWindow(window, {by.cx, by.cy});
    if (::IsWindow(window))
        m_left += SizeOf(window) - before;
}

CRect CDialogLayout::PlaceInTemplate(const Part& part) const
{
    return ToRect(ToPixels(m_layout.controls[static_cast<std::size_t>(part.item)].place, m_units));
}

CRect CDialogLayout::Scaled(const CRect& place) const
{
    const auto x = [this](int value) { return ::MulDiv(value, m_units.x, std::max(m_formerUnits.x, 1)); };
    const auto y = [this](int value) { return ::MulDiv(value, m_units.y, std::max(m_formerUnits.y, 1)); };
    return {x(place.left), y(place.top), x(place.left) + x(place.Width()), y(place.top) + y(place.Height())};
}

void CDialogLayout::PlaceParts(const std::vector<CRect>& before)
{
    for (std::size_t i = 0; i < m_parts.size(); ++i)
    {
        const Part& part = m_parts[i];
        if (!IsThere(part))
            continue;
        // A dialog of the library's sizes itself.
        const UINT flags = IsLanguageWindow(part.window) ? SWP_NOSIZE : 0;
        if (part.item >= 0)
            Put(part.window, Sum(PlaceInTemplate(part), part.moves) - m_scrolled, flags);
        else if (PlaceOf(part.window) ==
                 before[i]) // else the program has placed it when the window was sized
            Put(part.window, Scaled(before[i]) - m_scrolled, flags);
    }
}
