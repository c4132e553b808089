#include "bcgppropertysheet.h"

IMPLEMENT_DYNCREATE(CBCGPPropertyPage, CPropertyPage)

BEGIN_MESSAGE_MAP(CBCGPPropertyPage, CPropertyPage)
ON_WM_ERASEBKGND()
ON_WM_CTLCOLOR()
ON_WM_SYSCOLORCHANGE()
ON_WM_SHOWWINDOW()
END_MESSAGE_MAP()

namespace
{
CBCGPPropertySheet* SheetOf(const CWnd& page)
{
    return DYNAMIC_DOWNCAST(CBCGPPropertySheet, page.GetParent());
}
} // namespace

BOOL CBCGPPropertyPage::OnInitDialog()
{
    m_nTop = NOWHERE;
    if (const CBCGPPropertySheet* pSheet = SheetOf(*this); pSheet && pSheet->IsVisualManagerStyle())
        EnableVisualManagerStyle();
    return CPropertyPage::OnInitDialog();
}

BOOL CBCGPPropertyPage::OnEraseBkgnd(CDC* pDC)
{
    return m_style.Erase(pDC) || CPropertyPage::OnEraseBkgnd(pDC);
}

HBRUSH CBCGPPropertyPage::OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor)
{
    const HBRUSH hBrush = m_style.Colour(pDC, pWnd, nCtlColor);
    return hBrush ? hBrush : reinterpret_cast<HBRUSH>(Default());
}

void CBCGPPropertyPage::OnSysColorChange()
{
    m_style.OnSystemColours();
    CPropertyPage::OnSysColorChange();
}

void CBCGPPropertyPage::OnShowWindow(BOOL bShow, UINT nStatus)
{
    CPropertyPage::OnShowWindow(bShow, nStatus);
    CBCGPPropertySheet* pSheet = bShow && nStatus == 0 ? SheetOf(*this) : nullptr;
    if (!pSheet)
        return;
    StandBelow(pSheet->GetHeaderHeight());
    pSheet->OnActivatePage(this);
}

void CBCGPPropertyPage::StandBelow(int nHeaderHeight)
{
    CRect place;
    GetWindowRect(place);
    GetParent()->ScreenToClient(place);
    if (m_nTop == NOWHERE)
        m_nTop = place.top;
    if (place.top != m_nTop + nHeaderHeight)
        SetWindowPos(nullptr, place.left, m_nTop + nHeaderHeight, 0, 0,
                     SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}
