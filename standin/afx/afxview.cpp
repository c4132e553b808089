#include "afxview.h"

#include "afxframe.h"
#include "afxmsgmap.h"
#include "afxstate.h"

IMPLEMENT_DYNAMIC(CView, CWnd)

BEGIN_MESSAGE_MAP(CView, CWnd)
ON_WM_CREATE()
ON_WM_DESTROY()
ON_WM_PAINT()
ON_WM_MOUSEACTIVATE()
ON_MESSAGE(WM_INITIALUPDATE, &CView::OnInitialUpdateMessage)
END_MESSAGE_MAP()

CView::~CView()
{
    if (m_pDocument)
        m_pDocument->RemoveView(this);
}

BOOL CView::PreCreateWindow(CREATESTRUCT& cs)
{
    if (!cs.lpszClass)
        cs.lpszClass =
            AfxRegisterWndClass(CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW, ::LoadCursorW(nullptr, IDC_ARROW),
                                reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1));
    if (cs.style & WS_BORDER)
    {
        cs.dwExStyle |= WS_EX_CLIENTEDGE; // a sunken edge in place of the line
        cs.style &= ~WS_BORDER;
    }
    return TRUE;
}

int CView::OnCreate(LPCREATESTRUCT lpcs)
{
    if (CWnd::OnCreate(lpcs) == -1)
        return -1;
    const auto* pContext = static_cast<const CCreateContext*>(lpcs->lpCreateParams);
    if (pContext && pContext->m_pCurrentDoc)
        pContext->m_pCurrentDoc->AddView(this);
    return 0;
}

void CView::OnDestroy()
{
    CFrameWnd* pFrame = GetParentFrame();
    if (pFrame && pFrame->GetActiveView() == this)
        pFrame->SetActiveView(nullptr);
    CWnd::OnDestroy();
}

void CView::OnInitialUpdate() { OnUpdate(nullptr, 0, nullptr); }

LRESULT CView::OnInitialUpdateMessage(WPARAM, LPARAM)
{
    OnInitialUpdate();
    return 0;
}

void CView::OnUpdate(CView*, LPARAM, CObject*) { Invalidate(TRUE); }

void CView::OnPaint()
{
    CPaintDC dc(this);
    OnPrepareDC(&dc);
    OnDraw(&dc);
}

void CView::OnActivateView(BOOL bActivate, CView* pActivateView, CView*)
{
    const bool bHasFocus = GetFocus() == this || IsChild(GetFocus());
    if (bActivate && pActivateView == this && !bHasFocus)
        SetFocus();
}

int CView::OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message)
{
    const int nResult = CWnd::OnMouseActivate(pDesktopWnd, nHitTest, message);
    CFrameWnd* pFrame = GetParentFrame();
    if (nResult == MA_NOACTIVATE || nResult == MA_NOACTIVATEANDEAT || !pFrame)
        return nResult;
    const HWND hFocus = ::GetFocus();
    if (pFrame->GetActiveView() != this)
        pFrame->SetActiveView(this);
    else if (hFocus != m_hWnd && !::IsChild(m_hWnd, hFocus))
        OnActivateView(TRUE, this, this);
    return nResult;
}

BOOL CView::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    const AfxLifeLine life(this); // a handler may close the view and pass the command on all the same
    if (CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    return life.IsAlive() && m_pDocument && m_pDocument->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}
