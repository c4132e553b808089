#include "bcgpdialog.h"

IMPLEMENT_DYNAMIC(CBCGPDialog, CDialog)

BEGIN_MESSAGE_MAP(CBCGPDialog, CDialog)
ON_WM_ERASEBKGND()
ON_WM_CTLCOLOR()
ON_WM_SYSCOLORCHANGE()
END_MESSAGE_MAP()

BOOL CBCGPDialog::OnEraseBkgnd(CDC* pDC) { return m_style.Erase(pDC) || CDialog::OnEraseBkgnd(pDC); }

HBRUSH CBCGPDialog::OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor)
{
    const HBRUSH hBrush = m_style.Colour(pDC, pWnd, nCtlColor);
    return hBrush ? hBrush : reinterpret_cast<HBRUSH>(Default());
}

void CBCGPDialog::OnSysColorChange()
{
    m_style.OnSystemColours();
    CDialog::OnSysColorChange();
}
