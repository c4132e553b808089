#include "tarvo/intl/InternationalPropertySheet.h"

#include "tarvo/intl/DialogMemory_windows.h"
#include "tarvo/intl/DialogUnits_windows.h"
#include "tarvo/intl/WindowText_windows.h"

#include <afxcmn.h>

#include <algorithm>

// The size of a sheet, and the places of what is in it.

namespace
{
SheetLayout::Size SizeOf(const SheetLayout::Rect& rect)
{
    return {rect.right - rect.left, rect.bottom - rect.top};
}

SheetLayout::Rect RectOf(const CRect& rect) { return {rect.left, rect.top, rect.right, rect.bottom}; }

/// The part of the screen that a window is on without what is always in front.
SheetLayout::Rect WorkArea(HWND window)
{
    MONITORINFO monitor = {};
    monitor.cbSize = sizeof monitor;
    ::GetMonitorInfoW(::MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &monitor);
    return RectOf(monitor.rcWork);
}

void Widen(SheetLayout::Size& size, const CDialogTemplate& memory)
{
    const CTemplateLock lock(memory);
    if (!lock.Get())
        return;
    const std::span<const unsigned char> bytes(reinterpret_cast<const unsigned char*>(lock.Get()),
                                               memory.m_dwTemplateSize);
    TemplateLayout layout;
    const std::optional<DialogMeasure> measure = MeasureTemplate(bytes);
    if (!measure || !ReadTemplateLayout(bytes, layout))
        return;
    const TemplateLayout::Place pixels = Extent(layout, measure->units);
    size.cx = std::max(size.cx, pixels.cx);
    size.cy = std::max(size.cy, pixels.cy);
}
} // namespace

/// The system makes every page as large as its template is in the units of the sheet's font, which is another
/// than the pages'. This is how large the largest page is in its own.
SheetLayout::Size CInternationalPropertySheet::WantedPageSize() const
{
    SheetLayout::Size wanted;
    for (int i = 0; i < GetPageCount(); ++i)
        if (const auto* const page = DYNAMIC_DOWNCAST(CInternationalPropertyPage, GetPage(i)))
            Widen(wanted, *page->m_pTemplate);
    for (const auto& memory : m_templates)
        Widen(wanted, *memory);
    return wanted;
}

/// The tabs' own font has made them higher or lower since the system placed the pages below them.
SheetLayout::Rect CInternationalPropertySheet::RoomForPages() const
{
    CTabCtrl* const tabs = IsWizard() ? nullptr : GetTabControl();
    if (!tabs)
        return m_page;
    CRect room;
    tabs->GetClientRect(room);
    tabs->AdjustRect(FALSE, room);
    ::MapWindowPoints(tabs->m_hWnd, m_hWnd, reinterpret_cast<POINT*>(&room), 2);
    room.top += GetHeaderHeight();
    return RectOf(room);
}

void CInternationalPropertySheet::FitPages()
{
    NotePlaces();
    if (m_parts.empty())
        return;
    const SheetLayout::Rect room = RoomForPages();
    const SheetLayout::Size growth = SheetLayout::Growth(WantedPageSize(), SizeOf(room));
    if (room == m_page && growth == SheetLayout::Size())
    {
        m_parts.clear(); // everything stays as the system has it
        return;
    }
    m_page = room;
    CRect window;
    GetWindowRect(window);
    const SheetLayout::Rect grown = SheetLayout::Grow(RectOf(window), growth, WorkArea(m_hWnd));
    SetWindowPos(nullptr, grown.left, grown.top, grown.right - grown.left, grown.bottom - grown.top,
                 SWP_NOZORDER | SWP_NOACTIVATE);
    OnResizePage();
}

/// The sheet's initialisation has ended, and with it what a derived class has added and moved.
void CInternationalPropertySheet::StartFromHere()
{
    const bool placed = !m_parts.empty();
    CRect client;
    GetClientRect(client);
    m_size = {client.Width(), client.Height()};
    m_parts.clear();
    if (placed)
        NotePlaces();
    m_bStarted = true;
}

void CInternationalPropertySheet::NotePlaces()
{
    const CPropertyPage* const front = GetActivePage();
    if (!front || !front->m_hWnd)
        return;
    if (!m_bStarted)
    {
        CRect client;
        GetClientRect(client);
        m_size = {client.Width(), client.Height()};
    }
    for (const HWND child : ChildrenOf(m_hWnd))
    {
        const bool page = IsPage(child);
        CRect place;
        ::GetWindowRect(child, place);
        ScreenToClient(place);
        if (child == front->m_hWnd)
            m_page = RectOf(place);
        if (!page)
            m_parts.push_back(
                {child, SheetLayout::PartOf(static_cast<UINT>(::GetDlgCtrlID(child)), false), RectOf(place)});
    }
}

void CInternationalPropertySheet::OnResizePage()
{
    CRect client;
    GetClientRect(client);
    const SheetLayout::Size now{client.Width(), client.Height()};
    const auto move = [&](HWND window, SheetLayout::PART part, const SheetLayout::Rect& from) {
        const SheetLayout::Rect to = SheetLayout::Place(part, from, m_size, now);
        if (::IsWindow(window))
            ::SetWindowPos(window, nullptr, to.left, to.top, to.right - to.left, to.bottom - to.top,
                           SWP_NOZORDER | SWP_NOACTIVATE);
    };
    for (const Part& part : m_parts)
        move(part.window, part.part, part.place);
    if (const CPropertyPage* const page = m_parts.empty() ? nullptr : GetActivePage())
        move(page->m_hWnd, SheetLayout::PART::Fill, m_page);
}

bool CInternationalPropertySheet::PutPage(WINDOWPOS& place) const
{
    if (m_parts.empty())
        return false;
    CRect client;
    GetClientRect(client);
    const SheetLayout::Rect to =
        SheetLayout::Place(SheetLayout::PART::Fill, m_page, m_size, {client.Width(), client.Height()});
    place.x = to.left;
    place.y = to.top;
    place.cx = to.right - to.left;
    place.cy = to.bottom - to.top;
    place.flags &= ~static_cast<UINT>(SWP_NOMOVE | SWP_NOSIZE);
    return true;
}

void CInternationalPropertySheet::OnSize(UINT nType, int cx, int cy)
{
    CBCGPPropertySheet::OnSize(nType, cx, cy);
    if (!m_bStarted || nType == SIZE_MINIMIZED)
        return;
    if (m_parts.empty())
        NotePlaces();
    OnResizePage();
}

void CInternationalPropertySheet::OnActivatePage(CPropertyPage* pPage)
{
    CBCGPPropertySheet::OnActivatePage(pPage);
    if (!m_bStarted)
        return;
    OnResizePage();
}
