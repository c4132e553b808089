#include "afxframe.h"
#include "afxstate.h"

// A frame and the views in it.

BOOL CFrameWnd::OnCreateClient(LPCREATESTRUCT, CCreateContext* pContext)
{
    return !pContext || !pContext->m_pNewViewClass || CreateView(pContext) != nullptr;
}

int CFrameWnd::OnCreate(LPCREATESTRUCT lpcs)
{
    if (CWnd::OnCreate(lpcs) == -1 ||
        !OnCreateClient(lpcs, static_cast<CCreateContext*>(lpcs->lpCreateParams)))
        return -1;
    RecalcLayout();
    return 0;
}

CWnd* CFrameWnd::CreateView(CCreateContext* pContext, UINT nID)
{
    if (!pContext || !pContext->m_pNewViewClass)
        return nullptr;
    CObject* pObject = pContext->m_pNewViewClass->CreateObject();
    CWnd* pView = DYNAMIC_DOWNCAST(CWnd, pObject);
    if (!pView)
    {
        delete pObject;
        return nullptr;
    }
    if (!pView->Create(nullptr, nullptr, AFX_WS_DEFAULT_VIEW, CRect(0, 0, 0, 0), this, nID, pContext))
        return nullptr; // it has deleted itself
    return pView;
}

CDocument* CFrameWnd::GetActiveDocument() { return m_pViewActive ? m_pViewActive->GetDocument() : nullptr; }

void CFrameWnd::SetActiveView(CView* pViewNew, BOOL bNotify)
{
    CView* pFormer = m_pViewActive;
    if (pFormer == pViewNew)
        return;
    m_pViewActive = nullptr; // nobody's while the former one is told
    if (pFormer && bNotify)
        pFormer->OnActivateView(FALSE, pViewNew, pFormer);
    if (m_pViewActive)
        return; // told otherwise meanwhile
    m_pViewActive = pViewNew;
    if (pViewNew && bNotify)
        pViewNew->OnActivateView(TRUE, pViewNew, pFormer);
}

void CFrameWnd::InitialUpdateFrame(CDocument*, BOOL bMakeVisible)
{
    CView* pView = m_pViewActive;
    if (!pView)
    {
        pView = DYNAMIC_DOWNCAST(CView, GetDescendantWindow(AFX_IDW_PANE_FIRST, TRUE));
        if (pView)
            SetActiveView(pView, FALSE);
    }
    if (!bMakeVisible)
        return;
    SendMessageToDescendants(WM_INITIALUPDATE, 0, 0, TRUE, TRUE);
    ActivateFrame();
    if (m_pViewActive)
        m_pViewActive->OnActivateView(TRUE, m_pViewActive, m_pViewActive);
}

void CFrameWnd::RecalcLayout(BOOL)
{
    CWnd* pPane = m_hWnd ? GetDlgItem(AFX_IDW_PANE_FIRST) : nullptr;
    if (!pPane || IsIconic())
        return;
    CRect client;
    GetClientRect(client);
    pPane->MoveWindow(client);
}

void CFrameWnd::OnSize(UINT nType, int cx, int cy)
{
    CWnd::OnSize(nType, cx, cy);
    if (nType != SIZE_MINIMIZED)
        RecalcLayout();
}

void CFrameWnd::OnSetFocus(CWnd* pOldWnd)
{
    if (m_pViewActive)
        m_pViewActive->SetFocus();
    else
        CWnd::OnSetFocus(pOldWnd);
}

void CFrameWnd::OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized)
{
    const AfxLifeLine life(this);
    CWnd::OnActivate(nState, pWndOther, bMinimized);
    if (life.IsAlive() && m_pViewActive)
        m_pViewActive->OnActivateFrame(nState, this);
}
