#include "afxcmn.h"
#include "afxmodal.h"
#include "afxpropsheet.h"

#include <algorithm>

// A property sheet from its making to its end.

namespace
{
/// Closes a modeless sheet when nobody works with its pages any more.
constexpr UINT WM_SHEETISOVER = 0x036B;

/// The sheet that the system is making; there is no other way to tell its first callback.
thread_local CPropertySheet* t_pMaking = nullptr;
} // namespace

bool CPropertySheet::EveryPageHasItsTemplate() const
{
    const auto* p = reinterpret_cast<const BYTE*>(m_psh.ppsp);
    for (UINT i = 0; i < m_psh.nPages; ++i)
    {
        const auto& psp = *reinterpret_cast<const PROPSHEETPAGE*>(p);
        if ((psp.dwFlags & PSP_DLGINDIRECT) && !psp.pResource)
            return false;
        p += psp.dwSize;
    }
    return m_psh.nPages > 0;
}

void CPropertySheet::TellPages()
{
    const auto* p = reinterpret_cast<const BYTE*>(m_psh.ppsp);
    for (UINT i = 0; i < m_psh.nPages; ++i)
    {
        const auto& psp = *reinterpret_cast<const PROPSHEETPAGE*>(p);
        if (CPropertyPage* pPage = GetPage(static_cast<int>(i)))
            pPage->WasBuilt(this, psp.pResource);
        p += psp.dwSize;
    }
}

int CALLBACK CPropertySheet::SheetCallback(HWND hWnd, UINT message, LPARAM lParam)
{
    CPropertySheet* pSheet =
        message == PSCB_PRECREATE ? t_pMaking : DYNAMIC_DOWNCAST(CPropertySheet, FromHandlePermanent(hWnd));
    if (!pSheet)
        return 0;
    if (message == PSCB_PRECREATE && pSheet->m_bModeless)
        AfxSetTemplateStyle(reinterpret_cast<DLGTEMPLATE*>(lParam),
                            pSheet->m_dwStyle |
                                (AfxTemplateStyle(reinterpret_cast<DLGTEMPLATE*>(lParam)) & DS_SHELLFONT),
                            pSheet->m_dwExStyle);
    const bool bUsers = (pSheet->m_psh.dwFlags & PSH_USECALLBACK) && pSheet->m_psh.pfnCallback;
    return bUsers ? pSheet->m_psh.pfnCallback(hWnd, message, lParam) : 0;
}

BOOL CPropertySheet::Build(HWND hOwner)
{
    AfxInitCommonControls();
    m_nEndID = 0;
    m_bBuilt = FALSE;
    m_bClosing = FALSE;
    BuildPropPageArray();
    if (!EveryPageHasItsTemplate())
        return FALSE;
    TellPages();
    m_psh.hwndParent = hOwner;
    m_psh.pszCaption = m_strCaption;
    if (!m_psh.hInstance)
        m_psh.hInstance = AfxGetInstanceHandle();
    m_psh.nStartPage = std::min(m_psh.nStartPage, m_psh.nPages - 1);
    // Modeless for the system in either case: the loop of a modal sheet is ours.
    PROPSHEETHEADER header = m_psh;
    header.dwFlags |= PSH_MODELESS | PSH_USECALLBACK;
    header.pfnCallback = SheetCallback;
    m_nFlags |= WF_CONTINUEMODAL;
    m_nModalResult = -1;
    const AfxLifeLine life(this);
    CPropertySheet* pOuter = std::exchange(t_pMaking, this);
    AfxHookWindowCreate(this);
    const INT_PTR nMade = ::PropertySheetW(&header);
    AfxUnhookWindowCreate();
    t_pMaking = pOuter;
    if (!life.IsAlive())
        return FALSE;
    m_bBuilt = TRUE;
    return m_hWnd && nMade != 0 && nMade != -1;
}

INT_PTR CPropertySheet::DoModal()
{
    const AfxLifeLine life(this);
    AfxModalOwner owner(SafeHandle(m_pParentWnd));
    m_bModeless = FALSE;
    const BOOL bMade = Build(owner.Handle());
    if (!life.IsAlive())
        return -1;
    INT_PTR nResult = -1;
    if (bMade && !(m_nFlags & WF_CONTINUEMODAL))
        nResult = m_nModalResult; // ended while it was being made
    else if (bMade && !IsOver())
        nResult = RunModalLoop(MLF_SHOWONIDLE);
    if (!life.IsAlive())
        return nResult;
    if (nResult == -1 && m_hWnd && m_nEndID != 0 && IsOver())
        nResult = m_nEndID;
    if (m_hWnd)
        SetWindowPos(nullptr, 0, 0, 0, 0,
                     SWP_HIDEWINDOW | SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_NOZORDER);
    owner.Release();
    if (m_hWnd && owner.Handle() && ::GetActiveWindow() == m_hWnd)
        ::SetActiveWindow(owner.Handle());
    DestroyWindow();
    return nResult;
}

BOOL CPropertySheet::Create(CWnd* pParentWnd, DWORD dwStyle, DWORD dwExStyle)
{
    m_bModeless = TRUE;
    m_dwStyle = dwStyle != static_cast<DWORD>(-1)
                    ? dwStyle
                    : DS_MODALFRAME | DS_CONTEXTHELP | WS_POPUP | WS_VISIBLE | WS_CAPTION | WS_SYSMENU;
    m_dwExStyle = dwExStyle;
    const AfxLifeLine life(this);
    const BOOL bMade = Build(SafeHandle(pParentWnd));
    if (!life.IsAlive())
        return FALSE;
    if (bMade && (m_nFlags & WF_CONTINUEMODAL))
    {
        m_nFlags &= ~WF_CONTINUEMODAL;
        return TRUE;
    }
    if (m_hWnd)
        DestroyWindow();
    return FALSE;
}

BOOL CPropertySheet::DestroyWindow()
{
    if (!m_hWnd || m_bBuilt)
        return CWnd::DestroyWindow();
    EndModalLoop(-1); // the system is still at work on it; who made it destroys it
    return TRUE;
}

void CPropertySheet::EndDialog(int nEndID)
{
    if (m_bModeless && m_bBuilt)
        DestroyWindow();
    else
        EndModalLoop(nEndID);
}

bool CPropertySheet::IsOver() const
{
    return m_bBuilt && (!::IsWindow(m_hWnd) || !::SendMessageW(m_hWnd, PSM_GETCURRENTPAGEHWND, 0, 0));
}

BOOL CPropertySheet::ContinueModal() { return CWnd::ContinueModal() && !IsOver(); }

LRESULT CPropertySheet::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_SHEETISOVER)
    {
        DestroyWindow();
        return 0;
    }
    const bool bMayEnd = message == WM_COMMAND || message == PSM_PRESSBUTTON || message == WM_SYSCOMMAND ||
                         message == WM_CLOSE;
    if (bMayEnd && IsOver())
        return 0; // one click on the close button comes as several of these
    const AfxLifeLine life(this);
    const LRESULT lResult = CWnd::WindowProc(message, wParam, lParam);
    if (bMayEnd && life.IsAlive() && m_bModeless && !m_bClosing && m_hWnd && IsOver())
    {
        m_bClosing = TRUE;
        ShowWindow(SW_HIDE);
        PostMessage(WM_SHEETISOVER);
    }
    return lResult;
}

LRESULT CPropertySheet::OnInitDialogMessage(WPARAM, LPARAM)
{
    return OnInitDialog(); // which runs the system's own part first
}

BOOL CPropertySheet::OnInitDialog()
{
    const AfxLifeLine life(this);
    const BOOL bFocus = static_cast<BOOL>(Default());
    if (!life.IsAlive() || !m_hWnd)
        return FALSE;
    if (CTabCtrl* pTab = GetTabControl(); pTab && !m_bStacked)
        pTab->ModifyStyle(TCS_MULTILINE, TCS_SINGLELINE);
    if (m_bModeless && !IsWizard())
        HideButtons();
    return bFocus;
}

/// The sheet ends below its pages.
void CPropertySheet::HideButtons()
{
    for (const UINT nID :
         {static_cast<UINT>(IDOK), static_cast<UINT>(IDCANCEL), ID_APPLY_NOW, static_cast<UINT>(IDHELP)})
        if (const HWND hButton = ::GetDlgItem(m_hWnd, static_cast<int>(nID)))
        {
            ::ShowWindow(hButton, SW_HIDE);
            ::EnableWindow(hButton, FALSE);
        }
    CWnd* pTab = FromHandle(reinterpret_cast<HWND>(SendMessage(PSM_GETTABCONTROL)));
    if (!pTab)
        return;
    CRect tab;
    pTab->GetWindowRect(tab);
    ScreenToClient(tab);
    CRect client;
    GetClientRect(client);
    CRect window;
    GetWindowRect(window);
    const int nSpare = client.bottom - (tab.bottom + tab.left); // the same margin as at the side
    if (nSpare > 0)
        SetWindowPos(nullptr, 0, 0, window.Width(), window.Height() - nSpare,
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}
