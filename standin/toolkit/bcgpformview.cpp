#include "bcgpformview.h"

IMPLEMENT_DYNAMIC(CBCGPFormView, CFormView)

BEGIN_MESSAGE_MAP(CBCGPFormView, CFormView)
ON_WM_ERASEBKGND()
ON_WM_CTLCOLOR()
ON_WM_SYSCOLORCHANGE()
END_MESSAGE_MAP()

BOOL CBCGPFormView::OnEraseBkgnd(CDC* pDC) { return m_style.Erase(pDC) || CFormView::OnEraseBkgnd(pDC); }

HBRUSH CBCGPFormView::OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor)
{
    const HBRUSH hBrush = m_style.Colour(pDC, pWnd, nCtlColor);
    return hBrush ? hBrush : reinterpret_cast<HBRUSH>(Default());
}

void CBCGPFormView::OnSysColorChange()
{
    m_style.OnSystemColours();
    CFormView::OnSysColorChange();
}
