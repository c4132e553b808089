#include "afxformview.h"

#include "afxframe.h"
#include "afxmsgmap.h"
#include "afxstate.h"

#include <cstring>

IMPLEMENT_DYNAMIC(CFormView, CScrollView)

BEGIN_MESSAGE_MAP(CFormView, CScrollView)
ON_WM_CREATE()
ON_WM_SETFOCUS()
END_MESSAGE_MAP()

CFormView::CFormView(LPCTSTR lpszTemplateName) : m_lpszTemplateName(lpszTemplateName)
{
    if (IS_INTRESOURCE(lpszTemplateName))
        return;
    m_strTemplateName = lpszTemplateName;
    m_lpszTemplateName = m_strTemplateName;
}

CFormView::CFormView(UINT nIDTemplate) : m_lpszTemplateName(MAKEINTRESOURCEW(nIDTemplate)) {}

BOOL CFormView::IsChildTemplate() const
{
    const HINSTANCE hInst = AfxFindResourceHandle(m_lpszTemplateName, RT_DIALOG);
    const HRSRC hResource = ::FindResourceW(hInst, m_lpszTemplateName, RT_DIALOG);
    const HGLOBAL hTemplate = hResource ? ::LoadResource(hInst, hResource) : nullptr;
    const void* pTemplate = hTemplate ? ::LockResource(hTemplate) : nullptr;
    return pTemplate && (AfxTemplateStyle(static_cast<LPCDLGTEMPLATE>(pTemplate)) & WS_CHILD);
}

BOOL CFormView::Create(LPCTSTR, LPCTSTR lpszWindowName, DWORD dwRequestedStyle, const RECT& rect,
                       CWnd* pParentWnd, UINT nID, CCreateContext* pContext)
{
    CREATESTRUCTW cs{};
    cs.style = static_cast<LONG>(dwRequestedStyle != 0 ? dwRequestedStyle : AFX_WS_DEFAULT_VIEW);
    if (!pParentWnd || !IsChildTemplate() || !PreCreateWindow(cs))
    {
        PostNcDestroy(); // as for any window that cannot be made
        return FALSE;
    }
    m_pCreateContext = pContext;
    const AfxLifeLine life(this);
    const BOOL bCreated = CreateDlg(m_lpszTemplateName, pParentWnd);
    if (!life.IsAlive())
        return FALSE;
    m_pCreateContext = nullptr;
    if (!bCreated)
        return FALSE;
    ModifyStyle(WS_BORDER | WS_CAPTION, static_cast<DWORD>(cs.style) & (WS_BORDER | WS_CAPTION));
    ModifyStyleEx(WS_EX_CLIENTEDGE, cs.dwExStyle & WS_EX_CLIENTEDGE);
    SetDlgCtrlID(static_cast<int>(nID));
    if (lpszWindowName)
        SetWindowText(lpszWindowName);
    CRect whole;
    GetClientRect(whole);
    SetScrollSizes(MM_TEXT, whole.Size());
    if (!ExecuteDlgInit(m_lpszTemplateName))
    {
        DestroyWindow();
        return FALSE;
    }
    const bool bSized = !::IsRectEmpty(&rect);
    SetWindowPos(nullptr, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top,
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED | (bSized ? 0 : SWP_NOSIZE));
    if (cs.style & WS_VISIBLE)
        ShowWindow(SW_NORMAL);
    return life.IsAlive();
}

int CFormView::OnCreate(LPCREATESTRUCT lpcs)
{
    lpcs->lpCreateParams = m_pCreateContext; // the dialog's own parameters say nothing
    return CScrollView::OnCreate(lpcs);
}

void CFormView::OnInitialUpdate()
{
    if (!UpdateData(FALSE))
        TRACE(L"A form view's first exchange of data was refused\n");
    CScrollView::OnInitialUpdate();
}

BOOL CFormView::PreTranslateMessage(MSG* pMsg)
{
    if (CScrollView::PreTranslateMessage(pMsg))
        return TRUE;
    // The dialog's keys come last, or they would hide the frames' shortcuts.
    const AfxLifeLine life(this);
    for (CFrameWnd* pFrame = GetParentFrame(); pFrame; pFrame = pFrame->GetParentFrame())
    {
        if (pFrame->PreTranslateMessage(pMsg))
            return TRUE;
        if (!life.IsAlive())
            return FALSE;
    }
    return PreTranslateInput(pMsg);
}

BOOL CFormView::SaveFocusControl()
{
    const HWND hFocus = ::GetFocus();
    if (!hFocus || !::IsChild(m_hWnd, hFocus))
        return FALSE;
    m_hWndFocus = hFocus;
    return TRUE;
}

void CFormView::OnActivateView(BOOL bActivate, CView* pActivateView, CView* pDeactiveView)
{
    if (!bActivate)
        SaveFocusControl();
    CScrollView::OnActivateView(bActivate, pActivateView, pDeactiveView);
}

void CFormView::OnActivateFrame(UINT nState, CFrameWnd* pFrame)
{
    if (nState == WA_INACTIVE)
        SaveFocusControl();
    CScrollView::OnActivateFrame(nState, pFrame);
}

void CFormView::OnSetFocus(CWnd* pOldWnd)
{
    if (pOldWnd && ::IsChild(m_hWnd, pOldWnd->m_hWnd))
        m_hWndFocus = pOldWnd->m_hWnd; // the form itself has no use for it
    if (m_hWndFocus && ::IsWindow(m_hWndFocus) && ::IsChild(m_hWnd, m_hWndFocus))
        ::SetFocus(m_hWndFocus);
    else
        Default(); // the dialog's: its first control
}
