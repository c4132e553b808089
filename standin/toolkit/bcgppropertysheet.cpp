#include "bcgppropertysheet.h"

#include <afxcmn.h>

#include "bcgpvisualmanager.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(CBCGPPropertySheet, CPropertySheet)

BEGIN_MESSAGE_MAP(CBCGPPropertySheet, CPropertySheet)
ON_WM_ERASEBKGND()
ON_WM_CTLCOLOR()
ON_WM_SYSCOLORCHANGE()
ON_WM_SIZE()
END_MESSAGE_MAP()

void CBCGPPropertySheet::EnableVisualManagerStyle(BOOL bEnable, BOOL bNCArea)
{
    m_style.Enable(bEnable, bNCArea, nullptr);
    for (int i = 0; m_hWnd && i < GetPageCount(); ++i)
        if (auto* pPage = DYNAMIC_DOWNCAST(CBCGPPropertyPage, GetPage(i)); pPage && pPage->m_hWnd)
            pPage->EnableVisualManagerStyle(bEnable);
}

void CBCGPPropertySheet::EnablePageHeader(int nHeaderHeight)
{
    if (!m_hWnd)
        m_nHeaderHeight = std::max(0, nHeaderHeight);
}

BOOL CBCGPPropertySheet::OnInitDialog()
{
    const BOOL bFocus = CPropertySheet::OnInitDialog();
    if (m_hWnd && m_nHeaderHeight > 0)
        MakeRoom();
    return bFocus;
}

/// The pages' area grows upwards: what stands below it moves down, and the header takes its top.
void CBCGPPropertySheet::MakeRoom()
{
    CTabCtrl* pTab = GetTabControl();
    CRect tab;
    pTab->GetWindowRect(tab);
    ScreenToClient(tab);
    CRect pages = tab;
    if (!IsWizard())
        pTab->AdjustRect(FALSE, pages);
    for (HWND hChild = ::GetTopWindow(m_hWnd); hChild; hChild = ::GetWindow(hChild, GW_HWNDNEXT))
    {
        if (hChild == pTab->m_hWnd || DYNAMIC_DOWNCAST(CPropertyPage, FromHandlePermanent(hChild)))
            continue;
        CRect place;
        ::GetWindowRect(hChild, place);
        ScreenToClient(place);
        ::SetWindowPos(hChild, nullptr, place.left, place.top + m_nHeaderHeight, 0, 0,
                       SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
    pTab->SetWindowPos(nullptr, 0, 0, tab.Width(), tab.Height() + m_nHeaderHeight,
                       SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    CRect window;
    GetWindowRect(window);
    SetWindowPos(nullptr, 0, 0, window.Width(), window.Height() + m_nHeaderHeight,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    pages.bottom = pages.top + m_nHeaderHeight;
    m_header.Create(nullptr, nullptr, WS_CHILD | WS_VISIBLE, pages, this, 0);
    m_header.SetWindowPos(&wndTop, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    CRect client;
    GetClientRect(client);
    m_nHeaderMargin = client.right - pages.right;
}

void CBCGPPropertySheet::OnSize(UINT nType, int cx, int cy)
{
    CPropertySheet::OnSize(nType, cx, cy);
    if (!m_header.m_hWnd || nType == SIZE_MINIMIZED)
        return;
    CRect place;
    m_header.GetWindowRect(place);
    ScreenToClient(place);
    m_header.SetWindowPos(nullptr, 0, 0, std::max<int>(0, cx - m_nHeaderMargin - place.left), place.Height(),
                          SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void CBCGPPropertySheet::OnActivatePage(CPropertyPage*)
{
    if (m_header.m_hWnd)
        m_header.Invalidate(); // it is another page's now
}

void CBCGPPropertySheet::OnDrawPageHeader(CDC* pDC, int, CRect rectHeader)
{
    pDC->FillRect(rectHeader, &CBCGPVisualManager::GetInstance()->GetDlgBackBrush(this));
}

void CBCGPPropertySheet::CHeader::Draw()
{
    CPaintDC dc(this);
    auto* pSheet = static_cast<CBCGPPropertySheet*>(GetParent());
    CRect client;
    GetClientRect(client);
    pSheet->OnDrawPageHeader(&dc, pSheet->GetActiveIndex(), client);
}

LRESULT CBCGPPropertySheet::CHeader::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message != WM_PAINT)
        return CWnd::WindowProc(message, wParam, lParam);
    Draw();
    return 0;
}

BOOL CBCGPPropertySheet::OnEraseBkgnd(CDC* pDC)
{
    return m_style.Erase(pDC) || CPropertySheet::OnEraseBkgnd(pDC);
}

HBRUSH CBCGPPropertySheet::OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor)
{
    const HBRUSH hBrush = m_style.Colour(pDC, pWnd, nCtlColor);
    return hBrush ? hBrush : reinterpret_cast<HBRUSH>(Default());
}

void CBCGPPropertySheet::OnSysColorChange()
{
    m_style.OnSystemColours();
    CPropertySheet::OnSysColorChange();
}
