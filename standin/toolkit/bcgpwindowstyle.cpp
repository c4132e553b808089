#include "bcgpwindowstyle.h"

#include "bcgpvisualmanager.h"

namespace
{
/// The windows with the style.
std::set<const CBCGPWindowStyle*>& Enabled()
{
    static std::set<const CBCGPWindowStyle*> styles;
    return styles;
}

/// A read-only or disabled edit control asks as a label does, and keeps the look of a field.
bool IsEdit(CWnd* pCtl)
{
    WCHAR szClass[8] = {};
    return ::GetClassNameW(pCtl->m_hWnd, szClass, static_cast<int>(std::size(szClass))) > 0 &&
           ::lstrcmpiW(szClass, L"Edit") == 0;
}
} // namespace

CBCGPWindowStyle::~CBCGPWindowStyle() { Enabled().erase(this); }

void CBCGPWindowStyle::Enable(BOOL bEnable, BOOL bNCArea, const CList<UINT, UINT>* plstPlain)
{
    m_bEnabled = bEnable;
    m_bNCArea = bNCArea;
    m_plain.clear();
    for (POSITION pos = plstPlain ? plstPlain->GetHeadPosition() : nullptr; pos;)
        m_plain.insert(static_cast<int>(plstPlain->GetNext(pos)));
    if (bEnable)
        Enabled().insert(this);
    else
        Enabled().erase(this);
    Redraw();
}

void CBCGPWindowStyle::SetBackground(COLORREF color, BOOL bRepaint)
{
    m_brOwn.DeleteObject();
    m_clrOwn = color;
    if (color != CLR_INVALID)
        m_brOwn.CreateSolidBrush(color);
    if (bRepaint)
        Redraw();
}

void CBCGPWindowStyle::Redraw() const
{
    if (m_pWnd->GetSafeHwnd())
        m_pWnd->RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

void CBCGPWindowStyle::RedrawAll()
{
    for (const CBCGPWindowStyle* pStyle : Enabled())
        pStyle->Redraw();
}

void CBCGPWindowStyle::OnSystemColours()
{
    if (m_bEnabled)
        CBCGPVisualManager::GetInstance()->OnUpdateSystemColors();
}

BOOL CBCGPWindowStyle::Erase(CDC* pDC)
{
    CRect client;
    m_pWnd->GetClientRect(client);
    if (m_clrOwn != CLR_INVALID)
        pDC->FillRect(client, &m_brOwn);
    else if (m_bEnabled)
        CBCGPVisualManager::GetInstance()->OnFillDialog(pDC, m_pWnd, client);
    else
        return FALSE;
    return TRUE;
}

BOOL CBCGPWindowStyle::IsColoured(CWnd* pCtl, UINT nCtlColor) const
{
    if (!m_bEnabled && m_clrOwn == CLR_INVALID)
        return FALSE;
    if (nCtlColor == CTLCOLOR_DLG)
        return TRUE;
    return (nCtlColor == CTLCOLOR_STATIC || nCtlColor == CTLCOLOR_BTN) && pCtl &&
           !m_plain.contains(pCtl->GetDlgCtrlID()) && !IsEdit(pCtl);
}

HBRUSH CBCGPWindowStyle::Colour(CDC* pDC, CWnd* pCtl, UINT nCtlColor)
{
    LRESULT lAnswer = 0;
    if (pCtl && pCtl != m_pWnd && pCtl->SendChildNotifyLastMsg(&lAnswer))
        return reinterpret_cast<HBRUSH>(lAnswer);
    if (!IsColoured(pCtl, nCtlColor))
        return nullptr;
    pDC->SetBkMode(TRANSPARENT);
    CBCGPVisualManager* pManager = CBCGPVisualManager::GetInstance();
    if (m_bEnabled)
        pDC->SetTextColor(pManager->GetDlgTextColor(m_pWnd));
    return m_clrOwn != CLR_INVALID ? m_brOwn : pManager->GetDlgBackBrush(m_pWnd);
}
