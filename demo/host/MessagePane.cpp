#include "demo/host/MessagePane.h"

#include "demo/host/Catalogue.h"

#include <algorithm>

namespace
{
constexpr COLORREF kErrorColour = RGB(192, 28, 28);
constexpr COLORREF kWarningColour = RGB(176, 108, 0);

COLORREF colour_of(MessageKind kind)
{
    switch (kind)
    {
    case MessageKind::error:
        return kErrorColour;
    case MessageKind::warning:
        return kWarningColour;
    default:
        return ::GetSysColor(COLOR_WINDOWTEXT);
    }
}

void fill_list(HWND list, const CMessageLog& log)
{
    ::SendMessageW(list, WM_SETREDRAW, FALSE, 0);
    ::SendMessageW(list, LB_RESETCONTENT, 0, 0);
    for (const CMessageLog::Line& line : log.GetLines())
        ::SendMessageW(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(line.text.c_str()));
    ::SendMessageW(list, WM_SETREDRAW, TRUE, 0);
}

/// The list shows the log's lines from \p first on anew, after it lost \p lost at its top.
void update_list(HWND list, const CMessageLog& log, std::size_t first, std::size_t lost)
{
    for (std::size_t i = 0; i < lost; ++i)
        ::SendMessageW(list, LB_DELETESTRING, 0, 0);
    const auto& lines = log.GetLines();
    while (static_cast<std::size_t>(::SendMessageW(list, LB_GETCOUNT, 0, 0)) > first)
        ::SendMessageW(list, LB_DELETESTRING, first, 0);
    for (std::size_t i = first; i < lines.size(); ++i)
        ::SendMessageW(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(lines[i].text.c_str()));
}
} // namespace

BEGIN_MESSAGE_MAP(CMessagePane, CInternationalDlg)
ON_WM_SIZE()
ON_WM_DRAWITEM()
ON_NOTIFY(TCN_SELCHANGE, IDC_PN_PAGES, &CMessagePane::OnPageChosen)
END_MESSAGE_MAP()

CTabCtrl& CMessagePane::Tabs() const { return *static_cast<CTabCtrl*>(GetDlgItem(IDC_PN_PAGES)); }

BOOL CMessagePane::OnInitDialog()
{
    CInternationalDlg::OnInitDialog();
    Tabs().InsertItem(History, L"");
    Tabs().InsertItem(Analysis, L"");
    for (const PAGE page : {History, Analysis})
        fill_list(List(page), m_log[page]);
    Arrange();
    return TRUE;
}

void CMessagePane::SetText()
{
    static constexpr const wchar_t* kKeys[] = {L"PANE_HISTORY", L"PANE_ANALYSIS"};
    for (int page = 0; page < 2; ++page)
    {
        CString text = catalogue_text(kKeys[page]);
        TCITEMW item{};
        item.mask = TCIF_TEXT;
        item.pszText = text.GetBuffer();
        Tabs().SetItem(page, &item);
    }
    Arrange();
}

void CMessagePane::Activate(PAGE page)
{
    m_page = page;
    Tabs().SetCurSel(page);
    ShowPage(page);
}

void CMessagePane::Write(MessageKind kind, const wchar_t* text, bool samePosition)
{
    CMessageLog& log = m_log[m_page];
    const std::size_t before = log.GetLines().size();
    const bool replaced = samePosition && before > 0;
    const std::size_t lost = samePosition ? log.Replace(kind, text) : log.Add(kind, text);
    if (!m_hWnd)
        return;
    const HWND list = List(m_page);
    const std::size_t kept = before - (replaced ? 1 : 0);
    update_list(list, log, kept - std::min(kept, lost), lost);
    ::SendMessageW(list, LB_SETTOPINDEX, log.GetLines().size() - 1, 0);
    ::UpdateWindow(list); // the text has to be seen while a calculation goes on
}

void CMessagePane::Clear()
{
    m_log[m_page].Clear();
    if (m_hWnd)
        ::SendMessageW(List(m_page), LB_RESETCONTENT, 0, 0);
}

void CMessagePane::ShowPage(int page)
{
    ::ShowWindow(List(History), page == History ? SW_SHOW : SW_HIDE);
    ::ShowWindow(List(Analysis), page == Analysis ? SW_SHOW : SW_HIDE);
}

void CMessagePane::OnPageChosen(NMHDR*, LRESULT* result)
{
    ShowPage(Tabs().GetCurSel());
    *result = 0;
}

void CMessagePane::OnSize(UINT type, int cx, int cy)
{
    CInternationalDlg::OnSize(type, cx, cy);
    Arrange();
}

void CMessagePane::Arrange()
{
    if (!::GetDlgItem(m_hWnd, IDC_PN_PAGES))
        return;
    CRect room;
    GetClientRect(&room);
    Tabs().MoveWindow(room);
    Tabs().AdjustRect(FALSE, &room);
    for (const PAGE page : {History, Analysis})
    {
        const HWND list = List(page);
        ::SetWindowPos(list, HWND_TOP, room.left, room.top, room.Width(), room.Height(), SWP_NOACTIVATE);
        CClientDC dc(this);
        const HGDIOBJ before =
            dc.SelectObject(reinterpret_cast<HGDIOBJ>(::SendMessageW(list, WM_GETFONT, 0, 0)));
        TEXTMETRICW metrics{};
        ::GetTextMetricsW(dc.m_hDC, &metrics);
        dc.SelectObject(before);
        ::SendMessageW(list, LB_SETITEMHEIGHT, 0, metrics.tmHeight + 2);
    }
}

void CMessagePane::OnDrawItem(int id, DRAWITEMSTRUCT* item)
{
    const CMessageLog& log = m_log[id == IDC_PN_HISTORY ? History : Analysis];
    if (item->itemID >= log.GetLines().size())
        return;
    const CMessageLog::Line& line = log.GetLines()[item->itemID];
    ::FillRect(item->hDC, &item->rcItem, ::GetSysColorBrush(COLOR_WINDOW));
    ::SetTextColor(item->hDC, colour_of(line.kind));
    ::SetBkMode(item->hDC, TRANSPARENT);
    RECT place = item->rcItem;
    place.left += 6;
    ::DrawTextW(item->hDC, line.text.c_str(), -1, &place,
                DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
}
