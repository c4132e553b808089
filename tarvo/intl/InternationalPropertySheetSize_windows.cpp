#include "tarvo/intl/InternationalPropertySheet.h"

#include "tarvo/intl/DialogMemory_windows.h"
#include "tarvo/intl/DialogUnits_windows.h"
#include "tarvo/intl/ScreenPlace_windows.h"
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
    m_growth = {};
    if (room == m_page && growth == SheetLayout::Size())
    {
        m_parts.clear(); // everything stays as the system has it
        return;
    }
    m_page = room;
    m_growth = GrowSheet(growth);
    OnResizePage();
}

/// Returns by how much it could be done.
SheetLayout::Size CInternationalPropertySheet::GrowSheet(const SheetLayout::Size& by)
{
    const SheetLayout::Size former = ClientSize();
    GrowWindow(m_hWnd, by);
    const SheetLayout::Size now = ClientSize();
    return {now.cx - former.cx, now.cy - former.cy};
}

SheetLayout::Size CInternationalPropertySheet::ClientSize() const
{
    CRect client;
    GetClientRect(client);
    return {client.Width(), client.Height()};
}

void CInternationalPropertySheet::EndLayout(bool)
{
    for (int i = 0; i < GetPageCount(); ++i)
        if (auto* const page = DYNAMIC_DOWNCAST(CInternationalPropertyPage, GetPage(i)))
            page->RenewTemplate();
    if (m_bStarted)
        FitPagesAnew();
}

/// The tabs' font is another one, and perhaps that of the pages, too. The sheet gets the size that it would
/// come up in now, and keeps what the user has added to it.
void CInternationalPropertySheet::FitPagesAnew()
{
    const SheetLayout::Size now = ClientSize();
    const SheetLayout::Rect formerPage = m_page;
    const bool placed = !m_parts.empty();
    m_parts.clear();
    m_size = now;
    NotePlaces();
    if (m_parts.empty())
        return;
    const SheetLayout::Rect room = RoomForPages();
    const SheetLayout::Size bare = {SizeOf(room).cx - m_growth.cx - (now.cx - m_started.cx),
                                    SizeOf(room).cy - m_growth.cy - (now.cy - m_started.cy)};
    const SheetLayout::Size growth = SheetLayout::Growth(WantedPageSize(), bare);
    const SheetLayout::Size by = {growth.cx - m_growth.cx, growth.cy - m_growth.cy};
    if (!placed && room == m_page && by == SheetLayout::Size())
    {
        m_parts.clear();
        m_page = formerPage;
        return;
    }
    m_page = room;
    const SheetLayout::Size done = GrowSheet(by);
    m_growth = {m_growth.cx + done.cx, m_growth.cy + done.cy};
    m_started = {m_started.cx + done.cx, m_started.cy + done.cy};
    OnResizePage();
    if (!(by == SheetLayout::Size()))
        OnLayoutChanged();
}

/// The sheet's initialisation has ended, and with it what a derived class has added and moved.
void CInternationalPropertySheet::StartFromHere()
{
    const bool placed = !m_parts.empty();
    m_size = ClientSize();
    m_started = m_size;
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
        m_size = ClientSize();
    for (const HWND child : ChildrenOf(m_hWnd))
    {
        const bool page = IsPage(child);
        CRect place;
        ::GetWindowRect(child, place);
        ScreenToClient(place);
        if (child == front->m_hWnd)
            m_page = RectOf(place);
        const SheetLayout::PART part = SheetLayout::PartOf(static_cast<UINT>(::GetDlgCtrlID(child)), page);
        if (!page && part != SheetLayout::PART::Other) // what others have added is theirs
            m_parts.push_back({child, part, RectOf(place)});
    }
}

void CInternationalPropertySheet::OnResizePage()
{
    const SheetLayout::Size now = ClientSize();
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
    const SheetLayout::Rect to = SheetLayout::Place(SheetLayout::PART::Fill, m_page, m_size, ClientSize());
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
